// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/PageJournal.h"

#include "editor/MainWindow.h"
#include "editor/PageSlots.h"
#include "editor/frmCodeEditor.h"
#include "platform/EditingComponent.h"
#include "platform/Platform.h"
#include "platform/RuntimeError.h"

#include <algorithm>
#include <chrono>

namespace velor {

namespace {

using namespace std::chrono_literals;

/// Between two keys of somebody who types on there is less than this.
constexpr std::chrono::milliseconds Pause = 150ms;
/// With the component's own delay this leaves the journal less than two seconds behind.
constexpr std::chrono::milliseconds LongestDelay = 600ms;
/// Whoever rests this long does not wait for a key to show.
constexpr std::chrono::milliseconds Idle = 500ms;
/// After this a moment between two keys is used to bring the journal to the disk. They come about
/// once a second.
constexpr std::chrono::milliseconds LongestUnsynced = 500ms;

}  // namespace

PageJournal::PageJournal(EditorContext &context, EditingComponent &component, int number)
    : context_(context), component_(component), number_(number) {
  if (context.platform.journals != nullptr) journal_ = context.platform.journals->Begin();
  writing_.setSingleShot(true);
  resting_.setSingleShot(true);
  QObject::connect(&writing_, &QTimer::timeout, [this] { Write(); });
  QObject::connect(&resting_, &QTimer::timeout, [this] { RestWhenIdle(); });
}

void PageJournal::Follow() {
  // Before it is settled for the first time the page is still being made.
  if (!journal_ || !settled_) return;
  const QString document = component_.Memory().document;
  if (hasJournal_ ? document != written_.page.document : !IsSettled(document)) WriteSoon();
  if (component_.IsIdle()) UseTheMoment();
}

void PageJournal::FollowSource() {
  if (journal_ && settled_) WriteSoon();
}

void PageJournal::WriteSoon() {
  if (hasLeft_) return;
  if (!sinceChange_.isValid()) sinceChange_.start();
  const std::chrono::milliseconds left =
      LongestDelay - std::chrono::milliseconds(sinceChange_.elapsed());
  writing_.start(std::clamp(left, 0ms, Pause));
  resting_.start(Idle);
}

void PageJournal::UseTheMoment() {
  if (writing_.isActive()) Write();
  if (!sinceWrite_.isValid() || !sinceWrite_.hasExpired(LongestUnsynced.count())) return;
  sinceWrite_.invalidate();
  Attempt([this] { journal_->Sync(); });
}

bool PageJournal::Catch() {
  Write();
  return !failureTold_;
}

void PageJournal::Settle() {
  saveFailed_ = false;
  settled_ = component_.Memory().document;
  // A save takes the document alone: a source that was not applied to it is still to be kept.
  if (Page().source) {
    Write();
  } else {
    Remove();
  }
}

void PageJournal::SaveFailed() {
  saveFailed_ = true;
  if (!hasJournal_) Write();
}

void PageJournal::Unsettle() {
  // No serialisation is the null text.
  settled_ = QString();
}

void PageJournal::Discard() {
  saveFailed_ = false;
  settled_ = component_.Memory().document;
  context_.pages.SetAsideSource(number_).reset();
  Remove();
}

void PageJournal::Remove() {
  writing_.stop();
  resting_.stop();
  sinceChange_.invalidate();
  sinceWrite_.invalidate();
  if (hasJournal_) journal_->Remove();
  hasJournal_ = false;
}

void PageJournal::Leave() {
  if (settled_) {
    Write();
    Rest();
  } else {
    Remove();  // a page that was never made whole
  }
  hasLeft_ = true;
}

bool PageJournal::HasChanges() const {
  return settled_ && !IsSettled(component_.Memory().document);
}

bool PageJournal::IsSafe() {
  if (!HasChanges()) return true;
  if (!journal_) return !saveFailed_;
  Write();
  return hasJournal_ && IsWritten(Page());
}

JournalledPage PageJournal::Page() const {
  const PageRecord &record = context_.pages.Record(number_);
  const bool hasFile = record.HasFile != False16;
  const frmCodeEditor *editor = context_.pages.CodeEditor(number_);
  const auto typed = editor == nullptr ? std::nullopt : editor->UnappliedText();
  return {record.Path,
          record.Caption,
          hasFile ? JournalledPage::Saving::ToItsFile : JournalledPage::Saving::AsksForAName,
          component_.Memory(),
          QDateTime::currentDateTime(),
          typed ? typed : context_.pages.SetAsideSource(number_)};
}

void PageJournal::Write() {
  if (!journal_ || hasLeft_) return;
  writing_.stop();
  sinceChange_.invalidate();
  const JournalledPage page = Page();
  if (hasJournal_ && IsWritten(page)) return;
  if (IsSettled(page.page.document) && !page.source && !saveFailed_) return Remove();
  if (!Attempt([&] { journal_->Write(page); })) return;
  if (!sinceWrite_.isValid()) sinceWrite_.start();
  hasJournal_ = true;
  written_ = page;
}

bool PageJournal::IsWritten(const JournalledPage &page) const {
  return page.path == written_.path && page.saving == written_.saving &&
         page.page == written_.page && page.source == written_.source;
}

void PageJournal::RestWhenIdle() {
  component_.IsIdle() ? Rest() : resting_.start(Idle);
}

void PageJournal::Rest() {
  resting_.stop();
  sinceWrite_.invalidate();
  if (hasJournal_) Attempt([this] { journal_->Rest(); });
}

template <typename Step>
bool PageJournal::Attempt(Step step) {
  try {
    step();
    failureTold_ = false;
    return true;
  } catch (const RuntimeError &error) {
    if (!failureTold_) {
      context_.mainWindow.status.Report(
          QStringLiteral("The changes of %1 could not be kept for a recovery: %2")
              .arg(context_.pages.Record(number_).Caption, error.Description()));
    }
    failureTold_ = true;
    return false;
  }
}

}  // namespace velor
