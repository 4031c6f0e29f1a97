// SPDX-License-Identifier: GPL-3.0-or-later
// A walk at random through the whole window, with what must be true after each step. A run names
// its seed; VELOR_WALK_SEED walks another one, VELOR_WALK_SECONDS for longer.
#include "app/window/ChoiceBox.h"
#include "app/window/CommandState.h"
#include "app/window/GeneralToolbar.h"
#include "app/window/MenuTable.h"
#include "app/window/PageArea.h"
#include "app/window/PageTabs.h"
#include "chrome/FontPicker.h"
#include "editor/EditCommands.h"
#include "editor/PageSlots.h"
#include "editor/frmBrowser.h"
#include "editor/frmCodeEditor.h"
#include "editor/frmMain.h"
#include "tests/app/window/PersonAtRandom.h"
#include "tests/app/window/RealWindowFixture.h"
#include "tests/engine/ComponentFixture.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QElapsedTimer>
#include <QLabel>
#include <QMdiSubWindow>
#include <QMenu>
#include <QScreen>
#include <QTest>

#include <algorithm>

namespace velor {
namespace {

constexpr int MostPages = 5;

/// Made before the window that asks them.
struct WithPerson {
  PersonAtRandom person;
};

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
    // Typing goes on when the page knows that it has the keyboard again.
    frmMain *page = FrontPage();
    QElapsedTimer since;
    since.start();
    while (page != nullptr && page->View() == FrontView::Design && since.elapsed() < 10'000) {
      if (Evaluate(EngineOf(*page), QStringLiteral("document.hasFocus()")).toBool()) break;
    }
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
  int words_ = 0;
};

/// What is wrong with what is shown now; empty where all is true.
QString RealWalk::Trouble() {
  const QWidget *current = Area().Current();
  const FrontWindow *front = Area().Front();
  const QWidget *focus = QApplication::focusWidget();
  if (current != nullptr && (focus == nullptr || !current->isAncestorOf(focus))) {
    const auto name = [](const QObject *object) {
      return object == nullptr
                 ? QStringLiteral("nothing")
                 : QLatin1String(object->metaObject()->className()) + u' ' + object->objectName();
    };
    return QStringLiteral("the keyboard is in %1; the window in front is %2, its keyboard in %3")
        .arg(name(focus), name(QApplication::activeWindow()), name(window.focusWidget()));
  }
  const QString title =
      current == nullptr ? QStringLiteral("Velor Web Creator")
                         : QStringLiteral("Velor Web Creator - [%1]").arg(Area().NameOf(current));
  if (window.windowTitle() != title)
    return QStringLiteral("the title is %1, not %2").arg(window.windowTitle(), title);
  if (front != nullptr && front->PageNumber() != 0 &&
      Tabs().tabData(Tabs().currentIndex()).toString() != PageKey(front->PageNumber()))
    return QStringLiteral("the tab in front is another page's");
  const QString bars = BarsTrouble();
  return bars.isEmpty() ? FormatsTrouble() : bars;
}

QString RealWalk::BarsTrouble() {
  for (const GeneralButton &row : GeneralButtons) {
    if (row.needs != Needs::Page) continue;
    const bool isOn = Button(Named("tbrGeneral_", row.key)).isEnabled();
    if (isOn != (Tabs().count() > 0 && ActsOn(row.command, View())))
      return QStringLiteral("%1 is %2").arg(QLatin1String(row.key)).arg(isOn);
  }
  for (const MenuRow &row : MenuTable()) {
    // Without a page the Edit menu as a whole is off.
    if (row.command.id != CommandId::Editing || Tabs().count() == 0) continue;
    const bool isOn = Find<QAction>(row.name)->isEnabled();
    if (isOn != ActsOn(row.command, View()))
      return QStringLiteral("%1 is %2").arg(QLatin1String(row.name)).arg(isOn);
  }
  const FrontWindow *front = Area().Front();
  const QString form = front == nullptr || front->PageNumber() == 0
                           ? QString()
                           : Pages().Page(front->PageNumber())->DHTML1().TextForm();
  const QString shownForm = Find<QLabel>("Sta_2")->text();
  return shownForm == form ? QString() : QStringLiteral("%1 is another page's").arg(shownForm);
}

QString RealWalk::FormatsTrouble() {
  const QString format = Find<ChoiceBox>("cobFormat")->Text();
  const QString size = Find<ChoiceBox>("cobSize")->Text();
  const QString tag = Find<QLabel>("Sta_1")->text();
  frmMain *page = FrontPage();
  if (page == nullptr || page->View() != FrontView::Design) {
    const bool isOff = !Find<ChoiceBox>("cobFormat")->isEnabled() &&
                       !Button(QByteArray("tbrEdit_bold")).isEnabled();
    const bool isEmpty = format.isEmpty() && size.isEmpty() && tag.isEmpty();
    return isOff && isEmpty
               ? QString()
               : QStringLiteral("formats of nothing: %1, %2, %3").arg(format, size, tag);
  }
  const auto value = [page](EditingCommand query) {
    return page->DHTML1().ExecCommand(query).toString();
  };
  if (format != value(EditingCommand::GetBlockFormat))
    return QStringLiteral("the block format is not %1").arg(format);
  if (size != value(EditingCommand::GetFontSize))
    return QStringLiteral("the size is not %1").arg(size);
  if (tag != page->GetActiveElement().tagName) return QStringLiteral("the tag is not %1").arg(tag);
  for (const EditCommand &row : EditCommands) {
    const QToolButton &button = Button(Named("tbrEdit_", row.key.toLatin1()));
    const CommandStatus status = page->DHTML1().QueryStatus(row.command);
    if (button.isEnabled() && button.isChecked() != (status == CommandStatus::Latched))
      return QStringLiteral("%1 shows another state").arg(row.key);
  }
  return {};
}

TEST_F(RealWalk, EveryStepLeavesTheKeysInFrontAndAllThatIsShownTrue) {
  constexpr RealWalk::Deed Deeds[] = {
      {"open a file", &RealWalk::OpenFile},
      {"make a page", &RealWalk::NewOne},
      {"click a tab", &RealWalk::ClickTab},
      {"go to the next window", &RealWalk::NextWindow},
      {"close what is in front", &RealWalk::CloseFront},
      {"minimise the page and click its tab", &RealWalk::MinimiseFront},
      {"change the mode", &RealWalk::ChangeMode},
      {"click a button", &RealWalk::ClickButton},
      {"click a format", &RealWalk::ClickFormat},
      {"choose in a box", &RealWalk::ChooseInBox},
      {"move the caret", &RealWalk::MoveCaret},
      {"delete", &RealWalk::DeleteBack},
      {"undo", &RealWalk::UndoByKey},
      {"type a word", &RealWalk::TypeWord},
      {"type another word", &RealWalk::TypeWord},
      {"apply the source", &RealWalk::ApplySource},
  };
  const qint64 limit = 1000LL * Number("VELOR_WALK_SECONDS", 60);
  QElapsedTimer clock;
  clock.start();
  QStringList way;
  int typed = 0;
  while (clock.elapsed() < limit && !HasFailure()) {
    const Deed &deed = Deeds[Upto(static_cast<int>(std::size(Deeds)))];
    way.append(QString::fromLatin1(deed.name));
    if (deed.act == &RealWalk::TypeWord) ++typed;
    try {
      (this->*deed.act)();
    } catch (const std::exception &error) {
      ADD_FAILURE() << error.what();
    }
    EXPECT_TRUE(WaitFor([this] { return IsActive() && Trouble().isEmpty(); }))
        << Trouble().toStdString();
  }
  EXPECT_GT(typed, 0);
  if (HasFailure()) {
    ADD_FAILURE() << "seed " << Number("VELOR_WALK_SEED", 1) << ", step " << way.size() << ": "
                  << way.mid(std::max<qsizetype>(0, way.size() - 12)).join(u", ").toStdString();
  }
}

}  // namespace
}  // namespace velor
