// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/support/FakeRegistry.h"

namespace velor {

bool FakeRegistry::SetText(const QString &keyPath, const QString &name, const QString &text) {
  writes_ += keyPath + u'\\' + name + u'=' + text;
  if (health_ != Health::Sound) return false;
  Put(keyPath, name, {RegistryValue::Type::Text, text});
  return true;
}

std::optional<RegistryValue> FakeRegistry::Query(const QString &keyPath,
                                                 const QString &name) const {
  const auto value = values_.find({keyPath, name});
  if (health_ == Health::EverythingFails || value == values_.end()) return std::nullopt;
  return value->second;
}

}  // namespace velor
