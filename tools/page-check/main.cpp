// SPDX-License-Identifier: GPL-3.0-or-later
// velor-page-check [--edit KIND] [--nth N] FILES...: one line of JSON a page.
#include "platform/qt/editing/PageScheme.h"
#include "tools/page-check/PageCheck.h"

#include <QApplication>
#include <QJsonDocument>

#include <cstdio>
#include <exception>

namespace {

int Usage() {
  std::fprintf(stderr, "usage: velor-page-check [--edit KIND] [--nth N] FILES...\nKIND: %s\n",
               qPrintable(velor::PageCheck::Kinds().join(QStringLiteral(", "))));
  return 2;
}

}  // namespace

int main(int argc, char **argv) {
  velor::RegisterPageScheme();
  const QApplication application(argc, argv);
  QStringList arguments = QApplication::arguments().mid(1);
  QString kind;
  int place = 0;
  while (arguments.size() > 1 && arguments.front().startsWith(u"--")) {
    const QString option = arguments.takeFirst();
    const QString value = arguments.takeFirst();
    bool isFine = true;
    if (option == u"--edit" && velor::PageCheck::Kinds().contains(value))
      kind = value;
    else if (option == u"--nth")
      place = value.toInt(&isFine);
    else
      return Usage();
    if (!isFine || place < 0) return Usage();
  }
  if (arguments.isEmpty()) return Usage();
  try {
    velor::EditingEngine engine;
    velor::PageCheck check(engine);
    for (const QString &file : arguments) {
      const QJsonDocument line(check.Run(file, kind, place));
      std::printf("%s\n", line.toJson(QJsonDocument::Compact).constData());
      std::fflush(stdout);
    }
  } catch (const std::exception &error) {
    std::fprintf(stderr, "velor-page-check: %s\n", error.what());
    return 1;
  }
  return 0;
}
