// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/page-check/PageCheck.h"

#include "engine/BridgeScript.h"
#include "engine/GuardedWait.h"
#include "engine/WebEditor.h"
#include "files/QtFiles.h"
#include "platform/Paths.h"
#include "platform/RuntimeError.h"
#include "tools/page-check/OutsideBytes.h"
#include "tools/page-check/WordDeletion.h"

#include <QClipboard>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QRegularExpression>
#include <QVBoxLayout>
#include <QWebEnginePage>
#include <QWebEngineView>

#include <memory>

static void InitialiseScript() {
  Q_INIT_RESOURCE(velor_page_check_script);
}

namespace velor {

namespace {

QByteArray Bytes(const QString &file) {
  QFile opened(file);
  return opened.open(QIODevice::ReadOnly) ? opened.readAll() : QByteArray();
}

const QRegularExpression &FrameTags() {
  static const QRegularExpression tags(QStringLiteral("</?(html|head|body)\\b[^>]*>"),
                                       QRegularExpression::CaseInsensitiveOption);
  return tags;
}
bool HasFrameTags(const QByteArray &file) {
  return DecodePage(file).text.contains(FrameTags());
}
/// A parser drops white space before the first word of a text without these tags.
QString WithoutFrameTags(QString document) {
  return document.remove(FrameTags());
}

QString EditScript() {
  InitialiseScript();
  return QString::fromUtf8(Bytes(QStringLiteral(":/page-check/edits.js")));
}

}  // namespace

/// A window with an editing component in it.
class PageCheck::Desk {
 public:
  Desk(EditingEngine &engine, const QString &folder)
      : engine_(engine), editor(engine, files_, ToLogic(folder), &window_) {
    window_.resize(800, 600);
    auto *layout = new QVBoxLayout(&window_);
    layout->addWidget(editor.Widget());
    window_.show();
    window_.activateWindow();
  }

  /// The text that was selected for the edit; nullopt where the page has no such place.
  std::optional<QString> Edit(const QString &words, int place) {
    const QString kind = words.section(u'=', 0, 0);
    const std::optional<QString> selected = EditByScript(kind, place, words.section(u'=', 1));
    if (!selected) return selected;
    if (kind == u"type")
      Type(words.contains(u'=') ? words.section(u'=', 1) : QStringLiteral("inserted"));
    else if (kind == u"paste")
      Paste(QStringLiteral("pasted"));
    else if (kind == u"paste-cells")
      Paste(QStringLiteral("one\ttwo\nthree\tfour"));
    else if (const auto key = KeyOf(kind))
      Press(*key, {});
    return selected;
  }

 private:
  static std::optional<Qt::Key> KeyOf(const QString &kind) {
    if (kind == u"enter") return Qt::Key_Return;
    if (kind == u"backspace") return Qt::Key_Backspace;
    if (kind == u"delete" || kind == u"delete-word") return Qt::Key_Delete;
    return std::nullopt;
  }
  void Press(Qt::Key key, const QString &text) {
    editor.SetFocus();
    QWidget *input = editor.Widget()->findChild<QWebEngineView *>()->focusProxy();
    for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
      QKeyEvent event(type, key, Qt::NoModifier, text);
      QCoreApplication::sendEvent(input, &event);
    }
  }
  void Type(const QString &text) {
    for (const QChar sign : text) Press(static_cast<Qt::Key>(sign.toUpper().unicode()), sign);
  }
  void Paste(const QString &text) {
    QGuiApplication::clipboard()->setText(text);
    editor.ExecCommand(EditingCommand::Paste, ExecOption::Default, {});
  }

  std::optional<QString> EditByScript(const QString &kind, int place, const QString &argument) {
    QWebEnginePage &page = *editor.Widget()->findChild<QWebEngineView *>()->page();
    const auto answer = std::make_shared<std::optional<QVariant>>();
    page.runJavaScript(QStringLiteral("%1\n;velorPageCheck(%2,%3,%4)")
                           .arg(EditScript(), ScriptValue(kind))
                           .arg(place)
                           .arg(ScriptValue(argument)),
                       BridgeWorld, [answer](const QVariant &value) { *answer = value; });
    GuardedWait(engine_.Guard()).Until(page, std::chrono::minutes(1), [&] {
      return answer->has_value();
    });
    if (!answer->has_value() || (*answer)->typeId() != QMetaType::QString) return std::nullopt;
    return (*answer)->toString();
  }

  EditingEngine &engine_;
  QtFiles files_;
  QWidget window_;

 public:
  WebEditor editor;
};

namespace {

const char *RungName(SaveRung rung) {
  switch (rung) {
    case SaveRung::Unedited:
      return "unedited";
    case SaveRung::Edits:
      return "edits";
    case SaveRung::ImpliedTags:
      return "implied-tags";
    case SaveRung::Elements:
      return "elements";
    case SaveRung::Everything:
      return "everything";
  }
  return "";
}

}  // namespace

const QStringList &PageCheck::ScriptKinds() {
  static const QStringList kinds = {
      QStringLiteral("insert-word"),      QStringLiteral("bold"),      QStringLiteral("image"),
      QStringLiteral("delete-paragraph"), QStringLiteral("table-row"), QStringLiteral("split"),
      QStringLiteral("center"),           QStringLiteral("attribute"), QStringLiteral("row"),
      QStringLiteral("column"),           QStringLiteral("merge"),     QStringLiteral("class"),
      QStringLiteral("page-title"),       QStringLiteral("link"),      QStringLiteral("replace"),
      QStringLiteral("replace-all"),      QStringLiteral("correct")};
  return kinds;
}

const QStringList &PageCheck::KeyKinds() {
  static const QStringList kinds = {QStringLiteral("type"),       QStringLiteral("enter"),
                                    QStringLiteral("backspace"),  QStringLiteral("delete"),
                                    QStringLiteral("paste"),      QStringLiteral("paste-cells"),
                                    QStringLiteral("delete-word")};
  return kinds;
}

bool PageCheck::IsKind(const QString &words) {
  static const QStringList withWords = {QStringLiteral("type"), QStringLiteral("replace"),
                                        QStringLiteral("replace-all"), QStringLiteral("correct")};
  return ScriptKinds().contains(words) || KeyKinds().contains(words) ||
         (words.contains(u'=') && withWords.contains(words.section(u'=', 0, 0)));
}

PageCheck::PageCheck(EditingEngine &engine)
    : desk_(std::make_unique<Desk>(engine, scratch_.path())) {}

PageCheck::~PageCheck() = default;

QString PageCheck::Parsed(const QByteArray &bytes) {
  desk_->editor.SetDocumentHTML(DecodePage(bytes).text);
  return desk_->editor.DocumentHTML();
}

QString PageCheck::ParsedAgain(const QString &document) {
  return Parsed(document.toUtf8().prepend("\xEF\xBB\xBF"));
}

QString PageCheck::Target() const {
  return scratch_.filePath(QStringLiteral("saved.htm"));
}

QByteArray PageCheck::Saved() const {
  return Bytes(Target());
}

QJsonObject PageCheck::Run(const QString &file, const QString &kind, int place) {
  QJsonObject result = {{QStringLiteral("file"), file},
                        {QStringLiteral("edited"), false},
                        {QStringLiteral("identical"), false},
                        {QStringLiteral("bytes_lost"), 0},
                        {QStringLiteral("bytes_added"), 0},
                        {QStringLiteral("bytes_outside"), 0},
                        {QStringLiteral("bytes_implied"), 0},
                        {QStringLiteral("rung"), QString()},
                        {QStringLiteral("document_equal"), false},
                        {QStringLiteral("ms"), 0.0}};
  try {
    Measure(file, kind, place, result);
  } catch (const RuntimeError &error) {
    result[ErrorField()] = error.Description();
  }
  return result;
}

void PageCheck::Measure(const QString &file, const QString &kind, int place, QJsonObject &result) {
  WebEditor &editor = desk_->editor;
  editor.LoadDocument(ToLogic(QFileInfo(file).absoluteFilePath()));
  EditedPage page;
  page.file = Bytes(file);
  page.before = editor.DocumentHTML();
  const std::optional<QString> selected = kind.isEmpty() ? std::nullopt : desk_->Edit(kind, place);
  page.now = editor.DocumentHTML();

  QElapsedTimer timer;
  timer.start();
  editor.SaveDocument(ToLogic(Target()));
  const double milliseconds = static_cast<double>(timer.nsecsElapsed()) / 1e6;
  page.saved = Saved();
  const SaveRung rung = editor.Compose().rung;

  const QString saved = Parsed(page.saved);
  const bool isEqual =
      saved == page.now || saved == ParsedAgain(page.now) ||
      (!HasFrameTags(page.file) && saved == ParsedAgain(WithoutFrameTags(page.now)));
  const ByteDifference difference = CountByteDifference(page.file, page.saved);
  const BytesBeyondEdit beyond = CountBytesBeyondEdit(page);
  result[QStringLiteral("edited")] = selected.has_value();
  if (selected && kind == u"delete-word") {
    const WordDeletion deletion = JudgeWordDeletion(page.file, page.saved, *selected);
    result[QStringLiteral("word")] = *selected;
    result[QStringLiteral("with_word")] = deletion.with.join(u' ');
    result[QStringLiteral("beyond_word")] = static_cast<int>(deletion.beyond);
  }
  result[QStringLiteral("identical")] = page.saved == page.file;
  result[QStringLiteral("bytes_lost")] = static_cast<int>(difference.lost);
  result[QStringLiteral("bytes_added")] = static_cast<int>(difference.added);
  result[QStringLiteral("bytes_outside")] = static_cast<int>(beyond.outside);
  result[QStringLiteral("bytes_implied")] = static_cast<int>(beyond.implied);
  result[QStringLiteral("rung")] = QLatin1String(RungName(rung));
  result[QStringLiteral("document_equal")] = isEqual;
  result[QStringLiteral("ms")] = milliseconds;
}

}  // namespace velor
