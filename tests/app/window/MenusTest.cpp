// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/frmMain.h"
#include "tests/app/window/WindowFixture.h"
#include "tests/support/FakeSourceControl.h"

#include <QMenuBar>

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

TEST_F(MenusTest, ToolsHoldsWhatThePublishedMenusHaveNoPlaceFor) {
  Q_EMIT Find<QMenu>("mnuTableMore")->aboutToShow();
  EXPECT_EQ(Tree(Find<QMenu>("mnuTools")->actions()).toStdString(),
            R"tree(mnuFindCommand "Find Command... (&F)" Ctrl+Shift+P
mnuRecent "Recent Files (&R)"
mnuTemplates "Templates (&T)"
  mnuNewFromTemplate "New from Template... (&T)"
  mnuSaveAsTemplate "Save as Template... (&M)"
mnuPrint "Print... (&I)" Ctrl+P
mnuExportPdf "Export as PDF... (&O)"
mnu6 "-"
mnuZoom "Zoom (&Z)"
  mnuZoomIn "Zoom &In" Ctrl++
  mnuZoomOut "Zoom &Out" Ctrl+-
  mnuZoomReset "Own &Size" Ctrl+0
mnuWidths "Page Widths (&X)" Ctrl+Shift+M
mnu10 "-"
mnuFind "Find... (&N)" Ctrl+F
mnuReplace "Replace... (&P)" Ctrl+H
mnuFindNext "Find Next (&G)" F3
mnuFindPrevious "Find Previous (&U)" Shift+F3
mnu8 "-"
mnuSpelling "Spelling... (&Y)" F7
mnuWordAtCaret "Correct Word (&J)" Ctrl+.
mnuSite "Site (&H)"
  mnuSiteProjects "Project Manager"
  mnuSpellingOfPages "Spelling of All Pages... (&H)"
  mnuTakePicturesOut "Take Embedded Pictures Out into Files (&E)"
  mnuCropPicture "Crop and Turn Picture... (&C)"
  mnuDrives "Drives... (&D)"
mnu9 "-"
mnuLink "Link... (&L)" Ctrl+K
mnuFollowLink "Follow Link (&K)"
mnuInsertMore "Insert More (&V)"
  mnuBookmark "Insert Target... (&T)"
  mnuVideo "Insert Video... (&V)"
  mnuCharacter "Insert Character... (&C)"
mnuPasteAs "Paste As (&B)"
  mnuPasteText "Paste as Text (&X)" Ctrl+Shift+V
  mnuPasteTable "Paste as Table (&B)"
  mnuPasteMarkdown "Paste as Markdown (&M)"
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
mnuShortcuts "Shortcuts... (&D)"
mnuSettings "Settings... (&S)"
)tree");
}

TEST_F(MenusTest, TheRecordMenuIsAPopupOfItsOwn) {
  EXPECT_EQ(Tree(Find<QMenu>("mnuCustom")->actions()).toStdString(), "cusDel \"Delete Record\"\n");
  EXPECT_FALSE(Find<QMenu>("mnuCustom")->isVisible());
  EXPECT_FALSE(Find<QMenu>("mnuExt")->isVisible());
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

TEST_F(MenusTest, ItemsHaveThePicturesOfTheirVerbs) {
  EXPECT_FALSE(Item("mnuNew")->icon().isNull());
  EXPECT_FALSE(Item("mnuTBLnew")->icon().isNull());
  EXPECT_FALSE(Item("extCut")->icon().isNull());
  EXPECT_TRUE(Item("mnuExit")->icon().isNull());
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
