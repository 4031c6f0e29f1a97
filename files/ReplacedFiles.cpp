// SPDX-License-Identifier: GPL-3.0-or-later
#include "files/ReplacedFiles.h"

#include "files/FileBytes.h"
#include "files/FileReplacement.h"
#include "files/StateFolder.h"
#include "platform/Paths.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <unistd.h>

namespace velor {

namespace {

QString Origin(const QString &kept) {
  return kept + QStringLiteral(".from");
}

/// The end of a name, short enough that time and suffix fit before and behind it.
QString ShortName(const QString &nativePath) {
  constexpr qsizetype Most = 60;  // UTF-16 code units, of up to three bytes each
  return QFileInfo(nativePath).fileName().right(Most);
}

QString FreeName(const QString &folder, const QDateTime &time, const QString &name) {
  const QString stamp = time.toString(QStringLiteral("yyyy-MM-dd'T'HH-mm-ss.zzz"));
  for (int number = 1;; ++number) {
    // The process number tells apart two copies of the program that keep a version at once.
    const QString path =
        QStringLiteral("%1/%2-%3-%4 %5")
            .arg(folder, stamp, QString::number(getpid()), QString::number(number), name);
    if (!QFileInfo::exists(Origin(path))) return path;
  }
}

}  // namespace

QString ReplacedFiles::Store(const QString &path, const QByteArray &content) {
  return StoreNative(ToNative(path), content);
}

QString ReplacedFiles::StoreNative(const QString &nativePath, const QByteArray &content) {
  const QString folder = StateFolder() + QStringLiteral("/replaced");
  MakePrivateFolder(folder);
  const QDateTime now = QDateTime::currentDateTimeUtc();
  QString kept = FreeName(folder, now, ShortName(nativePath));
  // The origin is written first, so that there is no version whose origin is unknown.
  const QString origin =
      QStringLiteral("%1\n%2\n").arg(nativePath, now.toString(Qt::ISODateWithMs));
  CreatePrivateFile(Origin(kept), origin.toUtf8(), calls_);
  CreatePrivateFile(kept, content, calls_);

  QStringList origins =
      QDir(folder).entryList({QStringLiteral("*.from")}, QDir::Files | QDir::Hidden, QDir::Name);
  for (qsizetype i = 0; i < origins.size() - MostVersions; ++i) {
    const QString oldest = folder + u'/' + origins[i];
    Remove(oldest.chopped(Origin({}).size()));
  }
  return kept;
}

void ReplacedFiles::Remove(const QString &kept) {
  for (const QString &name : {kept, Origin(kept)}) {
    Uninterrupted([&] { return calls_.Unlink(QFile::encodeName(name).constData()); });
  }
}

}  // namespace velor
