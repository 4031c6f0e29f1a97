// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace velor {

class frmCodeEditor;
class frmMain;

/// The commands that insert an element at the caret of a page. All but PictureFile show a dialog.
class InsertCommands {
 public:
  virtual ~InsertCommands() = default;
  virtual void Image(frmMain &page) = 0;
  virtual void Hyperlink(frmMain &page) = 0;
  virtual void Target(frmMain &page) = 0;
  virtual void Video(frmMain &page) = 0;
  virtual void Table(frmMain &page) = 0;
  /// Puts in markup as the person writes it.
  virtual void Markup(frmMain &page) = 0;
  /// Puts in a character that the person chooses.
  virtual void Character(frmMain &page) = 0;
  /// The same in a source editor.
  virtual void Character(frmCodeEditor &editor) = 0;
  /// Inserts the picture file without a dialog, with the link that the dialog would make. `path` in
  /// logic form.
  virtual void PictureFile(frmMain &page, const QString &path) = 0;
};

}  // namespace velor
