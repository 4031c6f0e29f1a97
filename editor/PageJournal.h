// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/Journal.h"

#include <QElapsedTimer>
#include <QTimer>

#include <optional>

namespace velor {

class EditingComponent;
class PageSlots;
class StatusDisplay;

/// Keeps a page's unsaved changes, and the text of its source editor that was not applied, in a
/// journal while there are any. The journal is at most about a second behind what the component
/// knows; it is written between two keys where there is a pause, and about once a second such a
/// pause brings it to the disk. Does nothing where the platform has no journals. A failed write is
/// told in the status bar.
class PageJournal {
 public:
  /// All outlive it. `number` is the page's slot in `pages`. Without `journals` nothing is kept.
  PageJournal(Journals *journals, PageSlots &pages, StatusDisplay &status,
              EditingComponent &component, int number);

  /// The component's Memory() may have changed.
  void DocumentChanged();
  /// The text of the page's source editor may have changed, or may have been applied.
  void SourceChanged();
  /// Writes now what is not written yet. False where the page has unsaved changes that no journal
  /// holds.
  bool Flush();
  /// The page was loaded or saved: its present document needs no journal.
  void MarkSaved();
  /// A save failed: the journal stays until one goes well, although the page counts as saved.
  void MarkSaveFailed();
  /// The page counts as changed whatever it holds: nothing of it is in a file yet.
  void MarkUnsaved();
  /// The person does not want the changes: the journal is deleted.
  void Discard();
  /// The page closes: what is in no file and was not given up stays, for the next start to offer.
  void PageCloses();
  /// Whether the document differs from what was loaded or saved last, or given up.
  bool HasChanges() const;
  /// Whether what the page holds is in its file or in the journal, which is written if need be.
  bool IsSafe();

  /// The program is about to end with this page as it is: writes what Memory() knows of its unsaved
  /// changes to the disk, marked as kept at exit, and follows the page no more. False as with
  /// Flush.
  bool KeepAtExit();
  /// The program goes on after KeepAtExit.
  void CallOffExit();

 private:
  bool IsSaved(const QString &document) const { return saved_ == document; }
  bool IsWritten(const JournalledPage &page) const;
  JournalledPage Page(RunEnd end) const;
  void Remove();
  void WriteSoon();
  bool Write(RunEnd end = RunEnd::Unforeseen);
  /// Writes and syncs what is due. Called when no key is on its way to the screen.
  void WriteBetweenKeys();
  void CompactWhenIdle();
  void Compact();
  /// False where the step failed, which the status bar tells once.
  template <typename Step>
  bool Attempt(Step step);

  /// Whether the journal still follows its page.
  enum class Phase { Following, KeptAtExit, Closed };

  PageSlots &pages_;
  StatusDisplay &status_;
  EditingComponent &component_;
  const int number_;
  std::unique_ptr<Journal> journal_;  ///< null without journals
  std::optional<QString> saved_;      ///< the document that needs no journal; unset while loading
  JournalledPage written_;            ///< what is in the journal
  Phase phase_ = Phase::Following;
  bool hasJournal_ = false;
  bool saveFailed_ = false;
  bool failureTold_ = false;
  QElapsedTimer sinceChange_;  ///< since the first unwritten change; valid while there is one
  QElapsedTimer sinceWrite_;   ///< since the first write that is not on the disk, likewise
  QTimer writing_;
  QTimer compacting_;
};

}  // namespace velor
