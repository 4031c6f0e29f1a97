// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/Registry.h"

namespace velor {

/// The store on QSettings: the key "Software\Company\Product\section" is the group "section" of the
/// settings of Company and Product (on Windows that key itself, elsewhere one INI file per user).
class QtRegistry : public Registry {
 public:
  bool SetText(const QString &keyPath, const QString &name, const QString &text) override;
  std::optional<RegistryValue> Query(const QString &keyPath, const QString &name) const override;
  QString Location(const QString &keyPath) const override;
};

}  // namespace velor
