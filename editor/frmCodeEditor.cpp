// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/frmCodeEditor.h"

#include "chrome/Icons.h"
#include "editor/MainWindow.h"
#include "editor/PageSlots.h"
#include "editor/frmMain.h"
#include "editor/modWorkFlow.h"
#include "platform/Conversions.h"
#include "platform/Dialogs.h"
#include "platform/Platform.h"
#include "platform/Runtime.h"
#include "platform/RuntimeError.h"

#include <QCloseEvent>
#include <QHBoxLayout>
#include <QPushButton>
#include <QStatusBar>
#include <QVBoxLayout>

namespace velor {

namespace {

/// Colour slots of the source control: margin background and line numbers grey on white.
constexpr std::int32_t Grey = 8421504;
constexpr std::int32_t White = 16777215;

/// Letter case and outer blanks do not count as changes.
bool Differ(const QString &left, const QString &right) {
  return LowerCase(TrimBlanks(left)) != LowerCase(TrimBlanks(right));
}

}  // namespace

frmCodeEditor::frmCodeEditor(EditorContext &context, int number)
    : context_(context),
      number_(number),
      code_(context.platform.components.CreateSourceControl(this, SourceAccess::Edit)) {
  setObjectName(QStringLiteral("frmCodeEditor"));
  setAttribute(Qt::WA_DeleteOnClose);
  setWindowIcon(IconFor(QStringLiteral("editcode")));
  BuildLayout();
  code_->SetColor(1, Grey);
  code_->SetColor(27, Grey);
  code_->SetColor(26, White);
}

void frmCodeEditor::BuildLayout() {
  auto *picTop = new QWidget(this);
  picTop->setObjectName(QStringLiteral("picTop"));
  auto *cmdApply = new QPushButton(QStringLiteral("Apply to Document"), picTop);
  cmdApply->setObjectName(QStringLiteral("cmdApply"));
  cmdApply->setAccessibleName(cmdApply->text());
  cmdApply->setToolTip(QStringLiteral("Write the source back into the page"));
  connect(cmdApply, &QPushButton::clicked, this, &frmCodeEditor::Apply);
  auto *top = new QHBoxLayout(picTop);
  top->setContentsMargins(6, 4, 6, 4);
  top->addWidget(cmdApply);
  top->addStretch(1);

  code_->Widget()->setObjectName(QStringLiteral("Code"));
  code_->Widget()->setAccessibleName(QStringLiteral("HTML source"));

  auto *staMain = new QStatusBar(this);
  staMain->setObjectName(QStringLiteral("staMain"));
  staMain->setSizeGripEnabled(false);

  auto *layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(0);
  layout->addWidget(picTop);
  layout->addWidget(code_->Widget(), 1);
  layout->addWidget(staMain);
  setFocusProxy(code_->Widget());
}

void frmCodeEditor::Apply() {
  context_.platform.runtime.ProcessPendingEvents();
  const std::int16_t result = ApplyCode();
  if (result == 0) return;
  Message failure;
  failure.text = Description(result);
  failure.title = QStringLiteral("Error Number: %1").arg(result);
  failure.icon = MessageIcon::Critical;
  context_.platform.dialogs.ShowMessage(failure);
}

std::int16_t frmCodeEditor::ApplyCode() {
  const std::int16_t index = CInt(Tag);
  const QString tempPath = context_.pages.Record(index).TempPath;
  const QString text = code_->Text();
  const bool written = modWorkFlow::WriteTemporaryCopy(context_.platform.files, tempPath, text);
  try {
    EditingComponent &page = modWorkFlow::PageWindow(context_, index).DHTML1();
    if (written) {
      page.LoadDocument(tempPath);
    } else {
      page.SetDocumentHTML(text);
    }
    AppliedText = code_->Text();
    return 0;
  } catch (const RuntimeError &error) {
    return CInt(static_cast<double>(error.Code()));
  }
}

frmCodeEditor::CloseDecision frmCodeEditor::AskBeforeClosing() {
  if (PendingAction == QStringLiteral("kill") || !Differ(AppliedText, code_->Text())) {
    return CloseDecision::Close;
  }
  Message question;
  question.text = QStringLiteral("Do you want to apply the changes on this Document?");
  question.buttons = MessageButtons::YesNoCancel;
  question.icon = MessageIcon::Question;
  switch (context_.platform.dialogs.ShowMessage(question)) {
    case MessageAnswer::No:
      return CloseDecision::Close;
    case MessageAnswer::Yes:
      break;
    default:
      return CloseDecision::Keep;
  }
  const std::int16_t result = ApplyCode();
  if (result == 0) return CloseDecision::Close;
  Message failure;
  failure.text = Description(result);
  context_.platform.dialogs.ShowMessage(failure);
  return CloseDecision::Keep;
}

void frmCodeEditor::MarkKill() {
  Tag = QStringLiteral("kill");
  PendingAction = QStringLiteral("kill");
}

void frmCodeEditor::closeEvent(QCloseEvent *event) {
  if (AskBeforeClosing() == CloseDecision::Keep) {
    event->ignore();
    return;
  }
  context_.pages.Record(number_).EditorOpen = False16;
  context_.pages.CodeEditor(number_).clear();
  context_.mainWindow.ReleaseWindow(this);
  event->accept();
}

}  // namespace velor
