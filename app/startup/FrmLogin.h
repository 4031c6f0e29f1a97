// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/Dialogs.h"

#include <QWidget>

#include <memory>

namespace velor {

class Components;

/// A form that is loaded at start and never shown: it owns the dialog that asks for the database.
/// It has no behaviour of its own.
class FrmLogin : public QWidget {
  Q_OBJECT

 public:
  explicit FrmLogin(Components &components);

  FileDialog &CommonDialog1() { return *databaseDialog_; }

 private:
  std::unique_ptr<FileDialog> databaseDialog_;
};

}  // namespace velor
