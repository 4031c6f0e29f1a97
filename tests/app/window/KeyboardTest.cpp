// SPDX-License-Identifier: GPL-3.0-or-later
// Every window is usable without a mouse: walks by Tab and arrows, compared with the tables.
#include "app/help/ManualWindow.h"
#include "app/window/GeneralToolbar.h"
#include "app/window/MenuTable.h"
#include "chrome/NoticeBar.h"
#include "editor/EditCommands.h"
#include "editor/FindBar.h"
#include "editor/PageSlots.h"
#include "editor/VersionCompare.h"
#include "editor/frmCodeEditor.h"
#include "editor/frmMain.h"
#include "properties/frmProperties.h"
#include "tests/app/window/DialogItems.h"
#include "tests/app/window/EveryField.h"
#include "tests/app/window/WindowFixture.h"
#include "tests/support/FakeDialogs.h"
#include "tests/support/KeyboardWalk.h"

#include <QMenu>
#include <QPushButton>
#include <QTabWidget>

#include <algorithm>

namespace velor {
namespace {

/// What F6 meets from where the keyboard is until it is back there.
QStringList WalkByF6(Qt::KeyboardModifiers modifiers) {
  constexpr int Enough = 20;
  const QWidget *start = QApplication::focusWidget();
  QStringList met;
  for (const QWidget *now = start; met.size() < Enough; now = QApplication::focusWidget()) {
    if (now == start && !met.isEmpty()) return met;
    met.append(NameOf(*now));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_F6, modifiers);
  }
  ADD_FAILURE() << "F6 never comes back: " << met.join(u' ').toStdString();
  return met;
}

/// The items that the arrow keys meet in an open menu, submenus included, by their names in the
/// table of menus.
QStringList WalkByArrows(QMenu &menu) {
  QStringList met;
  const QAction *first = nullptr;
  for (;;) {
    QTest::keyClick(&menu, Qt::Key_Down);
    const QAction *item = menu.activeAction();
    if (item == nullptr || item == first) return met;
    if (first == nullptr) first = item;
    met.append(item->objectName());
    if (item->menu() == nullptr || !item->isEnabled()) continue;
    QTest::keyClick(&menu, Qt::Key_Right);
    EXPECT_TRUE(item->menu()->isVisible()) << item->objectName().toStdString();
    item->menu()->setActiveAction(nullptr);
    met += WalkByArrows(*item->menu());
    QTest::keyClick(item->menu(), Qt::Key_Left);
    EXPECT_FALSE(item->menu()->isVisible()) << item->objectName().toStdString();
  }
}

class KeyboardTest : public WindowFixture {
 protected:
  KeyboardTest() {
    window.show();
    window.activateWindow();
  }

  /// The items below a menu that can be chosen, in the order of the table.
  QStringList ItemsOf(const char *menu) {
    QStringList items;
    for (const MenuRow &row : MenuTable()) {
      if (row.parent == nullptr || std::string_view(row.parent) != menu ||
          row.kind == MenuKind::Separator)
        continue;
      items.append(QString::fromLatin1(row.name));
      if (row.kind == MenuKind::Menu) items += ItemsOf(row.name);
    }
    return items;
  }
};

TEST_F(KeyboardTest, ArrowsMeetEveryItemOfEveryMenuOfTheTable) {
  NewPage();
  for (const MenuRow &row : MenuTable()) {
    if (row.kind != MenuKind::Menu || row.parent != nullptr) continue;
    auto *menu = Find<QMenu>(row.name);
    menu->popup({});
    QStringList met = WalkByArrows(*menu);
    menu->close();
    // Recent files and open windows are in no table.
    met.removeAll(QString());
    EXPECT_EQ(met, ItemsOf(row.name)) << row.name << ": " << met.join(u' ').toStdString();
  }
}

TEST_F(KeyboardTest, TabMeetsEveryButtonAndBoxOfTheMainWindowInTheOrderOfTheEye) {
  frmMain &page = NewPage();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
  QStringList expected;
  const auto expect = [&](const QString &name) {
    const auto *control = Find<QWidget>(name.toLatin1().constData());
    if (control->isEnabled()) expected.append(name);
  };
  for (const GeneralButton &button : GeneralButtons)
    expect(QStringLiteral("tbrGeneral_") + QString::fromLatin1(button.key));
  for (const char *box : {"cobFormat", "Font1", "cobSize"}) expect(QString::fromLatin1(box));
  for (const EditCommand &row : EditCommands)
    expect(QStringLiteral("tbrEdit_") + row.key.toString());
  for (const char *box : {"cpFore", "cpBack", "FileTab", "CmbPages", "cmdStatusMenu"})
    expect(QString::fromLatin1(box));

  QWidget &start = *Find<QWidget>(expected.constFirst().toLatin1().constData());
  start.setFocus(Qt::TabFocusReason);
  const QStringList met =
      WalkByKey(Qt::Key_Tab, start, [&](const QWidget &now) { return page.isAncestorOf(&now); });
  EXPECT_EQ(met, expected) << met.join(u' ').toStdString();
}

TEST_F(KeyboardTest, F6LeadsRoundTheBarsAndWhatIsInFrontAndShiftF6Back) {
  frmMain &page = NewPage();
  Find<QWidget>("CmbPages")->setEnabled(true);
  ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
  page.setFocus();
  EXPECT_EQ(WalkByF6({}).join(u' ').toStdString(),
            "DHTML1 tbrGeneral_new cobFormat FileTab CmbPages cmdStatusMenu Design");
  EXPECT_EQ(WalkByF6(Qt::ShiftModifier).join(u' ').toStdString(),
            "DHTML1 Design cmdStatusMenu CmbPages FileTab cobFormat tbrGeneral_new");
}

TEST_F(KeyboardTest, F6LeadsFromTheSourceToApplyAndToTheFindBar) {
  NewPage().ChangeMode(3);
  ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
  QWidget *source = window.Context().pages.CodeEditor(1)->Code().Widget();
  source->setFocus();
  EXPECT_EQ(WalkByF6({}).join(u' ').toStdString(),
            "Code tbrGeneral_new FileTab cmdStatusMenu Copy cmdApply");
  QTest::keyClick(source, Qt::Key_F, Qt::ControlModifier);
  source->setFocus();
  EXPECT_EQ(WalkByF6({}).join(u' ').toStdString(),
            "Code tbrGeneral_new FileTab cmdStatusMenu Copy cmdApply txtFind");
}

TEST_F(KeyboardTest, F6LeadsToTheBarsWithoutAPage) {
  ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
  QTest::keyClick(&window, Qt::Key_F6);
  EXPECT_EQ(QApplication::focusWidget(), Find<QWidget>("tbrGeneral_new"));
}

struct DialogWalk {
  const char *item;
  const char *controls;
};

TEST_F(KeyboardTest, TabMeetsEveryControlOfEveryDialog) {
  NewPage();
  // Each from where the keyboard is at first; the strips of tabs come last.
  const DialogWalk walks[] = {
      {"mnuAbout", "Close lblMail_To"},
      {"mnuFindCommand", "txtWords lstCommands"},
      {"mnuSettings",
       "ShowDetails SnapToGrid showtoolbox CheckSpelling NewPageTemplate WrapSource CopyPictures "
       "KeepPictureData "
       "PhotosAsWebP "
       "MenuStyle mnuFore mnuBorder mnuHighlight "
       "mnuHighFore Language WholeTemplateSigns SpellingLanguage PublishedOnly cmdOK cmdCancel"},
      {"mnuNewFromTemplate", "txtTitle txtLanguage chkPhones cmdOK cmdCancel cobTemplate"},
      {"mnuCharacter", "txtWords cobBlock lstCharacters cmdOK cmdCancel"},
      {"mnuPrint",
       "cobPaper cobOrientation txtMargins txtScale chkBackgrounds chkEdgeLines cmdClose "
       "PaperView"},
      {"mnuShortcuts", "txtWords lstCommands txtKey cmdResetAll cmdOK cmdCancel"},
      {"mnuDrives", "lstDrives cobLetter cmdAdd OK Cancel"},
      {"mnuTBLnew",
       "Text1 Text2 Combo1 combo2 combo3 combo4 chkHeadings Command1 Command2 qt_tabwidget_tabbar"},
      {"mnuISTimage",
       "txtImgSource cmdBrowseIMG txtLowRes cmdBrowseLowRes txtAlt cmdOK cmdCancel "
       "qt_tabwidget_tabbar qt_tabwidget_tabbar"},
      {"mnuISTlink",
       "txtHref cmdABrowse cobATarget txtATitle cmdAEmail lstABookMark cmdRefreshA cmdOK cmdCancel "
       "qt_tabwidget_tabbar"},
      {"mnuBookmark",
       "txtBookmarkName lstOtherBookmark cmdRefreshOther cmdOK cmdCancel qt_tabwidget_tabbar"},
      {"extInHTML", "Code cmdCancel"},
      {"mnuVideo",
       "txtVidSource Command1 txtVidPoster cmdBrowsePoster chkShowControl chkForever chkVidOnOpen "
       "cmdOK cmdCancel qt_tabwidget_tabbar qt_tabwidget_tabbar"},
  };
  for (const DialogWalk &walk : walks) {
    dialogs.ExpectModal([&](QWidget &dialog) {
      dialog.show();
      dialog.activateWindow();
      ASSERT_TRUE(QTest::qWaitForWindowActive(&dialog)) << walk.item;
      ASSERT_NE(QApplication::focusWidget(), nullptr) << walk.item;
      EXPECT_EQ(WalkBothWays(*QApplication::focusWidget()).toStdString(), walk.controls)
          << walk.item;
      dialog.close();
    });
    Choose(walk.item);
  }
}

/// Whatever the tabs of the window show.
void ExpectAllWithinReach(QWidget &shown, const std::string &what) {
  shown.show();
  shown.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&shown)) << what;
  EXPECT_EQ(OutOfReach(shown).toStdString(), "") << what;
  for (QTabWidget *book : shown.findChildren<QTabWidget *>()) {
    for (int index = 0; index < book->count(); ++index) {
      if (!book->isTabEnabled(index)) continue;
      book->setCurrentIndex(index);
      book->tabBar()->setFocus();
      EXPECT_EQ(OutOfReach(shown).toStdString(), "")
          << what << ", " << book->tabText(index).toStdString();
    }
  }
}

TEST_F(KeyboardTest, EveryUsableControlOfEveryWindowIsMetByTabAndHasAName) {
  values.DbConnection = database.ConnectEmptyCatalogue();
  NewPage();
  for (const char *item : DialogItems) {
    dialogs.ExpectModal([item](QWidget &dialog) {
      ExpectAllWithinReach(dialog, item);
      dialog.close();
    });
    Choose(item);
  }
  using enum PropertySubject;
  for (const PropertySubject subject : {Page, Image, Table, Cell, Link, Fonts, Element}) {
    const PropertySheet &sheet = SheetOf(subject);
    frmProperties dialog(sheet, EveryField(sheet), nullptr);
    ExpectAllWithinReach(dialog, sheet.title);
  }
  VersionCompare compare(QStringLiteral("a.htm"), QStringLiteral("mine"), QStringLiteral("theirs"),
                         nullptr);
  ExpectAllWithinReach(compare, "compare");
  const Manual manual(ManualFolder(QCoreApplication::applicationDirPath()));
  ManualWindow help(manual);
  ExpectAllWithinReach(help, "manual");
}

TEST_F(KeyboardTest, EveryUsableControlOfEveryBarUnderAPageIsMetByTabAndHasAName) {
  frmMain &page = NewPage();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
  QList<QWidget *> bars{page.findChild<FindBar *>()};
  for (NoticeBar *bar : window.findChildren<NoticeBar *>())
    if (bar->parentWidget()->isVisible()) bars.append(bar);
  ASSERT_GE(bars.size(), 6);
  for (QWidget *bar : bars) {
    const std::string name = bar->objectName().toStdString();
    SCOPED_TRACE(name);
    bar->show();
    const QList<QWidget *> controls = bar->findChildren<QWidget *>();
    const auto first = std::find_if(controls.begin(), controls.end(), [](const QWidget *each) {
      return each->isVisible() && each->isEnabled() && (each->focusPolicy() & Qt::TabFocus) != 0;
    });
    ASSERT_NE(first, controls.end()) << name;
    // Back to the first control of the bar.
    (*first)->setFocus();
    while (bar->isAncestorOf(QApplication::focusWidget()))
      QTest::keyClick(QApplication::focusWidget(), Qt::Key_Backtab);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    ASSERT_TRUE(bar->isAncestorOf(QApplication::focusWidget())) << name;
    EXPECT_EQ(OutOfReach(*bar).toStdString(), "") << name;
    bar->hide();
  }
}

TEST_F(KeyboardTest, NoTwoControlsInSightOfAWindowShareAnAltKey) {
  values.DbConnection = database.ConnectEmptyCatalogue();
  frmMain &page = NewPage();
  EXPECT_EQ(SharedAltKeys(window).toStdString(), "");
  for (const char *item : DialogItems) {
    dialogs.ExpectModal([item](QWidget &dialog) {
      dialog.show();
      EXPECT_EQ(SharedAltKeys(dialog).toStdString(), "") << item;
      for (QTabWidget *book : dialog.findChildren<QTabWidget *>()) {
        for (int index = 0; index < book->count(); ++index) {
          book->setCurrentIndex(index);
          EXPECT_EQ(SharedAltKeys(dialog).toStdString(), "")
              << item << ", " << book->tabText(index).toStdString();
        }
      }
      dialog.close();
    });
    Choose(item);
  }
  page.ChangeMode(3);
  QTest::keyClick(window.Context().pages.CodeEditor(1)->Code().Widget(), Qt::Key_H,
                  Qt::ControlModifier);
  EXPECT_EQ(SharedAltKeys(window).toStdString(), "");
}

TEST_F(KeyboardTest, NoItemThatWasAddedToAMenuHasTheLetterOfAnother) {
  for (const MenuRow &added : MenuTable()) {
    const QKeySequence letter = QKeySequence::mnemonic(QString::fromUtf8(added.caption));
    if (added.reach == Reach::Published || letter.isEmpty() || added.parent == nullptr) continue;
    for (const MenuRow &row : MenuTable()) {
      if (&row == &added || row.parent == nullptr || std::string_view(row.parent) != added.parent)
        continue;
      EXPECT_NE(QKeySequence::mnemonic(QString::fromUtf8(row.caption)), letter)
          << added.parent << ": " << row.caption << ", " << added.caption;
    }
  }
}

}  // namespace
}  // namespace velor
