// SPDX-License-Identifier: GPL-3.0-or-later
// velor-editing-suite FOLDER [--differences]: runs every data file of the folder and prints for
// each how many rows hold: by the bridge, of how many, and by the engine alone.
#include "platform/RuntimeError.h"
#include "tools/editing-suite/EditingSuite.h"

#include <QApplication>
#include <QDir>

#include <cstdio>

namespace {

void PrintLine(const QString &name, const velor::SuiteResult &result) {
  std::printf("%-26s %4d / %4d / %4d   not ours %d\n", qPrintable(name), result.held, result.total,
              result.heldByEngine, result.foreign);
}

void PrintDifferences(const velor::SuiteResult &result) {
  for (const velor::SuiteDifference &each : result.differences) {
    std::printf("\n  %s\n  %s\n  expected  %s\n  ours      %s\n  engine    %s\n",
                qUtf8Printable(each.input), qUtf8Printable(each.commands),
                qUtf8Printable(each.expected), qUtf8Printable(each.ours),
                qUtf8Printable(each.plain));
  }
}

}  // namespace

int main(int argc, char **argv) {
  const QApplication application(argc, argv);
  QStringList arguments = QApplication::arguments().mid(1);
  const bool differences = arguments.removeAll(QStringLiteral("--differences")) > 0;
  const QDir folder(arguments.value(0));
  const QStringList names = folder.entryList({QStringLiteral("*.js")}, QDir::Files, QDir::Name);
  if (arguments.size() != 1 || names.isEmpty()) {
    std::fputs("usage: velor-editing-suite FOLDER [--differences]\n", stderr);
    return 2;
  }
  velor::EditingSuite suite;
  velor::SuiteResult all;
  int unreadable = 0;
  std::puts("file                       held / total / held by the engine alone");
  for (const QString &name : names) {
    try {
      const velor::SuiteResult result = suite.Run(folder.filePath(name));
      PrintLine(name, result);
      if (differences) PrintDifferences(result);
      all.held += result.held;
      all.total += result.total;
      all.heldByEngine += result.heldByEngine;
      all.foreign += result.foreign;
    } catch (const velor::RuntimeError &error) {
      std::fprintf(stderr, "%s: %s\n", qPrintable(name), error.what());
      ++unreadable;
    }
  }
  PrintLine(QStringLiteral("all"), all);
  return unreadable == 0 ? 0 : 1;
}
