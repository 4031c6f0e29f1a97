// SPDX-License-Identifier: GPL-3.0-or-later
// The source editor beside the bare control, and an applied source beside a bare reload.
#include "bench/BareView.h"
#include "bench/Figures.h"
#include "bench/Measure.h"
#include "bench/SamplePage.h"
#include "engine/EditingEngine.h"
#include "engine/WebEditor.h"
#include "files/QtFiles.h"
#include "platform/Paths.h"
#include "qt/QsciSourceControl.h"

#include <QFile>
#include <QTemporaryDir>
#include <QWidget>
#include <Qsci/qscilexerhtml.h>
#include <Qsci/qsciscintilla.h>

namespace velor::bench {

namespace {

constexpr QSize WindowSize(900, 700);

void WriteFile(const QString &path, const QByteArray &content) {
  QFile file(path);
  if (file.open(QIODevice::WriteOnly)) file.write(content);
}

/// Until the control shows the beginning of the text.
double FillAndShow(QWidget &control, const std::function<void()> &fill) {
  return Milliseconds([&] {
    fill();
    (void)control.grab();
  });
}

}  // namespace

void SourceFillFigures() {
  QWidget window;
  window.resize(WindowSize);
  QsciSourceControl ours(&window, SourceAccess::Edit);
  auto *theirs = new QsciScintilla(&window);
  theirs->setUtf8(true);
  theirs->setLexer(new QsciLexerHTML(theirs));
  for (QWidget *control : {ours.Widget(), static_cast<QWidget *>(theirs)})
    control->resize(WindowSize);
  window.show();
  for (const Size &size : Sizes) {
    if (size.bytes < 1'000'000) continue;
    const QString text = QString::fromUtf8(SamplePage(size.bytes));
    Print(Compare(
        QStringLiteral("fill the source editor"), QLatin1String(size.name),
        QStringLiteral("bare source control"), size.rounds,
        [&] { return FillAndShow(*ours.Widget(), [&] { ours.SetText(text); }); },
        [&] { return FillAndShow(*theirs, [&] { theirs->setText(text); }); }));
  }
}

void ApplyFigures() {
  QTemporaryDir folder;
  EditingEngine engine;
  QtFiles files;
  QWidget window;
  window.resize(WindowSize);
  WebEditor editor(engine, files, ToLogic(folder.path()), &window);
  editor.Widget()->setGeometry(window.rect());
  window.show();
  BareView theirs;
  theirs.resize(WindowSize);
  theirs.show();
  const QString path = folder.filePath(QStringLiteral("page.html"));
  const QString copy = folder.filePath(QStringLiteral("pageTMP.html"));
  for (const Size &size : Sizes) {
    if (size.bytes < 100'000 || size.bytes > 1'000'000) continue;
    const QByteArray page = SamplePage(size.bytes);
    WriteFile(path, page);
    editor.LoadDocument(ToLogic(path));
    int round = 0;
    const auto edited = [&] {
      return QByteArray(page).replace("Chapter 0", "Chapter 0." + QByteArray::number(++round));
    };
    Print(Compare(
        QStringLiteral("apply the source"), QLatin1String(size.name), QStringLiteral("bare reload"),
        size.rounds,
        [&] {
          WriteFile(copy, edited());
          return Milliseconds([&] { editor.LoadDocument(ToLogic(copy)); });
        },
        [&] {
          WriteFile(path, edited());
          return Milliseconds([&] { theirs.LoadFile(path); });
        }));
  }
}

}  // namespace velor::bench
