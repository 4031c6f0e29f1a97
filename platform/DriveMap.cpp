// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/DriveMap.h"

#include "platform/Paths.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QStandardPaths>

namespace velor {

namespace {

QString Source() {
  return QStringLiteral("DriveMap");
}

bool Holds(const QString &folder, const QString &path) {
  return path == folder || path.startsWith(folder + u'/');
}

}  // namespace

DriveMap DriveMap::Parse(const QString &text, const QString &name) {
  static const QRegularExpression form(QStringLiteral("^([A-Za-z]):\\s*(/.*)$"));
  DriveMap map;
  int number = 0;
  for (const QString &line : text.split(u'\n')) {
    ++number;
    const QString entry = line.trimmed();
    if (entry.isEmpty() || entry.startsWith(u'#')) continue;
    const auto fail = [&](const QString &cause) {
      throw RuntimeError::Of(ErrorNumber::TypeMismatch, Source(),
                             QStringLiteral("%1, line %2: %3").arg(name).arg(number).arg(cause));
    };
    const QRegularExpressionMatch match = form.match(entry);
    if (!match.hasMatch()) {
      fail(QStringLiteral("\"%1\" does not map a drive; write lines like \"C: /home/me/windows\"")
               .arg(entry));
    }
    const QChar letter = match.captured(1).at(0).toUpper();
    if (map.Find(letter) != nullptr) {
      fail(QStringLiteral("drive %1: has a folder already").arg(letter));
    }
    const QString folder = QDir::cleanPath(match.captured(2));
    map.drives_.append({letter, folder == u"/" ? QString() : folder});
  }
  return map;
}

std::optional<QString> DriveMap::ToNative(const QString &drivePath) const {
  const Drive *drive = IsDrivePath(drivePath) ? Find(drivePath[0].toUpper()) : nullptr;
  if (drive == nullptr) return std::nullopt;
  const QString rest = drivePath.mid(2).replace(u'\\', u'/');
  return rest.isEmpty() || rest.startsWith(u'/') ? drive->folder + rest
                                                 : drive->folder + u'/' + rest;
}

std::optional<QString> DriveMap::ToDrive(const QString &nativePath) const {
  const Drive *closest = nullptr;
  for (const Drive &drive : drives_) {
    const bool closer = closest == nullptr || drive.folder.size() > closest->folder.size();
    if (closer && Holds(drive.folder, nativePath)) closest = &drive;
  }
  if (closest == nullptr) return std::nullopt;
  const QString rest = nativePath.mid(closest->folder.size()).replace(u'/', u'\\');
  return QString(closest->letter) + u':' + (rest.isEmpty() ? QStringLiteral("\\") : rest);
}

const DriveMap::Drive *DriveMap::Find(QChar letter) const {
  for (const Drive &drive : drives_) {
    if (drive.letter == letter) return &drive;
  }
  return nullptr;
}

QString DriveMapFile() {
  return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
         QStringLiteral("/Company/drives.conf");
}

std::optional<RuntimeError> UseDriveMapFile(const QString &nativeFile) {
  UseDriveMap({});
  QFile file(nativeFile);
  if (!file.exists()) return std::nullopt;
  if (!file.open(QIODevice::ReadOnly)) {
    return RuntimeError::Of(ErrorNumber::PathFileAccess, Source(),
                            QStringLiteral("%1: %2").arg(nativeFile, file.errorString()));
  }
  try {
    UseDriveMap(DriveMap::Parse(QString::fromUtf8(file.readAll()), nativeFile));
  } catch (const RuntimeError &error) {
    return error;
  }
  return std::nullopt;
}

}  // namespace velor
