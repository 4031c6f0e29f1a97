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
  /// The same. That it will be `expected` is likely, and then costs less to find out.
  virtual std::optional<QString> SerialisationLike(const QString &text,
                                                   const QString & /*expected*/) {
    return Serialisation(text);
  }
};

}  // namespace velor
