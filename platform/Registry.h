// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <optional>

namespace velor {

/// One stored value. A setting whose value is no text counts as missing.
struct RegistryValue {
  enum class Type { Text, Other };
  Type type = Type::Text;
  QString text;
};

/// The per-user hierarchical store of named values under key paths such as
/// "Software\Company\VelorCDMaker\option". Nothing is cached: Query returns what is stored now.
class Registry {
 public:
  virtual ~Registry() = default;

  /// Creates the key and its missing parents. False when the value could not be stored.
  virtual bool SetText(const QString &keyPath, const QString &name, const QString &text) = 0;

  /// nullopt when the key or the value is missing or cannot be read.
  virtual std::optional<RegistryValue> Query(const QString &keyPath, const QString &name) const = 0;

  /// Where people find the values of a key: the native path of a file, or the name of the store.
  virtual QString Location(const QString &keyPath) const = 0;
};

}  // namespace velor
