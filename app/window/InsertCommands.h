// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace velor {

class frmMain;

/// The commands that insert something into a page through a dialog of their own.
class InsertCommands {
 public:
  virtual ~InsertCommands() = default;
  virtual void Image(frmMain &page) = 0;
  virtual void Hyperlink(frmMain &page) = 0;
  virtual void Target(frmMain &page) = 0;
  virtual void Video(frmMain &page) = 0;
  virtual void Table(frmMain &page) = 0;
  /// A picture's file, without a dialog, linked as the dialog would. `path` in logic form.
  virtual void PictureFile(frmMain &page, const QString &path) = 0;
};

}  // namespace velor
