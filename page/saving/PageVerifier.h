// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <optional>

namespace velor {

/// Parses texts with the engine, apart from any page that is being edited.
class PageVerifier {
 public:
  virtual ~PageVerifier() = default;
  /// The serialisation of the document that the engine parses the text to; nothing where the engine
  /// does not answer.
  virtual std::optional<QString> Serialisation(const QString &text) = 0;
  /// The same answer; takes less time if it equals `expected`.
  virtual std::optional<QString> SerialisationLike(const QString &text,
                                                   const QString & /*expected*/) {
    return Serialisation(text);
  }
};

}  // namespace velor
