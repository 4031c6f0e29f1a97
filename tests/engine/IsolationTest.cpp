// SPDX-License-Identifier: GPL-3.0-or-later
// A page in the editor runs nothing, goes nowhere and asks nothing of the network. Some of these
// tests hold the browser engine to behaviour that the component is built on: a newer engine that
// differs fails here first.
#include "tests/engine/ComponentFixture.h"
#include "tests/engine/CountingServer.h"

#include <QTest>
#include <QWebEngineProfile>
#include <QWebEngineSettings>

#include <gmock/gmock.h>

namespace velor {

namespace {

class Isolation : public WebEditorTest {
 protected:
  /// Waits for thirty animation frames of the page, so that scripts and requests had time to start.
  void Settle() {
    Evaluate(
        QStringLiteral("globalThis.turns = 0; (function turn() { ++turns;"
                       "requestAnimationFrame(turn); })()"));
    ASSERT_TRUE(WaitFor([this] { return Evaluate(QStringLiteral("turns")).toInt() > 30; }));
  }
};

TEST_F(Isolation, ThePagesScriptsNeverRun) {
  Write(QStringLiteral("outer.js"), "document.title = 'ran: external';");
  Write(QStringLiteral("frame.htm"), "<script>parent.document.title = 'ran: frame';</script>");
  Write(QStringLiteral("picture.svg"),
        "<svg xmlns='http://www.w3.org/2000/svg' onload=\"document.title='ran: svg'\"/>");
  editor_->LoadDocument(Write(
      QStringLiteral("page.htm"),
      "<html><head><title>quiet</title><script>document.title = 'ran: inline';</script>"
      "<script src='outer.js'></script><script type=module>document.title = 'ran: module';</script>"
      "</head><body onload=\"document.title='ran: onload'\">"
      "<img src='missing.gif' onerror=\"document.title='ran: onerror'\">"
      "<a id=go href=\"javascript:document.title='ran: link'\" onclick=\"document.title='ran: "
      "click'\">go</a>"
      "<iframe src='frame.htm'></iframe><iframe srcdoc=\"<script>parent.document.title='ran: "
      "srcdoc'</script>\"></iframe><iframe src=\"javascript:parent.document.title='ran: url'\">"
      "</iframe><object data='picture.svg'></object>"
      "<svg onload=\"document.title='ran: inline svg'\"></svg>"
      "<details open ontoggle=\"document.title='ran: toggle'\">x</details></body></html>"));
  Show();
  Evaluate(QStringLiteral("document.getElementById('go').click()"));
  Settle();
  EXPECT_EQ(Evaluate(QStringLiteral("document.title")).toString(), QStringLiteral("quiet"));
  // All of it is still in the document.
  const QString html = editor_->DocumentHTML();
  EXPECT_TRUE(html.contains(QStringLiteral("document.title = 'ran: inline';</script>")));
  EXPECT_TRUE(html.contains(QStringLiteral("onerror=\"document.title='ran: onerror'\"")));
}

TEST_F(Isolation, NothingNavigatesAwayFromThePage) {
  Write(QStringLiteral("other.htm"), "<title>other</title>");
  editor_->LoadDocument(
      Write(QStringLiteral("page.htm"),
            "<html><head><title>stays</title><meta http-equiv=refresh content='0;url=other.htm'>"
            "</head><body><a id=link href='other.htm'>x</a><a id=blank target=_blank "
            "href='other.htm'>y</a><form id=form action='other.htm'><input></form>"
            "<a id=mail href='mailto:nobody@example.com'>z</a></body></html>"));
  Show();
  const QUrl address = Page()->url();
  Evaluate(QStringLiteral("document.getElementById('link').click()"));
  Evaluate(QStringLiteral("document.getElementById('blank').click()"));
  Evaluate(QStringLiteral("document.getElementById('mail').click()"));
  Evaluate(QStringLiteral("document.getElementById('form').submit()"));
  Evaluate(QStringLiteral("location.href = 'other.htm'"));
  Settle();
  Page()->triggerAction(QWebEnginePage::Reload);
  Page()->triggerAction(QWebEnginePage::Back);
  Settle();
  EXPECT_EQ(Page()->url(), address);
  EXPECT_EQ(Evaluate(QStringLiteral("document.title")).toString(), QStringLiteral("stays"));
  EXPECT_EQ(listener_.completions, 1);
}

TEST_F(Isolation, ThePageIsStillEditedAfterRefusedNavigations) {
  LoadWithCaret("<html><body><p>text</p></body></html>", QStringLiteral("p"));
  Evaluate(QStringLiteral("location.href = 'elsewhere.htm'"));
  Settle();
  TypeText(QStringLiteral(" more"));
  EXPECT_TRUE(WaitFor([&] { return DocumentHolds(QStringLiteral("text more")); }));
}

TEST_F(Isolation, NothingRemoteIsFetched) {
  CountingServer server;
  QByteArray page(
      "<html><head><link rel=stylesheet href='@/a.css'><link rel=icon href='@/favicon.ico'>"
      "<link rel=preconnect href='@/'><link rel=dns-prefetch href='@/'>"
      "<link rel=prefetch href='@/b.htm'><link rel=preload as=image href='@/c.gif'>"
      "<style>@import url('@/d.css'); body { background: url('@/e.gif'); }"
      "@font-face { font-family: F; src: url('@/f.ttf'); } p { font-family: F; }</style>"
      "<script src='@/g.js'></script></head><body background='@/h.gif'><p>text</p>"
      "<img src='@/i.gif' srcset='@/j.gif 2x'><iframe src='@/k.htm'></iframe>"
      "<object data='@/l.swf'></object><embed src='@/m.swf'><video src='@/n.mp4' autoplay></video>"
      "<audio src='@/o.mp3' autoplay></audio><input type=image src='@/p.gif'>"
      "<table background='@/q.gif'><tr><td>x</table></body></html>");
  page.replace("@", server.Address());
  editor_->LoadDocument(Write(QStringLiteral("page.htm"), page));
  Show();
  editor_->Document().Selection().CreateRange()->PasteHTML(
      QStringLiteral("<img src='%1/pasted.gif'>").arg(QString::fromLatin1(server.Address())));
  Settle();
  EXPECT_TRUE(DocumentHolds(QStringLiteral("/pasted.gif")));
  EXPECT_EQ(server.visits, 0);
}

TEST_F(Isolation, TheProfileReachesNoServerWhoeverAsks) {
  CountingServer server;
  QWebEnginePage page(&Engine().Profile());
  bool ended = false;
  QObject::connect(&page, &QWebEnginePage::loadFinished, [&] { ended = true; });
  page.load(QUrl(QString::fromLatin1(server.Address())));
  ASSERT_TRUE(WaitFor([&] { return ended; }));
  EXPECT_EQ(server.visits, 0);
}

TEST_F(Isolation, AKeptClipboardOrStorageIsNotThePages) {
  editor_->LoadDocument(Write(QStringLiteral("page.htm"), "<p>x</p>"));
  EXPECT_TRUE(Page()->profile()->isOffTheRecord());
  EXPECT_FALSE(Page()->settings()->testAttribute(QWebEngineSettings::LocalStorageEnabled));
  EXPECT_FALSE(Page()->settings()->testAttribute(QWebEngineSettings::JavascriptEnabled));
}

}  // namespace

}  // namespace velor
