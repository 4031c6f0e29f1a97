// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "insert/DialogScope.h"
#include "insert/MediaHtml.h"

#include <QDialog>

class QCheckBox;
class QComboBox;
class QLabel;

namespace velor {

class TextBox;

/// The table dialog. Insert leaves the table's HTML in `html` (ProgramValues::HTMLString) and
/// closes; a table that no page takes is refused in words, and the dialog stays. Cancel closes and
/// leaves that text as it was. Made for one showing, modal, and released
/// after it. Extended: a check box for a row of headings, no alignment unless one is
/// chosen, and looks in the dialect of the page.
class frmDialog_Table : public QDialog {
  Q_OBJECT

 public:
  /// `html` outlives the dialog.
  explicit frmDialog_Table(QString &html, QWidget *parent = nullptr,
                           DialogScope scope = DialogScope::Published,
                           Dialect dialect = Dialect::Attributes);

 private:
  void Insert();

  QString &html_;
  const Dialect dialect_;
  TextBox *columns_ = nullptr;
  TextBox *rows_ = nullptr;
  QComboBox *alignment_ = nullptr;
  TextBox *border_ = nullptr;
  TextBox *cellSpacing_ = nullptr;
  TextBox *cellPadding_ = nullptr;
  /// An addition; null without.
  QCheckBox *headings_ = nullptr;
  QLabel *refusal_ = nullptr;
};

}  // namespace velor
