// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QUrl>

#include <optional>

/// Conversions between native paths (/home/u/site/a.htm) and the logic form that the program uses
/// inside (\home\u\site\a.htm). Paths that enter the program (dialogs, pickers, the program folder,
/// drops) go through ToLogic; file operations use ToNative. Where the native separator is "\" both
/// return their argument.
namespace velor {

class DriveMap;

/// Sets the drives that ToLogic and ToNative map. Called at start-up before any path is converted;
/// later drives may only be added, so that no path changes its meaning.
void UseDriveMap(const DriveMap &map);
/// The drives in use.
const DriveMap &DriveMapInUse();

/// Native to logic form; a path below the folder of a mapped drive becomes a path on that drive. A
/// backslash within a native name becomes U+F05C.
QString ToLogic(const QString &nativePath);

/// Logic to native form; both separators are accepted, U+F05C becomes a backslash again.
/// A path on an unmapped drive ("C:\site") has no native form: only its separators are exchanged.
QString ToNative(const QString &logicPath);

/// The folder of a native path, with the "/" at its end; empty where the path names none.
QString FolderOfNative(const QString &nativePath);

/// The form in which paths are shown to people and written to files that they read: native when the
/// path begins with a single "\", otherwise unchanged.
QString ForPeople(const QString &path);

/// The logic form of a path that a person or another program wrote, in native or logic form.
QString FromPeople(const QString &text);

/// Whether the text begins with a drive ("C:\...").
bool IsDrivePath(const QString &path);

/// Whether the text begins with a drive that is not mapped, so that no such file can exist.
bool IsOnUnknownDrive(const QString &path);

/// The file: URL of a logic path, with blanks, "#", "%" and "?" encoded.
QUrl ToUrl(const QString &logicPath);

/// The file: URL on this machine for a file: URL on a mapped drive ("file:///C:/pics/a.png");
/// nullopt for any other URL.
std::optional<QUrl> UrlOfMappedDrive(const QUrl &url);

/// The existing native path for a path composed by the program (Index.htm, eThumbs.mdb ...): the
/// exact one where it exists, else one that matches component by component ignoring letter case;
/// the exact native form when nothing matches.
QString FindIgnoringCase(const QString &logicPath);

}  // namespace velor
