// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "editor/EditorContext.h"
#include "platform/Journal.h"

#include <QElapsedTimer>
#include <QTimer>

#include <optional>

namespace velor {

class EditingComponent;

/// Keeps a page's unsaved changes, and what its source editor holds and was not applied, in a
/// journal while there are any: at most about a second behind what the component knows, in a moment
/// between keys where there is one. While somebody types on, such moments also bring it to the
/// disk, about once a second. Does nothing where the platform has no journals. What cannot be
/// written is told in the status bar.
class PageJournal {
 public:
  /// All outlive it.
  PageJournal(EditorContext &context, EditingComponent &component, int number);

  /// What the component remembers may have changed.
  void Follow();
  /// The source in the page's source editor may have changed, or may have been applied.
  void FollowSource();
  /// Writes what there is to write now; false where that failed.
  bool Catch();
  /// The page was loaded or saved: as it is now nothing is to be kept.
  void Settle();
  /// The page is to be kept although it counts as saved, until a save goes well.
  void SaveFailed();
  /// The page counts as changed whatever it holds: nothing of it is in a file yet.
  void Unsettle();
  /// The person does not want the changes.
  void Discard();
  /// The page goes; what is in no file and was not given up stays, for the next start to offer.
  void Leave();
  /// Whether the document differs from what was loaded or saved last, or given up.
  bool HasChanges() const;
  /// Whether what the page holds is in its file or in the journal, which is written if need be.
  bool IsSafe();

 private:
  bool IsSettled(const QString &document) const { return settled_ == document; }
  bool IsWritten(const JournalledPage &page) const;
  JournalledPage Page() const;
  void Remove();
  void WriteSoon();
  void Write();
  /// Nobody waits for a key to show just now.
  void UseTheMoment();
  void RestWhenIdle();
  void Rest();
  template <typename Step>
  bool Attempt(Step step);

  EditorContext &context_;
  EditingComponent &component_;
  const int number_;
  std::unique_ptr<Journal> journal_;  ///< null without journals
  std::optional<QString> settled_;    ///< the document that needs no journal
  JournalledPage written_;            ///< what is in the journal
  bool hasJournal_ = false;
  bool hasLeft_ = false;
  bool saveFailed_ = false;
  bool failureTold_ = false;
  QElapsedTimer sinceChange_;  ///< since the first that is not written; valid while there is one
  QElapsedTimer sinceWrite_;   ///< since the first that is not on the disk, likewise
  QTimer writing_;
  QTimer resting_;
};

}  // namespace velor
