// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <optional>

namespace velor {

/// Says what the engine makes of a text, apart from any page that is being edited.
class PageVerifier {
 public:
  virtual ~PageVerifier() = default;
  /// The serialisation of the document that the text is parsed to; nothing when it cannot be had.
  virtual std::optional<QString> Serialisation(const QString &text) = 0;
};

}  // namespace velor
