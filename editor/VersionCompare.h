// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDialog>
#include <QString>

#include <vector>

namespace velor {

/// The lines of two texts that the other does not have, by number from 0.
struct LineDifferences {
  std::vector<int> left;
  std::vector<int> right;

  static LineDifferences Between(const QStringList &left, const QStringList &right);
};

/// Two versions of a page's source side by side, the lines that differ marked, scrolled together.
/// Both are for reading and copying. Deletes itself when it closes.
class VersionCompare final : public QDialog {
  Q_OBJECT

 public:
  VersionCompare(const QString &name, const QString &mine, const QString &theirs, QWidget *parent);
};

}  // namespace velor
