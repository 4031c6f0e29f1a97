// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/frmCodeEditor.h"

#include "chrome/Icons.h"
#include "editor/MainWindow.h"
#include "editor/PageSlots.h"
#include "editor/PageWords.h"
#include "editor/SourceWrap.h"
#include "editor/frmMain.h"
#include "editor/modGeneral.h"
#include "editor/modWorkFlow.h"
#include "page/text/PageEncoding.h"
#include "platform/Conversions.h"
#include "platform/Dialogs.h"
#include "platform/Platform.h"
#include "platform/Runtime.h"
#include "platform/RuntimeError.h"
#include "platform/TextDifference.h"
#include "platform/Words.h"

#include <QCloseEvent>
#include <QLabel>
#include <QPointer>
#include <QTimer>

#include <chrono>

namespace velor {

namespace {

/// Colour slots of the source control: margin background and line numbers grey on white.
constexpr std::int32_t Grey = 8421504;
constexpr std::int32_t White = 16777215;

/// How soon the page is asked again for its text while a call into the engine waits.
constexpr std::chrono::milliseconds FollowAgain{100};

/// Letter case and outer blanks do not count as changes.
bool Differ(const QString &left, const QString &right) {
  return LowerCase(TrimBlanks(left)) != LowerCase(TrimBlanks(right));
}

QString NameOf(LineEnds lineEnds) {
  switch (lineEnds) {
    case LineEnds::CrLf:
      return QStringLiteral("CR LF");
    case LineEnds::Lf:
      return QStringLiteral("LF");
    case LineEnds::Cr:
      return QStringLiteral("CR");
  }
  return {};
}

}  // namespace

frmCodeEditor::frmCodeEditor(EditorContext &context, int number)
    : context_(context),
      number_(number),
      code_(context.platform.components.CreateSourceControl(this, SourceAccess::Edit)),
      search_(*code_, SourceAccess::Edit),
      spelling_(*code_, SourceAccess::Edit, [this](const QString &message) {
        context_.mainWindow.status.ReportOn(number_, message);
      }) {
  setObjectName(QStringLiteral("frmCodeEditor"));
  setAttribute(Qt::WA_DeleteOnClose);
  setWindowIcon(IconFor(QStringLiteral("editcode")));
  BuildLayout();
  code_->SetColor(1, Grey);
  code_->SetColor(27, Grey);
  code_->SetColor(26, White);
  code_->SetMarkedLine(0);
  code_->SetLineWrap(ChosenLineWrap(context_.platform.registry));
  code_->SetSelectionListener([this] { SelectionChanged(); });
  code_->SetTextListener([this] {
    UpdateJournal();
    spelling_.TextChanged();
  });
}

std::optional<QString> frmCodeEditor::UnappliedText() const {
  if (context_.pages.Record(number_).EditorOpen == False16) return std::nullopt;
  const QString text = code_->Text();
  return text == AppliedText ? std::nullopt : std::optional(text);
}

void frmCodeEditor::UpdateJournal() {
  frmMain *page = context_.pages.Page(number_);
  if (page == nullptr) return;
  page->Journal().SourceChanged();
  page->ShowTab();
}

void frmCodeEditor::Fill(const QString &source, const ElementStretch &caret) {
  code_->SetText(source);
  SourceReplaced(caret);
}

void frmCodeEditor::Refill(const QString &source, const ElementStretch &caret,
                           const QString &typed) {
  context_.pages.DisplacedSource(number_) = typed;
  code_->ReplaceText(source);
  SourceReplaced(caret);
  context_.mainWindow.status.Report(
      Words::tr("The page's source is shown again. The source that was typed and not applied "
                "comes back with Undo (Ctrl+Z)"));
}

void frmCodeEditor::SourceReplaced(const ElementStretch &caret) {
  lineEnds_->setText(NameOf(DeclaredEncoding(code_->Text()).lineEnds));
  ShowStretchIn(*code_, caret);
  filledCaret_ = CaretOf(*code_);
  SelectionChanged();
  UseSpelling(context_, number_);
}

void frmCodeEditor::SelectionChanged() {
  const SourceCaret caret = CaretOf(*code_);
  code_->SetMarkedLine(caret.line);
  place_->setText(Words::tr("Line %1, Column %2").arg(caret.line + 1).arg(caret.column + 1));
  spelling_.CaretMoved();
  const int length = code_->LineLength(caret.line);
  if (caret.column > length && code_->SelectedText().isEmpty()) code_->SetCaret(caret.line, length);
}

bool frmCodeEditor::Apply() {
  const QPointer<frmCodeEditor> alive(this);
  context_.platform.runtime.ProcessPendingEvents();
  if (alive == nullptr) return false;
  Dialogs &dialogs = context_.platform.dialogs;
  const std::int16_t result = ApplyCode();
  if (alive == nullptr) return false;
  code_->SetFocus();
  if (result == 0) return true;
  Message failure;
  failure.text = Description(result);
  failure.title = Words::tr("Error Number: %1").arg(result);
  failure.icon = MessageIcon::Critical;
  dialogs.ShowMessage(failure);
  return false;
}

void frmCodeEditor::InsertCharacter(const QString &character) {
  const QByteArray bytes = EncodePage(
      character, EncodingInPlaceOf(modWorkFlow::EncodingOf(context_, number_), code_->Text()));
  const bool isReference = bytes.startsWith("&#");
  code_->ReplaceSelection(isReference ? QString::fromLatin1(bytes) : character.toHtmlEscaped());
  code_->SetFocus();
}

QString frmCodeEditor::ShownName() const {
  return Words::tr("%1, HTML source").arg(PageName(context_, number_));
}

void frmCodeEditor::Edit(EditingCommand command) {
  code_->Edit(command);
}

void frmCodeEditor::OnActivated() {
  ShowPageWithoutFormats(context_, number_);
  if (context_.hasAdditions)
    QMetaObject::invokeMethod(this, &frmCodeEditor::FollowPage, Qt::QueuedConnection);
}

void frmCodeEditor::FollowPage() {
  const QPointer<frmCodeEditor> alive(this);
  frmMain *page = context_.pages.Page(number_);
  if (page == nullptr || context_.pages.Record(number_).EditorOpen == False16) return;
  if (page->DHTML1().IsWaiting()) {
    QTimer::singleShot(FollowAgain, this, &frmCodeEditor::FollowPage);
    return;
  }
  QString shown;
  try {
    shown = page->DHTML1().TextToSave();
  } catch (const RuntimeError &) {
    return;  // the page itself tells
  }
  if (alive == nullptr || shown == AppliedText) return;
  const std::optional<TextReplacement> change = CarriedChange(AppliedText, shown, code_->Text());
  if (!change) {
    // Another page may have come to the front; OnActivated leads here again.
    if (context_.mainWindow.windows.Current() != this) return;
    context_.mainWindow.status.ReportOn(
        number_,
        Words::tr("Design view changed the page where its source was changed too. Applying the "
                  "source takes these changes back, until Undo"));
    return;
  }
  AppliedText = shown;
  code_->ReplaceParts({*change});
  filledCaret_ = CaretOf(*code_);
}

std::int16_t frmCodeEditor::ApplyCode() {
  const QPointer<frmCodeEditor> alive(this);
  const std::int16_t index = CInt(Tag);
  const PageRecord record = context_.pages.Record(index);
  const QString text = code_->Text();
  modWorkFlow::WriteTemporaryCopy(context_, index, text, modWorkFlow::CopyEnd::LineBreak);
  try {
    EditingComponent &page = modWorkFlow::PageWindow(context_, index).DHTML1();
    // The text and not the file: the copy's last line break is no part of the page.
    page.LoadText(text, record.Path.isEmpty() ? record.TempPath : record.Path);
    // The page may have been closed while it loaded, and this window with it.
    if (alive == nullptr) return 0;
    AppliedText = code_->Text();
    context_.pages.DisplacedSource(number_).reset();
    UpdateJournal();
    ReturnCaret();
    if (frmMain *window = context_.pages.Page(number_)) window->RefreshSourceView();
    return 0;
  } catch (const RuntimeError &error) {
    return CInt(static_cast<double>(error.Code()));
  }
}

void frmCodeEditor::ReturnCaret() {
  frmMain *page = context_.pages.Page(number_);
  if (page == nullptr || CaretOf(*code_) == filledCaret_) return;
  page->DHTML1().ShowStretch(SelectedPlacesOf(*code_));
}

frmCodeEditor::CloseDecision frmCodeEditor::AskBeforeClosing() {
  if (PendingAction == QStringLiteral("kill")) return CloseDecision::Close;
  if (!Differ(AppliedText, code_->Text())) {
    if (AppliedText == code_->Text()) ReturnCaret();
    return CloseDecision::Close;
  }
  Message question;
  question.text = Words::tr("Do you want to apply the changes on this Document?");
  question.buttons = MessageButtons::YesNoCancel;
  question.icon = MessageIcon::Question;
  switch (context_.platform.dialogs.ShowMessage(question)) {
    case MessageAnswer::Yes:
      break;
    case MessageAnswer::No:
      context_.pages.DisplacedSource(number_).reset();
      return CloseDecision::Close;
    default:
      return CloseDecision::Keep;
  }
  Dialogs &dialogs = context_.platform.dialogs;
  const std::int16_t result = ApplyCode();
  if (result == 0) return CloseDecision::Close;
  Message failure;
  failure.text = Description(result);
  dialogs.ShowMessage(failure);
  return CloseDecision::Keep;
}

PagePrinting *frmCodeEditor::Printing() {
  frmMain *page = context_.pages.Page(number_);
  return page == nullptr ? nullptr : &page->DHTML1().Printing();
}

void frmCodeEditor::MarkKill() {
  Tag = QStringLiteral("kill");
  PendingAction = QStringLiteral("kill");
}

void frmCodeEditor::closeEvent(QCloseEvent *event) {
  const QPointer<frmCodeEditor> alive(this);
  const CloseDecision decision = AskBeforeClosing();
  if (alive == nullptr) return;
  if (decision == CloseDecision::Keep) {
    event->ignore();
    return;
  }
  context_.pages.Record(number_).EditorOpen = False16;
  // The person gave up what was not applied.
  if (frmMain *page = context_.pages.Page(number_)) page->Journal().Flush();
  context_.pages.CodeEditor(number_).clear();
  context_.mainWindow.windows.Release(this);
  event->accept();
}

}  // namespace velor
