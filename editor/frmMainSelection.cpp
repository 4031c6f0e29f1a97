// SPDX-License-Identifier: GPL-3.0-or-later
// What the main window shows of the selection: buttons, boxes, status text, the link's target.
#include "editor/EditCommands.h"
#include "editor/MainWindow.h"
#include "editor/frmMain.h"
#include "platform/Conversions.h"

namespace velor {

void frmMain::EditBarCheck(const QString &tbrButtonKey, std::int32_t function) {
  MainWindow &mainWindow = context_.mainWindow;
  switch (component_->QueryStatus(function)) {
    case CommandStatus::NotSupported:
      mainWindow.DisableEditButton(tbrButtonKey);
      break;
    case CommandStatus::Disabled:
      mainWindow.SetEditButton(tbrButtonKey, false, false);
      break;
    case CommandStatus::Enabled:
    case CommandStatus::Ninched:
      mainWindow.SetEditButton(tbrButtonKey, true, false);
      break;
    case CommandStatus::Latched:
      mainWindow.SetEditButton(tbrButtonKey, true, true);
      break;
  }
}

void frmMain::RefreshMfrm() {
  for (const EditCommand &entry : EditCommands) {
    EditBarCheck(entry.key.toString(), entry.Number());
  }
  const auto value = [this](EditingCommand query) {
    return component_->ExecCommand(velor::Number(query)).toString();
  };
  MainWindow &mainWindow = context_.mainWindow;
  mainWindow.ShowFontName(value(EditingCommand::GetFontName));
  mainWindow.ShowBackColor(value(EditingCommand::GetBackColor));
  mainWindow.ShowForeColor(value(EditingCommand::GetForeColor));
  mainWindow.ShowBlockFormat(value(EditingCommand::GetBlockFormat));
  mainWindow.ShowFontSize(value(EditingCommand::GetFontSize));
}

void frmMain::DynaLink() {
  const HtmlElement element = GetActiveElement();
  context_.mainWindow.SetStatusText(element.tagName);
  if (LowerCase(element.tagName) == QStringLiteral("a")) {
    component_->SetToolTip(QStringLiteral("Link to : ") +
                           element.Attribute(QStringLiteral("href")));
  } else {
    component_->SetToolTip(QString());
  }
}

HtmlElement frmMain::GetActiveElement() {
  DocumentSelection &selection = component_->Document().Selection();
  if (selection.Type() == SelectionType::Control) return selection.ControlElement();
  const std::unique_ptr<TextRange> range = selection.CreateRange();
  range->Collapse();
  return range->ParentElement();
}

}  // namespace velor
