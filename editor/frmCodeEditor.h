// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "chrome/ProgramWindow.h"
#include "editor/EditorContext.h"
#include "platform/SourceControl.h"

#include <QString>
#include <QWidget>

#include <cstdint>
#include <memory>

namespace velor {

/// The source editor of one page: its HTML as text, written back into the page by "Apply to
/// Document". While it is open (the page record's EditorOpen) the page cannot be closed.
class frmCodeEditor : public QWidget, public ProgramWindow {
  Q_OBJECT

 public:
  /// `number` is the page's slot.
  frmCodeEditor(EditorContext &context, int number);

  /// The page number as text, or "kill".
  QString Tag;
  /// The source as it stood when the editor was filled or last applied.
  QString AppliedText;
  /// "kill": close without any prompt; or "".
  QString PendingAction;

  SourceControl &Code() { return *code_; }

  /// Writes the source to the page's temporary copy and loads the page from it. 0 on success,
  /// otherwise the number of the error that stopped it; source and applied text then stay. Where
  /// the page can have no temporary copy it takes the text directly. A Tag that names no page
  /// raises SubscriptOutOfRange (9).
  std::int16_t ApplyCode();

  void MarkKill() override;

 protected:
  void closeEvent(QCloseEvent *event) override;

 private:
  enum class CloseDecision { Close, Keep };

  void BuildLayout();
  /// `cmdApply`: ApplyCode, and a message where it fails.
  void Apply();
  CloseDecision AskBeforeClosing();

  EditorContext &context_;
  const int number_;
  std::unique_ptr<SourceControl> code_;
};

}  // namespace velor
