// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/window/MenuTable.h"

#include "platform/EditingCommands.h"
#include "platform/HtmlDocument.h"
#include "platform/Words.h"

namespace velor {
namespace {

constexpr Command Editing(EditingCommand command) {
  return {CommandId::Editing, command};
}

constexpr Command Arranging(Arrangement arrangement) {
  return {CommandId::Arrange, static_cast<int>(arrangement)};
}

constexpr Command PropertiesOf(PropertySubject subject) {
  return {CommandId::Properties, static_cast<int>(subject)};
}

constexpr MenuRow Menu(const char *name, const char *caption, const char *parent = nullptr) {
  return {.name = name, .caption = caption, .kind = MenuKind::Menu, .parent = parent};
}

constexpr MenuRow Separator(const char *name, const char *parent) {
  return {.name = name, .caption = "-", .kind = MenuKind::Separator, .parent = parent};
}

constexpr MenuRow Item(const char *name, const char *caption, const char *parent,
                       Command command = {}, const char *picture = nullptr,
                       const char *shortcut = nullptr) {
  return {.name = name,
          .caption = caption,
          .parent = parent,
          .shortcut = shortcut,
          .command = command,
          .picture = picture};
}

constexpr MenuRow StyleItem(int index, const char *caption) {
  return {.name = "mnuView_style",
          .caption = caption,
          .parent = "mnuView_menustyle",
          .command = {CommandId::MenuStyle, index},
          .index = index};
}

constexpr MenuRow Beyond(MenuRow row) {
  row.reach = Reach::Beyond;
  return row;
}

constexpr MenuRow Found(const char *words, MenuRow row) {
  row.words = words;
  return row;
}

constexpr MenuRow Popup(const char *name) {
  return {.name = name, .caption = "", .kind = MenuKind::Popup};
}

// clang-format off
constexpr MenuRow Rows[] = {
    Menu("mnuFile_Top", Words::Mark("File (&F)")),
    Found(Words::Mark("page create"), Item("mnuNew", Words::Mark("New Document(&N)"), "mnuFile_Top", {CommandId::NewPage}, "new", "Ctrl+N")),
    Found(Words::Mark("file load"), Item("mnuOpen", Words::Mark("Open... (&O)"), "mnuFile_Top", {CommandId::OpenPage}, "open", "Ctrl+O")),
    Found(Words::Mark("write keep"), Item("mnuSave", Words::Mark("Save (&S)"), "mnuFile_Top", {CommandId::SavePage}, "save", "Ctrl+S")),
    Found(Words::Mark("copy rename"), Item("mnuSaveAs", Words::Mark("Save As... (&A)"), "mnuFile_Top", {CommandId::SavePageAs}, "saveas", "F12")),
    Separator("mnu1", "mnuFile_Top"),
    Found(Words::Mark("quit close end"), Item("mnuExit", Words::Mark("Exit (&X)"), "mnuFile_Top", {CommandId::CloseProgram})),

    Menu("mnuEdit_Top", Words::Mark("Edit (&E)")),
    Found(Words::Mark("take back"), Item("mnuUndo", Words::Mark("Undo (&U)"), "mnuEdit_Top", Editing(EditingCommand::Undo), "undo")),
    Found(Words::Mark("again repeat"), Item("mnuRedo", Words::Mark("Redo (&R)"), "mnuEdit_Top", Editing(EditingCommand::Redo), "redo")),
    Separator("mnu3", "mnuEdit_Top"),
    Item("mnuCut", Words::Mark("&Cut"), "mnuEdit_Top", Editing(EditingCommand::Cut), "cut"),
    Item("mnuCopy", Words::Mark("&Copy"), "mnuEdit_Top", Editing(EditingCommand::Copy), "copy"),
    Item("mnuPaste", Words::Mark("&Paste"), "mnuEdit_Top", Editing(EditingCommand::Paste), "paste"),
    Found(Words::Mark("remove clear erase"), Item("mnuDelete", Words::Mark("&Delete"), "mnuEdit_Top", Editing(EditingCommand::Delete), "delete")),
    Found(Words::Mark("everything mark"), Item("mnuSelectAll", Words::Mark("&Select All"), "mnuEdit_Top", Editing(EditingCommand::SelectAll))),

    Menu("mnuView_Top", Words::Mark("View (&V)")),
    Menu("mnuView_menustyle", Words::Mark("Menu Style (&M)"), "mnuView_Top"),
    Menu("mnuView_MenuOption", Words::Mark("Menu Option... (&O)"), "mnuView_menustyle"),
    Beyond(Item("mnuView_CusMenu", Words::Mark("Customize... (&C)"), "mnuView_MenuOption", {CommandId::Settings})),
    Separator("mnu5", "mnuView_menustyle"),
    StyleItem(1, Words::Mark("Sky Blue")),
    StyleItem(2, Words::Mark("Clear XP Style")),
    Found(Words::Mark("site web pages catalogue"), Item("mnuView_ProjectMan", Words::Mark("Project Manager"), "mnuView_Top", {CommandId::ProjectManager}, "startman")),
    Beyond(Item("mnuDetail", Words::Mark("Show Detail (&D)"), "mnuView_Top", {CommandId::ShowDetail}, "detail")),

    Menu("mnuInsert", Words::Mark("Insert (&I)")),
    Found(Words::Mark("picture photo graphic"), Item("mnuISTimage", Words::Mark("Image"), "mnuInsert", {CommandId::InsertImage}, "image")),
    Found(Words::Mark("link address url"), Item("mnuISTlink", Words::Mark("Hyperlink"), "mnuInsert", {CommandId::InsertHyperlink}, "link")),

    Menu("mnuTable", Words::Mark("Table (&A)")),
    Found(Words::Mark("grid rows columns cells"), Item("mnuTBLnew", Words::Mark("Insert Table"), "mnuTable", {CommandId::InsertTable}, "table")),

    Menu("mnuWindow", Words::Mark("Window (&W)")),
    Beyond(Item("mnuWindowCascade", Words::Mark("Cascade (&C)"), "mnuWindow", Arranging(Arrangement::Cascade))),
    Found(Words::Mark("above stacked tile"), Beyond(Item("mnuWindowTileHorizontal", Words::Mark("Horizontal (&H)"), "mnuWindow", Arranging(Arrangement::Horizontal)))),
    Found(Words::Mark("beside side tile"), Beyond(Item("mnuWindowTileVertical", Words::Mark("Vertical (&V)"), "mnuWindow", Arranging(Arrangement::Vertical)))),

    Beyond(Menu("mnuTools", Words::Mark("Tools (&T)"))),
    Beyond(Item("mnuFindCommand", Words::Mark("Find Command... (&F)"), "mnuTools", {CommandId::FindCommand}, nullptr, "Ctrl+Shift+P")),
    Beyond(Menu("mnuRecent", Words::Mark("Recent Files (&R)"), "mnuTools")),
    Beyond(Menu("mnuTemplates", Words::Mark("Templates (&T)"), "mnuTools")),
    Found(Words::Mark("page create html5"), Beyond(Item("mnuNewFromTemplate", Words::Mark("New from Template... (&T)"), "mnuTemplates", {CommandId::NewFromTemplate}))),
    Found(Words::Mark("keep page"), Beyond(Item("mnuSaveAsTemplate", Words::Mark("Save as Template... (&M)"), "mnuTemplates", {CommandId::SaveAsTemplate}))),
    Found(Words::Mark("paper printer"), Beyond(Item("mnuPrint", Words::Mark("Print... (&I)"), "mnuTools", {CommandId::Print}, nullptr, "Ctrl+P"))),
    Found(Words::Mark("print paper save"), Beyond(Item("mnuExportPdf", Words::Mark("Export as PDF... (&O)"), "mnuTools", {CommandId::ExportPdf}))),
    Separator("mnu6", "mnuTools"),
    Beyond(Menu("mnuZoom", Words::Mark("Zoom (&Z)"), "mnuTools")),
    Found(Words::Mark("larger bigger magnify"), Beyond(Item("mnuZoomIn", Words::Mark("Zoom &In"), "mnuZoom", {CommandId::ZoomIn}, nullptr, "Ctrl++"))),
    Found(Words::Mark("smaller"), Beyond(Item("mnuZoomOut", Words::Mark("Zoom &Out"), "mnuZoom", {CommandId::ZoomOut}, nullptr, "Ctrl+-"))),
    Found(Words::Mark("100 normal reset"), Beyond(Item("mnuZoomReset", Words::Mark("Own &Size"), "mnuZoom", {CommandId::ZoomReset}, nullptr, "Ctrl+0"))),
    Found(Words::Mark("phone tablet mobile responsive media small"), Beyond(Item("mnuWidths", Words::Mark("Page Widths (&X)"), "mnuTools", {CommandId::PageWidths}, nullptr, "Ctrl+Shift+M"))),
    Separator("mnu10", "mnuTools"),
    Found(Words::Mark("search words text look"), Beyond(Item("mnuFind", Words::Mark("Find... (&N)"), "mnuTools", {CommandId::Find}, nullptr, "Ctrl+F"))),
    Found(Words::Mark("exchange change words text"), Beyond(Item("mnuReplace", Words::Mark("Replace... (&P)"), "mnuTools", {CommandId::Replace}, nullptr, "Ctrl+H"))),
    Found(Words::Mark("search again"), Beyond(Item("mnuFindNext", Words::Mark("Find Next (&G)"), "mnuTools", {CommandId::FindNext}, nullptr, "F3"))),
    Found(Words::Mark("search again back"), Beyond(Item("mnuFindPrevious", Words::Mark("Find Previous (&U)"), "mnuTools", {CommandId::FindPrevious}, nullptr, "Shift+F3"))),
    Separator("mnu8", "mnuTools"),
    Found(Words::Mark("spell dictionary words check language"), Beyond(Item("mnuSpelling", Words::Mark("Spelling... (&Y)"), "mnuTools", {CommandId::Spelling}, nullptr, "F7"))),
    Found(Words::Mark("spell suggestions word"), Beyond(Item("mnuWordAtCaret", Words::Mark("Correct Word (&J)"), "mnuTools", {CommandId::WordAtCaret}, nullptr, "Ctrl+."))),
    Beyond(Menu("mnuSite", Words::Mark("Site (&H)"), "mnuTools")),
    Found(Words::Mark("site web pages catalogue"), Beyond(Item("mnuSiteProjects", Words::Mark("Project Manager"), "mnuSite", {CommandId::ProjectManager}, "startman"))),
    Found(Words::Mark("site dictionary words check"), Beyond(Item("mnuSpellingOfPages", Words::Mark("Spelling of All Pages... (&H)"), "mnuSite", {CommandId::SpellingOfPages}))),
    Found(Words::Mark("data base64 images"), Beyond(Item("mnuTakePicturesOut", Words::Mark("Take Embedded Pictures Out into Files (&E)"), "mnuSite", {CommandId::TakePicturesOut}))),
    Found(Words::Mark("cut trim rotate image photo"), Beyond(Item("mnuCropPicture", Words::Mark("Crop and Turn Picture... (&C)"), "mnuSite", {CommandId::CropPicture}))),
    Found(Words::Mark("letter folder map windows"), Beyond(Item("mnuDrives", Words::Mark("Drives... (&D)"), "mnuSite", {CommandId::Drives}))),
    Separator("mnu9", "mnuTools"),
    Found(Words::Mark("hyperlink address url"), Beyond(Item("mnuLink", Words::Mark("Link... (&L)"), "mnuTools", {CommandId::InsertHyperlink}, nullptr, "Ctrl+K"))),
    Found(Words::Mark("open go preview"), Beyond(Item("mnuFollowLink", Words::Mark("Follow Link (&K)"), "mnuTools", {CommandId::FollowLink}))),
    Beyond(Menu("mnuInsertMore", Words::Mark("Insert More (&V)"), "mnuTools")),
    Found(Words::Mark("anchor bookmark id name"), Beyond(Item("mnuBookmark", Words::Mark("Insert Target... (&T)"), "mnuInsertMore", {CommandId::InsertTarget}))),
    Found(Words::Mark("film movie mp4"), Beyond(Item("mnuVideo", Words::Mark("Insert Video... (&V)"), "mnuInsertMore", {CommandId::InsertVideo}))),
    Found(Words::Mark("symbol sign special unicode letter"), Beyond(Item("mnuCharacter", Words::Mark("Insert Character... (&C)"), "mnuInsertMore", {CommandId::InsertCharacter}))),
    Beyond(Menu("mnuPasteAs", Words::Mark("Paste As (&B)"), "mnuTools")),
    Found(Words::Mark("plain unformatted only"), Beyond(Item("mnuPasteText", Words::Mark("Paste as Text (&X)"), "mnuPasteAs", {CommandId::PasteText}, nullptr, "Ctrl+Shift+V"))),
    Found(Words::Mark("tabs columns spreadsheet"), Beyond(Item("mnuPasteTable", Words::Mark("Paste as Table (&B)"), "mnuPasteAs", {CommandId::PasteTable}))),
    Found(Words::Mark("notes plain md"), Beyond(Item("mnuPasteMarkdown", Words::Mark("Paste as Markdown (&M)"), "mnuPasteAs", {CommandId::PasteMarkdown}))),
    Beyond(Menu("mnuTableMore", Words::Mark("Table (&A)"), "mnuTools")),
    Found(Words::Mark("line"), Beyond(Item("mnuRowAbove", Words::Mark("Insert Row &Above"), "mnuTableMore", Editing(EditingCommand::InsertRowAbove)))),
    Found(Words::Mark("line"), Beyond(Item("mnuRowBelow", Words::Mark("Insert Row &Below"), "mnuTableMore", Editing(EditingCommand::InsertRowBelow)))),
    Beyond(Item("mnuColumnLeft", Words::Mark("Insert Column &Left"), "mnuTableMore", Editing(EditingCommand::InsertColumnLeft))),
    Found(Words::Mark("Colume"), Beyond(Item("mnuColumnRight", Words::Mark("Insert Column &Right"), "mnuTableMore", Editing(EditingCommand::InsertColumnRight)))),
    Separator("mnu20", "mnuTableMore"),
    Found(Words::Mark("remove"), Beyond(Item("mnuDeleteRow", Words::Mark("&Delete Row"), "mnuTableMore", Editing(EditingCommand::DeleteRow)))),
    Found(Words::Mark("remove"), Beyond(Item("mnuDeleteColumn", Words::Mark("Delete &Column"), "mnuTableMore", Editing(EditingCommand::DeleteColumn)))),
    Found(Words::Mark("remove"), Beyond(Item("mnuDeleteTable", Words::Mark("Delete &Table"), "mnuTableMore", Editing(EditingCommand::DeleteTable)))),
    Separator("mnu21", "mnuTableMore"),
    Found(Words::Mark("join"), Beyond(Item("mnuMergeCells", Words::Mark("&Merge Cells"), "mnuTableMore", Editing(EditingCommand::MergeCells)))),
    Found(Words::Mark("divide"), Beyond(Item("mnuSplitCell", Words::Mark("&Split Cell"), "mnuTableMore", Editing(EditingCommand::SplitCell)))),
    Separator("mnu22", "mnuTableMore"),
    Found(Words::Mark("mark"), Beyond(Item("mnuSelectCell", Words::Mark("Select C&ell"), "mnuTableMore", Editing(EditingCommand::SelectCell)))),
    Found(Words::Mark("mark"), Beyond(Item("mnuSelectRow", Words::Mark("Select R&ow"), "mnuTableMore", Editing(EditingCommand::SelectRow)))),
    Found(Words::Mark("mark"), Beyond(Item("mnuSelectColumn", Words::Mark("Select Col&umn"), "mnuTableMore", Editing(EditingCommand::SelectColumn)))),
    Found(Words::Mark("mark"), Beyond(Item("mnuSelectTable", Words::Mark("Select Table"), "mnuTableMore", Editing(EditingCommand::SelectTable)))),
    Separator("mnu23", "mnuTableMore"),
    Beyond(Item("mnuMoveRowUp", Words::Mark("Move Row Up"), "mnuTableMore", Editing(EditingCommand::MoveRowUp))),
    Beyond(Item("mnuMoveRowDown", Words::Mark("Move Row Do&wn"), "mnuTableMore", Editing(EditingCommand::MoveRowDown))),
    Beyond(Item("mnuMoveColumnLeft", Words::Mark("Move Column Left"), "mnuTableMore", Editing(EditingCommand::MoveColumnLeft))),
    Beyond(Item("mnuMoveColumnRight", Words::Mark("Move Column Right"), "mnuTableMore", Editing(EditingCommand::MoveColumnRight))),
    Found(Words::Mark("distribute"), Beyond(Item("mnuDistribute", Words::Mark("Equal Column W&idths"), "mnuTableMore", Editing(EditingCommand::DistributeColumns)))),
    Separator("mnu7", "mnuTools"),
    Found(Words::Mark("html long break"), Beyond(Item("mnuWrapSource", Words::Mark("Wrap Source Lines (&W)"), "mnuTools", {CommandId::WrapSource}))),
    Found(Words::Mark("keys keyboard hotkeys"), Beyond(Item("mnuShortcuts", Words::Mark("Shortcuts... (&D)"), "mnuTools", {CommandId::Shortcuts}))),
    Found(Words::Mark("options preferences colours"), Beyond(Item("mnuSettings", Words::Mark("Settings... (&S)"), "mnuTools", {CommandId::Settings}))),

    Menu("mnuHelp_Top", Words::Mark("Help (&H)")),
    Found(Words::Mark("version program"), Item("mnuAbout", Words::Mark("About"), "mnuHelp_Top", {CommandId::About}, "about")),
    Found(Words::Mark("manual guide"), Beyond(Item("mnuhelp", Words::Mark("Help"), "mnuHelp_Top", {CommandId::Help}, "help"))),

    Popup("mnuExt"),
    Beyond(Item("extCut", Words::Mark("Cut"), "mnuExt", Editing(EditingCommand::Cut), "cut")),
    Beyond(Item("extCopy", Words::Mark("Copy"), "mnuExt", Editing(EditingCommand::Copy), "copy")),
    Beyond(Item("extPaste", Words::Mark("Paste"), "mnuExt", Editing(EditingCommand::Paste), "paste")),
    Beyond(Item("extDelete", Words::Mark("Delete"), "mnuExt", Editing(EditingCommand::Delete), "delete")),
    Beyond(Item("extAll", Words::Mark("Select All"), "mnuExt", Editing(EditingCommand::SelectAll))),
    Separator("ext1", "mnuExt"),
    Menu("extProperties", Words::Mark("Properties..."), "mnuExt"),
    Found(Words::Mark("title language description charset encoding background style sheet css"), Beyond(Item("extPagePro", Words::Mark("Page Properties"), "extProperties", PropertiesOf(PropertySubject::Page)))),
    Found(Words::Mark("picture alternative"), Beyond(Item("extImagePro", Words::Mark("Image Properties"), "extProperties", PropertiesOf(PropertySubject::Image)))),
    Found(Words::Mark("caption border"), Beyond(Item("extTablePro", Words::Mark("Table Properties"), "extProperties", PropertiesOf(PropertySubject::Table)))),
    Found(Words::Mark("cell width colour"), Beyond(Item("extTDPro", Words::Mark("Table Cell Properties"), "extProperties", PropertiesOf(PropertySubject::Cell)))),
    Found(Words::Mark("link"), Beyond(Item("extAPro", Words::Mark("Hyperlink Properties"), "extProperties", PropertiesOf(PropertySubject::Link)))),
    Found(Words::Mark("size colour color"), Beyond(Item("extFontsPro", Words::Mark("Fonts Properties"), "extProperties", PropertiesOf(PropertySubject::Fonts)))),
    Separator("ext2", "mnuExt"),
    Beyond(Item("extAbs", Words::Mark("Absolute Position"), "mnuExt", Editing(EditingCommand::AbsolutePosition))),
    Beyond(Item("extDetail", Words::Mark("Show Detail"), "mnuExt", {CommandId::ShowDetail}, "detail")),
    Beyond(Item("extSnap", Words::Mark("Snap to Grid"), "mnuExt", {CommandId::SnapToGrid}, "snap")),
    Found(Words::Mark("markup source code"), Beyond(Item("extInHTML", Words::Mark("Insert Custom HTML"), "mnuExt", {CommandId::InsertMarkup}, "viewcode"))),
    Menu("extTableGeneral", Words::Mark("Table..."), "mnuExt"),
    Beyond(Item("extInCol", Words::Mark("Insert Colume"), "extTableGeneral", Editing(EditingCommand::InsertColumnRight))),
    Beyond(Item("extInRow", Words::Mark("Insert Row"), "extTableGeneral", Editing(EditingCommand::InsertRowBelow))),
    Beyond(Item("extMerge", Words::Mark("Merge Cells"), "extTableGeneral", Editing(EditingCommand::MergeCells))),
    Beyond(Item("extSplit", Words::Mark("Split Cell"), "extTableGeneral", Editing(EditingCommand::SplitCell))),
    Menu("extAbsGeneral", Words::Mark("Absolute object..."), "mnuExt"),
    Beyond(Item("extFront", Words::Mark("Bring to Front"), "extAbsGeneral", Editing(EditingCommand::BringToFront))),
    Beyond(Item("extForeward", Words::Mark("Bring Foreward"), "extAbsGeneral", Editing(EditingCommand::BringForward))),
    Beyond(Item("extAboveText", Words::Mark("Bring above text"), "extAbsGeneral", Editing(EditingCommand::BringAboveText))),
    Beyond(Item("extBack", Words::Mark("Send to Back"), "extAbsGeneral", Editing(EditingCommand::SendToBack))),
    Beyond(Item("extBackward", Words::Mark("Send Backward"), "extAbsGeneral", Editing(EditingCommand::SendBackward))),
    Beyond(Item("extBelowText", Words::Mark("Send below text"), "extAbsGeneral", Editing(EditingCommand::SendBelowText))),
    Found(Words::Mark("path class id"), Beyond(Item("extGetTag", Words::Mark("Get Element TagName"), "mnuExt", {CommandId::ShowPath}))),

    Popup("mnuCustom"),
    Item("cusDel", Words::Mark("Delete Record"), "mnuCustom"),
};
// clang-format on

}  // namespace

std::span<const MenuRow> MenuTable() {
  return Rows;
}

}  // namespace velor
