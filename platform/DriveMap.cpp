// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/DriveMap.h"

#include "platform/Paths.h"
#include "platform/Words.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QSaveFile>
#include <QStandardPaths>

#include <algorithm>

namespace velor {

namespace {

QString Source() {
  return QStringLiteral("DriveMap");
}

RuntimeError Failure(const QFileDevice &file) {
  return RuntimeError::Of(ErrorNumber::PathFileAccess, Source(),
                          QStringLiteral("%1: %2").arg(file.fileName(), file.errorString()));
}

/// The empty text for a missing file.
QString ReadFile(const QString &nativeFile) {
  QFile file(nativeFile);
  if (!file.exists()) return {};
  if (!file.open(QIODevice::ReadOnly)) throw Failure(file);
  return QString::fromUtf8(file.readAll());
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
                             Words::tr("%1, line %2: %3").arg(name).arg(number).arg(cause));
    };
    const QRegularExpressionMatch match = form.match(entry);
    if (!match.hasMatch()) {
      fail(Words::tr(R"("%1" does not map a drive; write lines like "C: /home/me/windows")")
               .arg(entry));
    }
    const QChar letter = match.captured(1).at(0).toUpper();
    if (map.Find(letter) != nullptr) {
      fail(Words::tr("drive %1: has a folder already").arg(letter));
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

void DriveMap::Set(QChar letter, const QString &nativeFolder) {
  Remove(letter);
  const QString folder = QDir::cleanPath(nativeFolder);
  drives_.append({letter.toUpper(), folder == u"/" ? QString() : folder});
}

void DriveMap::Remove(QChar letter) {
  drives_.removeIf([&](const Drive &drive) { return drive.letter == letter.toUpper(); });
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

DriveMap ReadDriveMapFile(const QString &nativeFile) {
  return DriveMap::Parse(ReadFile(nativeFile), nativeFile);
}

void WriteDriveMapFile(const QString &nativeFile, const DriveMap &map) {
  QString text;
  for (const QString &line : ReadFile(nativeFile).split(u'\n')) {
    if (line.trimmed().startsWith(u'#')) text += line + u'\n';
  }
  for (const DriveMap::Drive &drive : map.Drives()) {
    text += QStringLiteral("%1: %2\n")
                .arg(drive.letter)
                .arg(drive.folder.isEmpty() ? QStringLiteral("/") : drive.folder);
  }
  QDir().mkpath(QFileInfo(nativeFile).path());
  QSaveFile file(nativeFile);
  const QByteArray bytes = text.toUtf8();
  if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size() || !file.commit())
    throw Failure(file);
}

void UseAddedDrives(const DriveMap &map) {
  DriveMap together = DriveMapInUse();
  const QList<DriveMap::Drive> inUse = together.Drives();
  for (const DriveMap::Drive &drive : map.Drives()) {
    const bool isInUse = std::any_of(inUse.begin(), inUse.end(), [&](const auto &known) {
      return known.letter == drive.letter;
    });
    if (!isInUse)
      together.Set(drive.letter, drive.folder.isEmpty() ? QStringLiteral("/") : drive.folder);
  }
  UseDriveMap(together);
}

std::optional<RuntimeError> UseDriveMapFile(const QString &nativeFile) {
  UseDriveMap({});
  try {
    UseDriveMap(ReadDriveMapFile(nativeFile));
  } catch (const RuntimeError &error) {
    return error;
  }
  return std::nullopt;
}

}  // namespace velor
