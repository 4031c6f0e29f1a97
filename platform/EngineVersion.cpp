// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/EngineVersion.h"

namespace velor {

namespace {

// From version 94 on a version comes out every four weeks, with pauses at the end of a year. Up to
// version 142 (October 2025) the days told by this average are less than a month off.
constexpr int FirstVersion = 94;
constexpr double DaysBetweenReleases = 31.3;

constexpr int MostMonths = 18;

}  // namespace

QDate ReleaseOfChromium(const QString &version) {
  const int number = version.section(u'.', 0, 0).toInt();
  if (number < FirstVersion) return {};
  const QDate first(2021, 9, 21);
  return first.addDays(qRound((number - FirstVersion) * DaysBetweenReleases));
}

bool IsOutdated(const EngineVersion &engine, const QDate &today) {
  const QDate released = ReleaseOfChromium(engine.securityFixes);
  return released.isValid() && released.addMonths(MostMonths) < today;
}

}  // namespace velor
