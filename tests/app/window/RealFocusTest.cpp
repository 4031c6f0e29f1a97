// SPDX-License-Identifier: GPL-3.0-or-later
// Where the keyboard is after something was closed or chosen: one table, each row tried by typing.
#include "app/window/ChoiceBox.h"
#include "app/window/PageArea.h"
#include "app/window/PageTabs.h"
#include "chrome/FontPicker.h"
#include "editor/PageSlots.h"
#include "editor/frmBrowser.h"
#include "editor/frmCodeEditor.h"
#include "editor/frmMain.h"
#include "tests/app/window/DialogItems.h"
#include "tests/app/window/RealWindowFixture.h"
#include "tests/engine/ComponentFixture.h"
#include "tests/support/FakeDatabase.h"
#include "tests/support/Waiting.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QTest>

#include <iterator>
#include <vector>

namespace velor {
namespace {

enum class Place { FirstPage, SecondPage, Source };

class RealFocus : public RealWindow {
 public:
  using RealWindow::Button;
  using RealWindow::Find;
  using RealWindow::NewPage;
  using RealWindow::SharedDialog;

  struct Row {
    const char *name;
    void (*act)(RealFocus &);
    Place keyboard;
  };

  void OpenBoth() {
    first = &Open(QStringLiteral("first.htm"), "<html><body><p>one</p></body></html>");
    second = &Open(QStringLiteral("second.htm"), "<html><body><p>two</p></body></html>");
    PutCaret(*first, QStringLiteral("p"));
    PutCaret(*second, QStringLiteral("p"));
  }
  void CloseAll() {
    for (const QPointer<frmMain> &page : {first, second}) {
      if (page.isNull()) continue;
      if (const QPointer<frmCodeEditor> editor =
              window.Context().pages.CodeEditor(page->Number())) {
        editor->MarkKill();
        editor->close();
      }
      page->MarkKill();
      page->close();
    }
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }
  frmCodeEditor &Editor() { return *window.Context().pages.CodeEditor(second->Number()); }
  frmBrowser &Preview() { return *window.Context().preview; }
  void ClickTab(int index) {
    QTest::mouseClick(&Tabs(), Qt::LeftButton, {}, Tabs().tabRect(index).center());
  }
  /// A key where the keyboard is.
  static void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    ASSERT_NE(QApplication::focusWidget(), nullptr);
    QTest::keyClick(QApplication::focusWidget(), key, modifiers);
  }
  void ChooseWindow(int entry) {
    auto *menu = Find<QMenu>("mnuWindow");
    Q_EMIT menu->aboutToShow();
    for (QAction *action : menu->actions()) {
      if (action->text().startsWith(QStringLiteral("&%1 ").arg(entry))) return action->trigger();
    }
    FAIL() << "no entry " << entry;
  }
  ChoiceBox &Drop(const char *name) {
    auto *box = Find<ChoiceBox>(name);
    box->setFocus();
    box->showPopup();
    return *box;
  }
  QComboBox &DropFonts() {
    auto *box = Find<FontPicker>("Font1");
    box->lineEdit()->setFocus();
    box->showPopup();
    return *box;
  }
  static void PressInList(QComboBox &box, Qt::Key key) { QTest::keyClick(box.view(), key); }
  static void ClickInList(QComboBox &box, int row) {
    const QModelIndex entry = box.model()->index(row, 0);
    QTest::mouseClick(box.view()->viewport(), Qt::LeftButton, {},
                      box.view()->visualRect(entry).center());
  }

  static QString WordsOf(frmMain &page) {
    return Evaluate(EngineOf(page), QStringLiteral("document.body.textContent")).toString();
  }

  QPointer<frmMain> first;
  QPointer<frmMain> second;
};

// Begins with two pages, the second in front.
const RealFocus::Row Rows[] = {
    {"a source editor is closed",
     [](RealFocus &t) {
       t.second->ChangeMode(3);
       t.Editor().close();
     },
     Place::SecondPage},
    {"a source editor is closed by Ctrl+F4",
     [](RealFocus &t) {
       t.second->ChangeMode(3);
       RealFocus::Press(Qt::Key_F4, Qt::ControlModifier);
     },
     Place::SecondPage},
    {"a preview is closed",
     [](RealFocus &t) {
       t.second->ChangeMode(4);
       t.Preview().close();
     },
     Place::SecondPage},
    {"a preview is closed by Ctrl+F4",
     [](RealFocus &t) {
       t.second->ChangeMode(4);
       RealFocus::Press(Qt::Key_F4, Qt::ControlModifier);
     },
     Place::SecondPage},
    {"a page is closed", [](RealFocus &t) { t.second->close(); }, Place::FirstPage},
    {"a page is closed by the frame's key",
     [](RealFocus &) { RealFocus::Press(Qt::Key_F4, Qt::ControlModifier); }, Place::FirstPage},
    {"a tab is clicked", [](RealFocus &t) { t.ClickTab(0); }, Place::FirstPage},
    {"the tab in front is clicked", [](RealFocus &t) { t.ClickTab(1); }, Place::SecondPage},
    {"a window is chosen in the Window menu", [](RealFocus &t) { t.ChooseWindow(1); },
     Place::FirstPage},
    {"Ctrl+Tab is pressed", [](RealFocus &) { RealFocus::Press(Qt::Key_Tab, Qt::ControlModifier); },
     Place::FirstPage},
    {"Ctrl+Tab is pressed in a source editor",
     [](RealFocus &t) {
       t.second->ChangeMode(3);
       RealFocus::Press(Qt::Key_Tab, Qt::ControlModifier);
     },
     Place::SecondPage},
    {"Ctrl+F6 is pressed", [](RealFocus &) { RealFocus::Press(Qt::Key_F6, Qt::ControlModifier); },
     Place::FirstPage},
    {"F6 leads out of the page and Shift+F6 back",
     [](RealFocus &) {
       RealFocus::Press(Qt::Key_F6);
       RealFocus::Press(Qt::Key_F6, Qt::ShiftModifier);
     },
     Place::SecondPage},
    {"F6 leads round the window",
     [](RealFocus &) {
       const QWidget *page = QApplication::focusWidget();
       do {
         RealFocus::Press(Qt::Key_F6);
       } while (QApplication::focusWidget() != page);
     },
     Place::SecondPage},
    {"opening a file is cancelled",
     [](RealFocus &t) {
       t.SharedDialog().ExpectCancelledOpen();
       t.Button("tbrGeneral_open").click();
     },
     Place::SecondPage},
    {"saving under another name is cancelled",
     [](RealFocus &t) {
       t.SharedDialog().ExpectCancelledSave();
       t.Button("tbrGeneral_saveas").click();
     },
     Place::SecondPage},
    {"a new page is made and closed", [](RealFocus &t) { t.NewPage().close(); }, Place::SecondPage},
    {"View HTML is left for the design view",
     [](RealFocus &t) {
       t.second->ChangeMode(2);
       t.second->ChangeMode(1);
     },
     Place::SecondPage},
    {"a block format is chosen by Enter",
     [](RealFocus &t) { RealFocus::PressInList(t.Drop("cobFormat"), Qt::Key_Return); },
     Place::SecondPage},
    {"the list of block formats is left by Escape",
     [](RealFocus &t) { RealFocus::PressInList(t.Drop("cobFormat"), Qt::Key_Escape); },
     Place::SecondPage},
    {"a block format is clicked",
     [](RealFocus &t) { RealFocus::ClickInList(t.Drop("cobFormat"), 1); }, Place::SecondPage},
    {"a size is chosen by Enter",
     [](RealFocus &t) { RealFocus::PressInList(t.Drop("cobSize"), Qt::Key_Return); },
     Place::SecondPage},
    {"a size is clicked", [](RealFocus &t) { RealFocus::ClickInList(t.Drop("cobSize"), 1); },
     Place::SecondPage},
    {"the sizes are left by Escape",
     [](RealFocus &t) { RealFocus::PressInList(t.Drop("cobSize"), Qt::Key_Escape); },
     Place::SecondPage},
    {"a closed box is left by Escape",
     [](RealFocus &t) {
       t.Find<ChoiceBox>("cobSize")->setFocus();
       RealFocus::Press(Qt::Key_Escape);
     },
     Place::SecondPage},
    {"a font is typed and entered",
     [](RealFocus &t) {
       QLineEdit *line = t.Find<FontPicker>("Font1")->lineEdit();
       line->setFocus();
       line->setText(QStringLiteral("Some Face"));
       RealFocus::Press(Qt::Key_Return);
     },
     Place::SecondPage},
    {"a font is chosen by Enter",
     [](RealFocus &t) { RealFocus::PressInList(t.DropFonts(), Qt::Key_Return); },
     Place::SecondPage},
    {"a font is clicked", [](RealFocus &t) { RealFocus::ClickInList(t.DropFonts(), 0); },
     Place::SecondPage},
    {"the list of fonts is left by Escape",
     [](RealFocus &t) { RealFocus::PressInList(t.DropFonts(), Qt::Key_Escape); },
     Place::SecondPage},
    {"the font box is left by Escape",
     [](RealFocus &t) {
       t.Find<FontPicker>("Font1")->lineEdit()->setFocus();
       RealFocus::Press(Qt::Key_Escape);
     },
     Place::SecondPage},
    {"a source is applied by its button",
     [](RealFocus &t) {
       t.second->ChangeMode(3);
       auto *apply = t.Editor().findChild<QPushButton *>(QStringLiteral("cmdApply"));
       apply->setFocus();
       apply->click();
     },
     Place::Source},
    {"a source is applied by its key",
     [](RealFocus &t) {
       t.second->ChangeMode(3);
       t.Editor().Code().ReplaceSelection(QStringLiteral("<!--a-->"));
       RealFocus::Press(Qt::Key_Return, Qt::ControlModifier);
       EXPECT_EQ(t.Editor().AppliedText, t.Editor().Code().Text());
     },
     Place::Source},
};

TEST_F(RealFocus, KeysGoToWhatIsInFrontAfterEveryRowOfTheTable) {
  for (const Row &row : Rows) {
    SCOPED_TRACE(row.name);
    OpenBoth();
    row.act(*this);
    ASSERT_NE(QApplication::focusWidget(), nullptr);
    QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("qz"));
    // The caret is where it was.
    switch (row.keyboard) {
      case Place::FirstPage:
        EXPECT_TRUE(WaitFor([&] { return WordsOf(*first) == u"oqzne"; })) << Seen(*first);
        break;
      case Place::SecondPage:
        EXPECT_TRUE(WaitFor([&] { return WordsOf(*second) == u"tqzwo"; })) << Seen(*second);
        break;
      case Place::Source:
        EXPECT_TRUE(Editor().Code().Text().remove(QStringLiteral("<!--a-->")).contains(u"tqzwo"))
            << Editor().Code().Text().toStdString();
        break;
    }
    CloseAll();
  }
}

class RealDialogs : public RealFocus {
 protected:
  RealDialogs() {
    values.DbConnection = catalogue_.ConnectEmptyCatalogue();
    OpenBoth();
  }

  /// Opens the item's dialog, leaves it by Escape and types a letter.
  void LeaveDialogAndType(const char *item) {
    dialogs.ExpectModal([](QWidget &dialog) {
      dialog.show();
      dialog.activateWindow();
      const std::string name = dialog.objectName().toStdString();
      EXPECT_TRUE(WaitFor([&] { return dialog.isAncestorOf(QApplication::focusWidget()); }))
          << "the keyboard is not in " << name;
      Press(Qt::Key_Escape);
      EXPECT_FALSE(dialog.isVisible()) << "Escape does not leave " << name;
    });
    Choose(item);
    // A desktop gives the keyboard to the window below; the one without a screen gives it to none.
    EXPECT_TRUE(WaitFor([this] {
      if (QApplication::activeWindow() != &window) window.activateWindow();
      return QApplication::activeWindow() == &window;
    }));
    Press(Qt::Key_Q);
  }

 private:
  FakeDatabase catalogue_;
};

TEST_F(RealDialogs, TheKeysAreInThePageAfterEachOneIsLeft) {
  QString word = QStringLiteral("two");
  std::vector<const char *> items(std::begin(DialogItems), std::end(DialogItems));
  items.insert(items.end(), {"extPagePro", "extFontsPro"});
  for (const char *item : items) {
    SCOPED_TRACE(item);
    LeaveDialogAndType(item);
    word.insert(1, u'q');
    PutCaret(*second, QStringLiteral("p"));
    EXPECT_TRUE(WaitFor([&] { return WordsOf(*second) == word; })) << Seen(*second);
  }
}

TEST_F(RealDialogs, TheKeysAreInTheSourceAfterEachOneThatItHasIsLeft) {
  second->ChangeMode(3);
  QString text = QStringLiteral("two");
  for (const char *item : {"mnuCharacter", "mnuAbout", "mnuFindCommand", "mnuSettings", "mnuDrives",
                           "mnuView_ProjectMan", "mnuShortcuts"}) {
    SCOPED_TRACE(item);
    LeaveDialogAndType(item);
    text.insert(1, u'q');
    EXPECT_TRUE(Editor().Code().Text().contains(text)) << Editor().Code().Text().toStdString();
  }
}

TEST_F(RealFocus, LettersPickInAnOpenListAndTabLeavesToTheNextBox) {
  OpenBoth();
  auto *format = Find<ChoiceBox>("cobFormat");
  format->setFocus();
  Press(Qt::Key_H);
  ASSERT_TRUE(format->view()->isVisible());
  EXPECT_TRUE(format->view()->currentIndex().data().toString().startsWith(QStringLiteral("H")));
  EXPECT_TRUE(Holds(*second, QStringLiteral("<p>two</p>"))) << "nothing is chosen yet";
  QTest::keyClick(format->view(), Qt::Key_Tab);
  EXPECT_FALSE(format->view()->isVisible());
  EXPECT_EQ(QApplication::focusWidget(), Find<FontPicker>("Font1"));
  Press(Qt::Key_Tab);
  EXPECT_EQ(QApplication::focusWidget(), Find<ChoiceBox>("cobSize"));
}

TEST_F(RealFocus, WhoeverWalksAlongTheTabsByKeyboardStaysThere) {
  OpenBoth();
  Tabs().setFocus();
  Press(Qt::Key_Left);
  EXPECT_TRUE(Tabs().hasFocus());
  EXPECT_EQ(Find<PageArea>("PageArea")->Current(), first);
}

}  // namespace
}  // namespace velor
