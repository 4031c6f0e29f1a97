// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QUrl>

#include <optional>

/// The program's logic sees paths with "\" only: the native /home/u/site/a.htm is
/// \home\u\site\a.htm inside, a plain exchange of separators. These functions stand at the
/// boundary: dialogs, pickers, the program folder and drops give ToLogic; file operations take
/// ToNative. On a platform whose own separator is "\" both are the identity.
namespace velor {

class DriveMap;

/// Sets the drives by which ToLogic and ToNative go. Start-up does it before any path is exchanged;
/// later drives may only be added, so that no path loses its meaning.
void UseDriveMap(const DriveMap &map);
/// The drives in use.
const DriveMap &DriveMapInUse();

/// Native to logic form: a drive path below the folder of a mapped drive. A real backslash in a
/// native name travels as U+F05C.
QString ToLogic(const QString &nativePath);

/// Logic to native form; both separators are accepted, U+F05C becomes a backslash again.
/// Drive texts ("C:\site") of unmapped drives name nothing here and come back with their separators
/// exchanged.
QString ToNative(const QString &logicPath);

/// How a path is shown to people and written where people read it: the native form when the path
/// begins with a single "\", otherwise the text as it stands.
QString ForPeople(const QString &path);

/// A path as a person or another program may have written it (native or logic form) in logic form.
QString FromPeople(const QString &text);

/// Whether the text begins with a drive ("C:\...").
bool IsDrivePath(const QString &path);

/// Whether the text begins with a drive that is not mapped, on which no file lies.
bool IsOnUnknownDrive(const QString &path);

/// The file: URL of a logic path; never made by concatenation, so that blanks, "#", "%" and "?"
/// are encoded.
QUrl ToUrl(const QString &logicPath);

/// The file: URL here of a file: URL on a mapped drive ("file:///C:/pics/a.png"); nothing for
/// others.
std::optional<QUrl> UrlOfMappedDrive(const QUrl &url);

/// The existing native path that a name made by the program itself (Index.htm, eThumbs.mdb ...)
/// stands for: the exact name where it exists, else component by component ignoring letter case;
/// the exact native form when nothing matches.
QString FindIgnoringCase(const QString &logicPath);

}  // namespace velor
