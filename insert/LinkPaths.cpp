// SPDX-License-Identifier: GPL-3.0-or-later
#include "insert/LinkPaths.h"

#include "platform/Conversions.h"
#include "platform/Dialogs.h"
#include "platform/LinkUrl.h"
#include "platform/Paths.h"
#include "platform/RuntimeError.h"

#include <QDir>
#include <QRegularExpression>
#include <QUrl>

#include <algorithm>
#include <string>

namespace velor {
namespace {

const QString FileScheme = QStringLiteral("file:///");

QString WithSlashes(QString path) {
  return path.replace(u'\\', u'/');
}

/// A backslash within a native name, in logic form.
constexpr char32_t NativeBackslash = 0xF05C;

bool IsHexDigit(char32_t c) {
  return (c >= U'0' && c <= U'9') || (c >= U'a' && c <= U'f') || (c >= U'A' && c <= U'F');
}

/// Whether the character at that place of a path would be read as something else in a link.
bool NeedsEncoding(const std::u32string &path, std::size_t at) {
  const char32_t c = path[at];
  if (c == U'%')
    return at + 2 < path.size() && IsHexDigit(path[at + 1]) && IsHexDigit(path[at + 2]);
  // Blanks at the ends are no part of a link.
  if (c == U' ') return at == 0 || at == path.size() - 1;
  return c == U'#' || c == U'?' || c == U'"' || c == NativeBackslash ||
         QChar::category(c) == QChar::Other_Control || QChar::isNonCharacter(c);
}

QString Encoded(char32_t c) {
  const char32_t native = c == NativeBackslash ? U'\\' : c;
  QString encoded;
  for (const char byte : QString::fromUcs4(&native, 1).toUtf8())
    encoded += u'%' + QString::fromLatin1(QByteArray(1, byte).toHex().toUpper());
  return encoded;
}

QString WithEncoded(const QString &text) {
  const std::u32string path = text.toStdU32String();
  QString encoded;
  for (std::size_t at = 0; at < path.size(); ++at)
    encoded += NeedsEncoding(path, at) ? Encoded(path[at]) : QString::fromUcs4(&path[at], 1);
  return encoded;
}

}  // namespace

int CountChar(const QString &text, QChar character) {
  return static_cast<int>(text.count(character));
}

QString MakeRelativeLink(const QString &pagePath, const QString &targetPath) {
  const QString page = WithSlashes(pagePath);
  const QString target = WithSlashes(targetPath);
  if (LowerCase(page.left(1)) != LowerCase(target.left(1))) return MakeAbsoluteLink(targetPath);

  const int pageDepth = CountChar(page, u'/');
  const int targetDepth = CountChar(target, u'/');
  const std::int16_t deeper = CInt(static_cast<double>(pageDepth - targetDepth));
  int up = std::max<int>(deeper, 0);

  bool diverged = false;
  qsizetype pageStart = 0;
  qsizetype targetStart = 0;
  qsizetype shared = target.size();
  for (int i = 0, count = std::min(pageDepth, targetDepth); i < count; ++i) {
    const qsizetype pageEnd = page.indexOf(u'/', pageStart);
    const qsizetype targetEnd = target.indexOf(u'/', targetStart);
    const bool same = QStringView(page).sliced(pageStart, pageEnd - pageStart) ==
                      QStringView(target).sliced(targetStart, targetEnd - targetStart);
    if (same && !diverged) {
      shared = targetEnd + 1;
    } else {
      diverged = true;
      ++up;
    }
    pageStart = pageEnd + 1;
    targetStart = targetEnd + 1;
  }
  return QStringLiteral("../").repeated(up) + target.sliced(shared);
}

QString MakeAbsoluteLink(const QString &path) {
  return FileScheme + WithSlashes(path);
}

QString LinkToFile(const QString &pagePath, const QString &targetPath) {
  const QString absolute = MakeAbsoluteLink(targetPath);
  const QString link = pagePath.isEmpty() ? absolute : MakeRelativeLink(pagePath, targetPath);
  if (link == absolute) return FileScheme + WithEncoded(absolute.sliced(FileScheme.size()));
  static const QRegularExpression scheme(QStringLiteral("^([a-z][a-z0-9+.-]*):"),
                                         QRegularExpression::CaseInsensitiveOption);
  return WithEncoded(link).replace(scheme, QStringLiteral("\\1%3A"));
}

QString FileOfLink(const QString &pagePath, const QString &link) {
  if (link.isEmpty()) return {};
  QUrl url = UrlOfLink(link);
  if (url.isRelative()) {
    if (pagePath.isEmpty()) return {};
    url = ToUrl(pagePath).resolved(url);
  }
  if (const auto mapped = UrlOfMappedDrive(url)) url = *mapped;
  return url.isLocalFile() ? ToLogic(QDir::cleanPath(url.toLocalFile())) : QString();
}

QString BrowseForFile(FileDialog &dialog, const QString &filter) {
  dialog.CancelError = true;
  dialog.Filter = filter;
  dialog.Flags = FileDialog::FileMustExist;
  try {
    return dialog.ShowOpen();
  } catch (const RuntimeError &) {
    return {};
  }
}

}  // namespace velor
