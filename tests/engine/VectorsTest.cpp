// SPDX-License-Identifier: GPL-3.0-or-later
// Every way in which a page could run a script, fetch something or go elsewhere, by each way in
// which a page comes into the editor; and the clicks and keys that would follow a link elsewhere.
#include "tests/engine/CountingServer.h"
#include "tests/engine/EditingFixture.h"

#include <QMimeData>
#include <QRegularExpression>

#include <gmock/gmock.h>

namespace velor {
namespace {

/// `%` stands for what a script would do, `@` for a server.
constexpr const char *HeadVectors[] = {
    "<script>%</script>",
    "<script src='@/a.js'></script><script src='@/b.js' async></script>",
    "<script type=module>%</script><script type=module src='@/c.mjs'></script>",
    "<script type=module>import '@/d.mjs'; new Worker('@/w.js'); %</script>",
    R"(<script type=importmap>{"imports": {"x": "@/x.mjs"}}</script>)",
    "<script type=module>import 'x'</script>",
    "<script type=speculationrules>{\"prefetch\": [{\"source\": \"list\", \"urls\": [\"@/s\"]}],"
    "\"prerender\": [{\"source\": \"list\", \"urls\": [\"@/t\"]}]}</script>",
    "<script src='data:text/javascript,%'></script><script src='outer.js'></script>",
    "<script>new WebSocket('@'.replace('http', 'ws')); fetch('@/f');"
    "navigator.sendBeacon('@/g'); open('@/h'); location = '@/i';"
    "new RTCPeerConnection({iceServers: [{urls: 'stun:127.0.0.1'}]}).createOffer();"
    "onbeforeunload = () => 'stay'; alert(1); print()</script>",
    "<link rel=stylesheet href='@/a.css'><link rel='alternate stylesheet' href='@/b.css'>",
    "<link rel=preload as=script href='@/p.js'><link rel=preload as=style href='@/p.css'>"
    "<link rel=preload as=font crossorigin href='@/p.woff'><link rel=preload as=image "
    "imagesrcset='@/p.gif 1x' imagesizes=1px><link rel=modulepreload href='@/m.mjs'>",
    "<link rel=prefetch href='@/q.htm'><link rel=prerender href='@/r.htm'>"
    "<link rel=dns-prefetch href='@/'><link rel=preconnect href='@/'><link rel=subresource "
    "href='@/s'><link rel=import href='@/i.htm'>",
    "<link rel=icon href='@/i.ico'><link rel='shortcut icon' href='@/j.ico'>"
    "<link rel=apple-touch-icon href='@/k.png'><link rel=manifest href='@/m.json'>"
    "<link rel=search href='@/o.xml' type='application/opensearchdescription+xml'>"
    "<link rel=pingback href='@/p'><link rel=alternate type='application/rss+xml' href='@/r.xml'>",
    "<style>@import '@/c.css'; @import url(@/d.css); @font-face { font-family: F; "
    "src: url(@/f.ttf) } * { font-family: F; cursor: url(@/c.cur), auto; background-image: "
    "image-set('@/i.gif' 1x); list-style: url(@/l.gif); border-image: url(@/b.gif) 1; "
    "mask: url(@/m.svg#x); filter: url(@/n.svg#x); content: url(@/o.gif); "
    "width: expression(%); behavior: url(@/h.htc); -moz-binding: url(@/x.xml#x) } "
    "li::marker { content: url(@/p.gif) } p::before { content: url('@/q.gif') }</style>",
    "<meta http-equiv=refresh content='0; url=@/r'><META HTTP-EQUIV=REFRESH "
    "CONTENT='1;URL=\"other.htm\"'><meta http-equiv=Refresh content='0,javascript:%'>",
    "<noscript><meta http-equiv=refresh content='0; url=@/n'><link rel=stylesheet "
    "href='@/n.css'><img src='@/n.gif'></noscript>",
    "<meta http-equiv=set-cookie content='a=b'><meta http-equiv=x-dns-prefetch-control "
    "content=on>",
};

constexpr const char *BodyVectors[] = {
    "<img src='@/a.gif' onload='%' onerror='%' lowsrc='@/b.gif' longdesc='@/c'>",
    "<img src=x onerror='%'><img srcset='@/d.gif 1x, @/e.gif 2x' src='@/f.gif' loading=eager>",
    "<picture><source srcset='@/g.webp'><img src='@/h.gif'></picture>",
    "<svg onload='%'><script>%</script><script href='@/s.js'></script>"
    "<image href='@/i.gif' xlink:href='@/j.gif'/><use href='@/u.svg#x'/>"
    "<a xlink:href='javascript:%'><text>x</text></a><animate attributeName=href "
    "values='javascript:%' onbegin='%'/><set attributeName=x onend='%'/>"
    "<foreignObject><iframe src='@/k'></iframe></foreignObject><feImage href='@/l.gif'/></svg>",
    "<math><mi xlink:href='javascript:%'>x</mi><maction actiontype='statusline#@'>y</maction>"
    "</math>",
    "<iframe src='@/m'></iframe><iframe src='javascript:parent.document.%'></iframe>"
    "<iframe srcdoc='<script>parent.document.%</script><img src=@/n.gif>'></iframe>"
    "<iframe src='data:text/html,<script>top.%</script><img src=@/o.gif>'></iframe>"
    "<iframe src='frame.htm'></iframe>",
    "<object data='@/p'></object><object data='data:text/html,<script>top.%</script>'></object>"
    "<object classid='clsid:0' codebase='@/q'><param name=movie value='@/r'></object>"
    "<embed src='@/s'><embed src='data:image/svg+xml,<svg xmlns=\"http://www.w3.org/2000/svg\" "
    "onload=\"%\"/>'><applet code=x codebase='@/t' archive='@/u.jar'></applet>",
    "<portal src='@/v'></portal><fencedframe src='@/w'></fencedframe>",
    "<video src='@/a.mp4' poster='@/b.gif' autoplay muted onloadstart='%' onerror='%'>"
    "<track default src='@/t.vtt'></video><video autoplay><source src='@/c.webm' onerror='%'>"
    "</video><audio src='@/d.mp3' autoplay preload=auto></audio><bgsound src='@/e.wav'>",
    "<form action='@/f' name=f><input autofocus onfocus='%'><input type=image src='@/g.gif'>"
    "<button formaction='javascript:%'>x</button><input type=submit formaction='@/h'></form>"
    "<form action='javascript:%'><input type=submit></form><isindex action='@/i'>",
    "<body background='@/j.gif'><table background='@/k.gif'><tr background='@/l.gif'>"
    "<td background='javascript:%'>x</td></tr></table>",
    "<p style='background: url(@/m.gif); list-style-image: url(\"@/n.gif\")'>x</p>"
    "<div style='width: expression(%); background: image-set(\"@/o.gif\" 1x)'>x</div>",
    "<marquee onstart='%' onbounce='%' onfinish='%' loop=1>x</marquee>"
    "<details open ontoggle='%'><summary>x</summary></details>",
    "<div onanimationstart='%' style='animation: a 1ms'>x</div><style>@keyframes a { to { "
    "color: red } }</style><div ontransitionend='%' onscroll='%' onpointerenter='%'>x</div>",
    "<a href='@/p' ping='@/q' onclick='%' onmouseover='%' download>x</a>",
    "<base href='@/base/' target=_blank><img src='relative.gif'><a href='relative.htm'>x</a>",
    "<template shadowrootmode=open><img src='@/r.gif'><script>%</script></template>"
    "<xml id=x><script>%</script></xml><template><img src='@/s.gif' onerror='%'></template>",
    "<meta http-equiv=refresh content='0;url=@/t'><link rel=stylesheet href='@/u.css'>"
    "<style>@import '@/v.css';</style><script>%</script>",
};

/// The vectors; each script would leave its number behind in the document and tell the server.
template <std::size_t Count>
QByteArray All(const char *const (&vectors)[Count], const QByteArray &server) {
  QByteArray markup;
  int number = 0;
  for (const char *const vector : vectors) {
    const QByteArray ran = "documentElement.setAttribute(`ran`, " + QByteArray::number(++number) +
                           "); new Image().src = `@/ran`";
    markup += QByteArray(vector).replace("document.%", ran).replace("%", "document." + ran);
  }
  return markup.replace("@/", server + "/").replace("'@'", "'" + server + "'");
}

class Vectors : public Editing {
 protected:
  Vectors() {
    Write(QStringLiteral("outer.js"), "document.documentElement.setAttribute('ran', 'outer')");
    Write(QStringLiteral("frame.htm"),
          "<script>parent.document.documentElement.setAttribute('ran', 'frame')</script>");
    Write(QStringLiteral("other.htm"), "<title>other</title>");
    Show();
  }

  QByteArray WholePage() const {
    return "<html><head><title>stays</title>" + All(HeadVectors, server_.Address()) +
           "</head><body><p>text</p>" + All(BodyVectors, server_.Address()) + "</body></html>";
  }
  /// Waits for thirty animation frames of the page, so that scripts and requests had time to start.
  void Settle() {
    Evaluate(
        QStringLiteral("globalThis.turns = 0; (function turn() { ++turns;"
                       "requestAnimationFrame(turn); })()"));
    ASSERT_TRUE(WaitFor([this] { return Evaluate(QStringLiteral("turns")).toInt() > 30; }));
  }
  void ExpectNothingHappened() {
    Settle();
    EXPECT_EQ(server_.visits, 0);
    EXPECT_FALSE(Evaluate(QStringLiteral("document.documentElement.getAttribute('ran')")).isValid())
        << Evaluate(QStringLiteral("document.documentElement.getAttribute('ran')"))
               .toString()
               .toStdString();
    EXPECT_EQ(Page()->url().scheme(), QStringLiteral("velor-page"));
    EXPECT_NE(Evaluate(QStringLiteral("document.title")).toString(), QStringLiteral("other"));
    // A frame shows what its page has in it, and nothing else.
    EXPECT_EQ(Evaluate(QStringLiteral("[...document.querySelectorAll('iframe[src]')].filter("
                                      "each => each.contentDocument?.body?.innerHTML).length"))
                  .toInt(),
              0);
  }

  CountingServer server_;
};

TEST_F(Vectors, DoNothingInAPageThatIsOpened) {
  editor_->LoadDocument(Write(QStringLiteral("page.htm"), WholePage()));
  ExpectNothingHappened();
  // Nor in the spare page in which a save is checked.
  Evaluate(QStringLiteral("document.querySelector('p').append('!')"));
  editor_->SaveDocument(Logic(QStringLiteral("saved.htm")));
  EXPECT_EQ(Bytes(QStringLiteral("saved.htm")), WholePage().replace("text</p>", "text!</p>"));
  ExpectNothingHappened();
}

TEST_F(Vectors, DoNothingWhenTheyArePasted) {
  LoadWithCaret("<html><body><p>a</p></body></html>", QStringLiteral("p"));
  editor_->Document().Selection().CreateRange()->PasteHTML(
      QString::fromLatin1(All(HeadVectors, server_.Address())));
  editor_->Document().Selection().CreateRange()->PasteHTML(
      QString::fromLatin1(All(BodyVectors, server_.Address())));
  ASSERT_TRUE(DocumentHolds(QStringLiteral("/c.webm")));
  ExpectNothingHappened();
  Exec(EditingCommand::Undo);
  Exec(EditingCommand::Redo);
  ExpectNothingHappened();
}

TEST_F(Vectors, DoNothingWhenTheyComeFromTheClipboard) {
  LoadWithCaret("<html><body><p>a</p></body></html>", QStringLiteral("p"));
  auto *data = new QMimeData;
  data->setHtml(QString::fromLatin1(WholePage()) + QStringLiteral("<b>end</b>"));
  QApplication::clipboard()->setMimeData(data);
  Exec(EditingCommand::Paste);
  ASSERT_TRUE(WaitFor([this] { return DocumentHolds(QStringLiteral("end")); }));
  ExpectNothingHappened();
}

TEST_F(Vectors, DoNothingInAnAppliedSource) {
  editor_->LoadDocument(Write(QStringLiteral("page.htm"), "<p>a</p>"));
  editor_->LoadText(QString::fromLatin1(WholePage()), Logic(QStringLiteral("page.htm")));
  ASSERT_TRUE(DocumentHolds(QStringLiteral("/c.webm")));
  ExpectNothingHappened();
  Exec(EditingCommand::Undo);
  Exec(EditingCommand::Redo);
  ExpectNothingHappened();
}

TEST_F(Vectors, DoNothingInARestoredPage) {
  editor_->LoadDocument(Write(QStringLiteral("page.htm"), WholePage()));
  PageMemory memory = editor_->Memory();
  memory.document.replace(QStringLiteral("text</p>"), QStringLiteral("text!</p>"));
  editor_->Restore(memory);
  ASSERT_TRUE(DocumentHolds(QStringLiteral("text!</p>")));
  ExpectNothingHappened();
}

/// Clicks and keys on a page that is one link to another page.
class Following : public Vectors {
 protected:
  void Load(const QByteArray &body) {
    QByteArray page = "<html><head><title>stays</title></head><body>" + body + "</body></html>";
    editor_->LoadDocument(Write(QStringLiteral("page.htm"), page.replace("@", server_.Address())));
    document_ = editor_->DocumentHTML();
    address_ = Page()->url();
  }
  QPoint PlaceOf(const QString &selector) {
    const QVariantList place =
        Evaluate(QStringLiteral("(r => [r.left + r.width / 2, r.top + r.height / 2])("
                                "document.querySelector('%1').getBoundingClientRect())")
                     .arg(selector))
            .toList();
    return {place.value(0).toInt(), place.value(1).toInt()};
  }
  void ClickEveryWay(const QString &selector) {
    const QPoint place = PlaceOf(selector);
    for (const auto button : {Qt::LeftButton, Qt::MiddleButton, Qt::BackButton, Qt::ForwardButton})
      for (const auto modifier : {Qt::NoModifier, Qt::ControlModifier, Qt::ShiftModifier,
                                  Qt::AltModifier, Qt::MetaModifier})
        QTest::mouseClick(Input(), button, modifier, place);
    QTest::mouseDClick(Input(), Qt::LeftButton, Qt::NoModifier, place);
  }
  void PressKeysOn(const QString &selector) {
    for (const auto modifier :
         {Qt::NoModifier, Qt::ControlModifier, Qt::ShiftModifier, Qt::AltModifier}) {
      for (const auto key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space}) {
        Evaluate(QStringLiteral("document.querySelector('%1').focus()").arg(selector));
        Key(key, modifier);
      }
    }
  }
  void ExpectStillThere() {
    ExpectNothingHappened();
    EXPECT_EQ(Page()->url(), address_);
    EXPECT_EQ(Evaluate(QStringLiteral("document.title")).toString(), QStringLiteral("stays"));
    EXPECT_EQ(listener_.completions, 1);
    EXPECT_EQ(QApplication::topLevelWidgets().size(), 1);
  }

  QString document_;
  QUrl address_;
};

TEST_F(Following, ALinkByMouseOrKeyLeadsNowhere) {
  Load(
      "<p><a id=near href='other.htm'>near</a></p><p><a id=far href='@/x' ping='@/y' "
      "target=_blank>far</a></p><p><a id=save href='@/z' download=z>save</a></p>"
      "<p><a id=mail href='mailto:a@b.c'>mail</a></p><p><a id=view "
      "href='view-source:@/x'>view</a></p><map name=m><area shape=default href='@/x'></map>"
      "<img id=map usemap='#m' src=x width=50 height=50>");
  for (const char *id : {"#near", "#far", "#save", "#mail", "#view", "#map"}) {
    ClickEveryWay(QString::fromLatin1(id));
    ExpectStillThere();
  }
  EXPECT_EQ(editor_->DocumentHTML().toStdString(), document_.toStdString());
  for (const char *id : {"#near", "#far", "#save"}) PressKeysOn(QString::fromLatin1(id));
  ExpectStillThere();
}

TEST_F(Following, AFormIsNotSentAndItsFieldsAreNotUsed) {
  Load(
      "<form action='@/x'><input id=field><input id=send type=submit><input id=picture type=image "
      "width=30 height=20 src=x><button id=button formaction='@/y'>b</button><label for=send "
      "id=label>l</label><input id=box type=checkbox><input id=file type=file></form>");
  for (const char *id : {"#send", "#picture", "#button", "#label"}) {
    ClickEveryWay(QString::fromLatin1(id));
    ExpectStillThere();
  }
  for (const char *id : {"#field", "#send", "#button"}) PressKeysOn(QString::fromLatin1(id));
  ExpectStillThere();
}

TEST_F(Following, PlayersDetailsAndDialogsLeadNowhere) {
  Load(
      "<details><summary id=summary>s</summary>text</details>"
      "<video id=video controls width=200 height=80 src='@/v.mp4'></video>"
      "<audio id=audio controls src='@/v.mp3'></audio><select id=select><option>a<option>b</select>"
      "<dialog open><form method=dialog><button id=close>x</button></form></dialog>");
  for (const char *id : {"#video", "#audio"}) {
    ClickEveryWay(QString::fromLatin1(id));
    ExpectStillThere();
  }
  EXPECT_EQ(editor_->DocumentHTML().toStdString(), document_.toStdString());
  // These open and close, so that one can edit what is in them.
  for (const char *id : {"#summary", "#close"}) {
    ClickEveryWay(QString::fromLatin1(id));
    ExpectStillThere();
  }
}

TEST_F(Following, ADroppedAddressDoesNotOpen) {
  Load("<p id=here>text</p>");
  QMimeData data;
  data.setUrls({QUrl(QString::fromLatin1(server_.Address()) + QStringLiteral("/dropped"))});
  data.setText(data.urls().constFirst().toString());
  const QPointF place = PlaceOf(QStringLiteral("#here"));
  QDragEnterEvent enter(place.toPoint(), Qt::CopyAction | Qt::LinkAction, &data, Qt::LeftButton,
                        Qt::NoModifier);
  QApplication::sendEvent(Input(), &enter);
  QDropEvent drop(place, Qt::CopyAction | Qt::LinkAction, &data, Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(Input(), &drop);
  ExpectStillThere();
}

}  // namespace
}  // namespace velor
