// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>

namespace velor {

/// The temporary copies of a run's pages. Their names derive from the names of the pages, so that a
/// person may have a file of that name. Therefore a copy is created only where no file is, and
/// replaced or removed only where this run wrote it and nobody changed it since. Paths in logic
/// form. Implementations: files/TemporaryCopyFiles.h, and a fake for tests; one contract suite runs
/// against both.
class TemporaryCopies {
 public:
  enum class Outcome {
    Written,
    NoPlace,  ///< the name is taken by something not ours, or no file can be created in the folder
  };

  virtual ~TemporaryCopies() = default;

  /// Creates the copy or replaces its content; does nothing for NoPlace. A new copy is readable by
  /// nobody who cannot read the file `page`, which may be empty or missing. Raises RuntimeError
  /// where writing fails; there is no copy then.
  virtual Outcome Write(const QString &path, const QByteArray &content, const QString &page) = 0;

  /// Removes the copy, unless it is not this run's or was changed since. Never raises.
  virtual void Remove(const QString &path) = 0;

  /// Removes unchanged copies of runs that ended without removing them. Never raises.
  virtual void RemoveAbandoned() = 0;
};

}  // namespace velor
