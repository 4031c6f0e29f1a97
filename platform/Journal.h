// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/PageMemory.h"

#include <QDateTime>

#include <memory>
#include <optional>
#include <vector>

namespace velor {

/// How the run ended that left a page's journal behind.
enum class RunEnd {
  /// It crashed, was killed, or still runs.
  Unforeseen,
  /// The person closed the program with the page unsaved.
  Exit,
};

/// A page with unsaved changes, as a journal has it.
struct JournalledPage {
  /// The page's file in logic form; empty for one that was never saved.
  QString path;
  QString caption;
  /// Whether a plain save writes to `path`.
  enum class Saving { ToItsFile, AsksForAName } saving = Saving::AsksForAName;
  PageMemory page;
  /// When the document was like this.
  QDateTime time;
  /// The text of the page's source editor, where it was not applied to the document.
  std::optional<QString> source = std::nullopt;
  RunEnd end = RunEnd::Unforeseen;
};

/// The journal of one page. It survives a crash of the process once Write returns, and of the
/// machine once Sync or Compact returns. A journal that nobody removes is an abandoned page of a
/// later run. Failures are RuntimeErrors; what was written before stays readable.
class Journal {
 public:
  virtual ~Journal() = default;

  /// Appends what has changed since the last Write.
  virtual void Write(const JournalledPage &page) = 0;
  /// Brings it to the disk. Short enough for a moment between two keys.
  virtual void Sync() = 0;
  /// Sync, and a shorter file where it has grown. For when nobody types.
  virtual void Compact() = 0;
  /// Deletes it: the changes are saved, or nobody wants them. The next Write begins anew.
  virtual void Remove() = 0;
};

/// What a list says of a page whose program ended before its changes were saved.
struct AbandonedPage {
  QString id;
  /// path, caption, time and end as in JournalledPage.
  QString path;
  QString caption;
  QDateTime time;
  /// Whether a source is with it that was not applied.
  bool hasSource = false;
  /// Why nothing of it can be read, for people. Empty where something can, as far as its beginning
  /// tells.
  QString defect;
  RunEnd end = RunEnd::Unforeseen;
};

/// What a journal holds.
struct JournalReading {
  JournalledPage page;
  /// Whether something stands behind it that cannot be read any more: the last changes.
  bool endIsMissing = false;
};

/// The journals of a person's running and ended programs. A run never sees what another run that
/// still goes on has written, nor what another run is already offering.
class Journals {
 public:
  virtual ~Journals() = default;

  /// Why no journal can be written, for people; empty where they can.
  virtual QString Hindrance() = 0;

  /// An empty journal; no file is made before the first Write. Must not outlive the Journals.
  virtual std::unique_ptr<Journal> Begin() = 0;

  /// The pages of runs that have ended, newest first; from now on they are this run's to offer.
  /// Where there are very many these are the newest, and the others follow when these are gone.
  virtual std::vector<AbandonedPage> Abandoned() = 0;
  /// What is left of an abandoned page. Raises RuntimeError where that is nothing.
  virtual JournalReading Read(const QString &id) = 0;
  /// Deletes the journal of an abandoned page. Raises RuntimeError where it cannot.
  virtual void Discard(const QString &id) = 0;
};

}  // namespace velor
