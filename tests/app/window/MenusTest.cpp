// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/settings/modSettingManager.h"
#include "app/window/PageTabs.h"
#include "chrome/ColorPicker.h"
#include "editor/frmMain.h"
#include "properties/frmProperties.h"
#include "tests/app/window/WindowFixture.h"
#include "tests/support/FakeSourceControl.h"
#include "tests/support/KeyboardWalk.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenuBar>
#include <QPushButton>
#include <QTest>

namespace velor {
namespace {

/// A menu as text: one line an item, indented by depth: name "caption" shortcut.
void Dump(const QList<QAction *> &items, int depth, QString &out) {
  for (const QAction *item : items) {
    out +=
        QString(2 * depth, u' ') + item->objectName() + QStringLiteral(" \"") + item->text() + u'"';
    if (item->property("index").isValid()) {
      out += u'[' + item->property("index").toString() + u']';
    }
    if (!item->shortcut().isEmpty()) {
      out += u' ' + item->shortcut().toString(QKeySequence::PortableText);
    }
    if (!item->isEnabled()) out += QStringLiteral(" disabled");
    out += u'\n';
    if (item->menu()) Dump(item->menu()->actions(), depth + 1, out);
  }
}

QString Tree(const QList<QAction *> &items) {
  QString out;
  Dump(items, 0, out);
  return out;
}

using MenusTest = WindowFixture;

/// What is published is there in both settings.
class PublishedMenus : public WindowFixture, public ::testing::WithParamInterface<Additions> {
 protected:
  PublishedMenus() : WindowFixture(GetParam()) {}
};
INSTANTIATE_TEST_SUITE_P(Both, PublishedMenus, ::testing::Values(Additions::On, Additions::Off),
                         [](const auto &setting) {
                           return setting.param == Additions::On ? "WithAdditions" : "Alone";
                         });

TEST_P(PublishedMenus, TheMenuBarHoldsExactlyThisTreeAndToolsBetweenWindowAndHelp) {
  QList<QAction *> menus = window.menuBar()->actions();
  auto *tools = window.findChild<QAction *>(QStringLiteral("mnuTools"));
  EXPECT_EQ(tools != nullptr, GetParam() == Additions::On);
  if (tools != nullptr) {
    const qsizetype place = menus.indexOf(tools);
    ASSERT_GT(place, 0);
    EXPECT_EQ(tools->text(), QStringLiteral("Tools (&T)"));
    EXPECT_EQ(menus.at(place - 1)->objectName(), QStringLiteral("mnuWindow"));
    EXPECT_EQ(menus.at(place + 1)->objectName(), QStringLiteral("mnuHelp_Top"));
    menus.removeAt(place);
  }
  EXPECT_EQ(Tree(menus).toStdString(),
            R"tree(mnuFile_Top "File (&F)"
  mnuNew "New Document(&N)" Ctrl+N
  mnuOpen "Open... (&O)" Ctrl+O
  mnuSave "Save (&S)" Ctrl+S
  mnuSaveAs "Save As... (&A)" F12
  mnu1 "-"
  mnuExit "Exit (&X)"
mnuEdit_Top "Edit (&E)" disabled
  mnuUndo "Undo (&U)"
  mnuRedo "Redo (&R)"
  mnu3 "-"
  mnuCut "&Cut"
  mnuCopy "&Copy"
  mnuPaste "&Paste"
  mnuDelete "&Delete"
  mnuSelectAll "&Select All"
mnuView_Top "View (&V)"
  mnuView_menustyle "Menu Style (&M)"
    mnuView_MenuOption "Menu Option... (&O)"
      mnuView_CusMenu "Customize... (&C)"
    mnu5 "-"
    mnuView_style "Sky Blue"[1]
    mnuView_style "Clear XP Style"[2]
  mnuView_ProjectMan "Project Manager"
  mnuDetail "Show Detail (&D)"
mnuInsert "Insert (&I)" disabled
  mnuISTimage "Image"
  mnuISTlink "Hyperlink"
mnuTable "Table (&A)" disabled
  mnuTBLnew "Insert Table"
mnuWindow "Window (&W)"
  mnuWindowCascade "Cascade (&C)"
  mnuWindowTileHorizontal "Horizontal (&H)"
  mnuWindowTileVertical "Vertical (&V)"
mnuHelp_Top "Help (&H)"
  mnuAbout "About"
  mnuhelp "Help"
)tree");
}

TEST_P(PublishedMenus, TheContextMenuHoldsExactlyThisTree) {
  EXPECT_EQ(Tree(Find<QMenu>("mnuExt")->actions()).toStdString(),
            R"tree(extCut "Cut"
extCopy "Copy"
extPaste "Paste"
extDelete "Delete"
extAll "Select All"
ext1 "-"
extProperties "Properties..."
  extPagePro "Page Properties"
  extImagePro "Image Properties"
  extTablePro "Table Properties"
  extTDPro "Table Cell Properties"
  extAPro "Hyperlink Properties"
  extFontsPro "Fonts Properties"
ext2 "-"
extAbs "Absolute Position"
extDetail "Show Detail"
extSnap "Snap to Grid"
extInHTML "Insert Custom HTML"
extTableGeneral "Table..."
  extInCol "Insert Colume"
  extInRow "Insert Row"
  extMerge "Merge Cells"
  extSplit "Split Cell"
extAbsGeneral "Absolute object..."
  extFront "Bring to Front"
  extForeward "Bring Foreward"
  extAboveText "Bring above text"
  extBack "Send to Back"
  extBackward "Send Backward"
  extBelowText "Send below text"
extGetTag "Get Element TagName"
)tree");
}

TEST_F(MenusTest, TheRecordMenuIsAPopupOfItsOwn) {
  EXPECT_EQ(Tree(Find<QMenu>("mnuCustom")->actions()).toStdString(), "cusDel \"Delete Record\"\n");
  EXPECT_FALSE(Find<QMenu>("mnuCustom")->isVisible());
  EXPECT_FALSE(Find<QMenu>("mnuExt")->isVisible());
}

TEST_F(MenusTest, TheContextMenuPopsUpWhereItIsAskedFor) {
  Parts().requests.PopUpContextMenu(QPoint(60, 70));
  auto *menu = Find<QMenu>("mnuExt");
  EXPECT_TRUE(menu->isVisible());
  EXPECT_EQ(menu->pos(), QPoint(60, 70));
  menu->close();
}

class WithoutAdditions : public WindowFixture {
 protected:
  WithoutAdditions() : WindowFixture(Additions::Off) {}
};

TEST_F(WithoutAdditions, ItemsWithoutAPublishedActionDoNothing) {
  NewPage();
  const QPixmap before = window.grab();
  log.clear();
  for (const char *item :
       {"mnuWindowCascade", "mnuWindowTileHorizontal", "mnuWindowTileVertical", "mnuDetail",
        "mnuView_CusMenu", "cusDel", "extCut", "extDelete", "extPagePro", "extAbs", "extDetail",
        "extSnap", "extInCol", "extFront", "extGetTag"}) {
    ASSERT_TRUE(Item(item)->isEnabled()) << item;
    Choose(item);
  }
  EXPECT_TRUE(log.empty());
  EXPECT_EQ(before.toImage(), window.grab().toImage());
}

TEST_F(MenusTest, TheContextMenuActsOnThePageInFrontAsTheEditMenuDoes) {
  NewPage();
  Parts().requests.PopUpContextMenu(QPoint(60, 70));
  log.clear();
  for (const char *item :
       {"extCut", "extCopy", "extPaste", "extDelete", "extAll", "extInRow", "extInCol", "extMerge",
        "extSplit", "extAbs", "extFront", "extBelowText"})
    Choose(item);
  EXPECT_EQ(Commands().join(u' ').toStdString(),
            "ExecCommand(5003) ExecCommand(5002) ExecCommand(5032) ExecCommand(5004) "
            "ExecCommand(5035) ExecCommand(6001) ExecCommand(6003) ExecCommand(6008) "
            "ExecCommand(6009) ExecCommand(6020) ExecCommand(6021) ExecCommand(6026)");
  Find<QMenu>("mnuExt")->close();
}

TEST_F(MenusTest, TheContextMenusItemsAreEnabledByWhatIsSelected) {
  FakeEditingComponent &component = Component(NewPage());
  const auto isEnabled = [&](const char *name) {
    Parts().requests.PopUpContextMenu(QPoint(60, 70));
    Find<QMenu>("mnuExt")->close();
    return Item(name)->isEnabled();
  };
  for (const auto &[item, command] : {std::pair{"extCut", EditingCommand::Cut},
                                      {"extInRow", EditingCommand::InsertRowBelow},
                                      {"extMerge", EditingCommand::MergeCells},
                                      {"extAbs", EditingCommand::AbsolutePosition},
                                      {"mnuMoveRowUp", EditingCommand::MoveRowUp}}) {
    EXPECT_TRUE(isEnabled(item)) << item;
    component.statuses[command] = CommandStatus::Disabled;
    EXPECT_FALSE(isEnabled(item)) << item;
  }
}

TEST_F(MenusTest, MarkupAndTheCaretsElementAreOffWhereThereIsNoPlaceForThem) {
  frmMain &page = NewPage();
  const auto isEnabled = [&](const char *name) {
    Parts().requests.PopUpContextMenu(QPoint(60, 70));
    Find<QMenu>("mnuExt")->close();
    return Item(name)->isEnabled();
  };
  EXPECT_TRUE(isEnabled("extInHTML"));
  EXPECT_FALSE(isEnabled("extGetTag")) << "no element is at the caret";
  Component(page).elementPath = {"body"};
  EXPECT_TRUE(isEnabled("extGetTag"));
  page.ChangeMode(2);
  EXPECT_FALSE(isEnabled("extInHTML"));
  EXPECT_FALSE(isEnabled("extGetTag"));
}

TEST_F(MenusTest, DetailsGridAndPositionAreMarkedWhereTheyAreOn) {
  frmMain &page = NewPage();
  const auto isMarked = [&](const char *name) {
    Parts().requests.PopUpContextMenu(QPoint(60, 70));
    Find<QMenu>("mnuExt")->close();
    return Item(name)->isChecked();
  };
  EXPECT_FALSE(isMarked("extDetail"));
  Choose("extDetail");
  EXPECT_TRUE(isMarked("extDetail"));
  EXPECT_TRUE(isMarked("mnuDetail"));
  EXPECT_TRUE(page.DHTML1().ShowDetails());
  Choose("mnuDetail");
  EXPECT_FALSE(isMarked("extDetail"));
  EXPECT_FALSE(page.DHTML1().ShowDetails());
  EXPECT_TRUE(isMarked("extSnap"));
  Choose("extSnap");
  EXPECT_FALSE(isMarked("extSnap"));
  EXPECT_FALSE(page.DHTML1().SnapToGrid());
  EXPECT_FALSE(isMarked("extAbs"));
  Component(page).statuses[EditingCommand::AbsolutePosition] = CommandStatus::Latched;
  EXPECT_TRUE(isMarked("extAbs"));
}

TEST_F(MenusTest, TheOpenWindowsAreArrangedWithoutOneOverTheOther) {
  frmMain &first = NewPage();
  frmMain &second = NewPage();
  const auto place = [](frmMain &page) { return page.parentWidget()->geometry(); };
  Choose("mnuWindowTileVertical");
  EXPECT_FALSE(place(first).intersects(place(second)));
  EXPECT_EQ(place(first).top(), place(second).top());
  EXPECT_EQ(place(first).height(), place(second).height());
  Choose("mnuWindowTileHorizontal");
  EXPECT_FALSE(place(first).intersects(place(second)));
  EXPECT_EQ(place(first).left(), place(second).left());
  EXPECT_EQ(place(first).width(), place(second).width());
  Choose("mnuWindowCascade");
  EXPECT_NE(place(first).topLeft(), place(second).topLeft());
  EXPECT_EQ(Parts().windows.Current(), &second);
}

class PropertyDialogs : public WindowFixture {
 protected:
  static QWidget &Control(QWidget &dialog, const char *name) {
    auto *found = dialog.findChild<QWidget *>(QStringLiteral("prp_") + QLatin1String(name));
    EXPECT_NE(found, nullptr) << name;
    return *found;
  }
  static void Press(QWidget &dialog, const char *button) {
    dialog.findChild<QPushButton *>(QLatin1String(button))->click();
  }
  QStringList Written() const {
    QStringList calls;
    for (const QString &call : log)
      if (call.startsWith(QStringLiteral("SetProperties"))) calls << call;
    return calls;
  }
};

TEST_F(PropertyDialogs, WriteWhatThePersonChangedAndNothingElse) {
  FakeEditingComponent &component = Component(NewPage());
  component.properties[PropertySubject::Cell] = {
      {"rows", "2"}, {"heading", ""}, {"width", "40"}, {"align", "justify"}, {"class", "a"}};
  dialogs.ExpectModal([](QWidget &dialog) {
    EXPECT_EQ(dialog.windowTitle(), QStringLiteral("Table Cell Properties"));
    EXPECT_EQ(static_cast<QLabel &>(Control(dialog, "rows")).text(), QStringLiteral("2"));
    EXPECT_EQ(static_cast<QComboBox &>(Control(dialog, "align")).currentText(),
              QStringLiteral("justify"));
    // The page has no value by that name.
    EXPECT_EQ(dialog.findChild<QWidget *>(QStringLiteral("prp_height")), nullptr);
    static_cast<QLineEdit &>(Control(dialog, "width")).setText(QStringLiteral("50%"));
    static_cast<QCheckBox &>(Control(dialog, "heading")).setChecked(true);
    Press(dialog, "cmdApply");
    static_cast<QLineEdit &>(Control(dialog, "class")).clear();
    Press(dialog, "cmdOK");
    EXPECT_FALSE(dialog.isVisible());
  });
  Choose("extTDPro");
  EXPECT_EQ(Written(), QStringList({QStringLiteral("SetProperties(3, heading=true width=50%)"),
                                    QStringLiteral("SetProperties(3, class=)")}));
}

TEST_F(PropertyDialogs, RefuseWhatIsNoLengthOrColour) {
  FakeEditingComponent &component = Component(NewPage());
  component.properties[PropertySubject::Table] = {{"width", ""}, {"background", ""}};
  dialogs.ExpectModal([](QWidget &dialog) {
    auto &line = *dialog.findChild<QLabel *>(QStringLiteral("lblRefusal"));
    for (const auto &[name, bad, good] :
         {std::tuple{"width", "wide", "120"}, {"background", "#12", "#112233"}}) {
      auto &box = static_cast<QLineEdit &>(Control(dialog, name));
      box.setText(QLatin1String(bad));
      Press(dialog, "cmdOK");
      EXPECT_FALSE(line.isHidden()) << name;
      EXPECT_TRUE(line.text().contains(QLatin1String(bad))) << name;
      box.setText(QLatin1String(good));
    }
    Press(dialog, "cmdOK");
  });
  Choose("extTablePro");
  EXPECT_EQ(Written(),
            QStringList(QStringLiteral("SetProperties(2, background=#112233 width=120)")));
}

TEST_F(PropertyDialogs, AColourIsChosenFromThePaletteBesideItsBox) {
  FakeEditingComponent &component = Component(NewPage());
  component.properties[PropertySubject::Table] = {{"width", ""}, {"background", "#112233"}};
  dialogs.ExpectModal([](QWidget &dialog) {
    auto *picker = dialog.findChild<ColorPicker *>(QStringLiteral("prp_background_picker"));
    ASSERT_NE(picker, nullptr);
    EXPECT_EQ(picker->Color(), 0x332211);
    EXPECT_EQ(picker->accessibleName(), QStringLiteral("Choose: Background"));
    auto &box = static_cast<QLineEdit &>(Control(dialog, "background"));
    box.setText(QStringLiteral("red"));
    EXPECT_EQ(picker->Color(), 0x0000FF);
    Q_EMIT picker->ColorChosen(0x00C08040);
    EXPECT_EQ(box.text(), QStringLiteral("#4080C0"));
    Press(dialog, "cmdOK");
  });
  Choose("extTablePro");
  EXPECT_EQ(Written(), QStringList(QStringLiteral("SetProperties(2, background=#4080C0)")));
}

TEST_F(PropertyDialogs, NoTwoFieldsOfOneShareAnAltKey) {
  using enum PropertySubject;
  for (const PropertySubject subject : {Page, Image, Table, Cell, Link, Fonts, Element}) {
    const PropertySheet &sheet = SheetOf(subject);
    PropertyValues empty;
    for (const PropertyField &field : sheet.fields) empty[QLatin1String(field.name)] = QString();
    const frmProperties dialog(sheet, empty, nullptr);
    EXPECT_EQ(SharedAltKeys(dialog).toStdString(), "") << sheet.title;
  }
}

TEST_F(PropertyDialogs, CancelledOrUnchangedWriteNothing) {
  FakeEditingComponent &component = Component(NewPage());
  component.properties[PropertySubject::Page] = {{"title", "old"}};
  for (const char *button : {"cmdOK", "cmdCancel"}) {
    dialogs.ExpectModal([button](QWidget &dialog) {
      if (QLatin1String(button) == QLatin1String("cmdCancel"))
        static_cast<QLineEdit &>(Control(dialog, "title")).setText(QStringLiteral("new"));
      Press(dialog, button);
    });
    Choose("extPagePro");
  }
  EXPECT_TRUE(Written().isEmpty());
}

TEST_F(MenusTest, ItemsHaveThePicturesOfTheirVerbs) {
  EXPECT_FALSE(Item("mnuNew")->icon().isNull());
  EXPECT_FALSE(Item("mnuTBLnew")->icon().isNull());
  EXPECT_FALSE(Item("extCut")->icon().isNull());
  EXPECT_TRUE(Item("mnuExit")->icon().isNull());
}

QStringList ListedWindows(QMenu &menu) {
  Q_EMIT menu.aboutToShow();
  QStringList listed;
  for (const QAction *entry : menu.actions().mid(3)) {
    const QString mark = entry->isChecked() ? QStringLiteral("*") : QString();
    listed.append(entry->isSeparator() ? QStringLiteral("-") : entry->text() + mark);
  }
  return listed;
}

TEST_F(MenusTest, TheWindowMenuListsTheOpenDocuments) {
  QMenu &menu = *Find<QMenu>("mnuWindow");
  EXPECT_EQ(ListedWindows(menu), QStringList());
  NewPage();
  NewPage();
  EXPECT_EQ(ListedWindows(menu), QStringList({QStringLiteral("-"), QStringLiteral("&1 Untitled 1"),
                                              QStringLiteral("&2 Untitled 2*")}));
}

TEST_F(MenusTest, AListedDocumentComesToTheFront) {
  frmMain &first = NewPage();
  NewPage();
  QMenu &menu = *Find<QMenu>("mnuWindow");
  ListedWindows(menu);
  menu.actions().at(4)->trigger();
  EXPECT_EQ(ListedWindows(menu).at(1), QStringLiteral("&1 Untitled 1*"));
  EXPECT_EQ(Parts().windows.Current(), &first);
}

TEST_F(MenusTest, TheRecentFilesAreListedLatestFirstAndOpen) {
  QMenu &recent = *Find<QMenu>("mnuRecent");
  const auto listed = [&recent] {
    Q_EMIT recent.aboutToShow();
    QStringList captions;
    for (const QAction *entry : recent.actions()) captions.append(entry->text());
    return captions;
  };
  EXPECT_EQ(listed(), QStringList(QStringLiteral("No file was opened yet")));
  EXPECT_FALSE(recent.actions().at(0)->isEnabled());
  for (const char *name : {"a.htm", "b.htm", "a.htm"}) {
    const QString path = QStringLiteral("\\site\\") + QString::fromLatin1(name);
    WriteFile(path);
    modSettingManager::AddToHistory(registry, path);
  }
  EXPECT_EQ(listed(),
            QStringList({QStringLiteral("&1 /site/a.htm"), QStringLiteral("&2 /site/b.htm")}));
  recent.actions().at(1)->trigger();
  ASSERT_EQ(Tabs().count(), 1);
  EXPECT_EQ(Tabs().tabText(0), QStringLiteral("b.htm"));
  EXPECT_EQ(Tabs().tabToolTip(0), QStringLiteral("/site/b.htm"));
}

TEST_F(MenusTest, TheDesktopsActionFindsARecentFileByWordsOfItsPath) {
  for (const char *name : {"a&b.htm", "c d.htm"}) {
    const QString path = QStringLiteral("\\site\\") + QString::fromLatin1(name);
    WriteFile(path);
    modSettingManager::AddToHistory(registry, path);
  }
  dialogs.ExpectModal([](QWidget &palette) {
    EXPECT_EQ(palette.windowTitle(), QStringLiteral("Recent Files"));
    auto &list = *palette.findChild<QListWidget *>(QStringLiteral("lstCommands"));
    ASSERT_EQ(list.count(), 2);
    EXPECT_EQ(list.item(0)->text(), QStringLiteral("/site/c d.htm"));
    EXPECT_EQ(list.item(1)->text(), QStringLiteral("/site/a&b.htm"));
    auto *words = palette.findChild<QLineEdit *>(QStringLiteral("txtWords"));
    QTest::keyClicks(words, QStringLiteral("a&"));
    QTest::keyClick(words, Qt::Key_Return);
  });
  window.ShowRecentFiles();
  ASSERT_EQ(Tabs().count(), 1);
  EXPECT_EQ(Tabs().tabToolTip(0), QStringLiteral("/site/a&b.htm"));
}

TEST_F(MenusTest, FifteenRecentFilesAreListedTheFirstNineWithADigit) {
  for (int number = 1; number <= 20; ++number)
    modSettingManager::AddToHistory(registry, QStringLiteral("\\site\\%1.htm").arg(number));
  QMenu &recent = *Find<QMenu>("mnuRecent");
  Q_EMIT recent.aboutToShow();
  ASSERT_EQ(recent.actions().size(), 15);
  EXPECT_EQ(recent.actions().at(8)->text(), QStringLiteral("&9 /site/12.htm"));
  EXPECT_EQ(recent.actions().at(9)->text(), QStringLiteral("10 /site/11.htm"));
}

TEST_F(MenusTest, ToolsHoldsWhatThePublishedMenusHaveNoPlaceFor) {
  Q_EMIT Find<QMenu>("mnuTableMore")->aboutToShow();
  EXPECT_EQ(Tree(Find<QMenu>("mnuTools")->actions()).toStdString(),
            R"tree(mnuFindCommand "Find Command... (&F)" Ctrl+Shift+P
mnuRecent "Recent Files (&R)"
mnuNewFromTemplate "New from Template..."
mnuSaveAsTemplate "Save as Template..."
mnuPrint "Print... (&I)" Ctrl+P
mnuExportPdf "Export as PDF... (&O)"
mnu6 "-"
mnuZoom "Zoom (&Z)"
  mnuZoomIn "Zoom &In" Ctrl++
  mnuZoomOut "Zoom &Out" Ctrl+-
  mnuZoomReset "Own &Size" Ctrl+0
mnu10 "-"
mnuFind "Find... (&N)" Ctrl+F
mnuReplace "Replace... (&P)" Ctrl+H
mnuFindNext "Find Next (&G)" F3
mnuFindPrevious "Find Previous (&U)" Shift+F3
mnu8 "-"
mnuSpelling "Spelling... (&Y)" F7
mnuWordAtCaret "Correct Word (&J)" Ctrl+.
mnuSpellingOfPages "Spelling of All Pages... (&H)"
mnu9 "-"
mnuLink "Link... (&L)" Ctrl+K
mnuFollowLink "Follow Link (&K)"
mnuBookmark "Insert Target... (&T)"
mnuVideo "Insert Video... (&V)"
mnuCharacter "Insert Character..."
mnuPasteText "Paste as Text (&X)" Ctrl+Shift+V
mnuPasteTable "Paste as Table (&B)"
mnuPasteMarkdown "Paste as Markdown (&M)"
mnuTakePicturesOut "Take Embedded Pictures Out into Files (&E)"
mnuTableMore "Table (&A)"
  mnuRowAbove "Insert Row &Above" disabled
  mnuRowBelow "Insert Row &Below" disabled
  mnuColumnLeft "Insert Column &Left" disabled
  mnuColumnRight "Insert Column &Right" disabled
  mnu20 "-"
  mnuDeleteRow "&Delete Row" disabled
  mnuDeleteColumn "Delete &Column" disabled
  mnuDeleteTable "Delete &Table" disabled
  mnu21 "-"
  mnuMergeCells "&Merge Cells" disabled
  mnuSplitCell "&Split Cell" disabled
  mnu22 "-"
  mnuSelectCell "Select C&ell" disabled
  mnuSelectRow "Select R&ow" disabled
  mnuSelectColumn "Select Col&umn" disabled
  mnuSelectTable "Select Table" disabled
  mnu23 "-"
  mnuMoveRowUp "Move Row Up" disabled
  mnuMoveRowDown "Move Row Do&wn" disabled
  mnuMoveColumnLeft "Move Column Left" disabled
  mnuMoveColumnRight "Move Column Right" disabled
  mnuDistribute "Equal Column W&idths" disabled
mnu7 "-"
mnuWrapSource "Wrap Source Lines (&W)"
mnuDrives "Drives... (&D)"
mnuSettings "Settings... (&S)"
)tree");
}

TEST_F(MenusTest, SourceLinesWrapAsChosenInToolsAtOnceAndInLaterPages) {
  frmMain &page = NewPage();
  page.ChangeMode(2);
  QMenu &tools = *Find<QMenu>("mnuTools");
  const auto isMarked = [&] {
    Q_EMIT tools.aboutToShow();
    return Item("mnuWrapSource")->isChecked();
  };
  const auto wrapOf = [](frmMain &shown) {
    return static_cast<FakeSourceControl &>(shown.Code1()).wrap;
  };
  EXPECT_TRUE(isMarked());
  EXPECT_EQ(wrapOf(page), LineWrap::On);
  Choose("mnuWrapSource");
  EXPECT_FALSE(isMarked());
  EXPECT_EQ(wrapOf(page), LineWrap::Off);
  frmMain &later = NewPage();
  later.ChangeMode(2);
  EXPECT_EQ(wrapOf(later), LineWrap::Off);
  Choose("mnuWrapSource");
  EXPECT_TRUE(isMarked());
  EXPECT_EQ(wrapOf(page), LineWrap::On);
}

TEST_F(MenusTest, ACommandIsFoundByWordsAndRunOnWhatIsInFront) {
  const auto type = [](QWidget &palette, const QString &words) {
    auto *line = palette.findChild<QLineEdit *>(QStringLiteral("txtWords"));
    line->setText(words);
    QTest::keyClick(line, Qt::Key_Return);
  };
  dialogs.ExpectModal([](QWidget &palette) {
    const auto *list = palette.findChild<QListWidget *>(QStringLiteral("lstCommands"));
    EXPECT_EQ(list->item(0)->text(), QStringLiteral("New Document (Ctrl+N)"));
    EXPECT_TRUE(list->findItems(QStringLiteral("Bold"), Qt::MatchExactly).isEmpty());
    palette.close();
  });
  Choose("mnuFindCommand");
  NewPage();
  log.clear();
  dialogs.ExpectModal([&](QWidget &palette) { type(palette, QStringLiteral("all SEL")); });
  Choose("mnuFindCommand");
  EXPECT_EQ(Commands(), QStringList(QStringLiteral("ExecCommand(5035)")));
  log.clear();
  dialogs.ExpectModal([&](QWidget &palette) { type(palette, QStringLiteral("no such thing")); });
  Choose("mnuFindCommand");
  EXPECT_TRUE(Commands().isEmpty());
}

TEST_F(MenusTest, ACommandIsFoundByOtherWordsForItBehindThoseNamedSo) {
  NewPage();
  const auto found = [this](const char *words) {
    QStringList entries;
    dialogs.ExpectModal([&](QWidget &palette) {
      palette.findChild<QLineEdit *>(QStringLiteral("txtWords"))
          ->setText(QString::fromLatin1(words));
      const auto *list = palette.findChild<QListWidget *>(QStringLiteral("lstCommands"));
      for (int row = 0; row < list->count(); ++row) entries.append(list->item(row)->text());
      palette.close();
    });
    Choose("mnuFindCommand");
    return entries;
  };
  EXPECT_EQ(found("pict"), QStringList({QStringLiteral("Take Embedded Pictures Out into Files"),
                                        QStringLiteral("Image")}));
  const QStringList pages = found("page");
  EXPECT_TRUE(pages.contains(QStringLiteral("New Document (Ctrl+N)")))
      << pages.join(u'|').toStdString();
  EXPECT_EQ(found("tab").constFirst(), QStringLiteral("Insert Table"));
}

TEST_F(MenusTest, ToolsShowsTheDrives) {
  dialogs.ExpectModal([](QWidget &shown) {
    EXPECT_EQ(shown.objectName(), QStringLiteral("FrmDrives"));
    shown.close();
  });
  Choose("mnuDrives");
}

TEST_F(MenusTest, TheChosenMenuStyleIsMarked) {
  const auto marked = [this] {
    QStringList styles;
    for (const QAction *item : window.findChildren<QAction *>(QStringLiteral("mnuView_style")))
      if (item->isChecked()) styles.append(item->text());
    return styles;
  };
  EXPECT_EQ(marked(), QStringList(QStringLiteral("Clear XP Style")));
  Choose("mnuView_style");
  EXPECT_EQ(marked(), QStringList(QStringLiteral("Sky Blue")));
}

}  // namespace
}  // namespace velor
