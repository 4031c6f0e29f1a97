// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/settings/Preferences.h"
#include "platform/Registry.h"
#include "platform/RuntimeError.h"

#include <QString>
#include <QStringList>

#include <cstdint>
#include <functional>

/// Preferences and the recent-files history, as text values in the per-user store under
/// Software\Company\VelorCDMaker. Nothing is cached: every call reads the store. Failures are not
/// reported: a write that fails leaves the old value, a read that fails returns the default.
namespace velor::modSettingManager {

inline constexpr const char16_t *ApplicationName = u"VelorCDMaker";
inline constexpr const char16_t *OptionSection = u"option";
inline constexpr const char16_t *HistorySection = u"history";
/// The number of slots of the history, a ring numbered from 1.
inline constexpr int HistorySlots = 100;

/// Stores a text under Software\Company\APPLICATION\SECTION.
void SaveRegSetting(Registry &registry, const QString &applicationName, const QString &section,
                    const QString &valueName, const QString &value);

/// The stored text; `defaultValue` when it is missing, no text, or empty.
QString GetRegSetting(const Registry &registry, const QString &applicationName,
                      const QString &section, const QString &valueName,
                      const QString &defaultValue);

/// The same in a section of this program's that holds no preferences; empty where nothing is
/// stored.
void SaveText(Registry &registry, const QString &section, const QString &valueName,
              const QString &value);
QString StoredText(const Registry &registry, const QString &section, const QString &valueName);

/// Stores and reads a preference as text. The functions below also convert what they read.
void SetOption(Registry &registry, const QString &valueName, const QString &value);
QString GetOption(const Registry &registry, const QString &valueName, const QString &defaultValue);
QString GetOption(const Registry &registry, const Preference &preference);

/// Where people find the stored preferences: a file, or the name of the store.
QString OptionsPlace(const Registry &registry);

/// Called with the error when a stored text cannot be converted; its description names the setting,
/// the text and the file.
using FaultListener = std::function<void(const RuntimeError &)>;

// Read a preference and convert it (CBool, CInt, CLng). Where that fails they call `tell` and
// return the default's value.
bool TruthOption(const Registry &registry, const Preference &preference, const FaultListener &tell);
std::int16_t IntegerOption(const Registry &registry, const Preference &preference,
                           const FaultListener &tell);
std::int32_t LongOption(const Registry &registry, const Preference &preference,
                        const FaultListener &tell);

/// Reads a preference that is "True" or "False" in any letter case; for every other text the
/// default counts, and nothing is told.
bool IsOn(const Registry &registry, const Preference &preference);

/// Whether the program goes beyond the published behaviour: the preference "PublishedOnly" is not
/// on.
bool HasAdditions(const Registry &registry);

/// The error for a preference whose stored text is unusable, with the number of `cause`.
RuntimeError FaultOf(const Registry &registry, const Preference &preference,
                     const RuntimeError &cause);

/// Writes an opened file to the next slot of the ring, also when another slot has it already; slot
/// 1 follows slot 100. `path` in logic form; it is stored in the form for people (ForPeople).
void AddToHistory(Registry &registry, const QString &path);

/// The recorded files in logic form, the latest first, each once.
QStringList History(const Registry &registry);

/// The text up to the first NUL character; the whole text without one.
QString CutAtNul(const QString &buffer);

}  // namespace velor::modSettingManager
