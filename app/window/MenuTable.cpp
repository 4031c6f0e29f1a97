// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/window/MenuTable.h"

#include "platform/EditingCommands.h"
#include "platform/HtmlDocument.h"

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
    Menu("mnuFile_Top", "File (&F)"),
    Found("page create", Item("mnuNew", "New Document(&N)", "mnuFile_Top", {CommandId::NewPage}, "new", "Ctrl+N")),
    Found("file load", Item("mnuOpen", "Open... (&O)", "mnuFile_Top", {CommandId::OpenPage}, "open", "Ctrl+O")),
    Found("write keep", Item("mnuSave", "Save (&S)", "mnuFile_Top", {CommandId::SavePage}, "save", "Ctrl+S")),
    Found("copy rename", Item("mnuSaveAs", "Save As... (&A)", "mnuFile_Top", {CommandId::SavePageAs}, "saveas", "F12")),
    Separator("mnu1", "mnuFile_Top"),
    Found("quit close end", Item("mnuExit", "Exit (&X)", "mnuFile_Top", {CommandId::CloseProgram})),

    Menu("mnuEdit_Top", "Edit (&E)"),
    Found("take back", Item("mnuUndo", "Undo (&U)", "mnuEdit_Top", Editing(EditingCommand::Undo), "undo")),
    Found("again repeat", Item("mnuRedo", "Redo (&R)", "mnuEdit_Top", Editing(EditingCommand::Redo), "redo")),
    Separator("mnu3", "mnuEdit_Top"),
    Item("mnuCut", "&Cut", "mnuEdit_Top", Editing(EditingCommand::Cut), "cut"),
    Item("mnuCopy", "&Copy", "mnuEdit_Top", Editing(EditingCommand::Copy), "copy"),
    Item("mnuPaste", "&Paste", "mnuEdit_Top", Editing(EditingCommand::Paste), "paste"),
    Found("remove clear erase", Item("mnuDelete", "&Delete", "mnuEdit_Top", Editing(EditingCommand::Delete), "delete")),
    Found("everything mark", Item("mnuSelectAll", "&Select All", "mnuEdit_Top", Editing(EditingCommand::SelectAll))),

    Menu("mnuView_Top", "View (&V)"),
    Menu("mnuView_menustyle", "Menu Style (&M)", "mnuView_Top"),
    Menu("mnuView_MenuOption", "Menu Option... (&O)", "mnuView_menustyle"),
    Item("mnuView_CusMenu", "Customize... (&C)", "mnuView_MenuOption"),
    Separator("mnu5", "mnuView_menustyle"),
    StyleItem(1, "Sky Blue"),
    StyleItem(2, "Clear XP Style"),
    Found("site web pages catalogue", Item("mnuView_ProjectMan", "Project Manager", "mnuView_Top", {CommandId::ProjectManager}, "startman")),
    Beyond(Item("mnuDetail", "Show Detail (&D)", "mnuView_Top", {CommandId::ShowDetail}, "detail")),

    Menu("mnuInsert", "Insert (&I)"),
    Found("picture photo graphic", Item("mnuISTimage", "Image", "mnuInsert", {CommandId::InsertImage}, "image")),
    Found("link address url", Item("mnuISTlink", "Hyperlink", "mnuInsert", {CommandId::InsertHyperlink}, "link")),

    Menu("mnuTable", "Table (&A)"),
    Found("grid rows columns cells", Item("mnuTBLnew", "Insert Table", "mnuTable", {CommandId::InsertTable}, "table")),

    Menu("mnuWindow", "Window (&W)"),
    Beyond(Item("mnuWindowCascade", "Cascade (&C)", "mnuWindow", Arranging(Arrangement::Cascade))),
    Found("above stacked tile", Beyond(Item("mnuWindowTileHorizontal", "Horizontal (&H)", "mnuWindow", Arranging(Arrangement::Horizontal)))),
    Found("beside side tile", Beyond(Item("mnuWindowTileVertical", "Vertical (&V)", "mnuWindow", Arranging(Arrangement::Vertical)))),

    Beyond(Menu("mnuTools", "Tools (&T)")),
    Beyond(Item("mnuFindCommand", "Find Command... (&F)", "mnuTools", {CommandId::FindCommand}, nullptr, "Ctrl+Shift+P")),
    Beyond(Menu("mnuRecent", "Recent Files (&R)", "mnuTools")),
    Separator("mnu6", "mnuTools"),
    Found("search words text look", Beyond(Item("mnuFind", "Find... (&N)", "mnuTools", {CommandId::Find}, nullptr, "Ctrl+F"))),
    Found("exchange change words text", Beyond(Item("mnuReplace", "Replace... (&P)", "mnuTools", {CommandId::Replace}, nullptr, "Ctrl+H"))),
    Found("search again", Beyond(Item("mnuFindNext", "Find Next (&G)", "mnuTools", {CommandId::FindNext}, nullptr, "F3"))),
    Found("search again back", Beyond(Item("mnuFindPrevious", "Find Previous (&U)", "mnuTools", {CommandId::FindPrevious}, nullptr, "Shift+F3"))),
    Separator("mnu8", "mnuTools"),
    Found("hyperlink address url", Beyond(Item("mnuLink", "Link... (&L)", "mnuTools", {CommandId::InsertHyperlink}, nullptr, "Ctrl+K"))),
    Found("open go preview", Beyond(Item("mnuFollowLink", "Follow Link (&K)", "mnuTools", {CommandId::FollowLink}))),
    Found("anchor bookmark id name", Beyond(Item("mnuBookmark", "Insert Target... (&T)", "mnuTools", {CommandId::InsertTarget}))),
    Found("film movie mp4", Beyond(Item("mnuVideo", "Insert Video... (&V)", "mnuTools", {CommandId::InsertVideo}))),
    Found("plain unformatted only", Beyond(Item("mnuPasteText", "Paste as Text (&X)", "mnuTools", {CommandId::PasteText}, nullptr, "Ctrl+Shift+V"))),
    Found("tabs columns spreadsheet", Beyond(Item("mnuPasteTable", "Paste as Table (&B)", "mnuTools", {CommandId::PasteTable}))),
    Found("notes plain md", Beyond(Item("mnuPasteMarkdown", "Paste as Markdown (&M)", "mnuTools", {CommandId::PasteMarkdown}))),
    Found("data base64 images", Beyond(Item("mnuTakePicturesOut", "Take Embedded Pictures Out into Files (&E)", "mnuTools", {CommandId::TakePicturesOut}))),
    Beyond(Menu("mnuTableMore", "Table (&A)", "mnuTools")),
    Found("line", Beyond(Item("mnuRowAbove", "Insert Row &Above", "mnuTableMore", Editing(EditingCommand::InsertRowAbove)))),
    Found("line", Beyond(Item("mnuRowBelow", "Insert Row &Below", "mnuTableMore", Editing(EditingCommand::InsertRowBelow)))),
    Beyond(Item("mnuColumnLeft", "Insert Column &Left", "mnuTableMore", Editing(EditingCommand::InsertColumnLeft))),
    Found("Colume", Beyond(Item("mnuColumnRight", "Insert Column &Right", "mnuTableMore", Editing(EditingCommand::InsertColumnRight)))),
    Separator("mnu20", "mnuTableMore"),
    Found("remove", Beyond(Item("mnuDeleteRow", "&Delete Row", "mnuTableMore", Editing(EditingCommand::DeleteRow)))),
    Found("remove", Beyond(Item("mnuDeleteColumn", "Delete &Column", "mnuTableMore", Editing(EditingCommand::DeleteColumn)))),
    Found("remove", Beyond(Item("mnuDeleteTable", "Delete &Table", "mnuTableMore", Editing(EditingCommand::DeleteTable)))),
    Separator("mnu21", "mnuTableMore"),
    Found("join", Beyond(Item("mnuMergeCells", "&Merge Cells", "mnuTableMore", Editing(EditingCommand::MergeCells)))),
    Found("divide", Beyond(Item("mnuSplitCell", "&Split Cell", "mnuTableMore", Editing(EditingCommand::SplitCell)))),
    Separator("mnu22", "mnuTableMore"),
    Found("mark", Beyond(Item("mnuSelectCell", "Select C&ell", "mnuTableMore", Editing(EditingCommand::SelectCell)))),
    Found("mark", Beyond(Item("mnuSelectRow", "Select R&ow", "mnuTableMore", Editing(EditingCommand::SelectRow)))),
    Found("mark", Beyond(Item("mnuSelectColumn", "Select Col&umn", "mnuTableMore", Editing(EditingCommand::SelectColumn)))),
    Found("mark", Beyond(Item("mnuSelectTable", "Select Table", "mnuTableMore", Editing(EditingCommand::SelectTable)))),
    Separator("mnu23", "mnuTableMore"),
    Beyond(Item("mnuMoveRowUp", "Move Row Up", "mnuTableMore", Editing(EditingCommand::MoveRowUp))),
    Beyond(Item("mnuMoveRowDown", "Move Row Do&wn", "mnuTableMore", Editing(EditingCommand::MoveRowDown))),
    Beyond(Item("mnuMoveColumnLeft", "Move Column Left", "mnuTableMore", Editing(EditingCommand::MoveColumnLeft))),
    Beyond(Item("mnuMoveColumnRight", "Move Column Right", "mnuTableMore", Editing(EditingCommand::MoveColumnRight))),
    Found("distribute", Beyond(Item("mnuDistribute", "Equal Column W&idths", "mnuTableMore", Editing(EditingCommand::DistributeColumns)))),
    Separator("mnu7", "mnuTools"),
    Found("html long break", Beyond(Item("mnuWrapSource", "Wrap Source Lines (&W)", "mnuTools", {CommandId::WrapSource}))),
    Found("letter folder map windows", Beyond(Item("mnuDrives", "Drives... (&D)", "mnuTools", {CommandId::Drives}))),
    Found("options preferences colours", Beyond(Item("mnuSettings", "Settings... (&S)", "mnuTools", {CommandId::Settings}))),

    Menu("mnuHelp_Top", "Help (&H)"),
    Found("version program", Item("mnuAbout", "About", "mnuHelp_Top", {CommandId::About}, "about")),
    Found("manual guide", Beyond(Item("mnuhelp", "Help", "mnuHelp_Top", {CommandId::Help}, "help"))),

    Popup("mnuExt"),
    Beyond(Item("extCut", "Cut", "mnuExt", Editing(EditingCommand::Cut), "cut")),
    Beyond(Item("extCopy", "Copy", "mnuExt", Editing(EditingCommand::Copy), "copy")),
    Beyond(Item("extPaste", "Paste", "mnuExt", Editing(EditingCommand::Paste), "paste")),
    Beyond(Item("extDelete", "Delete", "mnuExt", Editing(EditingCommand::Delete), "delete")),
    Beyond(Item("extAll", "Select All", "mnuExt", Editing(EditingCommand::SelectAll))),
    Separator("ext1", "mnuExt"),
    Menu("extProperties", "Properties...", "mnuExt"),
    Found("title language description", Beyond(Item("extPagePro", "Page Properties", "extProperties", PropertiesOf(PropertySubject::Page)))),
    Found("picture alternative", Beyond(Item("extImagePro", "Image Properties", "extProperties", PropertiesOf(PropertySubject::Image)))),
    Found("caption border", Beyond(Item("extTablePro", "Table Properties", "extProperties", PropertiesOf(PropertySubject::Table)))),
    Found("cell width colour", Beyond(Item("extTDPro", "Table Cell Properties", "extProperties", PropertiesOf(PropertySubject::Cell)))),
    Found("link", Beyond(Item("extAPro", "Hyperlink Properties", "extProperties", PropertiesOf(PropertySubject::Link)))),
    Found("size colour", Beyond(Item("extFontsPro", "Fonts Properties", "extProperties", PropertiesOf(PropertySubject::Fonts)))),
    Separator("ext2", "mnuExt"),
    Beyond(Item("extAbs", "Absolute Position", "mnuExt", Editing(EditingCommand::AbsolutePosition))),
    Beyond(Item("extDetail", "Show Detail", "mnuExt", {CommandId::ShowDetail}, "detail")),
    Beyond(Item("extSnap", "Snap to Grid", "mnuExt", {CommandId::SnapToGrid}, "snap")),
    Item("extInHTML", "Insert Custom HTML", "mnuExt", {}, "viewcode"),
    Menu("extTableGeneral", "Table...", "mnuExt"),
    Beyond(Item("extInCol", "Insert Colume", "extTableGeneral", Editing(EditingCommand::InsertColumnRight))),
    Beyond(Item("extInRow", "Insert Row", "extTableGeneral", Editing(EditingCommand::InsertRowBelow))),
    Beyond(Item("extMerge", "Merge Cells", "extTableGeneral", Editing(EditingCommand::MergeCells))),
    Beyond(Item("extSplit", "Split Cell", "extTableGeneral", Editing(EditingCommand::SplitCell))),
    Menu("extAbsGeneral", "Absolute object...", "mnuExt"),
    Beyond(Item("extFront", "Bring to Front", "extAbsGeneral", Editing(EditingCommand::BringToFront))),
    Beyond(Item("extForeward", "Bring Foreward", "extAbsGeneral", Editing(EditingCommand::BringForward))),
    Beyond(Item("extAboveText", "Bring above text", "extAbsGeneral", Editing(EditingCommand::BringAboveText))),
    Beyond(Item("extBack", "Send to Back", "extAbsGeneral", Editing(EditingCommand::SendToBack))),
    Beyond(Item("extBackward", "Send Backward", "extAbsGeneral", Editing(EditingCommand::SendBackward))),
    Beyond(Item("extBelowText", "Send below text", "extAbsGeneral", Editing(EditingCommand::SendBelowText))),
    Item("extGetTag", "Get Element TagName", "mnuExt"),

    Popup("mnuCustom"),
    Item("cusDel", "Delete Record", "mnuCustom"),
};
// clang-format on

}  // namespace

std::span<const MenuRow> MenuTable() {
  return Rows;
}

}  // namespace velor
