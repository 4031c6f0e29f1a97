// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/settings/modSettingManager.h"

#include "platform/Conversions.h"
#include "platform/Paths.h"
#include "platform/Words.h"

#include <algorithm>
#include <cmath>

namespace velor::modSettingManager {

namespace {

QString KeyPath(const QString &applicationName, const QString &section) {
  return QStringLiteral("Software\\Company\\%1\\%2").arg(applicationName, section);
}

QString Product() {
  return QString::fromUtf16(ApplicationName);
}

template <typename Value>
Value Converted(const Registry &registry, const Preference &preference,
                Value (*convert)(QStringView), const FaultListener &tell) {
  try {
    return convert(GetOption(registry, preference));
  } catch (const RuntimeError &error) {
    tell(FaultOf(registry, preference, error));
    return convert(preference.Default());
  }
}

}  // namespace

void SaveRegSetting(Registry &registry, const QString &applicationName, const QString &section,
                    const QString &valueName, const QString &value) {
  registry.SetText(KeyPath(applicationName, section), valueName, value);
}

QString GetRegSetting(const Registry &registry, const QString &applicationName,
                      const QString &section, const QString &valueName,
                      const QString &defaultValue) {
  const auto value = registry.Query(KeyPath(applicationName, section), valueName);
  if (!value || value->type != RegistryValue::Type::Text) return defaultValue;
  const QString text = CutAtNul(value->text);
  return text.isEmpty() ? defaultValue : text;
}

void SaveText(Registry &registry, const QString &section, const QString &valueName,
              const QString &value) {
  SaveRegSetting(registry, Product(), section, valueName, value);
}

QString StoredText(const Registry &registry, const QString &section, const QString &valueName) {
  return GetRegSetting(registry, Product(), section, valueName, {});
}

void SetOption(Registry &registry, const QString &valueName, const QString &value) {
  SaveRegSetting(registry, Product(), QString::fromUtf16(OptionSection), valueName, value);
}

QString GetOption(const Registry &registry, const QString &valueName, const QString &defaultValue) {
  return GetRegSetting(registry, Product(), QString::fromUtf16(OptionSection), valueName,
                       defaultValue);
}

QString GetOption(const Registry &registry, const Preference &preference) {
  return GetOption(registry, preference.Name(), preference.Default());
}

QString OptionsPlace(const Registry &registry) {
  return registry.Location(KeyPath(Product(), QString::fromUtf16(OptionSection)));
}

bool TruthOption(const Registry &registry, const Preference &preference,
                 const FaultListener &tell) {
  return Converted<bool>(registry, preference, &CBool, tell);
}

std::int16_t IntegerOption(const Registry &registry, const Preference &preference,
                           const FaultListener &tell) {
  return Converted<std::int16_t>(registry, preference, &CInt, tell);
}

std::int32_t LongOption(const Registry &registry, const Preference &preference,
                        const FaultListener &tell) {
  return Converted<std::int32_t>(registry, preference, &CLng, tell);
}

bool IsOn(const Registry &registry, const Preference &preference) {
  const QString on = LowerCase(BoolText(true));
  const QString off = LowerCase(BoolText(false));
  const QString chosen = LowerCase(GetOption(registry, preference));
  return chosen == on || chosen == off ? chosen == on : CBool(preference.Default());
}

bool HasAdditions(const Registry &registry) {
  return !IsOn(registry, PreferenceOf("PublishedOnly"));
}

RuntimeError FaultOf(const Registry &registry, const Preference &preference,
                     const RuntimeError &cause) {
  return RuntimeError::Of(
      cause.Number(), cause.Source(),
      Words::tr(R"(the setting %1 in %2 is "%3"; "%4" counts until it is mended)")
          .arg(preference.Name(), OptionsPlace(registry), GetOption(registry, preference),
               preference.Default()));
}

void AddToHistory(Registry &registry, const QString &path) {
  const QString section = QString::fromUtf16(HistorySection);
  const QString countName = QStringLiteral("historycount");
  const QString stored =
      GetRegSetting(registry, Product(), section, countName, QStringLiteral("0"));
  double count = std::max(0.0, std::trunc(Val(stored)));
  // In one step: a number edited by hand may be so large that subtracting 100 leaves it as it is.
  if (count >= HistorySlots) count = std::fmod(count, HistorySlots);
  const QString slot = NumberText(count + 1);
  SaveRegSetting(registry, Product(), section, QStringLiteral("file") + slot, ForPeople(path));
  SaveRegSetting(registry, Product(), section, countName, slot);
}

QStringList History(const Registry &registry) {
  const QString section = QString::fromUtf16(HistorySection);
  const auto read = [&](const QString &name) {
    return GetRegSetting(registry, Product(), section, name, QString());
  };
  const int latest = static_cast<int>(
      std::fmod(std::trunc(Val(read(QStringLiteral("historycount")))), HistorySlots));
  QStringList paths;
  for (int back = 0; back < HistorySlots; ++back) {
    const int slot = (latest - 1 - back + 2 * HistorySlots) % HistorySlots + 1;
    const QString path = read(QStringLiteral("file%1").arg(slot));
    if (!path.isEmpty()) paths.append(FromPeople(path));
  }
  paths.removeDuplicates();
  return paths;
}

QString CutAtNul(const QString &buffer) {
  return buffer.left(buffer.indexOf(QChar(0)));
}

}  // namespace velor::modSettingManager
