// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/window/ChoiceBox.h"
#include "app/window/CommandState.h"
#include "app/window/GeneralToolbar.h"
#include "app/window/MenuTable.h"
#include "app/window/PageArea.h"
#include "app/window/PageTabs.h"
#include "app/window/PathBar.h"
#include "chrome/ColorPalette.h"
#include "chrome/ColorPicker.h"
#include "chrome/FontPicker.h"
#include "editor/EditCommands.h"
#include "editor/PageSlots.h"
#include "editor/frmBrowser.h"
#include "editor/frmCodeEditor.h"
#include "editor/frmMain.h"
#include "tests/app/window/PersonAtRandom.h"
#include "tests/app/window/RealWindowFixture.h"
#include "tests/engine/ComponentFixture.h"
#include "tests/support/FakeDatabase.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QElapsedTimer>
#include <QLineEdit>
#include <QMdiSubWindow>
#include <QMenu>
#include <QScreen>
#include <QTest>

namespace velor {

inline constexpr int MostPages = 5;

/// Made before the window that asks them.
struct WithPerson {
  PersonAtRandom person;
};

/// The window, and what a person may do in it at random.
class RealWalk : private WithPerson, public RealWindow {
 public:
  struct Deed {
    const char *name;
    void (RealWalk::*act)();
  };

  RealWalk() : RealWindow(&person) {
    Write(QStringLiteral("list.htm"),
          "<html><body>\n<h1>Bread</h1>\n<ol><li>Knead</li><li>Bake</li></ol>\n</body></html>\n");
    Write(QStringLiteral("table.htm"),
          "<!DOCTYPE html>\n<html><body>\n<p>Prices</p>\n<table border=1><tr><td>Rye</td>"
          "<td>3</td></tr></table>\n<p style=\"font-size: 15pt\">End</p></body></html>\n");
    Write(QStringLiteral("plain.htm"), "<html><body>one two three</body></html>");
    values.DbConnection = catalogue_.ConnectEmptyCatalogue();
  }
  ~RealWalk() override {
    for (int number = 1; number <= Pages().PageCount(); ++number) {
      if (frmCodeEditor *editor = Pages().CodeEditor(number)) {
        editor->MarkKill();
        editor->close();
      }
      if (frmMain *page = Pages().Page(number)) {
        page->MarkKill();
        page->close();
      }
    }
  }

  // The state of the window.
  PageSlots &Pages() { return window.Context().pages; }
  PageArea &Area() { return *Find<PageArea>("PageArea"); }
  FrontView View() {
    const FrontWindow *front = Area().Front();
    return front == nullptr ? FrontView::Nothing : front->View();
  }
  frmMain *FrontPage() { return dynamic_cast<frmMain *>(Area().Front()); }
  /// A desktop leaves the main window active below its popups; the one without a screen leaves
  /// none.
  bool IsActive() {
    if (QApplication::activeWindow() != &window) window.activateWindow();
    return QApplication::activeWindow() == &window;
  }
  QString Trouble();
  QString BarsTrouble();
  QString FormatsTrouble();

  // Deeds.
  void OpenFile() {
    if (Tabs().count() == MostPages) return;
    constexpr const char *Names[] = {"list.htm", "table.htm", "plain.htm"};
    SharedDialog().ExpectOpen(Logic(QString::fromLatin1(Names[Upto(3)])));
    Choose("mnuOpen");
    WaitForPage();
  }
  void NewOne() {
    if (Tabs().count() == MostPages) return;
    Choose("mnuNew");
    WaitForPage();
  }
  void ClickTab() {
    if (Tabs().count() == 0) return;
    const int index = Upto(Tabs().count());
    QTest::mouseClick(&Tabs(), Qt::LeftButton, {}, Tabs().tabRect(index).center());
  }
  void NextWindow() { Area().activateNextSubWindow(); }
  void CloseFront() {
    if (Area().Current() != nullptr) Press(Qt::Key_F4, Qt::ControlModifier);
  }
  void MinimiseFront() {
    frmMain *page = FrontPage();
    if (page == nullptr) return;
    qobject_cast<QMdiSubWindow *>(page->parentWidget())->showMinimized();
    QTest::mouseClick(&Tabs(), Qt::LeftButton, {}, Tabs().tabRect(Tabs().currentIndex()).center());
  }
  void ChangeMode() {
    if (frmMain *page = FrontPage()) page->ChangeMode(1 + Upto(4));
  }
  void ClickButton() {
    const GeneralButton &row =
        GeneralButtons[static_cast<std::size_t>(Upto(static_cast<int>(GeneralButtons.size())))];
    const bool needsMore = row.command.id == CommandId::OpenPage ||
                           row.command.id == CommandId::SavePageAs ||
                           row.command.id == CommandId::ProjectManager;
    if (!needsMore && !SavesUnnamed(row.command)) Button(Named("tbrGeneral_", row.key)).click();
  }
  void ClickFormat() {
    const EditCommand &row =
        EditCommands[static_cast<std::size_t>(Upto(static_cast<int>(EditCommands.size())))];
    QToolButton &button = Button(Named("tbrEdit_", row.key.toLatin1()));
    frmMain *page = FrontPage();
    const bool isOn = button.isEnabled();
    const bool wasChecked = button.isChecked();
    const QString before = page == nullptr ? QString() : page->DHTML1().DocumentHTML();
    button.click();
    // An alignment may be there already, and what is out cannot go out further.
    const bool canBeIdle =
        row.command == EditingCommand::Outdent || row.command == EditingCommand::JustifyLeft ||
        row.command == EditingCommand::JustifyCenter || row.command == EditingCommand::JustifyRight;
    if (!isOn || canBeIdle) return;
    EXPECT_TRUE(WaitFor([&] {
      return button.isChecked() != wasChecked || page->DHTML1().DocumentHTML() != before;
    })) << row.key.toString().toStdString()
        << " looks alive and does nothing in " << before.toStdString() << ", "
        << Caret(*page).toStdString();
  }
  void ChooseInBox() {
    auto *box = Find<ChoiceBox>(Upto(2) == 0 ? "cobFormat" : "cobSize");
    if (!box->isEnabled()) return;
    box->setFocus();
    box->showPopup();
    // This desktop activates popups, and says so from the event loop.
    QCoreApplication::processEvents();
    const QRect screen = box->screen()->availableGeometry();
    EXPECT_TRUE(screen.contains(box->view()->window()->frameGeometry()))
        << "a list is beyond the screen";
    QTest::keyClick(box->view(), Qt::Key_Down);
    QTest::keyClick(box->view(), Upto(3) == 0 ? Qt::Key_Escape : Qt::Key_Return);
    QCoreApplication::processEvents();
    EXPECT_TRUE(WaitFor([this] { return IsActive(); }));
    WaitForKeyboardInPage();
  }
  /// A font by name, listed or not.
  void TypeFont() {
    auto *box = Find<FontPicker>("Font1");
    if (!box->isEnabled()) return;
    constexpr const char *Names[] = {"Serif", "monospace", "Some Face"};
    box->lineEdit()->setFocus();
    box->lineEdit()->setText(QString::fromLatin1(Names[Upto(3)]));
    Press(Upto(4) == 0 ? Qt::Key_Escape : Qt::Key_Return);
    WaitForKeyboardInPage();
  }
  void ChooseColor() {
    auto *picker = Find<ColorPicker>(Upto(2) == 0 ? "cpFore" : "cpBack");
    if (!picker->isEnabled()) return;
    picker->click();
    ColorPalette &palette = picker->Panel();
    ASSERT_TRUE(WaitFor([&] { return palette.focusWidget() != nullptr; }));
    EXPECT_TRUE(palette.screen()->availableGeometry().contains(palette.frameGeometry()))
        << "the palette is beyond the screen";
    for (int step = Upto(4); step > 0; --step) QTest::keyClick(&palette, Qt::Key_Right);
    QTest::keyClick(&palette, Upto(3) == 0 ? Qt::Key_Escape : Qt::Key_Return);
    QCoreApplication::processEvents();
    EXPECT_TRUE(WaitFor([this] { return IsActive(); }));
    WaitForKeyboardInPage();
  }
  void ClickInPage() {
    if (View() != FrontView::Design) return;
    QWidget &input = *InputOf(*FrontPage());
    const QPoint place(10 + Upto(200), 10 + Upto(150));
    QTest::mouseClick(&input, Qt::LeftButton, {}, place);
  }
  /// Under a name that no page had before.
  void SaveUnderAnotherName() {
    const FrontWindow *front = Area().Front();
    if (front == nullptr || front->PageNumber() == 0) return;
    const QString name = QStringLiteral("saved%1.htm").arg(++saved_);
    SharedDialog().ExpectSave(Logic(name));
    Choose("mnuSaveAs");
    EXPECT_TRUE(Exists(name));
    EXPECT_TRUE(Pages().Page(front->PageNumber())->FilePath().endsWith(name));
  }
  void OpenADialog() {
    constexpr const char *Items[] = {"mnuView_ProjectMan", "mnuAbout",       "mnuSettings",
                                     "mnuShortcuts",       "mnuFindCommand", "mnuDrives"};
    Choose(Items[Upto(static_cast<int>(std::size(Items)))]);
  }
  /// Some item of the page's menu, its menus' too, or none.
  void ChooseInPagesMenu() {
    if (View() != FrontView::Design) return;
    auto *menu = Find<QMenu>("mnuExt");
    QTest::keyClick(InputOf(*FrontPage()), Qt::Key_Menu);
    ASSERT_TRUE(WaitFor([&] { return menu->isVisible(); })) << "the menu key opens no menu";
    EXPECT_TRUE(menu->screen()->availableGeometry().contains(menu->frameGeometry()))
        << "the menu is beyond the screen";
    for (int step = Upto(18); step > 0; --step) QTest::keyClick(menu, Qt::Key_Down);
    const QAction *item = menu->activeAction();
    if (item != nullptr && item->menu() != nullptr && item->isEnabled()) {
      QMenu *inner = item->menu();
      QTest::keyClick(menu, Qt::Key_Right);
      for (int step = Upto(6); step > 0; --step) QTest::keyClick(inner, Qt::Key_Down);
      QTest::keyClick(inner, Qt::Key_Return);
    } else if (item != nullptr && Upto(4) != 0) {
      QTest::keyClick(menu, Qt::Key_Return);
    }
    for (QMenu *each : menu->findChildren<QMenu *>()) each->close();
    menu->close();
    QCoreApplication::processEvents();
    EXPECT_TRUE(WaitFor([this] { return IsActive(); }));
    WaitForKeyboardInPage();
  }
  void ChooseInTableMenu() {
    auto *menu = Find<QMenu>("mnuTableMore");
    Q_EMIT menu->aboutToShow();
    QAction *item = menu->actions().at(Upto(static_cast<int>(menu->actions().size())));
    if (item->isEnabled()) item->trigger();
  }
  /// An element of the path in the status bar.
  void ClickInPath() {
    QList<QToolButton *> elements = Find<PathBar>("pathBar")->findChildren<QToolButton *>();
    erase_if(elements, [](const QToolButton *each) { return !each->isVisible() || each->menu(); });
    if (elements.isEmpty()) return;
    QTest::mouseClick(elements.at(Upto(static_cast<int>(elements.size()))), Qt::LeftButton);
  }
  /// Looks for a letter in what is in front and leaves the bar.
  void FindALetter() {
    if (View() != FrontView::Design && View() != FrontView::SourceEditor) return;
    Choose("mnuFind");
    Press(Qt::Key_E);
    Press(Qt::Key_Escape);
    if (View() == FrontView::Design) WaitForKeyboardInPage();
  }
  /// The page as narrow as a phone's, or as it was.
  void ChangeWidth() {
    if (View() != FrontView::Design) return;
    Choose("mnuWidths");
    // A bar that opens has the keyboard until Escape.
    if (!InputOf(*FrontPage())->hasFocus()) Press(Qt::Key_Escape);
    WaitForKeyboardInPage();
  }
  /// Out of what is in front and back.
  void LeaveByF6() {
    if (Area().Current() == nullptr) return;
    Press(Qt::Key_F6, Qt::ShiftModifier);
    Press(Qt::Key_F6);
  }
  void MoveCaret() {
    constexpr Qt::Key Keys[] = {Qt::Key_Left, Qt::Key_Right, Qt::Key_Up,     Qt::Key_Down,
                                Qt::Key_Home, Qt::Key_End,   Qt::Key_Return, Qt::Key_Tab};
    const FrontView view = View();
    if (view == FrontView::Nothing || view == FrontView::Preview) return;
    // In the source view Tab leads to the next control.
    const int key = Upto(view == FrontView::SourceView ? 7 : 8);
    Press(Keys[key], key < 6 && Upto(2) == 0 ? Qt::ShiftModifier : Qt::NoModifier);
  }
  void DeleteBack() {
    if (View() == FrontView::Design || View() == FrontView::SourceEditor) Press(Qt::Key_Backspace);
  }
  void UndoByKey() {
    if (View() == FrontView::Design) Press(Qt::Key_Z, Qt::ControlModifier);
  }
  /// What is typed is found in what is in front, and nowhere else.
  void TypeWord() {
    const QString word = QStringLiteral("zq%1").arg(++words_, 3, 26, QLatin1Char('a'));
    const FrontView view = View();
    if (view != FrontView::Design && view != FrontView::SourceEditor) return;
    const int number = Area().Front()->PageNumber();
    ASSERT_NE(QApplication::focusWidget(), nullptr);
    QTest::keyClicks(QApplication::focusWidget(), word);
    if (view == FrontView::SourceEditor) {
      EXPECT_TRUE(Pages().CodeEditor(number)->Code().Text().contains(word));
    } else {
      EXPECT_TRUE(WaitFor([&] { return Holds(*Pages().Page(number), word); }))
          << word.toStdString() << " is not in " << Seen(*Pages().Page(number));
    }
  }
  void ApplySource() {
    if (auto *editor = dynamic_cast<frmCodeEditor *>(Area().Front())) editor->Apply();
  }

  int Upto(int count) { return person.chance.Below(count); }
  static void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    ASSERT_NE(QApplication::focusWidget(), nullptr);
    QTest::keyClick(QApplication::focusWidget(), key, modifiers);
  }

  /// Where the page's selection begins and ends.
  static QString Caret(frmMain &page) {
    return Evaluate(EngineOf(page),
                    QStringLiteral("{ const s = getSelection(); const at = (node, offset) =>"
                                   " `${node?.nodeName} ${node?.textContent}, ${offset}`;"
                                   " `${s.type} ${at(s.anchorNode, s.anchorOffset)} to"
                                   " ${at(s.focusNode, s.focusOffset)}` }"))
        .toString();
  }

 private:
  /// Typing goes on when the page knows that it has the keyboard again.
  void WaitForKeyboardInPage() {
    frmMain *page = FrontPage();
    QElapsedTimer since;
    since.start();
    while (page != nullptr && page->View() == FrontView::Design && since.elapsed() < 10'000) {
      if (Evaluate(EngineOf(*page), QStringLiteral("document.hasFocus()")).toBool()) break;
    }
  }
  void WaitForPage() {
    EXPECT_TRUE(WaitFor([this] {
      const frmMain *page = FrontPage();
      return page != nullptr && page->PendingAction.isEmpty();
    }));
  }
  static QByteArray Named(const char *bar, const QByteArray &key) { return bar + key; }
  QToolButton &Button(const QByteArray &name) { return RealWindow::Button(name.constData()); }
  /// A page without a file asks for a name.
  bool SavesUnnamed(const Command &command) {
    const FrontWindow *front = Area().Front();
    return command.id == CommandId::SavePage && front != nullptr && front->PageNumber() != 0 &&
           Pages().Record(front->PageNumber()).HasFile == False16;
  }
  FakeDatabase catalogue_;
  int words_ = 0;
  int saved_ = 0;
};

}  // namespace velor
