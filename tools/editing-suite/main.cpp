// SPDX-License-Identifier: GPL-3.0-or-later
// velor-editing-suite: runs data files of the browsers' common suite of editing tests.
#include "files/Processes.h"
#include "platform/RuntimeError.h"
#include "tools/editing-suite/EditingSuite.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <QFileInfo>

#include <cstdio>

namespace {

const char *const Description =
    "Runs data files of the browsers' common suite of editing tests against the editor and prints\n"
    "a line for each file:\n"
    "\n"
    "  rows held by the editor / rows that the editor can be asked for / held by the engine "
    "alone,\n"
    "  rows whose buttons and boxes show what is expected / rows that expect them to show "
    "something,\n"
    "  rows with commands or values that the editor does not have,\n"
    "  rows that ended the page's process, where there are any.\n"
    "\n"
    "Ends with 0 when every file could be read, 1 when one could not, 2 when there are none.";

void PrintLine(const QString &name, const velor::SuiteResult &result) {
  std::printf("%-26s %5d / %5d / %5d   states %5d / %5d   not ours %5d", qUtf8Printable(name),
              result.held, result.total, result.heldByEngine, result.statesHeld, result.states,
              result.foreign);
  if (result.lost > 0) std::printf("   lost %d", result.lost);
  std::puts("");
  std::fflush(stdout);
}

void PrintDifferences(const velor::SuiteResult &result) {
  for (const velor::SuiteDifference &each : result.differences) {
    std::printf("\n  %s\n  %s\n  expected  %s\n  ours      %s\n  engine    %s\n",
                qUtf8Printable(each.input), qUtf8Printable(each.commands),
                qUtf8Printable(each.expected), qUtf8Printable(each.ours),
                qUtf8Printable(each.plain));
    if (!each.shown.isEmpty()) std::printf("  shown     %s\n", qUtf8Printable(each.shown));
  }
}

/// The data files that the arguments name: files, and the scripts of folders.
QStringList FilesOf(const QStringList &arguments) {
  QStringList files;
  for (const QString &argument : arguments) {
    if (!QFileInfo(argument).isDir()) {
      files.append(argument);
      continue;
    }
    const QDir folder(argument);
    for (const QString &name : folder.entryList({QStringLiteral("*.js")}, QDir::Files, QDir::Name))
      files.append(folder.filePath(name));
  }
  return files;
}

/// The suite needs no screen, and as root the engine runs without its sandbox only.
void PrepareEnvironment() {
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  if (velor::IsSuperuser() && !qEnvironmentVariableIsSet("QTWEBENGINE_DISABLE_SANDBOX"))
    qputenv("QTWEBENGINE_DISABLE_SANDBOX", "1");
}

}  // namespace

int main(int argc, char **argv) {
  PrepareEnvironment();
  const QApplication application(argc, argv);
  QCommandLineParser parser;
  parser.setApplicationDescription(QLatin1String(Description));
  parser.addHelpOption();
  const QCommandLineOption differences(QStringLiteral("differences"),
                                       QStringLiteral("Also prints each row that does not hold."));
  parser.addOption(differences);
  parser.addPositionalArgument(QStringLiteral("folder"),
                               QStringLiteral("A folder with data files, or such a file."),
                               QStringLiteral("folder..."));
  parser.process(application);
  const QStringList files = FilesOf(parser.positionalArguments());
  if (files.isEmpty()) {
    std::fputs(qUtf8Printable(parser.helpText()), stderr);
    return 2;
  }
  velor::EditingSuite suite;
  velor::SuiteResult all;
  int unreadable = 0;
  std::puts("file                        held / total / held by the engine alone");
  for (const QString &file : files) {
    try {
      const velor::SuiteResult result = suite.Run(file);
      PrintLine(QFileInfo(file).fileName(), result);
      if (parser.isSet(differences)) PrintDifferences(result);
      all += result;
    } catch (const velor::RuntimeError &error) {
      std::fprintf(stderr, "%s: %s\n", qUtf8Printable(file), error.what());
      ++unreadable;
    }
  }
  PrintLine(QStringLiteral("all"), all);
  return unreadable == 0 ? 0 : 1;
}
