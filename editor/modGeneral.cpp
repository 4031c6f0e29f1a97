// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/modGeneral.h"

#include "platform/RuntimeError.h"

namespace velor::modGeneral {

namespace {

constexpr QChar Separator = u'\\';

}  // namespace

QString ReadWholeFile(const Files &files, const QString &path) {
  return DecodePage(files.ReadAll(path)).text;
}

QByteArray PageBytes(const QString &text, const PageEncoding &page) {
  return EncodePage(text, EncodingInPlaceOf(page, text));
}

void WriteTextFile(Files &files, const QString &path, const QString &text,
                   const PageEncoding &page) {
  files.ReplaceAll(path, PageBytes(text + QStringLiteral("\r\n"), page));
}

QString FileNameOfPath(const QString &path) {
  return path.mid(path.lastIndexOf(Separator) + 1);
}

QString FolderOfPath(const QString &path) {
  const qsizetype end = path.lastIndexOf(Separator);
  if (end < 0) {
    throw RuntimeError::Of(ErrorNumber::InvalidProcedureCall, QStringLiteral("FolderOfPath"), path);
  }
  return path.left(end);
}

QString TemporaryPath(const QString &path) {
  return QString(path).replace(u'.', QStringLiteral("TMP."));
}

}  // namespace velor::modGeneral
