// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "editor/PageTemplates.h"

#include <QDialog>

class QCheckBox;
class QComboBox;

namespace velor {

class TextBox;

/// Asks what a new page begins with: an HTML5 page with a title, a language and the width of phones
/// in mind, or one of the person's templates as it stands.
class FrmNewPage final : public QDialog {
  Q_OBJECT

 public:
  FrmNewPage(const std::vector<PageTemplate> &templates, QWidget *parent);

  /// The path of the chosen template; empty for the HTML5 page.
  QString TemplatePath() const;
  PageBeginning Beginning() const;

 private:
  QComboBox *templates_;
  TextBox *title_;
  TextBox *language_;
  QCheckBox *fitsPhones_;
};

}  // namespace velor
