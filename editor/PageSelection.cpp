// SPDX-License-Identifier: GPL-3.0-or-later
// frmMain: what the main window shows of the selection (buttons, boxes, tag, a link's target).
#include "editor/EditCommands.h"
#include "editor/MainWindow.h"
#include "editor/PageFrame.h"
#include "editor/PageWidths.h"
#include "editor/frmMain.h"
#include "platform/Conversions.h"
#include "platform/Words.h"

namespace velor {
namespace {

/// Where the selected cells or the object out of the flow are, as the status bar tells it.
QString MeasuresOf(const HtmlDocument &document) {
  if (const QRect cells = document.SelectedCells(); !cells.isNull())
    return Words::tr("Rows %1-%2, columns %3-%4")
        .arg(QString::number(cells.top() + 1), QString::number(cells.bottom() + 1),
             QString::number(cells.left() + 1), QString::number(cells.right() + 1));
  const QRect place = document.ObjectPlace();
  if (place.isNull()) return {};
  return Words::tr("Left %1, top %2, size %3 × %4")
      .arg(QString::number(place.left()), QString::number(place.top()),
           QString::number(place.width()), QString::number(place.height()));
}

}  // namespace

void frmMain::EditBarCheck(EditingCommand button, EditingCommand command) {
  FormatDisplay &formats = context_.mainWindow.formats;
  switch (component_->QueryStatus(command)) {
    case CommandStatus::NotSupported:
      formats.ShowButton(button, ButtonState::Unsupported);
      break;
    case CommandStatus::Disabled:
      formats.ShowButton(button, ButtonState::Off);
      break;
    case CommandStatus::Enabled:
    case CommandStatus::Ninched:
      formats.ShowButton(button, ButtonState::On);
      break;
    case CommandStatus::Latched:
      formats.ShowButton(button, ButtonState::Pressed);
      break;
  }
}

bool frmMain::IsInFront() const {
  return context_.mainWindow.windows.Current() == this;
}

void frmMain::ShowState() {
  if (View() == FrontView::SourceView || Ready != QStringLiteral("True")) {
    context_.mainWindow.formats.ShowNothing();
    context_.mainWindow.status.ShowTag({});
    context_.mainWindow.status.ShowPath({});
    context_.mainWindow.status.ShowMeasures({});
  } else {
    RefreshMfrm();
    DynaLink();
  }
  // Undo past an applied source brings back what the bytes were before.
  context_.mainWindow.status.ShowTextForm(
      TextFormAndZoom(component_->TextForm(), View() == FrontView::Design ? Zoom() : 1));
}

double frmMain::Zoom() const {
  return widths_->Frame().Zoom();
}

void frmMain::SetZoom(double factor) {
  if (View() != FrontView::Design) return;
  widths_->Frame().SetZoom(factor);
  if (IsInFront()) ShowState();
}

bool frmMain::ToggleWidths() {
  if (View() != FrontView::Design) return false;
  widths_->Toggle();
  return true;
}

void frmMain::RefreshMfrm() {
  for (const EditCommand &entry : EditCommands) EditBarCheck(entry.command, entry.command);
  const auto value = [this](EditingCommand query) {
    return component_->ExecCommand(query).toString();
  };
  FormatDisplay &formats = context_.mainWindow.formats;
  formats.ShowFontName(value(EditingCommand::GetFontName));
  formats.ShowBackColor(value(EditingCommand::GetBackColor));
  formats.ShowForeColor(value(EditingCommand::GetForeColor));
  formats.ShowBlockFormat(value(EditingCommand::GetBlockFormat));
  formats.ShowFontSize(value(EditingCommand::GetFontSize));
}

void frmMain::DynaLink() {
  const HtmlElement element = GetActiveElement();
  context_.mainWindow.status.ShowTag(element.tagName);
  context_.mainWindow.status.ShowPath(component_->Document().Path());
  context_.mainWindow.status.ShowMeasures(MeasuresOf(component_->Document()));
  if (LowerCase(element.tagName) == QStringLiteral("a")) {
    component_->SetToolTip(Words::tr("Link to : ") + element.Attribute(QStringLiteral("href")));
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
