// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/Registry.h"

#include <QStringList>

#include <map>
#include <utility>

namespace velor {

/// The registry in memory.
class FakeRegistry : public Registry {
 public:
  enum class Health { Sound, WritesFail, EverythingFails };

  /// A value as if another program had put it there; not in the log.
  void Put(const QString &keyPath, const QString &name, const RegistryValue &value) {
    values_[{keyPath, name}] = value;
  }
  void Break(Health health) { health_ = health; }

  /// "key\name=text" for every write that was asked for, failed ones too.
  const QStringList &Writes() const { return writes_; }

  bool SetText(const QString &keyPath, const QString &name, const QString &text) override;
  std::optional<RegistryValue> Query(const QString &keyPath, const QString &name) const override;
  QString Location(const QString &) const override { return QStringLiteral("/config/fake.conf"); }

 private:
  std::map<std::pair<QString, QString>, RegistryValue> values_;
  QStringList writes_;
  Health health_ = Health::Sound;
};

}  // namespace velor
