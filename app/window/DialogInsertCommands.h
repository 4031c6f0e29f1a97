// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/window/Additions.h"
#include "app/window/InsertCommands.h"
#include "insert/DialogScope.h"

#include <QPointer>
#include <QString>

#include <vector>

namespace velor {

class Components;
class Dialogs;
class Runtime;
class StatusDisplay;
class StylingSweeps;
class frmInsertElement;

/// The insert commands by the element dialog, of which there is one for the whole run, and the
/// table dialog, one for each showing. Their parent is the page's top-level window.
class DialogInsertCommands final : public InsertCommands {
 public:
  /// All outlive it. `html` is ProgramValues::HTMLString. Without `sweeps` the dialogs keep the
  /// palette's own look.
  DialogInsertCommands(Runtime &runtime, Dialogs &dialogs, Components &components,
                       StatusDisplay &status, QString &html, StylingSweeps *sweeps,
                       Additions additions)
      : runtime_(runtime),
        dialogs_(dialogs),
        components_(components),
        status_(status),
        html_(html),
        sweeps_(sweeps),
        additions_(additions) {}

  void Image(frmMain &page) override;
  void Hyperlink(frmMain &page) override;
  void Target(frmMain &page) override;
  void Video(frmMain &page) override;
  /// Pastes `html` at the selection once the dialog has closed, cancelled or not.
  void Table(frmMain &page) override;
  void Markup(frmMain &page) override;
  void Character(frmMain &page) override;
  void Character(frmCodeEditor &editor) override;
  void PictureFile(frmMain &page, const QString &path) override;

 private:
  void Element(const QString &mode, frmMain &page);
  DialogScope Scope() const;

  Runtime &runtime_;
  Dialogs &dialogs_;
  Components &components_;
  StatusDisplay &status_;
  QString &html_;
  StylingSweeps *sweeps_;
  Additions additions_;
  QPointer<frmInsertElement> dialog_;
  std::vector<char32_t> recentCharacters_;  ///< the last one first
};

}  // namespace velor
