// SPDX-License-Identifier: GPL-3.0-or-later
// Writes sound Jet files of every form into a folder, for velor-jet-fuzz to start from.
#include "tests/support/jet/JetCatalogues.h"
#include "tests/support/jet/JetWriter.h"

#include <QDir>
#include <QFile>

#include <cstdio>

namespace {

using namespace velor::fixture;

bool Write(const QDir &folder, const QString &name, const FixtureFile &fixture) {
  QFile file(folder.filePath(name));
  const QByteArray bytes = WriteJetFile(fixture);
  return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
}

}  // namespace

int main(int argc, char **argv) {
  if (argc != 2 || !QDir().mkpath(QFile::decodeName(argv[1]))) {
    std::fprintf(stderr, "usage: velor-jet-seeds DIR\n");
    return 2;
  }
  const QDir folder(QFile::decodeName(argv[1]));
  bool written = Write(folder, QStringLiteral("odd.mdb"), OddTablesFixture());
  for (quint32 seed = 0; seed < 8; ++seed) {
    CatalogueShape shape;
    shape.seed = seed;
    shape.pages = 10;
    shape.worn = seed % 2 == 0;
    shape.folders = seed % 4 < 2 ? FolderType::Memo : FolderType::Text;
    FixtureFile fixture = CatalogueFixture(shape);
    fixture.maps = seed < 4 ? MapForm::BitmapPages : MapForm::BitmapWhereItReaches;
    written = Write(folder, QStringLiteral("catalogue%1.mdb").arg(seed), fixture) && written;
  }
  return written ? 0 : 1;
}
