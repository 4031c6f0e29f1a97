// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/PageJournal.h"

#include "editor/MainWindow.h"
#include "editor/PagePictures.h"
#include "editor/PageSlots.h"
#include "editor/frmCodeEditor.h"
#include "editor/frmMain.h"
#include "platform/EditingComponent.h"
#include "platform/RuntimeError.h"
#include "platform/Words.h"

#include <algorithm>
#include <chrono>

namespace velor {

namespace {

using namespace std::chrono_literals;

/// Longer than the time between two keys of somebody who types without a pause.
constexpr std::chrono::milliseconds Pause = 150ms;
/// With the component's own delay the journal is less than two seconds behind.
constexpr std::chrono::milliseconds LongestDelay = 300ms;
/// After a pause this long no key press is pending.
constexpr std::chrono::milliseconds Idle = 500ms;
/// A journal that waits longer than this for the disk is synced at the next pause between keys,
/// which comes about once a second.
constexpr std::chrono::milliseconds LongestUnsynced = 500ms;

}  // namespace

PageJournal::PageJournal(Journals *journals, PageSlots &pages, StatusDisplay &status,
                         EditingComponent &component, int number)
    : pages_(pages), status_(status), component_(component), number_(number) {
  if (journals != nullptr) journal_ = journals->Begin();
  writing_.setSingleShot(true);
  compacting_.setSingleShot(true);
  QObject::connect(&writing_, &QTimer::timeout, [this] { Write(); });
  QObject::connect(&compacting_, &QTimer::timeout, [this] { CompactWhenIdle(); });
}

void PageJournal::DocumentChanged() {
  if (!journal_ || !saved_) return;
  const QString document = component_.Memory().document;
  if (hasJournal_ ? document != written_.page.document : !IsSaved(document)) WriteSoon();
  if (component_.IsIdle()) WriteBetweenKeys();
}

void PageJournal::SourceChanged() {
  if (journal_ && saved_) WriteSoon();
}

void PageJournal::WriteSoon() {
  if (phase_ != Phase::Following) return;
  if (!sinceChange_.isValid()) sinceChange_.start();
  const std::chrono::milliseconds left =
      LongestDelay - std::chrono::milliseconds(sinceChange_.elapsed());
  writing_.start(std::clamp(left, 0ms, Pause));
  compacting_.start(Idle);
}

void PageJournal::WriteBetweenKeys() {
  if (writing_.isActive()) Write();
  if (!sinceWrite_.isValid() || !sinceWrite_.hasExpired(LongestUnsynced.count())) return;
  sinceWrite_.invalidate();
  RunOrReport([this] { journal_->Sync(); });
}

bool PageJournal::Flush() {
  return Write();
}

void PageJournal::MarkSaved() {
  saveFailed_ = false;
  saved_ = component_.Memory().document;
  // A save takes the document alone: a source that was not applied to it is still to be kept.
  if (Page(RunEnd::Unforeseen).source) {
    Write();
  } else {
    Remove();
  }
}

void PageJournal::MarkSaveFailed() {
  saveFailed_ = true;
  if (!hasJournal_) Write();
}

void PageJournal::MarkUnsaved() {
  // No serialisation is the null text.
  saved_ = QString();
}

void PageJournal::Discard() {
  saveFailed_ = false;
  saved_ = component_.Memory().document;
  pages_.DisplacedSource(number_).reset();
  Remove();
}

void PageJournal::Remove() {
  writing_.stop();
  compacting_.stop();
  sinceChange_.invalidate();
  sinceWrite_.invalidate();
  if (hasJournal_) journal_->Remove();
  hasJournal_ = false;
}

void PageJournal::Close() {
  if (phase_ != Phase::Following) return;
  if (saved_) {
    Write();
    Compact();
  } else {
    Remove();  // a page that was never made whole
  }
  phase_ = Phase::Closed;
}

bool PageJournal::HasChanges() const {
  return saved_ && !IsSaved(component_.Memory().document);
}

bool PageJournal::IsSafe() {
  if (!HasChanges()) return true;
  if (!journal_) return !saveFailed_;
  Write();
  return hasJournal_ && IsWritten(Page(RunEnd::Unforeseen));
}

bool PageJournal::KeepAtExit() {
  if (!journal_ || !saved_ || phase_ != Phase::Following) return true;
  const bool isWritten = Write(RunEnd::Exit);
  phase_ = Phase::KeptAtExit;
  compacting_.stop();
  if (!hasJournal_) return isWritten;
  return RunOrReport([this] { journal_->Sync(); }) && isWritten;
}

void PageJournal::CancelExit() {
  if (phase_ != Phase::KeptAtExit) return;
  phase_ = Phase::Following;
  Write();
}

JournalledPage PageJournal::Page(RunEnd end) const {
  const PageRecord &record = pages_.Record(number_);
  const bool hasFile = record.HasFile != False16;
  const frmCodeEditor *editor = pages_.CodeEditor(number_);
  frmMain *window = pages_.Page(number_);
  const auto typed = editor == nullptr ? std::nullopt : editor->UnappliedText();
  return {record.Path,
          record.Caption,
          hasFile ? JournalledPage::Saving::ToItsFile : JournalledPage::Saving::AsksForAName,
          component_.Memory(),
          QDateTime::currentDateTime(),
          typed ? typed : pages_.DisplacedSource(number_),
          end,
          window == nullptr ? QList<JournalledPicture>() : window->Pictures().Unsaved()};
}

bool PageJournal::Write(RunEnd end) {
  if (!journal_ || phase_ != Phase::Following) return true;
  writing_.stop();
  sinceChange_.invalidate();
  const JournalledPage page = Page(end);
  if (hasJournal_ && IsWritten(page)) return true;
  if (IsSaved(page.page.document) && !page.source && !saveFailed_) {
    Remove();
    return true;
  }
  if (!RunOrReport([&] { journal_->Write(page); })) return false;
  if (!sinceWrite_.isValid()) sinceWrite_.start();
  hasJournal_ = true;
  written_ = page;
  return true;
}

bool PageJournal::IsWritten(const JournalledPage &page) const {
  return page.path == written_.path && page.saving == written_.saving &&
         page.page == written_.page && page.source == written_.source &&
         page.pictures == written_.pictures && page.end == written_.end;
}

void PageJournal::CompactWhenIdle() {
  component_.IsIdle() ? Compact() : compacting_.start(Idle);
}

void PageJournal::Compact() {
  compacting_.stop();
  sinceWrite_.invalidate();
  if (hasJournal_) RunOrReport([this] { journal_->Compact(); });
}

template <typename Step>
bool PageJournal::RunOrReport(Step step) {
  try {
    step();
    failureTold_ = false;
    return true;
  } catch (const RuntimeError &error) {
    if (!failureTold_) {
      status_.Report(Words::tr("The changes of %1 could not be kept for a recovery: %2")
                         .arg(pages_.Record(number_).Caption, error.Description()));
    }
    failureTold_ = true;
    return false;
  }
}

}  // namespace velor
