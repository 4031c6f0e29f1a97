// SPDX-License-Identifier: GPL-3.0-or-later
// velor-page-check [--edit KIND] [--nth N] [--keep DIR] FILES...: one line of JSON a page.
#include "engine/PageScheme.h"
#include "files/Processes.h"
#include "tools/page-check/PageCheck.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <QFile>
#include <QJsonDocument>

#include <cstdio>
#include <exception>

namespace {

constexpr int SomePageFailed = 1;
constexpr int WrongUse = 2;

const char *const Description =
    "Opens pages in the editing component, makes an edit in each, saves copies of them and prints "
    "a line of JSON a file:\n"
    "  file            as given\n"
    "  edited          whether the page has such a place; false without --edit\n"
    "  identical       whether the saved file has the bytes of the file\n"
    "  bytes_lost      bytes of the file that the saved file does not have, the edit's included\n"
    "  bytes_added     bytes of the saved file that the file does not have, the edit's included\n"
    "  bytes_outside   bytes changed outside the edit\n"
    "  bytes_implied   bytes of tags that the file leaves out and the edited document needs\n"
    "  word            of delete-word: what was deleted\n"
    "  with_word       of delete-word: what the visible line needs to go or come with it: element "
    "(which held that word alone), blank (one of two), line (the BR of an empty line), sign (the "
    "rest of a template sign)\n"
    "  beyond_word     of delete-word: characters of anything else that is gone or added\n"
    "  rung            how much was written: unedited, edits, implied-tags, elements, everything\n"
    "  document_equal  whether the saved file, opened anew, gives the edited document\n"
    "  ms              milliseconds that saving took\n"
    "  error           only of a file that could not be opened, edited or saved; nothing else of "
    "that line counts\n"
    "The edits type, enter, backspace, delete, delete-word, paste and paste-cells are keys and "
    "commands as a person gives them (type=WORD types that word; delete-word selects a word and "
    "deletes it; paste-cells pastes two rows of a spreadsheet into two selected cells; "
    "replace=A,B finds the first A from a word on and replaces it, replace-all=A,B all of them; "
    "correct=A,B corrects the first A from a word on). The others' places are where a person may "
    "put the caret: at ends of words, lines, texts and cells, behind inline elements and in "
    "indented text in turn, each kind evenly over the page.\n"
    "Exit status: 0; 1 when a file has an error; 2 for arguments that mean nothing.";

/// Nobody looks at the pages, each comes in the place of the one before, and Chromium's sandbox
/// refuses to start for the superuser.
void PrepareEngine() {
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  if (!qEnvironmentVariableIsSet("QTWEBENGINE_CHROMIUM_FLAGS"))
    qputenv("QTWEBENGINE_CHROMIUM_FLAGS", "--renderer-process-limit=1");
  if (velor::IsSuperuser()) qputenv("QTWEBENGINE_DISABLE_SANDBOX", "1");
}

int Usage(const QString &fault) {
  std::fprintf(stderr, "velor-page-check: %s (see --help)\n", qPrintable(fault));
  return WrongUse;
}

bool Keep(const QByteArray &saved, const QString &folder, int number) {
  QFile copy(QDir(folder).filePath(QString::number(number) + QStringLiteral(".htm")));
  return copy.open(QIODevice::WriteOnly) && copy.write(saved) == saved.size();
}

}  // namespace

int main(int argc, char **argv) {
  PrepareEngine();
  velor::RegisterSchemes();
  const QApplication application(argc, argv);
  QCommandLineParser parser;
  const QCommandLineOption help({QStringLiteral("h"), QStringLiteral("help")},
                                QStringLiteral("Tells all this."));
  const QCommandLineOption edit(QStringLiteral("edit"),
                                QStringLiteral("The edit, one of ") +
                                    (velor::PageCheck::ScriptKinds() + velor::PageCheck::KeyKinds())
                                        .join(QStringLiteral(", ")) +
                                    QStringLiteral(". Without it the pages are saved as they are."),
                                QStringLiteral("KIND"));
  const QCommandLineOption nth(QStringLiteral("nth"),
                               QStringLiteral("The place of the edit, counted from 0."),
                               QStringLiteral("N"), QStringLiteral("0"));
  parser.setApplicationDescription(QString::fromLatin1(Description));
  const QCommandLineOption keep(
      QStringLiteral("keep"),
      QStringLiteral("Keeps the saved copies in that folder, by the numbers of the files (1.htm)."),
      QStringLiteral("DIR"));
  parser.addOptions({help, edit, nth, keep});
  parser.addPositionalArgument(QStringLiteral("FILES"), QStringLiteral("Pages."),
                               QStringLiteral("FILES..."));
  if (!parser.parse(QApplication::arguments())) return Usage(parser.errorText());
  if (parser.isSet(help)) {
    std::fputs(qPrintable(parser.helpText()), stdout);
    return 0;
  }
  const QString kind = parser.value(edit);
  bool isNumber = false;
  const int place = parser.value(nth).toInt(&isNumber);
  if (parser.isSet(edit) && !velor::PageCheck::IsKind(kind))
    return Usage(QStringLiteral("there is no edit \"%1\"").arg(kind));
  if (!isNumber || place < 0)
    return Usage(QStringLiteral("\"%1\" is no place").arg(parser.value(nth)));
  if (parser.isSet(keep) && !QDir().mkpath(parser.value(keep)))
    return Usage(QStringLiteral("there can be no folder \"%1\"").arg(parser.value(keep)));
  if (parser.positionalArguments().isEmpty()) return Usage(QStringLiteral("no files"));
  try {
    int status = 0;
    velor::EditingEngine engine;
    velor::PageCheck check(engine);
    int number = 0;
    for (const QString &file : parser.positionalArguments()) {
      ++number;
      const QJsonObject result = check.Run(file, kind, place);
      if (result.contains(velor::PageCheck::ErrorField()))
        status = SomePageFailed;
      else if (parser.isSet(keep) && !Keep(check.Saved(), parser.value(keep), number))
        return Usage(QStringLiteral("cannot write into \"%1\"").arg(parser.value(keep)));
      std::printf("%s\n", QJsonDocument(result).toJson(QJsonDocument::Compact).constData());
      std::fflush(stdout);
    }
    return status;
  } catch (const std::exception &error) {
    std::fprintf(stderr, "velor-page-check: %s\n", error.what());
    return SomePageFailed;
  }
}
