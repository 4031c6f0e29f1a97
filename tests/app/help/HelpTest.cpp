// SPDX-License-Identifier: GPL-3.0-or-later
// The manual's window, and the ways to it.
#include "app/help/Help.h"
#include "app/help/ManualWindow.h"
#include "editor/frmMain.h"
#include "tests/app/window/WindowFixture.h"

#include <QApplication>
#include <QDialog>
#include <QInputDialog>
#include <QLineEdit>
#include <QListWidget>
#include <QMessageBox>
#include <QPushButton>
#include <QScreen>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>
#include <QTextBrowser>

#include <algorithm>
#include <functional>

namespace velor {
namespace {

ManualWindow *OpenManual() {
  for (QWidget *widget : QApplication::topLevelWidgets()) {
    auto *manual = qobject_cast<ManualWindow *>(widget);
    if (manual != nullptr && manual->isVisible()) return manual;
  }
  return nullptr;
}

std::string PlaceOnShow() {
  const ManualWindow *manual = OpenManual();
  return manual == nullptr ? "no manual" : manual->Place().toStdString();
}

class HelpTest : public WindowFixture {
 protected:
  explicit HelpTest(Additions wanted = Additions::On) : WindowFixture(wanted) {
    window.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
  }

  static ManualWindow &Manual() {
    ManualWindow *manual = OpenManual();
    EXPECT_NE(manual, nullptr);
    return *manual;
  }
  template <typename Control>
  static Control &In(QWidget &widget, const char *name) {
    auto *control = widget.findChild<Control *>(QString::fromLatin1(name));
    EXPECT_NE(control, nullptr) << name;
    return *control;
  }
};

class PublishedHelpTest : public HelpTest {
 protected:
  PublishedHelpTest() : HelpTest(Additions::Off) {}
};

TEST_F(HelpTest, F1LeadsToTheChapterForTheWindowInFront) {
  QTest::keyClick(&window, Qt::Key_F1);
  EXPECT_EQ(PlaceOnShow(), "window.html");
  frmMain &page = NewPage();
  const auto place = [&] {
    QTest::keyClick(window.Context().mainWindow.windows.Current(), Qt::Key_F1);
    return PlaceOnShow();
  };
  EXPECT_EQ(place(), "design.html");
  page.ChangeMode(2);
  EXPECT_EQ(place(), "source.html#view");
  page.ChangeMode(3);
  EXPECT_EQ(place(), "source.html#editor");
  page.ChangeMode(4);
  EXPECT_EQ(place(), "preview.html");
}

TEST_F(HelpTest, MenuAndToolbarLeadThereToo) {
  NewPage();
  Choose("mnuhelp");
  EXPECT_EQ(PlaceOnShow(), "design.html");
  Manual().close();
  Click("tbrGeneral_help");
  EXPECT_EQ(PlaceOnShow(), "design.html");
}

TEST_F(HelpTest, F1InADialogLeadsToWhatIsAboutIt) {
  NewPage();
  const std::pair<const char *, const char *> dialogPlaces[] = {
      {"mnuSettings", "settings.html#list"},       {"mnuDrives", "drives.html#window"},
      {"mnuTBLnew", "tables.html#insert"},         {"mnuISTimage", "pictures.html#insert"},
      {"mnuISTlink", "links.html#hyperlink"},      {"mnuAbout", "window.html#about"},
      {"mnuFindCommand", "commands.html#palette"},
  };
  for (const auto &[item, place] : dialogPlaces) {
    dialogs.ExpectModal([&, place = place](QWidget &dialog) {
      dialog.show();
      QTest::keyClick(&dialog, Qt::Key_F1);
      EXPECT_EQ(PlaceOnShow(), place);
      dialog.close();
    });
    Choose(item);
  }
  QMessageBox message(QMessageBox::Information, QString(), QStringLiteral("words"));
  message.show();
  QTest::keyClick(&message, Qt::Key_F1);
  EXPECT_EQ(PlaceOnShow(), "messages.html");
}

TEST_F(HelpTest, F1InAQuestionLeadsToWhatAsksIt) {
  frmMain &page = NewPage();
  const auto expect = [&](const char *prompt) {
    dialogs.ExpectQuestion(QString::fromLatin1(prompt), {});
  };
  const auto placeOfQuestion = [&](const std::function<void()> &ask) {
    log.clear();
    ask();
    // "AskText(prompt, title, answer)"
    const auto asked = std::find_if(log.begin(), log.end(), [](const QString &call) {
      return call.startsWith(QStringLiteral("AskText("));
    });
    QInputDialog question(&window);
    question.setWindowTitle(asked->section(QStringLiteral(", "), 1, 1));
    question.show();
    QTest::keyClick(&question, Qt::Key_F1);
    return PlaceOnShow();
  };
  expect("Name of the template:");
  EXPECT_EQ(placeOfQuestion([&] { Choose("mnuSaveAsTemplate"); }), "pages.html#templates");
  dialogs.ExpectModal([&](QWidget &dialog) {
    dialog.show();
    expect("Please enter the E-mail Address.");
    In<QPushButton>(dialog, "cmdAEmail").click();
    dialog.close();
  });
  EXPECT_EQ(placeOfQuestion([&] { Choose("mnuISTlink"); }), "links.html#hyperlink");
  page.ChangeMode(3);
  expect("Line:");
  EXPECT_EQ(placeOfQuestion([&] { Choose("goto line number"); }), "source.html#menu");
}

TEST_F(HelpTest, TheManualTakesKeysWhileADialogIsOpen) {
  QTest::keyClick(&window, Qt::Key_F1);
  Manual().close();
  QDialog dialog(&window);
  dialog.setWindowModality(Qt::ApplicationModal);
  dialog.show();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&dialog));
  QTest::keyClick(&dialog, Qt::Key_F1);
  ManualWindow &manual = Manual();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&manual));
  auto &words = In<QLineEdit>(manual, "txtWords");
  words.setFocus();
  for (const char key : {'u', 'n', 'd', 'o'}) QTest::keyClick(manual.windowHandle(), key);
  EXPECT_EQ(words.text(), QStringLiteral("undo"));
}

TEST_F(HelpTest, EnterInTheBoxShowsTheFirstPlaceFoundAndEscapeEndsTheSearchThenCloses) {
  QTest::keyClick(&window, Qt::Key_F1);
  ManualWindow &manual = Manual();
  auto &words = In<QLineEdit>(manual, "txtWords");
  auto &list = In<QListWidget>(manual, "lstChapters");
  const int chapters = list.count();
  EXPECT_EQ(list.currentItem()->text(), QStringLiteral("The window"));
  QTest::keyClicks(&words, QStringLiteral("line ends"));
  EXPECT_LT(list.count(), chapters);
  QTest::keyClick(&words, Qt::Key_Return);
  EXPECT_EQ(PlaceOnShow(), "files.html#line-ends");
  auto &page = In<QTextBrowser>(manual, "brwManual");
  EXPECT_FALSE(page.extraSelections().isEmpty());
  EXPECT_GT(page.verticalScrollBar()->value(), 0);
  QTest::keyClicks(&words, QStringLiteral(" zebra"));
  ASSERT_EQ(list.count(), 1);
  EXPECT_EQ(list.item(0)->text(), QStringLiteral("Nothing found"));
  QTest::keyClick(&words, Qt::Key_Return);
  EXPECT_EQ(PlaceOnShow(), "files.html#line-ends");
  QTest::keyClick(&manual, Qt::Key_Escape);
  EXPECT_EQ(list.count(), chapters);
  EXPECT_EQ(list.currentItem()->text(), QStringLiteral("Opening and saving"));
  QTest::keyClick(&manual, Qt::Key_Escape);
  EXPECT_EQ(OpenManual(), nullptr);
}

TEST_F(HelpTest, BackLeadsToThePlaceBefore) {
  QTest::keyClick(&window, Qt::Key_F1);
  ManualWindow &manual = Manual();
  manual.ShowPlace(QStringLiteral("tables.html#rows"));
  In<QAction>(manual, "Back").trigger();
  EXPECT_EQ(PlaceOnShow(), "window.html");
  In<QAction>(manual, "help").trigger();
  EXPECT_EQ(PlaceOnShow(), "index.html");
}

TEST_F(HelpTest, TheManualLeavesRoomForItsFrameOnTheScreen) {
  constexpr int Title = 31;  // pixels
  QTest::keyClick(&window, Qt::Key_F1);
  const QRect free = Manual().screen()->availableGeometry();
  EXPECT_GE(Manual().geometry().top(), free.top() + Title);
  EXPECT_TRUE(free.contains(Manual().geometry()));
}

TEST_F(HelpTest, WhereNoManualIsThatIsTold) {
  Help help{QString()};
  const QSignalSpy missing(&help, &Help::Missing);
  help.ShowFor(&window);
  EXPECT_EQ(missing.count(), 1);
  EXPECT_EQ(OpenManual(), nullptr);
}

TEST_F(PublishedHelpTest, WithoutAdditionsNothingShowsTheManual) {
  NewPage();
  QTest::keyClick(&window, Qt::Key_F1);
  Choose("mnuhelp");
  Click("tbrGeneral_help");
  EXPECT_EQ(OpenManual(), nullptr);
}

}  // namespace
}  // namespace velor
