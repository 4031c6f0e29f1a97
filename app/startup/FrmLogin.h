// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/Dialogs.h"

#include <QWidget>

#include <memory>

namespace velor {

class Components;

/// A form that is loaded at start and never shown. It owns the dialog that asks for the database
/// and does nothing else.
class FrmLogin : public QWidget {
  Q_OBJECT

 public:
  explicit FrmLogin(Components &components);

  FileDialog &CommonDialog1() { return *databaseDialog_; }

 private:
  std::unique_ptr<FileDialog> databaseDialog_;
};

}  // namespace velor
