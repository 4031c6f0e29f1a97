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

/// Keeps a page's unsaved changes, and the source that was typed and not applied, in a journal. A
/// change is written about a second after EditingComponent::Memory has it, sooner in a pause
/// between two keys; about once a second such a pause also syncs the journal. Does nothing without
/// journals. A failed write is reported in the status bar.
class PageJournal {
 public:
  /// All outlive it. `number` is the page's slot in `pages`. Without `journals` nothing is kept.
  PageJournal(Journals *journals, PageSlots &pages, StatusDisplay &status,
              EditingComponent &component, int number);

  /// To be called when the component's Memory() may have changed.
  void DocumentChanged();
  /// To be called when the text of the page's source editor may have changed or been applied.
  void SourceChanged();
  /// Writes now what is not written yet. False where writing failed: the journal has not all
  /// unsaved changes.
  bool Flush();
  /// The page was loaded or saved: its present document counts as saved.
  void MarkSaved();
  /// A save failed: the journal stays until a save succeeds, even where the document counts as
  /// saved.
  void MarkSaveFailed();
  /// The page counts as changed, whatever its document is: nothing of it is in a file yet.
  void MarkUnsaved();
  /// The person gave the changes up: deletes the journal.
  void Discard();
  /// The page closes. The journal of changes that are neither saved nor given up stays, and the
  /// next start offers them.
  void Close();
  /// Whether the document differs from the one last loaded, saved or given up.
  bool HasChanges() const;
  /// Whether the page's content is in its file or in the journal, which is written now if needed.
  bool IsSafe();

  /// The program is about to end with this page unsaved: writes and syncs the unsaved changes that
  /// Memory() has, marked as kept at exit, and ignores later changes. False as with Flush.
  bool KeepAtExit();
  /// The program goes on after KeepAtExit: changes are written again.
  void CancelExit();

 private:
  bool IsSaved(const QString &document) const { return saved_ == document; }
  bool IsWritten(const JournalledPage &page) const;
  JournalledPage Page(RunEnd end) const;
  void Remove();
  void WriteSoon();
  bool Write(RunEnd end = RunEnd::Unforeseen);
  /// Writes and syncs what is due. Called when no key press is pending.
  void WriteBetweenKeys();
  void CompactWhenIdle();
  void Compact();
  /// Runs a step on the journal. False where it raised RuntimeError; the first failure in a row is
  /// reported in the status bar.
  template <typename Step>
  bool RunOrReport(Step step);

  /// Whether changes of the page are still written.
  enum class Phase { Following, KeptAtExit, Closed };

  PageSlots &pages_;
  StatusDisplay &status_;
  EditingComponent &component_;
  const int number_;
  std::unique_ptr<Journal> journal_;  ///< null without journals
  std::optional<QString> saved_;      ///< the document that counts as saved; unset while loading
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
