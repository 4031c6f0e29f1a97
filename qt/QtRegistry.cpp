// SPDX-License-Identifier: GPL-3.0-or-later
#include "qt/QtRegistry.h"

#include <QSettings>
#include <QStringList>
#include <QVariant>

namespace velor {

namespace {

/// The settings file of a key path, read again from the disk, and the name of a value in it.
class Place {
 public:
  Place(const QString &keyPath, const QString &name)
      : parts_(keyPath.split(u'\\')),
        settings_(parts_.value(1), parts_.value(2)),
        key_((parts_.mid(3) + QStringList(name)).join(u'/')) {
    settings_.setFallbacksEnabled(false);  // per user: never what an administrator has set for all
    settings_.sync();
  }

  bool IsValid() const {
    return parts_.size() > 3 && parts_[0].compare(u"Software", Qt::CaseInsensitive) == 0;
  }
  QSettings &Settings() { return settings_; }
  const QString &Key() const { return key_; }

 private:
  QStringList parts_;
  QSettings settings_;
  QString key_;
};

}  // namespace

bool QtRegistry::SetText(const QString &keyPath, const QString &name, const QString &text) {
  Place place(keyPath, name);
  if (!place.IsValid()) return false;
  QSettings &settings = place.Settings();
  const QVariant before = settings.value(place.Key());
  settings.setValue(place.Key(), text);
  settings.sync();
  if (settings.status() == QSettings::NoError) return true;
  // QSettings keeps in memory what it could not write; later reads must see what is stored.
  if (before.isValid()) {
    settings.setValue(place.Key(), before);
  } else {
    settings.remove(place.Key());
  }
  return false;
}

std::optional<RegistryValue> QtRegistry::Query(const QString &keyPath, const QString &name) const {
  Place place(keyPath, name);
  if (!place.IsValid() || !place.Settings().contains(place.Key())) return std::nullopt;
  const QVariant value = place.Settings().value(place.Key());
  if (value.metaType() != QMetaType::fromType<QString>()) {
    return RegistryValue{RegistryValue::Type::Other, {}};
  }
  return RegistryValue{RegistryValue::Type::Text, value.toString()};
}

QString QtRegistry::Location(const QString &keyPath) const {
  return Place(keyPath, {}).Settings().fileName();
}

}  // namespace velor
