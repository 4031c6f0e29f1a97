// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/sample-site/SampleMaker.h"

#include "platform/Paths.h"
#include "platform/RuntimeError.h"
#include "tools/sample-site/Pictures.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryFile>

#include <memory>
#include <sqlite3.h>

namespace velor {

namespace {

const QString Resources = QStringLiteral(":/sample");
const QString CatalogueScript = QStringLiteral("catalogue.sql");

[[noreturn]] void Fail(const QString &path, const QString &cause) {
  throw RuntimeError::Of(ErrorNumber::PathFileAccess, QStringLiteral("MakeSample"),
                         QStringLiteral("%1 (%2)").arg(path, cause));
}

/// Whether the file has to be made; its folder is there then.
bool IsMissing(const QString &file) {
  if (QFileInfo::exists(file)) return false;
  if (!QDir().mkpath(QFileInfo(file).path())) Fail(file, QStringLiteral("no folder for it"));
  return true;
}

void CopyMissingFile(const QString &from, const QString &to) {
  if (!IsMissing(to)) return;
  QFile file(from);
  if (!file.copy(to)) Fail(to, file.errorString());
  // Resources are read-only, and copies inherit that.
  QFile::setPermissions(to, QFile::permissions(to) | QFile::WriteOwner);
}

void DrawMissingFile(const SamplePicture &picture, const QString &to) {
  if (IsMissing(to) && !Drawn(picture).save(to)) Fail(to, QStringLiteral("cannot be written"));
}

QByteArray Script(const QDir &folder) {
  QFile file(Resources + u'/' + CatalogueScript);
  if (!file.open(QIODevice::ReadOnly)) Fail(file.fileName(), file.errorString());
  const QString logicFolder = ToLogic(folder.absolutePath()).replace(u'\'', QStringLiteral("''"));
  return QString::fromUtf8(file.readAll())
      .replace(QStringLiteral("{folder}"), logicFolder)
      .toUtf8();
}

void FillCatalogue(const QString &path, const QByteArray &script) {
  sqlite3 *handle = nullptr;
  const int opened = sqlite3_open(path.toUtf8().constData(), &handle);
  const std::unique_ptr<sqlite3, decltype(&sqlite3_close)> database(handle, sqlite3_close);
  if (opened != SQLITE_OK ||
      sqlite3_exec(handle, script.constData(), nullptr, nullptr, nullptr) != SQLITE_OK) {
    Fail(path, QString::fromUtf8(sqlite3_errmsg(handle)));
  }
}

/// Last and in one step, so that a catalogue that exists is whole.
void MakeMissingCatalogue(const QDir &folder) {
  const QString catalogue = folder.filePath(QStringLiteral("eThumbs.mdb"));
  if (QFileInfo::exists(catalogue)) return;
  QTemporaryFile scratch(folder.filePath(QStringLiteral("eThumbs.XXXXXX.tmp")));
  if (!scratch.open()) Fail(catalogue, scratch.errorString());
  FillCatalogue(scratch.fileName(), Script(folder));
  if (!scratch.rename(catalogue)) Fail(catalogue, scratch.errorString());
  scratch.setAutoRemove(false);
  QFile::setPermissions(catalogue,
                        QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup | QFile::ReadOther);
}

}  // namespace

void MakeSample(const QString &folder) {
  const QDir target(folder);
  if (!target.mkpath(QStringLiteral("."))) Fail(folder, QStringLiteral("cannot be made"));
  const QDir source(Resources);
  QDirIterator files(Resources, QDir::Files, QDirIterator::Subdirectories);
  while (files.hasNext()) {
    const QString name = source.relativeFilePath(files.next());
    if (name != CatalogueScript) CopyMissingFile(files.filePath(), target.filePath(name));
  }
  for (const SamplePicture &picture : SamplePictures()) {
    for (const QString &file : picture.files) DrawMissingFile(picture, target.filePath(file));
  }
  MakeMissingCatalogue(target);
}

}  // namespace velor
