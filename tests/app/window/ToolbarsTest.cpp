// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/window/FormattingBar.h"
#include "app/window/PageTabs.h"
#include "chrome/ColorPicker.h"
#include "chrome/Icons.h"
#include "editor/frmMain.h"
#include "tests/app/window/WindowFixture.h"

#include <QLabel>
#include <QStatusBar>
#include <QTabBar>
#include <QToolBar>

namespace velor {
namespace {

using ToolbarsTest = WindowFixture;

QImage Drawn(const QIcon &icon) {
  return icon.pixmap(32).toImage();
}

/// "key/tooltip" of each button in order.
QStringList Buttons(const QToolBar &bar) {
  QStringList buttons;
  for (QAction *action : bar.actions()) {
    if (const auto *button = qobject_cast<QToolButton *>(bar.widgetForAction(action))) {
      buttons.append(button->property("key").toString() + u'/' + button->toolTip());
      EXPECT_EQ(button->accessibleName(), button->toolTip());
      const QIcon picture = IconFor(button->property("key").toString());
      EXPECT_FALSE(picture.isNull()) << button->toolTip().toStdString();
      EXPECT_EQ(Drawn(button->icon()), Drawn(picture)) << button->toolTip().toStdString();
    }
  }
  return buttons;
}

/// "key enabled pressed" of each button in order.
QStringList States(const QToolBar &bar) {
  QStringList states;
  for (const QAction *action : bar.actions()) {
    if (action->isSeparator()) continue;
    states.append(QStringLiteral("%1 %2 %3")
                      .arg(action->data().toString())
                      .arg(action->isEnabled())
                      .arg(action->isChecked()));
  }
  return states;
}

TEST_F(ToolbarsTest, TheGeneralToolbarHasTheseButtonsInThisOrder) {
  EXPECT_EQ(Buttons(*Find<QToolBar>("tbrGeneral")).join(u' ').toStdString(),
            "new/New open/Open save/Save saveas/Save As startman/Project Manager cut/Cut copy/Copy "
            "paste/Paste delete/Delete undo/Undo redo/Redo preview/Preview table/Table image/Image "
            "anchor/Anchor help/Help about/About");
}

TEST_F(ToolbarsTest, TheEditingToolbarHasTheseButtonsInThisOrder) {
  EXPECT_EQ(Buttons(*Find<QToolBar>("tbrEdit")).join(u' ').toStdString(),
            "bold/Bold italic/Italic underline/Underline left/Align Left center/Align Center "
            "right/Align Right number/Number bullet/Bullet outdent/Outdent indent/Indent");
}

TEST_F(ToolbarsTest, TheWindowOwnsItsPartsByName) {
  for (const char *name :
       {"CoolBar", "tbrGeneral", "tbrEdit", "cobFormat", "cobSize", "Font1", "cpFore", "cpBack",
        "FileTab", "FileTab2", "picFileTab", "CmbPages", "Sta", "DE1"}) {
    EXPECT_NE(window.findChild<QWidget *>(QString::fromLatin1(name)), nullptr) << name;
  }
  EXPECT_NE(window.findChild<QObject *>(QStringLiteral("PM")), nullptr);
  auto *bands = Find<QWidget>("CoolBar");
  for (const char *name : {"tbrGeneral", "tbrEdit"}) {
    EXPECT_TRUE(bands->isAncestorOf(Find<QWidget>(name))) << name;
  }
  auto *row = Find<QWidget>("picFileTab");
  for (const char *name : {"FileTab", "FileTab2", "CmbPages"}) {
    EXPECT_TRUE(row->isAncestorOf(Find<QWidget>(name))) << name;
  }
  EXPECT_TRUE(Find<QWidget>("FileTab2")->isHidden());
  EXPECT_TRUE(Find<QWidget>("DE1")->isHidden());
  EXPECT_FALSE(Find<QWidget>("CmbPages")->isEnabled());
  EXPECT_EQ(window.windowTitle(), QStringLiteral("Velor Web Creator"));
}

TEST_F(ToolbarsTest, TheControlsHaveLabelsForThoseWhoCannotSeeThem) {
  for (const char *name : {"cobFormat", "cobSize", "Font1", "cpFore", "cpBack", "FileTab",
                           "CmbPages", "tbrGeneral", "tbrEdit"}) {
    EXPECT_FALSE(Find<QWidget>(name)->accessibleName().isEmpty()) << name;
  }
}

QString Availability(MfrmProgram &window) {
  QString states;
  for (const char *menu : {"mnuFile_Top", "mnuEdit_Top", "mnuInsert", "mnuTable"}) {
    states += window.findChild<QAction *>(QString::fromLatin1(menu))->isEnabled() ? u'1' : u'0';
  }
  states += u' ';
  for (const QAction *button :
       window.findChild<QToolBar *>(QStringLiteral("tbrGeneral"))->actions()) {
    if (!button->isSeparator()) states += button->isEnabled() ? u'1' : u'0';
  }
  states += u' ';
  for (const char *item : {"mnuNew", "mnuOpen", "mnuSave", "mnuSaveAs"}) {
    states += window.findChild<QAction *>(QString::fromLatin1(item))->isEnabled() ? u'1' : u'0';
  }
  return states;
}

TEST_F(ToolbarsTest, WhatNeedsAPageIsAvailableWhileThereIsOne) {
  const QString without = QStringLiteral("1000 11111000000000011 1111");
  const QString with = QStringLiteral("1111 11111111111111111 1111");
  EXPECT_EQ(Availability(window), without);
  frmMain &first = NewPage();
  EXPECT_EQ(Availability(window), with);
  frmMain &second = NewPage();
  second.close();
  EXPECT_EQ(Availability(window), with);
  first.close();
  EXPECT_EQ(Availability(window), without);
}

TEST_F(ToolbarsTest, AnEditButtonShowsWhatThePageSaysNotTheClick) {
  NewPage();
  QToolButton *bold = Button("tbrEdit_bold");
  Parts().formats.ShowButton(EditingCommand::Bold, ButtonState::On);
  bold->click();
  EXPECT_FALSE(bold->isChecked());
  Parts().formats.ShowButton(EditingCommand::Bold, ButtonState::Pressed);
  EXPECT_TRUE(bold->isChecked());
  bold->click();
  EXPECT_TRUE(bold->isChecked());
  Parts().formats.ShowButton(EditingCommand::Bold, ButtonState::Unsupported);
  EXPECT_FALSE(bold->isEnabled());
  EXPECT_TRUE(bold->isChecked());
}

TEST_F(ToolbarsTest, ACommandWithoutAButtonChangesNoButton) {
  const QStringList before = States(*Find<QToolBar>("tbrEdit"));
  Parts().formats.ShowButton(EditingCommand::Undo, ButtonState::Pressed);
  EXPECT_EQ(States(*Find<QToolBar>("tbrEdit")), before);
}

TEST_F(ToolbarsTest, TheSourceEditingItemStandsInNoMenu) {
  QAction *item = Item("mnuEditHTML");
  Parts().commands.SetSourceEditingEnabled(false);
  EXPECT_FALSE(item->isEnabled());
  Parts().commands.SetSourceEditingEnabled(true);
  EXPECT_TRUE(item->isEnabled());
  for (const QMenu *menu : window.findChildren<QMenu *>()) {
    EXPECT_FALSE(menu->actions().contains(item));
  }
}

TEST_F(ToolbarsTest, TheStatusBarShowsTheStatusTextAgainAfterANotice) {
  auto *bar = Find<QStatusBar>("Sta");
  auto *text = Find<QLabel>("Sta_1");
  Parts().status.ShowTag(QStringLiteral("<TD>"));
  EXPECT_EQ(text->text(), QStringLiteral("<TD>"));
  EXPECT_EQ(text->textFormat(), Qt::PlainText);
  Parts().status.Report(QStringLiteral("disk full"));
  EXPECT_EQ(bar->currentMessage(), QStringLiteral("disk full"));
  EXPECT_FALSE(text->isVisible());
  bar->clearMessage();
  EXPECT_TRUE(text->isVisible());
}

TEST_F(ToolbarsTest, TheStatusBarTellsThePathOfThePageThatIsPointedAt) {
  auto *text = Find<QLabel>("Sta_1");
  Parts().status.ShowTag(QStringLiteral("TD"));
  Q_EMIT Tabs().Pointed(QStringLiteral("/site/a.htm"));
  EXPECT_EQ(text->text(), QStringLiteral("/site/a.htm"));
  Parts().status.ShowTag(QStringLiteral("LI"));
  EXPECT_EQ(text->text(), QStringLiteral("/site/a.htm"));
  const int width = window.minimumSizeHint().width();
  Q_EMIT Tabs().Pointed(QString(4000, u'x'));
  EXPECT_EQ(window.minimumSizeHint().width(), width) << "a long path leaves the window its size";
  Q_EMIT Tabs().Pointed({});
  EXPECT_EQ(text->text(), QStringLiteral("LI"));
}

}  // namespace
}  // namespace velor
