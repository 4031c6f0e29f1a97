// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/window/CommandRouter.h"

#include "app/window/GeneralToolbar.h"
#include "app/window/InsertCommands.h"
#include "app/window/PageOpener.h"
#include "app/window/PageZoom.h"
#include "app/window/PropertyDialogs.h"
#include "editor/EditorContext.h"
#include "editor/EmbeddedPictures.h"
#include "editor/FindBar.h"
#include "editor/MainWindow.h"
#include "editor/OpenPages.h"
#include "editor/PageSlots.h"
#include "editor/PageTemplates.h"
#include "editor/PageWords.h"
#include "editor/SiteSpelling.h"
#include "editor/SourceWrap.h"
#include "editor/SpellingBar.h"
#include "editor/frmBrowser.h"
#include "editor/frmCodeEditor.h"
#include "editor/frmMain.h"
#include "editor/modWorkFlow.h"
#include "insert/modColor.h"
#include "platform/Dialogs.h"
#include "platform/RuntimeError.h"
#include "platform/Words.h"

#include <QAction>
#include <QApplication>
#include <QPointer>

namespace velor {
namespace {

constexpr int PreviewMode = 4;

/// Insert Row and Insert Column put theirs on the other side while Shift is held.
EditingCommand WithShift(EditingCommand command) {
  if (!QApplication::keyboardModifiers().testFlag(Qt::ShiftModifier)) return command;
  if (command == EditingCommand::InsertRowBelow) return EditingCommand::InsertRowAbove;
  if (command == EditingCommand::InsertColumnRight) return EditingCommand::InsertColumnLeft;
  return command;
}

}  // namespace

CommandRouter::CommandRouter(EditorContext &context, CommandHost &host, InsertCommands &insert,
                             PageOpener &opener, Additions additions)
    : context_(context), host_(host), insert_(insert), opener_(opener), additions_(additions) {}

frmMain *CommandRouter::ActiveDocument() {
  return dynamic_cast<frmMain *>(host_.Front());
}

void CommandRouter::Run(const Command &command) {
  switch (command.id) {
    case CommandId::None:
      break;
    case CommandId::NewPage:
      NewPage();
      break;
    case CommandId::NewFromTemplate:
      opener_.NewFromTemplate();
      break;
    case CommandId::SaveAsTemplate:
      if (frmMain *page = ActiveDocument()) SaveAsTemplate(*page);
      break;
    case CommandId::OpenPage:
      OpenPage();
      break;
    case CommandId::SavePage:
      SavePage(modWorkFlow::SaveKind::Save);
      break;
    case CommandId::SavePageAs:
      SavePage(modWorkFlow::SaveKind::SaveAs);
      break;
    case CommandId::Print:
      PutOnPaper(&CommandHost::Print);
      break;
    case CommandId::ExportPdf:
      PutOnPaper(&CommandHost::ExportPdf);
      break;
    case CommandId::CloseProgram:
      host_.CloseProgram();
      break;
    case CommandId::Editing:
      Edit(WithShift(std::get<EditingCommand>(command.argument)));
      break;
    case CommandId::MenuStyle:
      host_.ChooseMenuStyle(std::get<int>(command.argument));
      break;
    case CommandId::ProjectManager:
      host_.ShowProjectManager();
      break;
    case CommandId::InsertImage:
      Insert(&InsertCommands::Image);
      break;
    case CommandId::InsertHyperlink:
      Insert(&InsertCommands::Hyperlink);
      break;
    case CommandId::InsertTarget:
      Insert(&InsertCommands::Target);
      break;
    case CommandId::InsertVideo:
      Insert(&InsertCommands::Video);
      break;
    case CommandId::InsertTable:
      Insert(&InsertCommands::Table);
      break;
    case CommandId::TakePicturesOut:
      if (frmMain *page = ActiveDocument()) TakePicturesOut(*page);
      break;
    case CommandId::CropPicture:
      if (frmMain *page = ActiveDocument()) context_.mainWindow.requests.CropPicture(*page);
      break;
    case CommandId::FollowLink:
      if (frmMain *page = ActiveDocument())
        page->FollowLink(page->DHTML1().Document().Link().Attribute(QStringLiteral("href")));
      break;
    case CommandId::PasteText:
      PasteAs(QStringLiteral("text"));
      break;
    case CommandId::PasteTable:
      PasteAs(QStringLiteral("table"));
      break;
    case CommandId::PasteMarkdown:
      PasteAs(QStringLiteral("markdown"));
      break;
    case CommandId::ShowDetail:
      if (frmMain *page = ActiveDocument()) page->ToggleShowDetails();
      break;
    case CommandId::SnapToGrid:
      if (frmMain *page = ActiveDocument()) page->ToggleSnapToGrid();
      break;
    case CommandId::Arrange:
      host_.ArrangeWindows(std::get<int>(command.argument));
      break;
    case CommandId::Properties:
      if (frmMain *page = ActiveDocument())
        ShowProperties(*page, {static_cast<PropertySubject>(std::get<int>(command.argument))});
      break;
    case CommandId::ShowPath:
      if (frmMain *page = ActiveDocument()) ShowCaretElement(*page);
      break;
    case CommandId::InsertCharacter:
      if (auto *editor = dynamic_cast<frmCodeEditor *>(host_.Front()))
        insert_.Character(*editor);
      else
        Insert(&InsertCommands::Character);
      break;
    case CommandId::InsertMarkup:
      Insert(&InsertCommands::Markup);
      break;
    case CommandId::Preview:
      Preview();
      break;
    case CommandId::About:
      host_.ShowAbout();
      break;
    case CommandId::Help:
      host_.ShowHelp();
      break;
    case CommandId::FindCommand:
      host_.ShowCommandPalette();
      break;
    case CommandId::Find:
    case CommandId::Replace:
    case CommandId::FindNext:
    case CommandId::FindPrevious:
      FindInFront(command.id);
      break;
    case CommandId::Spelling:
      if (auto *bar = BarInFront<SpellingBar>()) bar->GoOn();
      break;
    case CommandId::SpellingOfPages:
      ShowSiteSpelling(context_);
      break;
    case CommandId::WordAtCaret:
      if (FrontWindow *front = host_.Front()) ShowWordMenu(context_, *front);
      break;
    case CommandId::WrapSource:
      TurnLineWrap(context_);
      break;
    case CommandId::Drives:
      host_.ShowDrives();
      break;
    case CommandId::ZoomIn:
      Zoom(1);
      break;
    case CommandId::ZoomOut:
      Zoom(-1);
      break;
    case CommandId::ZoomReset:
      Zoom(0);
      break;
    case CommandId::PageWidths:
      ToggleWidths();
      break;
    case CommandId::Shortcuts:
      host_.ShowShortcuts();
      break;
    case CommandId::Settings:
      host_.ShowSettings();
      break;
  }
}

void CommandRouter::Click(const GeneralButton &button) {
  if (button.guard == Guard::MenuItem && !host_.MenuItem(button.command).isEnabled()) return;
  if (button.reach == Reach::Beyond && additions_ == Additions::Off) return;
  Run(button.command);
}

void CommandRouter::NewPage() {
  QAction &item = host_.MenuItem({CommandId::NewPage});
  item.setEnabled(false);
  try {
    if (HasRoom(context_)) modWorkFlow::NewPage(context_, TextOfNewPage(context_));
  } catch (...) {
    item.setEnabled(true);
    throw;
  }
  item.setEnabled(true);
}

void CommandRouter::OpenPage() {
  QAction &item = host_.MenuItem({CommandId::OpenPage});
  item.setEnabled(false);
  // Without room the menu item stays disabled, on purpose.
  if (!HasRoom(context_)) return;
  try {
    FileDialog &dialog = context_.mainWindow.fileDialog;
    dialog.Flags = FileDialog::FileMustExist;
    dialog.Filter = Words::tr("HTML Files *.htm,*.html|*.htm;*.html");
    // A cancelled dialog returns no file and needs no message.
    if (const QString path = dialog.ShowOpen(); !path.isEmpty()) opener_.OpenFile(path);
  } catch (const RuntimeError &) {
  }
  opener_.UpdateDialogFileName();
  item.setEnabled(true);
}

void CommandRouter::SavePage(modWorkFlow::SaveKind kind) {
  const FrontWindow *front = host_.Front();
  if (additions_ == Additions::Off && ActiveDocument() == nullptr) return;
  if (front == nullptr || front->PageNumber() == 0) {
    context_.mainWindow.status.Report(Words::tr("There is no page to save"));
    return;
  }
  const QPointer<frmMain> page = context_.pages.Page(front->PageNumber());
  QString done = Words::tr("Saved %1");
  if (front->View() == FrontView::SourceEditor) {
    // Typed source is applied to the page first, so that the file gets what is on the screen. Undo
    // in the page takes it back.
    frmCodeEditor *editor = context_.pages.CodeEditor(front->PageNumber());
    if (editor->UnappliedText()) {
      if (!editor->Apply()) return;
      done = Words::tr("The source was applied to the page. Saved %1");
    }
  }
  if (page.isNull()) return;
  // Without earlier notices. Where the save itself reports something, "Saved" does not replace
  // that.
  context_.mainWindow.status.Report({});
  const auto end = modWorkFlow::SaveAndReport(context_, *page, kind);
  if (page.isNull()) return;
  page->ShowTab();
  if (end == modWorkFlow::SaveEnd::Safe && !context_.mainWindow.status.HasNotice())
    context_.mainWindow.status.Report(done.arg(page->FilePath()));
}

void CommandRouter::PutOnPaper(void (CommandHost::*way)(FrontWindow &)) {
  FrontWindow *front = host_.Front();
  if (front == nullptr) {
    context_.mainWindow.status.Report(Words::tr("There is no page to print"));
  } else if (ApplySource(*front)) {
    (host_.*way)(*front);
  }
}

void CommandRouter::Zoom(int steps) {
  if (FrontWindow *front = host_.Front()) front->SetZoom(NextZoom(front->Zoom(), steps));
}

void CommandRouter::ToggleWidths() {
  FrontWindow *front = host_.Front();
  if (front == nullptr || !front->ToggleWidths())
    context_.mainWindow.status.Report(Words::tr("Pages in design view and previews have a width"));
}

bool CommandRouter::ApplySource(const FrontWindow &front) {
  if (front.View() != FrontView::SourceEditor) return true;
  frmCodeEditor *editor = context_.pages.CodeEditor(front.PageNumber());
  return !editor->UnappliedText() || editor->Apply();
}

void CommandRouter::Preview() {
  const FrontWindow *front = host_.Front();
  if (frmMain *page = ActiveDocument()) {
    page->ChangeMode(PreviewMode);
  } else if (front != nullptr && front->View() == FrontView::Preview &&
             additions_ == Additions::On) {
    context_.preview->WebBrowser().Refresh();
  }
}

void CommandRouter::Edit(EditingCommand command) {
  if (additions_ == Additions::On) {
    if (FrontWindow *front = host_.Front()) front->Edit(command);
  } else if (frmMain *page = ActiveDocument()) {
    page->DHTML1().ExecCommand(command);
  }
}

void CommandRouter::PasteAs(const QString &form) {
  const FrontWindow *front = host_.Front();
  if (front != nullptr && front->View() == FrontView::SourceEditor)
    return Edit(EditingCommand::Paste);
  if (frmMain *page = ActiveDocument(); page != nullptr && front->View() == FrontView::Design)
    page->DHTML1().ExecCommand(EditingCommand::Paste, ExecOption::Default, form);
  else
    context_.mainWindow.status.Report(Words::tr("There is no page to put something into"));
}

template <typename Bar>
Bar *CommandRouter::BarInFront() {
  const auto *front = dynamic_cast<QWidget *>(host_.Front());
  return front == nullptr ? nullptr : front->findChild<Bar *>();
}

void CommandRouter::FindInFront(CommandId step) {
  auto *bar = BarInFront<FindBar>();
  if (bar == nullptr) {
    context_.mainWindow.status.Report(Words::tr("There is no text to search"));
    return;
  }
  switch (step) {
    case CommandId::FindNext:
      return bar->FindOn(SearchDirection::Forward);
    case CommandId::FindPrevious:
      return bar->FindOn(SearchDirection::Backward);
    case CommandId::Replace:
      return bar->Open(FindBar::Purpose::Replace);
    default:
      return bar->Open(FindBar::Purpose::Find);
  }
}

void CommandRouter::Insert(void (InsertCommands::*insertion)(frmMain &)) {
  if (frmMain *page = ActiveDocument()) {
    (insert_.*insertion)(*page);
  } else if (additions_ == Additions::On) {
    context_.mainWindow.status.Report(Words::tr("There is no page to put something into"));
  }
}

void CommandRouter::SetValue(EditingCommand query, EditingCommand set, const QString &value) {
  frmMain *page = ActiveDocument();
  if (!page) return;
  EditingComponent &component = page->DHTML1();
  if (component.ExecCommand(query).toString() == value) return;
  component.ExecCommand(set, ExecOption::Default, value);
}

void CommandRouter::SetBlockFormat(const QString &name) {
  SetValue(EditingCommand::GetBlockFormat, EditingCommand::SetBlockFormat, name);
}

void CommandRouter::SetFontSize(const QString &points) {
  SetValue(EditingCommand::GetFontSize, EditingCommand::SetFontSize, points);
}

void CommandRouter::SetFontName(const QString &name) {
  SetValue(EditingCommand::GetFontName, EditingCommand::SetFontName, name);
}

void CommandRouter::SetColor(EditingCommand set, std::int32_t color) {
  frmMain *page = ActiveDocument();
  if (!page) return;
  page->DHTML1().ExecCommand(set, ExecOption::Default, modColor::ColorToHtml(color));
  page->DHTML1().SetFocus();
}

void CommandRouter::SetForeColor(std::int32_t color) {
  SetColor(EditingCommand::SetForeColor, color);
}

void CommandRouter::SetBackColor(std::int32_t color) {
  SetColor(EditingCommand::SetBackColor, color);
}

}  // namespace velor
