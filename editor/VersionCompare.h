// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDialog>
#include <QString>

#include <vector>

namespace velor {

/// The lines by which two texts differ, by number from 0: those that the other text has not.
struct LineDifferences {
  std::vector<int> left;
  std::vector<int> right;

  static LineDifferences Between(const QStringList &left, const QStringList &right);
};

/// Shows two versions of a page's source side by side, read-only, scrolled together, with the lines
/// marked that differ. Deletes itself when it closes.
class VersionCompare final : public QDialog {
  Q_OBJECT

 public:
  /// `name` is the page's, for the window's title; `mine` is shown at the left.
  VersionCompare(const QString &name, const QString &mine, const QString &theirs, QWidget *parent);
};

}  // namespace velor
