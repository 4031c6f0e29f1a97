// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/DriveMap.h"
#include "platform/Paths.h"

namespace velor {

/// Drives that are mapped for as long as the object lives; `lines` as in the drive map file.
class MappedDrives {
 public:
  explicit MappedDrives(const QString &lines) {
    UseDriveMap(DriveMap::Parse(lines, QStringLiteral("test")));
  }
  ~MappedDrives() { UseDriveMap({}); }
  MappedDrives(const MappedDrives &) = delete;
  MappedDrives &operator=(const MappedDrives &) = delete;
};

}  // namespace velor
