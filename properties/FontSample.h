// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/HtmlDocument.h"

#include <QLabel>

namespace velor {

/// Shows what the values of the Fonts dialog make of a text.
class FontSample final : public QLabel {
  Q_OBJECT

 public:
  explicit FontSample(QWidget *parent = nullptr);
  void Show(const PropertyValues &values);
};

}  // namespace velor
