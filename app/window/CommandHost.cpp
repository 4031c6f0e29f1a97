// SPDX-License-Identifier: GPL-3.0-or-later
// MfrmProgram as the host of commands: what they ask of the window.
#include "app/help/Help.h"
#include "app/window/CommandList.h"
#include "app/window/CommandPalette.h"
#include "app/window/CoolBar.h"
#include "app/window/FrmPrint.h"
#include "app/window/FrmSettings.h"
#include "app/window/FrmShortcuts.h"
#include "app/window/MfrmProgram.h"
#include "app/window/PageArea.h"
#include "app/window/ProjectDesk.h"
#include "app/window/RecentFiles.h"
#include "app/window/Shortcuts.h"
#include "chrome/frmAbout.h"
#include "editor/PageWords.h"
#include "editor/PdfExport.h"
#include "editor/SourceWrap.h"
#include "platform/Dialogs.h"
#include "platform/Platform.h"

#include <QAction>
#include <QApplication>
#include <QMenu>
#include <QPointer>

namespace velor {

FrontWindow *MfrmProgram::Front() {
  return area_->Front();
}

QAction &MfrmProgram::MenuItem(const Command &command) {
  return *menus_.items.at(command);
}

void MfrmProgram::ChooseMenuStyle(int index) {
  velor::ChooseMenuStyle(index, platform_.registry, menuPictures_, *menuPainter_);
  MarkMenuStyle(index);
}

void MfrmProgram::MarkMenuStyle(int index) {
  for (const MenuRow &row : MenuTable()) {
    if (row.command.id != CommandId::MenuStyle) continue;
    QAction &item = MenuItem(row.command);
    item.setCheckable(true);
    item.setChecked(row.index == index);
  }
}

void MfrmProgram::ArrangeWindows(int arrangement) {
  area_->Arrange(static_cast<Arrangement>(arrangement));
}

void MfrmProgram::ShowProjectManager() {
  projects_->ShowProjectManager(*this);
}

void MfrmProgram::ShowAbout() {
  frmAbout about(platform_.runtime, engine_, this);
  platform_.dialogs.RunModal(about);
}

void MfrmProgram::ShowHelp() {
  const QWidget *from = QApplication::focusWidget();
  if (from == nullptr || from->window() != this) from = area_->Current();
  help_->ShowFor(from == nullptr ? this : from);
}

void MfrmProgram::ShowCommandPalette() {
  selectionItems_.Refresh();
  QList<NamedCommand> commands = CommandsOf(menus_, bandBar_->Formatting());
  commands.removeIf(
      [](const NamedCommand &each) { return each.command.id == CommandId::FindCommand; });
  RunPalette({tr("Find Command"), tr("Words of the command"), tr("Commands")},
             LastUsedFirst(platform_.registry, commands));
}

void MfrmProgram::ShowRecentFiles() {
  const QMenu *menu = menus_.menus.value(QStringLiteral("mnuRecent"));
  if (menu == nullptr) return;
  recent_->Refill();
  QList<NamedCommand> files;
  for (QAction *file : menu->actions()) files.append({file->toolTip(), file, {}});
  RunPalette({tr("Recent Files"), tr("Words of the file's path"), tr("Files")}, files);
}

void MfrmProgram::RunPalette(const PaletteWords &words, const QList<NamedCommand> &commands) {
  const QPointer<MfrmProgram> alive = this;
  CommandPalette palette(words, commands, this);
  platform_.dialogs.RunModal(palette);
  if (alive.isNull() || palette.Chosen() == nullptr) return;
  for (const NamedCommand &each : commands)
    if (each.item == palette.Chosen() && !each.id.isEmpty()) NoteUse(platform_.registry, each.id);
  palette.Chosen()->trigger();
}

void MfrmProgram::ShowDrives() {
  projects_->ShowDrives(*this);
}

void MfrmProgram::ShowShortcuts() {
  const QPointer<MfrmProgram> alive = this;
  FrmShortcuts window(*shortcuts_, this);
  platform_.dialogs.RunModal(window);
  if (!alive.isNull() && window.result() == QDialog::Accepted) shortcuts_->Use(window.Keys());
}

void MfrmProgram::ShowSettings() {
  const QPointer<MfrmProgram> alive = this;
  FrmSettings settings(platform_.registry, menuPictures_, this);
  platform_.dialogs.RunModal(settings);
  if (alive.isNull() || settings.result() != QDialog::Accepted) return;
  ShowLineWrap(context_);
  UseSpelling(context_);
  DressMenus();
}

void MfrmProgram::ExportPdf(FrontWindow &front) {
  pdfExport_->Begin(front);
}

void MfrmProgram::Print(FrontWindow &front) {
  PagePrinting *printing = front.Printing();
  if (printing == nullptr) return;
  Registry &registry = platform_.registry;
  PrintChoices choices = ReadPrintChoices(registry);
  FrmPrint dialog(*printing, printers_, {front.ShownName(), front.FilePath()}, choices, this);
  platform_.dialogs.RunModal(dialog);
  StorePrintChoices(registry, choices);
}

void MfrmProgram::CloseProgram() {
  close();
}

}  // namespace velor
