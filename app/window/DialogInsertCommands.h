// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/window/InsertCommands.h"

#include <QPointer>
#include <QString>

namespace velor {

class StylingSweeps;
class frmInsertElement;
struct EditorContext;
struct ProgramValues;

/// The insert commands by means of the element dialog, one for the whole run, and the table dialog,
/// one for each showing. Both stand over the page's window.
class DialogInsertCommands final : public InsertCommands {
 public:
  DialogInsertCommands(EditorContext &context, ProgramValues &values, StylingSweeps *sweeps)
      : context_(context), values_(values), sweeps_(sweeps) {}

  void Image(frmMain &page) override;
  void Hyperlink(frmMain &page) override;
  void Target(frmMain &page) override;
  void Video(frmMain &page) override;
  /// Pastes HTMLString at the selection once the dialog has closed, however it closed.
  void Table(frmMain &page) override;
  void PictureFile(frmMain &page, const QString &path) override;

 private:
  void Element(const QString &mode, frmMain &page);

  EditorContext &context_;
  ProgramValues &values_;
  StylingSweeps *sweeps_;
  QPointer<frmInsertElement> dialog_;
};

}  // namespace velor
