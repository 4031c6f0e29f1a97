// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/window/ChoiceBox.h"

#include <QSignalBlocker>

namespace velor {

ChoiceBox::ChoiceBox(QWidget *parent) : QComboBox(parent) {
  setMaxVisibleItems(20);
  setSizeAdjustPolicy(QComboBox::AdjustToContents);
  connect(this, &QComboBox::activated, this, [this](int index) {
    text_ = itemText(index);
    Q_EMIT Clicked(text_);
  });
}

void ChoiceBox::ShowText(const QString &text) {
  const QSignalBlocker silence(this);
  text_ = text;
  setPlaceholderText(text);
  setCurrentIndex(findText(text));
}

}  // namespace velor
