// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>

namespace velor {

/// The temporary copies of a run's pages. Their names are made from the names of the pages, so that
/// a person may have a file of such a name: a copy is written only where nothing is, or over what
/// this run wrote and nobody has changed since, and only such a copy is removed. Paths in logic
/// form. Implementations: files/TemporaryCopyFiles.h, and a fake for tests; one contract suite runs
/// against both.
class TemporaryCopies {
 public:
  enum class Outcome {
    Written,
    NoPlace,  ///< a file, link or folder of that name is not ours, or the folder takes no file
  };

  virtual ~TemporaryCopies() = default;

  /// Creates the copy, or replaces its content. NoPlace leaves everything as it is. A new copy is
  /// open to nobody to whom the file `page` is closed; `page` may be empty or missing. Raises
  /// RuntimeError where the writing fails; no copy is there then.
  virtual Outcome Write(const QString &path, const QByteArray &content, const QString &page) = 0;

  /// Removes the copy. What is not a copy of this run, or was changed since, stays. Never raises.
  virtual void Remove(const QString &path) = 0;

  /// Removes the copies of runs that ended without removing them. Never raises.
  virtual void RemoveAbandoned() = 0;
};

}  // namespace velor
