// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <optional>

namespace velor {

/// One stored value. Only text values count as settings; a value of any other type reads as absent.
struct RegistryValue {
  enum class Type { Text, Other };
  Type type = Type::Text;
  QString text;
};

/// The per-user hierarchical store of named values under key paths such as
/// "Software\Company\VelorCDMaker\option". No caching: every query sees what is stored now.
class Registry {
 public:
  virtual ~Registry() = default;

  /// Creates the key and its missing parents. False when the value could not be stored.
  virtual bool SetText(const QString &keyPath, const QString &name, const QString &text) = 0;

  /// Nothing when the key or the value is missing or cannot be read.
  virtual std::optional<RegistryValue> Query(const QString &keyPath, const QString &name) const = 0;

  /// Where a person finds the values of a key: the file's native path, or the store's own name.
  virtual QString Location(const QString &keyPath) const = 0;
};

}  // namespace velor
