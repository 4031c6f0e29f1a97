// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/page-check/PageCheck.h"

#include "engine/BridgeScript.h"
#include "engine/GuardedWait.h"
#include "engine/WebEditor.h"
#include "files/QtFiles.h"
#include "platform/Paths.h"
#include "platform/RuntimeError.h"
#include "tools/page-check/OutsideBytes.h"

#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
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
  }

  bool Edit(const QString &kind, int place) {
    QWebEnginePage &page = *editor.Widget()->findChild<QWebEngineView *>()->page();
    const auto answer = std::make_shared<std::optional<bool>>();
    page.runJavaScript(QStringLiteral("%1\n;velorPageCheck(%2,%3)")
                           .arg(EditScript(), ScriptValue(kind))
                           .arg(place),
                       bridgeWorld, [answer](const QVariant &value) { *answer = value.toBool(); });
    GuardedWait(engine_.Guard()).Until(page, std::chrono::minutes(1), [&] {
      return answer->has_value();
    });
    return answer->value_or(false);
  }

 private:
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

const QStringList &PageCheck::Kinds() {
  static const QStringList kinds = {
      QStringLiteral("insert-word"),      QStringLiteral("bold"),      QStringLiteral("image"),
      QStringLiteral("delete-paragraph"), QStringLiteral("table-row"), QStringLiteral("enter"),
      QStringLiteral("center"),           QStringLiteral("attribute")};
  return kinds;
}

PageCheck::PageCheck(EditingEngine &engine)
    : desk_(std::make_unique<Desk>(engine, scratch_.path())) {}

PageCheck::~PageCheck() = default;

QString PageCheck::Parsed(const QByteArray &bytes) {
  desk_->editor.SetDocumentHTML(DecodePage(bytes).text);
  return desk_->editor.DocumentHTML();
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
  const bool isEdited = !kind.isEmpty() && desk_->Edit(kind, place);
  page.now = editor.DocumentHTML();

  QElapsedTimer timer;
  timer.start();
  editor.SaveDocument(ToLogic(Target()));
  const double milliseconds = static_cast<double>(timer.nsecsElapsed()) / 1e6;
  page.saved = Saved();
  const SaveRung rung = editor.Compose().rung;

  const QString saved = Parsed(page.saved);
  const bool isEqual =
      saved == page.now || saved == Parsed(page.now.toUtf8().prepend("\xEF\xBB\xBF"));
  const BytesBeyondEdit beyond = CountBytesBeyondEdit(page);
  result[QStringLiteral("edited")] = isEdited;
  result[QStringLiteral("identical")] = page.saved == page.file;
  result[QStringLiteral("bytes_outside")] = static_cast<int>(beyond.outside);
  result[QStringLiteral("bytes_implied")] = static_cast<int>(beyond.implied);
  result[QStringLiteral("rung")] = QLatin1String(RungName(rung));
  result[QStringLiteral("document_equal")] = isEqual;
  result[QStringLiteral("ms")] = milliseconds;
}

}  // namespace velor
