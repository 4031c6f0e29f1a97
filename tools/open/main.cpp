// SPDX-License-Identifier: GPL-3.0-or-later
// velor-open [--line N] [FILE...]: opens pages in the editor that runs, or starts it.
#include "qt/ProgramFolder.h"
#include "qt/RunningProgram.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QDir>
#include <QFile>
#include <QProcess>

#include <chrono>
#include <cstdio>
#include <thread>

namespace {

using namespace std::chrono_literals;

constexpr int WrongArguments = 2;
/// A first start on a slow disk.
constexpr auto StartLimit = 60s;
constexpr auto StartPause = 50ms;

void Say(const QString &sentence) {
  std::fprintf(stderr, "velor-open: %s\n", sentence.toLocal8Bit().constData());
}

/// The file's absolute path; the empty text and a sentence where the program could not name it.
QString AbsolutePath(const QString &argument, const char *bytes) {
  if (QFile::encodeName(argument) != QByteArray(bytes)) {
    Say(QStringLiteral("%1 has a name in another encoding than the system's").arg(argument));
    return {};
  }
  return QDir::cleanPath(QDir::current().absoluteFilePath(argument));
}

/// Asks the program that runs, or one that is started for it.
std::optional<QStringList> Ask(const velor::OpeningRequest &request) {
  const QString beside = QCoreApplication::applicationDirPath();
  const QString programFolder = velor::PrepareProgramFolder(beside);
  if (auto answer = velor::AskRunningProgram(programFolder, request)) return answer;
  QProcess program;
  program.setProgram(QDir(beside).filePath(QStringLiteral("velor-web-creator")));
  // Whoever reads what this tool says does not wait for the program's end.
  program.setStandardOutputFile(QProcess::nullDevice());
  program.setStandardErrorFile(QProcess::nullDevice());
  if (!program.startDetached()) return std::nullopt;
  for (const QDeadlineTimer limit(StartLimit); !limit.hasExpired();
       std::this_thread::sleep_for(StartPause))
    if (auto answer = velor::AskRunningProgram(programFolder, request)) return answer;
  return std::nullopt;
}

}  // namespace

int main(int argc, char **argv) {
  const QCoreApplication application(argc, argv);
  QCommandLineParser parser;
  parser.setApplicationDescription(QStringLiteral(
      "Opens pages in Velor Web Creator, which is started where it does not run.\n"
      "Exit status: 0; 1 when a file was not opened; 2 for arguments that mean nothing."));
  const QCommandLineOption help = parser.addHelpOption();
  const QCommandLineOption line(
      QStringLiteral("line"),
      QStringLiteral("Shows that line, counted from 1, of the first file's source."),
      QStringLiteral("N"));
  parser.addOption(line);
  parser.addPositionalArgument(QStringLiteral("FILES"), QStringLiteral("Pages."),
                               QStringLiteral("[FILES...]"));
  const bool isParsed = parser.parse(QCoreApplication::arguments());
  if (isParsed && parser.isSet(help)) {
    std::fputs(parser.helpText().toLocal8Bit().constData(), stdout);
    return 0;
  }
  bool isNumber = true;
  velor::OpeningRequest request = {{},
                                   parser.isSet(line) ? parser.value(line).toInt(&isNumber) : 0,
                                   velor::OwnActivationToken()};
  if (!isParsed || !isNumber || request.line < 0) {
    Say(isParsed ? QStringLiteral("--line takes a number") : parser.errorText());
    return WrongArguments;
  }
  const QStringList files = parser.positionalArguments();
  int status = 0;
  for (qsizetype index = 0; index < files.size(); ++index) {
    // The files are the last arguments.
    const QString path = AbsolutePath(files[index], argv[argc - files.size() + index]);
    if (path.isEmpty())
      status = 1;
    else
      request.files += path;
  }
  if (!files.isEmpty() && request.files.isEmpty()) return status;
  const auto notOpened = Ask(request);
  if (!notOpened) {
    Say(QStringLiteral("the program could not be started"));
    return 1;
  }
  for (const QString &sentence : *notOpened) Say(sentence);
  return notOpened->isEmpty() ? status : 1;
}
