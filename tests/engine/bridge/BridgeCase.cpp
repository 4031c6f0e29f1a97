// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/engine/bridge/BridgeCase.h"

#include "tests/engine/bridge/BridgePage.h"

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>

#include <gtest/gtest.h>
#include <map>

namespace velor {
namespace {

const std::map<QString, int> &CommandNumbers() {
  static const std::map<QString, int> numbers = {
      {"bold", 5000},        {"copy", 5002},         {"cut", 5003},         {"delete", 5004},
      {"indent", 5018},      {"italic", 5023},       {"center", 5024},      {"left", 5025},
      {"right", 5026},       {"number", 5030},       {"outdent", 5031},     {"paste", 5032},
      {"redo", 5033},        {"all", 5035},          {"back", 5042},        {"format", 5043},
      {"font", 5044},        {"size", 5045},         {"color", 5046},       {"underline", 5048},
      {"undo", 5049},        {"bullet", 5051},       {"rowBelow", 6001},    {"rowAbove", 6002},
      {"columnRight", 6003}, {"columnLeft", 6004},   {"deleteRow", 6005},   {"deleteColumn", 6006},
      {"deleteTable", 6007}, {"merge", 6008},        {"split", 6009},       {"selectCell", 6010},
      {"selectRow", 6011},   {"selectColumn", 6012}, {"selectTable", 6013}, {"rowUp", 6014},
      {"rowDown", 6015},     {"columnBack", 6016},   {"columnOn", 6017},    {"distribute", 6018},
      {"absolute", 6020},    {"front", 6021},        {"forward", 6022},     {"above", 6023},
      {"toBack", 6024},      {"backward", 6025},     {"below", 6026},
  };
  return numbers;
}

const std::map<QString, QString> &Escapes() {
  static const std::map<QString, QString> escapes = {{"\\n", "\n"}, {"\\r", "\r"}, {"\\t", "\t"}};
  return escapes;
}
QString Unescaped(QString text) {
  for (const auto &[escape, sign] : Escapes()) text.replace(escape, sign);
  return text;
}
QString Escaped(QString text) {
  for (const auto &[escape, sign] : Escapes()) text.replace(sign, escape);
  return text;
}

/// What stands around the input of a case that is no whole document.
QString HeadOf(const BridgeCase &subject) {
  const QString doctype =
      subject.page == QStringLiteral("html5")
          ? QStringLiteral("<!DOCTYPE html>")
          : QStringLiteral(
                "<!DOCTYPE html PUBLIC \"-//W3C//DTD HTML 4.01 Transitional//EN\" "
                "\"http://www.w3.org/TR/html4/loose.dtd\">");
  return doctype + QStringLiteral("<html><head></head><body>");
}
constexpr const char *Foot = "</body></html>";

/// Gives a case's lines from `start` on one with that key, in the place of the one that is there.
void PutLine(QStringList &lines, qsizetype start, const QString &key, const QString &value) {
  qsizetype at = start;
  while (at < lines.size() && !lines[at].isEmpty() && !lines[at].startsWith(key)) ++at;
  const QString line = key + Escaped(value);
  if (at < lines.size() && !lines[at].isEmpty())
    lines[at] = line;
  else
    lines.insert(at, line);
}

QStringList LinesOf(const QString &path) {
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly)) return {};
  return QString::fromUtf8(file.readAll()).split(QLatin1Char('\n'));
}

/// What another program has put on the clipboard.
QString ClipboardFile(const QString &name) {
  QFile file(QStringLiteral(VELOR_BRIDGE_TEST_FOLDER "/clipboard/") + name);
  EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << qPrintable(name);
  return QString::fromUtf8(file.readAll());
}

/// The words "name=value" of a step as pairs for the page, without the one named `left`.
QString PairsOf(const QString &words, const QString &left = {}) {
  QStringList pairs;
  for (const QString &word : words.split(u' ')) {
    const QString name = word.section(u'=', 0, 0);
    if (name == left) continue;
    pairs << QStringLiteral("[%1,%2]").arg(ScriptText(name), ScriptText(word.section(u'=', 1)));
  }
  return u'[' + pairs.join(u',') + u']';
}

/// The query of a step: its words, behind options in brackets ("[matchCase wholeWords] words").
QString SearchOf(const QString &value) {
  static const QRegularExpression form(QStringLiteral("^(?:\\[([\\w ]+)\\] )?(.*)$"));
  const QRegularExpressionMatch match = form.match(value);
  QString query = QStringLiteral("{ words: %1").arg(ScriptText(match.captured(2)));
  for (const QString &option : match.captured(1).split(u' ', Qt::SkipEmptyParts))
    query += QStringLiteral(", %1: true").arg(option);
  return query + QStringLiteral(" }");
}

}  // namespace

QString ScriptText(const QString &text) {
  const QByteArray json = QJsonDocument(QJsonObject{{"t", text}}).toJson(QJsonDocument::Compact);
  return QString::fromUtf8(json.mid(5, json.size() - 6));
}

bool BridgeCase::IsDocument() const {
  return input.startsWith(QStringLiteral("<!")) || input.startsWith(QStringLiteral("<html"));
}

QString BridgeCase::Document() const {
  return IsDocument() ? input : HeadOf(*this) + input + QLatin1String(Foot);
}

QString BridgeCase::File() const {
  return Document().remove(u'^').remove(u'|');
}

QString BridgeCase::PartOf(const QString &document) const {
  const QString head = HeadOf(*this);
  const QLatin1String foot(Foot);
  if (IsDocument() || !document.startsWith(head) || !document.endsWith(foot)) return document;
  return document.mid(head.size(), document.size() - head.size() - foot.size());
}

std::vector<BridgeCase> ReadBridgeCases(const QString &folder) {
  std::vector<BridgeCase> cases;
  const QStringList files =
      QDir(folder).entryList({QStringLiteral("*.txt")}, QDir::Files, QDir::Name);
  for (const QString &file : files) {
    const QString path = QDir(folder).filePath(file);
    for (const QString &line : LinesOf(path)) {
      const QString key = line.section(QStringLiteral(": "), 0, 0);
      const QString value = Unescaped(line.section(QStringLiteral(": "), 1));
      if (key == QStringLiteral("name")) {
        cases.push_back({path, value, {}, {}, {}, {}, {}, {}, {}});
      } else if (key == QStringLiteral("page")) {
        cases.back().page = value;
      } else if (key == QStringLiteral("input")) {
        cases.back().input = value;
      } else if (key == QStringLiteral("before")) {
        cases.back().stateBefore = value;
      } else if (key == QStringLiteral("do")) {
        cases.back().steps.append(value);
      } else if (key == QStringLiteral("state")) {
        cases.back().state = value;
      } else if (key == QStringLiteral("expect")) {
        cases.back().expected = value;
      } else if (key == QStringLiteral("saved")) {
        cases.back().saved = value;
      }
    }
  }
  return cases;
}

void Rebaseline(const BridgeCase &subject, const QString &actual, const QString &saved) {
  QStringList lines = LinesOf(subject.file);
  const qsizetype start = lines.indexOf(QStringLiteral("name: ") + subject.name);
  if (subject.saved.isEmpty() || !subject.expected.isEmpty())
    PutLine(lines, start, QStringLiteral("expect: "), actual);
  if (!subject.saved.isEmpty()) PutLine(lines, start, QStringLiteral("saved: "), saved);
  QFile file(subject.file);
  if (file.open(QIODevice::WriteOnly)) file.write(lines.join(QLatin1Char('\n')).toUtf8());
}

void Perform(BridgePage &page, const QString &step) {
  const QString verb = step.section(QLatin1Char(' '), 0, 0);
  const QString value = step.section(QLatin1Char(' '), 1);
  if (verb == QStringLiteral("type")) {
    page.Type(value);
  } else if (verb == QStringLiteral("key")) {
    page.Press(QKeySequence::fromString(value, QKeySequence::PortableText));
  } else if (verb == QStringLiteral("hold")) {
    const QString name = value.section(QLatin1Char(' '), 0, 0);
    page.Hold(QKeySequence::fromString(name, QKeySequence::PortableText),
              value.section(QLatin1Char(' '), 1).toInt());
  } else if (verb == QStringLiteral("compose")) {
    page.Compose(value);
  } else if (verb == QStringLiteral("commit")) {
    page.Commit(value);
  } else if (verb == QStringLiteral("pasteHTML")) {
    page.Evaluate(QStringLiteral("velor.pasteHTML(%1)").arg(ScriptText(value)));
  } else if (verb == QStringLiteral("link")) {
    page.Evaluate(QStringLiteral("velor.setLink(%1, 'text')").arg(PairsOf(value)));
  } else if (verb == QStringLiteral("properties")) {
    page.Evaluate(QStringLiteral("velor.setProperties(%1, Object.fromEntries(%2))")
                      .arg(ScriptText(value.section(u' ', 0, 0)), PairsOf(value.section(u' ', 1))));
  } else if (verb == QStringLiteral("path")) {
    page.Evaluate(QStringLiteral("velor.actOnPath(velor.state().pathNumbers[%1], %2)")
                      .arg(value.section(u' ', 0, 0), ScriptText(value.section(u' ', 1))));
  } else if (verb == QStringLiteral("class")) {
    page.Evaluate(QStringLiteral("velor.setClassOnPath(velor.state().pathNumbers[%1], %2, %3)")
                      .arg(value.section(u' ', 0, 0), ScriptText(value.section(u' ', 1, 1)),
                           value.section(u' ', 2)));
  } else if (verb == QStringLiteral("element")) {
    page.Evaluate(QStringLiteral("velor.setProperties('element', Object.fromEntries(%2), "
                                 "velor.state().pathNumbers[%1])")
                      .arg(value.section(u' ', 0, 0), PairsOf(value.section(u' ', 1))));
  } else if (verb == QStringLiteral("bookmark")) {
    page.Evaluate(QStringLiteral("velor.setBookmark(%1)").arg(ScriptText(value)));
  } else if (verb == QStringLiteral("object")) {
    const QString side = value.section(QStringLiteral("side="), 1);
    page.Evaluate(QStringLiteral("velor.changeObject(%1, %2)")
                      .arg(PairsOf(value, QStringLiteral("side")), ScriptText(side)));
  } else if (verb == QStringLiteral("find") || verb == QStringLiteral("findNext") ||
             verb == QStringLiteral("findPrevious")) {
    const QString way =
        verb == QStringLiteral("find") ? QStringLiteral("here") : verb.mid(4).toLower();
    page.Evaluate(QStringLiteral("velor.find(%1, '%2')").arg(SearchOf(value), way));
  } else if (verb == QStringLiteral("replace") || verb == QStringLiteral("replaceAll")) {
    const QString name = verb == QStringLiteral("replace") ? QStringLiteral("replaceFound") : verb;
    page.Evaluate(QStringLiteral("velor.%1(%2, %3)")
                      .arg(name, SearchOf(value.section(QStringLiteral(" => "), 0, 0)),
                           ScriptText(value.section(QStringLiteral(" => "), 1))));
  } else if (verb == QStringLiteral("pasteForeign") || verb == QStringLiteral("pasteText")) {
    const QString type = verb == QStringLiteral("pasteText") ? QStringLiteral("text/plain")
                                                             : QStringLiteral("text/html");
    page.Evaluate(QStringLiteral("markup.paste(%1, %2)").arg(ScriptText(type), ScriptText(value)));
  } else if (verb == QStringLiteral("publishedOnly")) {
    page.Evaluate(QStringLiteral("velor.start({ additions: false })"));
  } else if (verb == QStringLiteral("pasteAs")) {
    page.Evaluate(QStringLiteral("inside.insert({html: '', text: %2, addresses: ''}, 'paste', %1)")
                      .arg(ScriptText(value.section(u' ', 0, 0)),
                           ScriptText(ClipboardFile(value.section(u' ', 1)))));
  } else if (verb == QStringLiteral("pasteFile")) {
    page.Evaluate(
        QStringLiteral("markup.paste(%1, %2)")
            .arg(ScriptText(value.endsWith(QStringLiteral(".html")) ? QStringLiteral("text/html")
                                                                    : QStringLiteral("text/plain")),
                 ScriptText(ClipboardFile(value))));
  } else if (verb == QStringLiteral("cutAndPaste")) {
    page.Evaluate(QStringLiteral("markup.paste('text/html', markup.cut())"));
  } else if (verb == QStringLiteral("copyAndPaste")) {
    page.Evaluate(QStringLiteral("markup.paste('text/html', markup.copy())"));
  } else if (verb == QStringLiteral("copyTo")) {
    const QString copied = page.Evaluate(QStringLiteral("markup.copy()")).toString();
    page.Press(QKeySequence::fromString(value, QKeySequence::PortableText));
    page.Evaluate(QStringLiteral("markup.paste('text/html', %1)").arg(ScriptText(copied)));
  } else if (CommandNumbers().count(verb) == 1) {
    page.Evaluate(
        QStringLiteral("velor.exec(%1, %2)").arg(CommandNumbers().at(verb)).arg(ScriptText(value)));
  } else {
    ADD_FAILURE() << "no such step: " << qPrintable(step);
  }
}

QString ActualState(BridgePage &page, const QString &expected) {
  const QString json = page.Evaluate(QStringLiteral("JSON.stringify(velor.state())")).toString();
  const QJsonObject state = QJsonDocument::fromJson(json.toUtf8()).object();
  QStringList actual;
  static const QRegularExpression pair(QStringLiteral("(\\w+)=(\"[^\"]*\"|\\S*)"));
  for (auto matches = pair.globalMatch(expected); matches.hasNext();) {
    const QRegularExpressionMatch match = matches.next();
    const QString key = match.captured(1);
    QString value;
    if (CommandNumbers().count(key) == 1) {
      const QString number = QString::number(CommandNumbers().at(key));
      value = QString::number(state["commands"].toObject()[number].toInt());
    } else if (key == QStringLiteral("link")) {
      for (const QJsonValue &attribute : state["link"].toObject()["attributes"].toArray())
        if (attribute[0].toString() == QStringLiteral("href")) value = attribute[1].toString();
    } else if (key == QStringLiteral("element")) {
      value = state["element"].toObject()["tag"].toString();
    } else {
      value = state[key].toString();
    }
    if (match.captured(2).startsWith(QLatin1Char('"'))) value = QStringLiteral("\"%1\"").arg(value);
    actual.append(key + QLatin1Char('=') + value);
  }
  return actual.join(QLatin1Char(' '));
}

}  // namespace velor
