// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/HtmlDocument.h"

namespace velor {

/// What a properties dialog asks of the program around it.
class PropertyHost {
 public:
  virtual ~PropertyHost() = default;

  /// Lets the person choose a file. Returns the address that leads to it from the page; the empty
  /// text when cancelled. `filter` as FileDialog::Filter.
  virtual QString Browse(const QString &filter) = 0;
  /// The addresses to choose from beside one that was typed: the places of the page that it leads
  /// to, those of this page, the pages of the project.
  virtual QStringList Offers(const QString &address) = 0;
  /// The charsets that the page can be converted to.
  virtual QStringList Charsets() = 0;
  /// Why the changes cannot be made, as a sentence; the person may be asked. Empty where they can.
  virtual QString Objection(const PropertyValues &changed) = 0;
};

}  // namespace velor
