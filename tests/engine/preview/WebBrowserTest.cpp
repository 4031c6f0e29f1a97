// SPDX-License-Identifier: GPL-3.0-or-later
// What the real browser does with pages: the behaviour of an engine, which the fake has none of.
#include "engine/PageScheme.h"
#include "engine/preview/SiteScheme.h"
#include "engine/preview/WebBrowser.h"
#include "tests/support/Checks.h"
#include "tests/support/Waiting.h"

#include <QAction>
#include <QDesktopServices>
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

namespace {

// Before the application object is made.
const bool SchemesAreKnown = (RegisterSchemes(), true);

}  // namespace

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
    return WaitFor([&] { return EnginePage()->title() == title; }, 20000);
  }

  bool StatusBecomes(const QString &text) {
    return WaitFor([&] { return !statuses.isEmpty() && statuses.last() == text; }, 20000);
  }
  /// A real mouse click: the engine treats it as the person's own action, which a script's click()
  /// is not.
  void Click(const QString &selector) {
    EnginePage()->runJavaScript(
        QStringLiteral("(() => { const box = document.querySelector('%1').getBoundingClientRect();"
                       "return [box.x + box.width / 2, box.y + box.height / 2] })()")
            .arg(selector),
        [this](const QVariant &value) {
          const QVariantList at = value.toList();
          QTest::mouseClick(browser.Widget()->focusProxy(), Qt::LeftButton, {},
                            {at.value(0).toInt(), at.value(1).toInt()});
        });
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
  EXPECT_TRUE(WaitFor([&] { return done; }, 20000));
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

TEST_F(WebBrowserTest, ATextIsOnNoDisk) {
  browser.NavigateToText(QStringLiteral("<title>text</title>"),
                         QUrl::fromLocalFile(folder.filePath(QStringLiteral("page.htm"))));
  ASSERT_TRUE(TitleBecomes(QStringLiteral("text")));
  EXPECT_TRUE(QDir(folder.path()).isEmpty());
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
  EXPECT_EQ(SiteScheme::FileOf(EnginePage()->url()), next.toLocalFile());
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
  ASSERT_TRUE(WaitFor([&] { return server.hasPendingConnections(); }, 20000));
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
  ASSERT_TRUE(WaitFor([&] { return EnginePage()->url().hasFragment(); }, 20000));
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
  ASSERT_TRUE(WaitFor([&] { return !asked.isEmpty(); }, 20000));
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

TEST_F(WebBrowserTest, AMailLinkIsNoLoadThatWasStopped) {
  browser.Navigate(Put(QStringLiteral("page.htm"),
                       "<title>page</title><a href='mailto:info@example.com'>mail</a>"));
  ASSERT_TRUE(StatusBecomes(QStringLiteral("Done")));
  Click(QStringLiteral("a"));
  EXPECT_TRUE(
      StatusBecomes(QStringLiteral("No mail program is set up here to write to info@example.com")))
      << statuses.join(u'|').toStdString();
  EXPECT_FALSE(statuses.contains(QStringLiteral("Stopped")));
}

TEST_F(WebBrowserTest, ALinkOutOfTheSiteIsToldAndNotFollowed) {
  ASSERT_TRUE(QDir(folder.path()).mkdir(QStringLiteral("site")));
  const QUrl outside = Put(QStringLiteral("outside.htm"), "<title>outside</title>");
  const QString told =
      QStringLiteral("Outside of the site and not opened: ") + outside.toLocalFile();
  browser.Navigate(
      Put(QStringLiteral("site/page.htm"), "<title>page</title><a href=../outside.htm>l</a>"));
  ASSERT_TRUE(StatusBecomes(QStringLiteral("Done"))) << statuses.join(u'|').toStdString();
  Click(QStringLiteral("a"));
  EXPECT_TRUE(StatusBecomes(told)) << statuses.join(u'|').toStdString();
  EXPECT_EQ(EnginePage()->title(), QStringLiteral("page"));
}

TEST_F(WebBrowserTest, APictureOutsideOfTheSiteIsToldAndNotShown) {
  ASSERT_TRUE(QDir(folder.path()).mkdir(QStringLiteral("site")));
  const QUrl outside =
      Put(QStringLiteral("p.svg"), "<svg xmlns='http://www.w3.org/2000/svg' width='9'/>");
  for (const QString &address : {QStringLiteral("../p.svg"), outside.toString()}) {
    statuses.clear();
    browser.Navigate(Put(QStringLiteral("site/page.htm"),
                         "<title>page</title><img src='" + address.toUtf8() + "'>"));
    EXPECT_TRUE(StatusBecomes(QStringLiteral("Outside of the site and not shown: ") +
                              outside.toLocalFile()))
        << statuses.join(u'|').toStdString();
    EXPECT_TRUE(
        Answers(QStringLiteral("'w' + document.images[0].naturalWidth"), QStringLiteral("w0")));
  }
}

TEST_F(WebBrowserTest, AProjectsFolderIsTheSiteOfThePagesInIt) {
  ASSERT_TRUE(QDir(folder.path()).mkpath(QStringLiteral("site/sub")));
  Put(QStringLiteral("site/code.js"), "document.title = 'beside'");
  browser.SetSite(folder.filePath(QStringLiteral("site")));
  browser.Navigate(Put(QStringLiteral("site/sub/page.htm"), "<script src=../code.js></script>"));
  EXPECT_TRUE(TitleBecomes(QStringLiteral("beside"))) << statuses.join(u'|').toStdString();
}

/// Every way by which a page's script may try to read what it is not to: each tells what it read in
/// the list that becomes the title.
TEST_F(WebBrowserTest, NoScriptReadsAFileOutsideOfItsSiteNorOfAnotherSite) {
  for (const char *name : {"site", "other", "site/.hidden"})
    ASSERT_TRUE(QDir(folder.path()).mkdir(QString::fromLatin1(name)));
  const QByteArray picture =
      "<svg xmlns='http://www.w3.org/2000/svg' width='9' height='9'><rect fill='red' width='9' "
      "height='9'/></svg>";
  for (const char *name : {"other/", "site/.hidden/"}) {
    const QString at = QString::fromLatin1(name);
    Put(at + QStringLiteral("page.htm"), "<title>secret</title>secret");
    Put(at + QStringLiteral("code.js"),
        "globalThis.secret = true; self.onconnect || postMessage(1)");
    Put(at + QStringLiteral("style.css"), "p { width: 77px } @font-face {}");
    Put(at + QStringLiteral("text.txt"), "secret");
    Put(at + QStringLiteral("p.svg"), picture);
  }
  ASSERT_TRUE(QFile::link(folder.filePath(QStringLiteral("other/page.htm")),
                          folder.filePath(QStringLiteral("site/link.htm"))));
  browser.Navigate(QUrl::fromLocalFile(folder.filePath(QStringLiteral("other/page.htm"))));
  ASSERT_TRUE(TitleBecomes(QStringLiteral("secret")));
  const QString otherSite = EnginePage()->url().adjusted(QUrl::RemoveFilename).toString();

  QStringList roots{QStringLiteral("../other/"),
                    QStringLiteral(".hidden/"),
                    otherSite,
                    QUrl::fromLocalFile(folder.path()).toString() + QStringLiteral("/other/"),
                    QStringLiteral("../site/../other/"),
                    QStringLiteral("%2e%2e/other/"),
                    QStringLiteral("..\\\\other\\\\")};
  QString list;
  for (const QString &root : roots) list += u'\'' + root + QStringLiteral("',");
  Put(QStringLiteral("site/page.htm"), QStringLiteral(R"(<p>x</p><script>
    const found = [];
    const note = (what, root) => found.push(what + ' ' + root);
    const within = (work) => Promise.race([new Promise(work),
                                           new Promise((end) => setTimeout(end, 1500))]);
    const read = (root) => Promise.all([
      within(async (end) => {
        await fetch(root + 'text.txt').then((answer) => answer.text())
            .then((text) => text && note('fetch', root), () => {});
        end(); }),
      within((end) => {
        const request = new XMLHttpRequest();
        request.onloadend = () => { if (request.responseText) note('xhr', root); end(); };
        try { request.open('GET', root + 'text.txt'); request.send(); } catch (error) { end(); }
      }),
      ...['iframe', 'object', 'embed'].map((name) => within((end) => {
        const frame = document.createElement(name);
        frame.onload = () => {
          try {
            const page = frame.contentDocument ?? frame.getSVGDocument?.();
            if (page?.body?.textContent.includes('secret')) note(name, root);
          } catch (error) {}
          end();
        };
        frame.onerror = end;
        frame[name === 'object' ? 'data' : 'src'] = root + 'page.htm';
        document.body.append(frame);
      })),
      within((end) => {
        const image = new Image();
        image.onload = () => {
          const canvas = document.createElement('canvas');
          try {
            const pen = canvas.getContext('2d');
            pen.drawImage(image, 0, 0);
            if (pen.getImageData(1, 1, 1, 1).data[0]) note('canvas', root);
          } catch (error) {}
          end();
        };
        image.onerror = end;
        image.src = root + 'p.svg';
      }),
      within((end) => {
        const style = document.createElement('link');
        style.rel = 'stylesheet';
        style.onload = () => {
          try { if (style.sheet.cssRules.length) note('css', root); } catch (error) {}
          end();
        };
        style.onerror = end;
        style.href = root + 'style.css';
        document.head.append(style);
      }),
      within((end) => {
        const face = new FontFace('f', 'url("' + root + 'text.txt")');
        face.load().then(() => { note('font', root); end(); }, end);
      }),
      ...[Worker, SharedWorker].map((Kind) => within((end) => {
        try {
          const worker = new Kind(root + 'code.js');
          worker.onmessage = () => { note('worker', root); end(); };
          worker.onerror = end;
        } catch (error) { end(); }
      })),
      within((end) => {
        if (!navigator.serviceWorker) return end();
        navigator.serviceWorker.register(root + 'code.js')
            .then(() => { note('service worker', root); end(); }, end);
      }),
      within((end) => {
        const frame = document.createElement('iframe');
        globalThis.onmessage = (event) => { if (event.data === root) note('data frame', root); };
        frame.onload = end;
        frame.src = URL.createObjectURL(new Blob(['<script>fetch("' + new URL(root, location) +
            'text.txt").then(a => a.text()).then(t => parent.postMessage("' +
            root.replaceAll('\\', '') + '", "*"))<\/script>'], { type: 'text/html' }));
        document.body.append(frame);
      }),
    ]);
    onload = async () => {
      for (const root of [%1]) await read(root);
      const link = document.createElement('iframe');
      await within((end) => {
        link.onload = () => {
          try {
            if (link.contentDocument.body.textContent.includes('secret')) note('link', '');
          } catch (error) {}
          end();
        };
        link.src = 'link.htm';
        document.body.append(link);
      });
      document.title = 'read: ' + found.join('; ');
    };</script>)")
                                           .arg(list)
                                           .toUtf8());
  browser.Navigate(QUrl::fromLocalFile(folder.filePath(QStringLiteral("site/page.htm"))));
  ASSERT_TRUE(
      WaitFor([&] { return EnginePage()->title().startsWith(QStringLiteral("read:")); }, 90000))
      << EnginePage()->title().toStdString();
  EXPECT_EQ(EnginePage()->title(), QStringLiteral("read:"));
}

TEST_F(WebBrowserTest, APageOnDiskMayUseWhatIsOnTheWeb) {
  QTcpServer server;
  ASSERT_TRUE(server.listen(QHostAddress::LocalHost));
  browser.Navigate(Put(
      QStringLiteral("page.htm"),
      QStringLiteral("<img src='http://127.0.0.1:%1/p.png'>").arg(server.serverPort()).toUtf8()));
  EXPECT_TRUE(WaitFor([&] { return server.hasPendingConnections(); }, 20000));
}

}  // namespace velor
