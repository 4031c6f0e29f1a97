// SPDX-License-Identifier: GPL-3.0-or-later
// What the real browser does with pages: the behaviour of an engine, which the fake has none of.
#include "engine/preview/BaseElement.h"
#include "engine/preview/WebBrowser.h"
#include "tests/support/Checks.h"

#include <QAction>
#include <QDir>
#include <QFile>
#include <QSignalSpy>
#include <QStringList>
#include <QTcpServer>
#include <QTemporaryDir>
#include <QTest>
#include <QWebEnginePage>
#include <QWebEngineProfile>
#include <QWebEngineView>
#include <QWidget>

#include <csignal>
#include <memory>

namespace velor {

class WebBrowserTest : public ::testing::Test, protected BrowserListener {
 protected:
  WebBrowserTest() {
    host.resize(400, 300);
    browser.Widget()->resize(400, 300);
    browser.SetListener(this);
    host.show();
  }

  void StatusTextChanged(const QString &text) override { statuses << text; }
  void ProgressChanged(int progress, int maximum) override {
    done = progress == maximum;
    EXPECT_EQ(maximum, 100);
  }

  QUrl Put(const QString &name, const QByteArray &content) {
    QFile file(folder.filePath(name));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(content);
    return QUrl::fromLocalFile(file.fileName());
  }
  QWebEnginePage *EnginePage() { return qobject_cast<QWebEngineView *>(browser.Widget())->page(); }
  bool TitleBecomes(const QString &title) {
    return QTest::qWaitFor([&] { return EnginePage()->title() == title; }, 20000);
  }

  bool StatusBecomes(const QString &text) {
    return QTest::qWaitFor([&] { return !statuses.isEmpty() && statuses.last() == text; }, 20000);
  }
  /// A script that answers in the page's title.
  bool Answers(const QString &script, const QString &answer) {
    EnginePage()->runJavaScript(QStringLiteral("document.title = ") + script);
    return TitleBecomes(answer);
  }

  QTemporaryDir folder;
  QWidget host;
  WebBrowser browser{&host};
  QStringList statuses;
  bool done = false;
};

TEST_F(WebBrowserTest, PageScriptsRunAndProgressEndsAtItsMaximum) {
  browser.Navigate(Put(QStringLiteral("a b#c%.htm"), "<script>document.title='ran'</script>"));
  EXPECT_TRUE(TitleBecomes(QStringLiteral("ran")));
  EXPECT_TRUE(QTest::qWaitFor([&] { return done; }, 20000));
}

TEST_F(WebBrowserTest, BackForwardAndRefreshMoveInTheHistory) {
  browser.Navigate(Put(QStringLiteral("one.htm"), "<title>one</title>"));
  ASSERT_TRUE(TitleBecomes(QStringLiteral("one")));
  const QUrl two = Put(QStringLiteral("two.htm"), "<title>two</title>");
  browser.Navigate(two);
  ASSERT_TRUE(TitleBecomes(QStringLiteral("two")));
  browser.GoBack();
  EXPECT_TRUE(TitleBecomes(QStringLiteral("one")));
  browser.GoForward();
  EXPECT_TRUE(TitleBecomes(QStringLiteral("two")));
  Put(QStringLiteral("two.htm"), "<title>two again</title>");
  browser.Refresh();
  EXPECT_TRUE(TitleBecomes(QStringLiteral("two again")));
}

TEST_F(WebBrowserTest, ATextIsShownWithItsLinksResolvedAgainstTheBase) {
  Put(QStringLiteral("style.css"), "p { color: rgb(1, 2, 3) }");
  browser.NavigateToText(
      QStringLiteral("<html><head><meta charset=big5><link rel=stylesheet href=style.css></head>"
                     "<body><p>\u00e4\u65e5</p><script>addEventListener('load', () => {"
                     "const p = document.querySelector('p');"
                     "document.title = getComputedStyle(p).color + p.textContent })</script>"),
      QUrl::fromLocalFile(folder.filePath(QStringLiteral("page.htm"))));
  EXPECT_TRUE(TitleBecomes(QStringLiteral("rgb(1, 2, 3)\u00e4\u65e5")))
      << EnginePage()->title().toStdString();
}

TEST_F(WebBrowserTest, APrivateCopyGoesWithTheBrowser) {
  auto own = std::make_unique<WebBrowser>(&host);
  auto *page = qobject_cast<QWebEngineView *>(own->Widget())->page();
  own->NavigateToText(QStringLiteral("<title>copy</title>"), QUrl());
  ASSERT_TRUE(QTest::qWaitFor([&] { return page->title() == QStringLiteral("copy"); }, 20000));
  const QString copy = page->url().toLocalFile();
  EXPECT_TRUE(QFile::exists(copy));
  own.reset();
  EXPECT_FALSE(QFile::exists(copy));
}

TEST_F(WebBrowserTest, ALargeTextIsShownToo) {
  browser.NavigateToText(QStringLiteral("<title>large</title><p>") + QString(3'000'000, u'x'),
                         QUrl());
  EXPECT_TRUE(TitleBecomes(QStringLiteral("large")));
}

TEST_F(WebBrowserTest, WhatWouldOpenAWindowOpensHere) {
  const QUrl next = Put(QStringLiteral("next.htm"), "<title>next</title>");
  browser.Navigate(Put(QStringLiteral("first.htm"),
                       "<title>first</title><a id=l target=_blank href=next.htm>l</a>"));
  ASSERT_TRUE(TitleBecomes(QStringLiteral("first")));
  EnginePage()->runJavaScript(QStringLiteral("document.getElementById('l').click()"));
  EXPECT_TRUE(TitleBecomes(QStringLiteral("next")));
  EXPECT_EQ(EnginePage()->url(), next);
}

TEST_F(WebBrowserTest, HowALoadStandsIsToldAsStatusText) {
  const QUrl page = Put(QStringLiteral("page.htm"), "<title>page</title>");
  browser.Navigate(page);
  ASSERT_TRUE(StatusBecomes(QStringLiteral("Done"))) << statuses.join(u'|').toStdString();
  EXPECT_EQ(statuses.first(), QStringLiteral("Opening ") + page.toLocalFile());
  browser.Navigate(QUrl::fromLocalFile(folder.filePath(QStringLiteral("gone.htm"))));
  EXPECT_TRUE(StatusBecomes(folder.filePath(QStringLiteral("gone.htm")) +
                            QStringLiteral(" could not be opened")))
      << statuses.join(u'|').toStdString();
}

TEST_F(WebBrowserTest, ALinkUnderThePointerIsToldAsStatusTextUntilThePointerLeaves) {
  browser.Navigate(Put(QStringLiteral("link.htm"),
                       "<title>link</title><body style='margin:0'><a href=http://127.0.0.1/next "
                       "style='display:block;height:100px'>l</a>"));
  ASSERT_TRUE(StatusBecomes(QStringLiteral("Done")));
  QTest::mouseMove(browser.Widget()->focusProxy(), {50, 50});
  EXPECT_TRUE(StatusBecomes(QStringLiteral("http://127.0.0.1/next")))
      << statuses.join(u'|').toStdString();
  QTest::mouseMove(browser.Widget()->focusProxy(), {50, 200});
  EXPECT_TRUE(StatusBecomes(QStringLiteral("Done"))) << statuses.join(u'|').toStdString();
}

TEST_F(WebBrowserTest, StopEndsALoadThatDoesNotEnd) {
  QTcpServer server;
  ASSERT_TRUE(server.listen(QHostAddress::LocalHost));
  browser.Navigate(QUrl(QStringLiteral("http://127.0.0.1:%1/").arg(server.serverPort())));
  ASSERT_TRUE(QTest::qWaitFor([&] { return server.hasPendingConnections(); }, 20000));
  browser.Stop();
  EXPECT_TRUE(StatusBecomes(QStringLiteral("Stopped"))) << statuses.join(u'|').toStdString();
}

TEST_F(WebBrowserTest, TheSamePathShownAgainShowsWhatTheFilesHoldNow) {
  const QByteArray text =
      "<link rel=stylesheet href=style.css><p>x</p><img src=p.svg>"
      "<script>onload = () => document.title = document.dir + '|' + "
      "getComputedStyle(document.querySelector('p')).color + '|' + "
      "document.images[0].naturalWidth</script>";
  const auto picture = [](const char *width) {
    return QByteArray("<svg xmlns='http://www.w3.org/2000/svg' height='9' width='") + width + "'/>";
  };
  Put(QStringLiteral("style.css"), "p { color: rgb(1, 1, 1) }");
  Put(QStringLiteral("p.svg"), picture("11"));
  const QUrl page = Put(QStringLiteral("page.htm"), "<html dir=ltr>" + text);
  browser.Navigate(page);
  ASSERT_TRUE(TitleBecomes(QStringLiteral("ltr|rgb(1, 1, 1)|11")));
  Put(QStringLiteral("style.css"), "p { color: rgb(2, 2, 2) }");
  Put(QStringLiteral("p.svg"), picture("22"));
  Put(QStringLiteral("page.htm"), "<html dir=rtl>" + text);
  browser.Navigate(page);
  EXPECT_TRUE(TitleBecomes(QStringLiteral("rtl|rgb(2, 2, 2)|22")))
      << EnginePage()->title().toStdString();
  Put(QStringLiteral("style.css"), "p { color: rgb(3, 3, 3) }");
  Put(QStringLiteral("p.svg"), picture("33"));
  browser.Navigate(Put(QStringLiteral("other.htm"), "<html dir=ltr>" + text));
  EXPECT_TRUE(TitleBecomes(QStringLiteral("ltr|rgb(3, 3, 3)|33")))
      << EnginePage()->title().toStdString();
}

TEST_F(WebBrowserTest, ATextShownAgainIsTheNewOneAndEachBaseKeepsItsOwn) {
  const QUrl one = QUrl::fromLocalFile(folder.filePath(QStringLiteral("one.htm")));
  const QUrl two = QUrl::fromLocalFile(folder.filePath(QStringLiteral("two.htm")));
  browser.NavigateToText(QStringLiteral("<title>one</title>"), one);
  ASSERT_TRUE(TitleBecomes(QStringLiteral("one")));
  browser.NavigateToText(QStringLiteral("<title>one again</title>"), one);
  ASSERT_TRUE(TitleBecomes(QStringLiteral("one again")));
  browser.NavigateToText(QStringLiteral("<title>two</title>"), two);
  ASSERT_TRUE(TitleBecomes(QStringLiteral("two")));
  browser.GoBack();
  EXPECT_TRUE(TitleBecomes(QStringLiteral("one again")));
}

TEST_F(WebBrowserTest, ALinkWithinATextStaysInIt) {
  const QUrl base = Put(QStringLiteral("page.htm"), "<title>on disk</title>");
  browser.NavigateToText(QStringLiteral("<title>text</title><a href='#z'>l</a><p style='margin-top:"
                                        "2000px' id=z>z"),
                         base);
  ASSERT_TRUE(TitleBecomes(QStringLiteral("text")));
  const QUrl copy = EnginePage()->url();
  EnginePage()->runJavaScript(QStringLiteral("document.querySelector('a').click()"));
  ASSERT_TRUE(QTest::qWaitFor([&] { return EnginePage()->url().hasFragment(); }, 20000));
  EXPECT_EQ(EnginePage()->url().adjusted(QUrl::RemoveFragment), copy);
  EXPECT_TRUE(
      Answers(QStringLiteral("scrollY > 100 ? 'there' : scrollY"), QStringLiteral("there")));
}

TEST_F(WebBrowserTest, AKilledProcessIsToldAndRefreshBringsThePageBack) {
  browser.Navigate(Put(QStringLiteral("page.htm"), "<title>page</title>"));
  ASSERT_TRUE(StatusBecomes(QStringLiteral("Done")));
  ASSERT_GT(EnginePage()->renderProcessPid(), 0);
  const QString notice =
      QStringLiteral("The page's process has ended. Refresh shows the page again.");
  ::kill(static_cast<pid_t>(EnginePage()->renderProcessPid()), SIGKILL);
  ASSERT_TRUE(StatusBecomes(notice)) << statuses.join(u'|').toStdString();
  browser.Refresh();
  ASSERT_TRUE(StatusBecomes(QStringLiteral("Done"))) << statuses.join(u'|').toStdString();
  EXPECT_TRUE(Answers(QStringLiteral("'alive'"), QStringLiteral("alive")));
  ::kill(static_cast<pid_t>(EnginePage()->renderProcessPid()), SIGKILL);
  ASSERT_TRUE(StatusBecomes(notice));
  browser.Navigate(Put(QStringLiteral("next.htm"), "<title>next</title>"));
  ASSERT_TRUE(StatusBecomes(QStringLiteral("Done")));
  EXPECT_TRUE(Answers(QStringLiteral("'alive again'"), QStringLiteral("alive again")));
}

TEST_F(WebBrowserTest, OutOfSightItIsSilent) {
  EXPECT_FALSE(EnginePage()->isAudioMuted());
  host.hide();
  EXPECT_TRUE(EnginePage()->isAudioMuted());
  host.show();
  EXPECT_FALSE(EnginePage()->isAudioMuted());
}

TEST_F(WebBrowserTest, ItsMenuOffersNoDownloadAndNoSecondWindow) {
  EXPECT_TRUE(EnginePage()->action(QWebEnginePage::Back)->isVisible());
  for (const QWebEnginePage::WebAction action :
       {QWebEnginePage::SavePage, QWebEnginePage::ViewSource, QWebEnginePage::DownloadLinkToDisk,
        QWebEnginePage::OpenLinkInNewTab, QWebEnginePage::OpenLinkInNewWindow}) {
    EXPECT_FALSE(EnginePage()->action(action)->isVisible()) << action;
  }
}

TEST_F(WebBrowserTest, NothingIsRememberedAndDownloadsAreRefused) {
  EXPECT_TRUE(EnginePage()->profile()->isOffTheRecord());
  QSignalSpy asked(EnginePage()->profile(), &QWebEngineProfile::downloadRequested);
  EnginePage()->profile()->setDownloadPath(folder.path());
  browser.Navigate(Put(QStringLiteral("page.htm"),
                       "<title>page</title><a id=d download=got.txt href='data:text/plain,x'>d"));
  ASSERT_TRUE(TitleBecomes(QStringLiteral("page")));
  EnginePage()->runJavaScript(QStringLiteral("document.getElementById('d').click()"));
  ASSERT_TRUE(QTest::qWaitFor([&] { return !asked.isEmpty(); }, 20000));
  EXPECT_TRUE(statuses.last().startsWith(QStringLiteral("The preview downloads nothing")));
  EXPECT_FALSE(QDir(folder.path()).exists(QStringLiteral("got.txt")));
}

TEST_F(WebBrowserTest, APageOnDiskUsesTheFilesBesideItButItsScriptsReadNone) {
  Put(QStringLiteral("secret.txt"), "secret");
  Put(QStringLiteral("menu.htm"), "<title>menu</title>");
  Put(QStringLiteral("code.js"), "var told = ['code'];");
  browser.Navigate(Put(QStringLiteral("page.htm"), R"(
      <script src=code.js></script><iframe src=menu.htm></iframe><iframe src=secret.txt></iframe>
      <object data=secret.txt></object>
      <script>
      const read = frame => { try { return frame.contentDocument.title
          || frame.contentDocument.body.textContent.includes('secret') }
        catch (error) { return false } };
      onload = async () => {
        for (const frame of document.querySelectorAll('iframe, object')) told.push(read(frame));
        told.push(await fetch('secret.txt').then(() => true, () => false));
        document.title = told.join();
      }</script>)"));
  EXPECT_TRUE(TitleBecomes(QStringLiteral("code,menu,false,false,false")))
      << EnginePage()->title().toStdString();
}

TEST_F(WebBrowserTest, APageOnDiskMayUseWhatIsOnTheWeb) {
  QTcpServer server;
  ASSERT_TRUE(server.listen(QHostAddress::LocalHost));
  browser.Navigate(Put(
      QStringLiteral("page.htm"),
      QStringLiteral("<img src='http://127.0.0.1:%1/p.png'>").arg(server.serverPort()).toUtf8()));
  EXPECT_TRUE(QTest::qWaitFor([&] { return server.hasPendingConnections(); }, 20000));
}

TEST(BaseElementTest, TheBaseStandsWhereThePageIsParsedAsBefore) {
  const QUrl base(QStringLiteral("file:///site/a%20b.htm"));
  const QString element = QStringLiteral("<base href=\"file:///site/a%20b.htm\">");
  struct Row {
    const char *before;
    const char *after;
  };
  for (const Row &row : {Row{"<!doctype html><html lang=x><HEAD class=c>", "<title>t</title>"},
                         Row{"<!doctype html><html>", "<body>x"}, Row{"<!DOCTYPE html>", "<p>x"},
                         Row{"", "<p>x"}, Row{"<!-- <head> --><head>", "<p>"}}) {
    const QString before = QString::fromLatin1(row.before);
    const QString after = QString::fromLatin1(row.after);
    EXPECT_EQ(WithBase(before + after, base), before + element + after);
  }
}

TEST(BaseElementTest, APagesOwnBaseStaysTheOnlyOne) {
  const QString html = QStringLiteral("<head><base href=\"x/\"></head>");
  EXPECT_EQ(WithBase(html, QUrl(QStringLiteral("file:///site/a.htm"))), html);
}

}  // namespace velor
