// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/PageMemory.h"

#include <QDateTime>

#include <memory>
#include <vector>

namespace velor {

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
};

/// The journal of one page: what it holds is on this side of the process's end as soon as Write
/// has returned, and on the disk when Sync or Rest has. A journal that nobody removes is an
/// abandoned page of a later run. Failures are RuntimeErrors; what was written before stays
/// readable.
class Journal {
 public:
  virtual ~Journal() = default;

  /// Appends what has changed since the last time.
  virtual void Write(const JournalledPage &page) = 0;
  /// Brings it to the disk. For a moment between two keys.
  virtual void Sync() = 0;
  /// Brings it to the disk, and into a shorter form where it has grown. For when the person rests.
  virtual void Rest() = 0;
  /// The changes are saved, or nobody wants them. The next Write begins anew.
  virtual void Remove() = 0;
};

/// A page whose program ended before its changes were saved.
struct AbandonedPage {
  QString id;
  JournalledPage page;
};

/// The journals of a person's running and ended programs. A run never sees what another run that
/// still goes on has written, nor what another run is already offering.
class Journals {
 public:
  virtual ~Journals() = default;

  /// A journal with nothing in it yet; nothing is made before the first Write. Must not outlive
  /// the Journals.
  virtual std::unique_ptr<Journal> Begin() = 0;

  /// The pages of runs that have ended, oldest first; from now on they are this run's to offer.
  virtual std::vector<AbandonedPage> Abandoned() = 0;
  /// Does away with an abandoned page.
  virtual void Discard(const QString &id) = 0;
};

}  // namespace velor
