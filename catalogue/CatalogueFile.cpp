// SPDX-License-Identifier: GPL-3.0-or-later
#include "catalogue/CatalogueFile.h"

#include "files/FileBytes.h"
#include "platform/RuntimeError.h"
#include "platform/Words.h"

#include <QByteArray>

namespace velor {

namespace {

constexpr qsizetype HeaderBytes = 32;

/// What a file's header says; `start` is where the mark lies.
struct Format {
  qsizetype start;
  QByteArray mark;
  CatalogueKind kind;
};

const QList<Format> &Formats() {
  static const QList<Format> formats = {
      {0, QByteArray("SQLite format 3\0", 16), CatalogueKind::Sqlite},
      {4, "Standard Jet DB", CatalogueKind::Jet},
      {4, "Standard ACE DB", CatalogueKind::Jet},
  };
  return formats;
}

QString Source() {
  return QStringLiteral("Database.Open");
}

[[noreturn]] void Refuse(const QString &nativePath, const QString &objection) {
  throw RuntimeError::Of(
      ErrorNumber::DeviceIoError, Source(),
      Words::tr("The catalogue %1 cannot be opened: %2").arg(nativePath, objection));
}

}  // namespace

CatalogueKind KindOfCatalogue(const QString &nativePath) {
  const QByteArray header = ReadBeginning(nativePath, HeaderBytes, Source());
  if (header.isEmpty()) {
    Refuse(nativePath, Words::tr("it is empty; put a copy of the catalogue in its place"));
  }
  for (const Format &format : Formats()) {
    if (header.mid(format.start, format.mark.size()) == format.mark) return format.kind;
  }
  Refuse(nativePath,
         Words::tr("it is no database; a catalogue is a Jet 4 file of the catalogue program, or "
                   "an SQLite file"));
}

}  // namespace velor
