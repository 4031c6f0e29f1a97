// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDialog>

namespace velor {

/// The About box.
class frmAbout final : public QDialog {
  Q_OBJECT

 public:
  explicit frmAbout(QWidget *parent);
};

}  // namespace velor
