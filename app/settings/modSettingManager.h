// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/Registry.h"
#include "platform/RuntimeError.h"

#include <QString>
#include <QStringList>

#include <cstdint>
#include <functional>

/// Preferences and the recent-files history, as text values in the per-user store under
/// Software\Company\VelorCDMaker. Nothing is cached: every read goes to the store. Failures are
/// silent here: a write that fails leaves the old value, a read that fails gives the default.
namespace velor::modSettingManager {

inline constexpr const char16_t *ApplicationName = u"VelorCDMaker";
inline constexpr const char16_t *OptionSection = u"option";
inline constexpr const char16_t *HistorySection = u"history";
/// The history is a ring of so many slots, numbered from 1.
inline constexpr int HistorySlots = 100;

void SaveRegSetting(Registry &registry, const QString &applicationName, const QString &section,
                    const QString &valueName, const QString &value);

/// The stored text; `defaultValue` when it is missing, no text, or empty.
QString GetRegSetting(const Registry &registry, const QString &applicationName,
                      const QString &section, const QString &valueName,
                      const QString &defaultValue);

/// A preference. Callers pass the default as text and convert the result themselves, or by the
/// functions below.
void SetOption(Registry &registry, const QString &valueName, const QString &value);
QString GetOption(const Registry &registry, const QString &valueName, const QString &defaultValue);

/// Receives the conversion's error for a stored text that cannot be converted: the description
/// names the setting, its text and the file.
using FaultListener = std::function<void(const RuntimeError &)>;

// A preference converted; the default counts after a fault.
bool TruthOption(const Registry &registry, const QString &valueName, const QString &defaultValue,
                 const FaultListener &tell);
std::int16_t IntegerOption(const Registry &registry, const QString &valueName,
                           const QString &defaultValue, const FaultListener &tell);
std::int32_t LongOption(const Registry &registry, const QString &valueName,
                        const QString &defaultValue, const FaultListener &tell);

/// The error for a preference whose stored text says nothing, with the conversion's own number.
RuntimeError FaultOf(const Registry &registry, const QString &valueName,
                     const QString &defaultValue, const RuntimeError &cause);

/// Records one opened file in the next slot of the ring; after slot 100 comes slot 1. `path` in
/// logic form, written as people read paths. The same file twice fills two slots.
void AddToHistory(Registry &registry, const QString &path);

/// The recorded files in logic form, the latest first, each once.
QStringList History(const Registry &registry);

/// The text before the first NUL character, or all of it.
QString CutAtNul(const QString &buffer);

}  // namespace velor::modSettingManager
