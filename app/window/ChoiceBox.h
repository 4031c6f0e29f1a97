// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QComboBox>
#include <QString>

namespace velor {

/// A list to choose from whose text may be one that is not in the list.
class ChoiceBox final : public QComboBox {
  Q_OBJECT

 public:
  explicit ChoiceBox(QWidget *parent);

  QString Text() const { return text_; }
  /// Shows a text; tells nobody.
  void ShowText(const QString &text);

 Q_SIGNALS:
  /// The person clicked an entry, the one already shown included.
  void Clicked(const QString &text);

 private:
  QString text_;
};

}  // namespace velor
