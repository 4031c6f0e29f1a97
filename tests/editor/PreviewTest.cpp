// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/modWorkFlow.h"
#include "tests/editor/EditorWorld.h"
#include "tests/support/KeyboardWalk.h"

#include <QAction>
#include <QLabel>
#include <QStatusBar>
#include <QToolBar>

#include <limits>

namespace velor {

namespace {

const QString IndexFile = QStringLiteral("\\site\\index.htm");

}  // namespace

class PreviewTest : public EditorWorld {
 protected:
  QString Panel(int number) {
    return context.preview->findChild<QLabel *>(QStringLiteral("Sta_%1").arg(number))->text();
  }
};

TEST_F(PreviewTest, APageIsShownFromItsTemporaryCopyWithALineBreakMore) {
  Open(IndexFile);
  Component(1).Edit(QStringLiteral("<p>b</p>"));
  Page(1).ChangeMode(4);
  EXPECT_EQ(log, Calls({"AdoptWindow(frmBrowser)", "TextToSave()", "ShowWindow(frmBrowser)",
                        "Browser.Navigate(file:///site/indexTMP.htm)"}));
  EXPECT_EQ(Content(QStringLiteral("\\site\\indexTMP.htm")), "<p>b</p>\r\n");
}

TEST_F(PreviewTest, TheCopyIsInThePagesEncodingWhereThePageDeclaresNone) {
  Open(IndexFile, "<p>caf\xe9</p>");
  Page(1).ChangeMode(4);
  EXPECT_EQ(Content(QStringLiteral("\\site\\indexTMP.htm")), "<p>caf\xe9</p>\r\n");
  Open(IndexFile, QByteArray("\xff\xfe<\0p\0>\0\xe9\0", 10));
  Page(2).ChangeMode(4);
  EXPECT_EQ(Content(QStringLiteral("\\site\\indexTMP.htm")),
            QByteArray("\xff\xfe<\0p\0>\0\xe9\0\r\0\n\0", 14));
}

TEST_F(PreviewTest, AReadOnlyPageIsShownFromItsFileWithoutUnsavedEdits) {
  files.AddFile(IndexFile, "<p>a</p>");
  files.MakeReadOnly(IndexFile);
  modWorkFlow::OpenPage(context, IndexFile);
  Component(1).CompleteDocument();
  log.clear();
  Page(1).ChangeMode(4);
  EXPECT_EQ(log, Calls({"AdoptWindow(frmBrowser)", "ShowWindow(frmBrowser)",
                        "Browser.Navigate(file:///site/index.htm)"}));
}

TEST_F(PreviewTest, WithoutATemporaryCopyAPrivateOneIsShownWithThePagesFolderAsBase) {
  Open(IndexFile);
  Component(1).Edit(QStringLiteral("<p>b</p>"));
  files.MakeFolderUnwritable(QStringLiteral("\\site"));
  Page(1).ChangeMode(4);
  EXPECT_EQ(log.back(), QStringLiteral("Browser.NavigateToText(file:///site/index.htm)"));
  EXPECT_EQ(PreviewBrowser().html, QStringLiteral("<p>b</p>"));
  EXPECT_TRUE(mainWindow.reports.isEmpty());
}

TEST_F(PreviewTest, ANewPageWithoutATemporaryCopyResolvesAgainstTheProgramFolder) {
  New();
  files.MakeFolderUnwritable(runtime.programFolder);
  Page(1).ChangeMode(4);
  EXPECT_EQ(log.back(), QStringLiteral("Browser.NavigateToText(file:///program/)"));
}

TEST_F(PreviewTest, OneWindowServesAllPreviewsAndClosingHidesIt) {
  Open(IndexFile);
  Page(1).ChangeMode(4);
  const QPointer<frmBrowser> window = context.preview;
  log.clear();
  EXPECT_FALSE(window->close());
  EXPECT_EQ(log, Calls({"HideWindow(frmBrowser)", "Refresh()"}));
  DeleteClosedWindows();
  ASSERT_FALSE(window.isNull());
  EXPECT_FALSE(window->isVisible());
  Page(1).ChangeMode(4);
  EXPECT_EQ(context.preview, window);
  EXPECT_TRUE(window->isVisible());
  EXPECT_EQ(components.browsers.size(), 1U);
}

TEST_F(PreviewTest, MarkedKillItClosesForGood) {
  Open(IndexFile);
  Page(1).ChangeMode(4);
  context.preview->MarkKill();
  EXPECT_TRUE(context.preview->close());
  DeleteClosedWindows();
  EXPECT_TRUE(context.preview.isNull());
}

TEST_F(PreviewTest, TheButtonsAreNamedByTheirKeysAndDriveTheBrowser) {
  Open(IndexFile);
  Page(1).ChangeMode(4);
  log.clear();
  auto *bar = context.preview->findChild<QToolBar *>(QStringLiteral("tbToolBar"));
  ASSERT_NE(bar, nullptr);
  QStringList captions;
  for (QAction *button : bar->actions()) {
    captions << button->text();
    EXPECT_EQ(button->data().toString(), button->text());
    button->trigger();
  }
  EXPECT_EQ(captions, QStringList({QStringLiteral("Back"), QStringLiteral("Forward"),
                                   QStringLiteral("Refresh"), QStringLiteral("Stop")}));
  EXPECT_EQ(log, Calls({"Browser.GoBack()", "Browser.GoForward()", "Browser.Refresh()",
                        "Browser.Stop()"}));
}

TEST_F(PreviewTest, OtherKeysDoNothing) {
  Open(IndexFile);
  Page(1).ChangeMode(4);
  log.clear();
  for (const char *key : {"back", "STOP", "", "Home"}) {
    context.preview->ButtonClicked(QString::fromLatin1(key));
  }
  EXPECT_TRUE(log.empty());
}

TEST_F(PreviewTest, StatusAndProgressStandInTheirPanels) {
  Open(IndexFile);
  Page(1).ChangeMode(4);
  PreviewBrowser().listener->StatusTextChanged(QStringLiteral("<b>next.htm"));
  PreviewBrowser().listener->ProgressChanged(50, 100);
  EXPECT_EQ(Panel(1), QStringLiteral("<b>next.htm"));
  EXPECT_EQ(Panel(2), QStringLiteral("50%"));
  PreviewBrowser().listener->ProgressChanged(100, 100);
  EXPECT_EQ(Panel(2), QStringLiteral("0%"));
}

TEST_F(PreviewTest, TheBrowserFillsTheWindowBetweenTheBars) {
  Open(IndexFile);
  Page(1).ChangeMode(4);
  frmBrowser &window = *context.preview;
  const auto *bar = window.findChild<QToolBar *>(QStringLiteral("tbToolBar"));
  const auto *status = window.findChild<QStatusBar *>(QStringLiteral("Sta"));
  const auto place = [&] {
    const QWidget &shown = *PreviewBrowser().Widget();
    return QRect(shown.mapTo(&window, QPoint()), shown.size());
  };
  for (const QSize size : {QSize(700, 500), QSize(300, 900)}) {
    window.resize(size);
    EXPECT_GT(bar->height(), 0);
    EXPECT_GT(status->height(), 0);
    EXPECT_EQ(place(), QRect(0, bar->height(), size.width(),
                             size.height() - bar->height() - status->height()));
    EXPECT_EQ(bar->geometry().topLeft(), QPoint(0, 0));
    EXPECT_EQ(status->geometry().bottom(), size.height() - 1);
  }
  const QRect before = place();
  window.resize(300, bar->height() + status->height() - 1);
  EXPECT_EQ(place(), before);
}

TEST_F(PreviewTest, ThePanelsKeepTheirPlacesWhateverTheySay) {
  Open(IndexFile);
  Page(1).ChangeMode(4);
  context.preview->resize(400, 300);
  auto *progress = context.preview->findChild<QLabel *>(QStringLiteral("Sta_2"));
  PreviewBrowser().listener->ProgressChanged(0, 100);
  QCoreApplication::sendPostedEvents();
  const QRect before = progress->geometry();
  PreviewBrowser().listener->StatusTextChanged(QString(3000, u'w'));
  PreviewBrowser().listener->ProgressChanged(88, 100);
  QCoreApplication::sendPostedEvents();
  EXPECT_EQ(progress->geometry(), before);
  EXPECT_EQ(context.preview->width(), 400);
}

TEST(BrowserPlaceTest, IsWhatTheBarsLeave) {
  EXPECT_EQ(BrowserPlace({640, 480}, 30, 20), QRect(0, 30, 640, 430));
  EXPECT_EQ(BrowserPlace({640, 50}, 30, 20), QRect(0, 30, 640, 0));
  EXPECT_EQ(BrowserPlace({640, 49}, 30, 20), std::nullopt);
}

TEST(ProgressPercentTest, IsThePercentModuloAHundredAndZeroWhereItCannotBeComputed) {
  EXPECT_EQ(ProgressPercent(50, 100), 50);
  EXPECT_EQ(ProgressPercent(1, 3), 33);
  EXPECT_EQ(ProgressPercent(100, 100), 0);
  EXPECT_EQ(ProgressPercent(150, 100), 50);
  EXPECT_EQ(ProgressPercent(5, 0), 0);
  EXPECT_EQ(ProgressPercent(-50, 100), -50);
  EXPECT_EQ(ProgressPercent(-1, 3), -33);
  EXPECT_EQ(ProgressPercent(-150, 100), -50) << "the remainder has the dividend's sign";
  EXPECT_EQ(ProgressPercent(150, -100), -50);
  EXPECT_EQ(ProgressPercent(0, 0), 0);
  EXPECT_EQ(ProgressPercent(21474836, 42949672), 50);
  EXPECT_EQ(ProgressPercent(21474837, 42949672), 0) << "a hundred times that leaves 32 bits";
  EXPECT_EQ(ProgressPercent(std::numeric_limits<std::int32_t>::min(), 1), 0);
}

TEST_F(PreviewTest, TabMeetsEveryButtonOfTheBar) {
  Open(IndexFile);
  Page(1).ChangeMode(4);
  context.preview->show();
  context.preview->activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(context.preview->window()));
  auto &bar = *context.preview->findChild<QToolBar *>(QStringLiteral("tbToolBar"));
  QList<QWidget *> buttons;
  for (QAction *each : bar.actions()) buttons.append(bar.widgetForAction(each));
  buttons.constFirst()->setFocus();
  const auto isOut = [&](const QWidget &now) { return !bar.isAncestorOf(&now); };
  EXPECT_EQ(WalkByKey(Qt::Key_Tab, *buttons.constFirst(), isOut).join(u' ').toStdString(),
            "Back Forward Refresh Stop");
  EXPECT_EQ(SharedAltKeys(*context.preview).toStdString(), "");
}

}  // namespace velor
