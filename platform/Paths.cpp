// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/Paths.h"

#include "platform/DriveMap.h"

#include <QDir>
#include <QFileInfo>
#include <QStringList>

#include <optional>

namespace velor {

namespace {

/// Replaces a backslash of a native name in logic form, where "\" separates folders.
constexpr char16_t BackslashInName = 0xF05C;

bool NativeIsLogic() {
  return QDir::separator() == u'\\';
}

/// Global, since the map is a property of the machine like its separator.
DriveMap &Drives() {
  static DriveMap drives;
  return drives;
}

/// Finds an existing path below `folder` for the names from index `at` on; at each level the exact
/// name is preferred.
std::optional<QString> Find(const QString &folder, const QStringList &names, qsizetype at) {
  if (at == names.size()) return folder;
  const QString prefix = folder.isEmpty() || folder.endsWith(u'/') ? folder : folder + u'/';
  const QString exact = prefix + names[at];
  if (QFileInfo::exists(exact)) {
    if (const auto found = Find(exact, names, at + 1)) return found;
  }
  const QDir::Filters everything = QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot;
  for (const QString &entry : QDir(folder).entryList(everything, QDir::Name)) {
    if (entry == names[at] || entry.compare(names[at], Qt::CaseInsensitive) != 0) continue;
    if (const auto found = Find(prefix + entry, names, at + 1)) return found;
  }
  return std::nullopt;
}

}  // namespace

void UseDriveMap(const DriveMap &map) {
  Drives() = map;
}

const DriveMap &DriveMapInUse() {
  return Drives();
}

QString ToLogic(const QString &nativePath) {
  if (NativeIsLogic()) return nativePath;
  QString logic = nativePath;
  logic.replace(u'\\', QChar(BackslashInName));
  if (const auto onDrive = Drives().ToDrive(logic)) return *onDrive;
  return logic.replace(u'/', u'\\');
}

QString ToNative(const QString &logicPath) {
  if (NativeIsLogic()) return logicPath;
  QString native = Drives().ToNative(logicPath).value_or(logicPath);
  return native.replace(u'\\', u'/').replace(QChar(BackslashInName), u'\\');
}

QString FolderOfNative(const QString &nativePath) {
  return nativePath.left(nativePath.lastIndexOf(u'/') + 1);
}

QString ForPeople(const QString &path) {
  const bool fromRoot = path.startsWith(u'\\') && !path.startsWith(u"\\\\");
  return fromRoot ? ToNative(path) : path;
}

QString FromPeople(const QString &text) {
  // A text that begins with "/" is native, and its backslashes belong to names. In any other text
  // both are separators.
  if (text.startsWith(u'/')) return ToLogic(text);
  QString logic = text;
  return logic.replace(u'/', u'\\');
}

bool IsDrivePath(const QString &path) {
  return path.size() >= 2 && path[1] == u':' && path[0].unicode() < 0x80 && path[0].isLetter();
}

bool IsOnUnknownDrive(const QString &path) {
  return !NativeIsLogic() && IsDrivePath(path) && !Drives().ToNative(path);
}

QUrl ToUrl(const QString &logicPath) {
  return QUrl::fromLocalFile(ToNative(logicPath));
}

std::optional<QUrl> UrlOfMappedDrive(const QUrl &url) {
  const QString path = url.isLocalFile() ? url.path().mid(1) : QString();
  const auto native = NativeIsLogic() ? std::nullopt : Drives().ToNative(path);
  return native ? std::optional(QUrl::fromLocalFile(*native)) : std::nullopt;
}

QString FindIgnoringCase(const QString &logicPath) {
  const QString native = ToNative(logicPath);
  if (NativeIsLogic() || QFileInfo::exists(native)) return native;
  const QString root = native.startsWith(u'/') ? QStringLiteral("/") : QString();
  return Find(root, native.split(u'/', Qt::SkipEmptyParts), 0).value_or(native);
}

}  // namespace velor
