// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/Printers.h"

namespace velor {

class Dialogs;

/// The printers that Qt knows, "Print to File (PDF)" among them.
class QtPrinters final : public Printers {
 public:
  /// `dialogs` outlives it.
  explicit QtPrinters(Dialogs &dialogs) : dialogs_(dialogs) {}

  std::unique_ptr<PaperPrinter> Choose(const PrintTask &task, QWidget &parent) override;

 private:
  Dialogs &dialogs_;
};

}  // namespace velor
