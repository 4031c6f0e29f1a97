// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDate>
#include <QString>

namespace velor {

/// The browser engine's versions. Distributions put security fixes of later versions of Chromium
/// into the one that they have.
struct EngineVersion {
  QString chromium;       ///< empty where it is not known
  QString securityFixes;  ///< the version of Chromium whose security fixes it has
};

/// When a version of Chromium came out, to less than a month. Not valid for a text that is no
/// version or one before 94 (September 2021).
QDate ReleaseOfChromium(const QString &version);

/// Whether the engine's security fixes are older than 18 months on that day.
bool IsOutdated(const EngineVersion &engine, const QDate &today);

}  // namespace velor
