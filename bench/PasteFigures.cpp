// SPDX-License-Identifier: GPL-3.0-or-later
// What a paste of a long document takes, from the key until it is laid out.
#include "bench/Figures.h"
#include "bench/Measure.h"
#include "bench/PageBench.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>
#include <QTest>

namespace velor::bench {

namespace {

/// As a word processor writes a document of many paragraphs for the clipboard.
QString OfficeDocument(int bytes) {
  const QString head = QStringLiteral(
      "<html xmlns:o=\"urn:schemas:office\"><head><style>\n<!--\n p.MsoNormal\n"
      "\t{mso-style-unhide:no;\n\tmargin-bottom:8.0pt;\n\tfont-size:11.0pt;\n"
      "\tfont-family:\"Calibri\",sans-serif;}\n-->\n</style></head><body lang=EN-GB>\n"
      "<!--StartFragment--><div class=WordSection1>\n");
  const QString part = QStringLiteral(
      "<p class=MsoNormal style='margin-bottom:0cm;line-height:normal'><span lang=EN-GB\n"
      "style='font-size:10.0pt;mso-fareast-language:EN-US'>Sow <b style='mso-bidi-font-weight:\n"
      "normal'>early</b>, <i>water</i> well and look at <span style='color:red'>red</span> leaves\n"
      "before the frost comes back.<o:p></o:p></span></p>\n\n");
  return head + part.repeated(bytes / part.size()) +
         QStringLiteral("</div><!--EndFragment--></body></html>");
}

/// Milliseconds from the key until the page in the container has as many paragraphs, laid out. The
/// question for them is a cheap one: it is asked while the page works.
double Paste(QWidget *container, int paragraphs) {
  const QString count =
      QStringLiteral("document.body.offsetHeight && document.getElementsByTagName('p').length");
  QWidget *target = EngineWidget(container);
  Focus(target);
  return Milliseconds([&] {
    QTest::keyClick(target, Qt::Key_V, Qt::ControlModifier);
    WaitUntil([&] { return Evaluate(container, count).toInt() >= paragraphs; });
  });
}

}  // namespace

void PasteFigures() {
  constexpr int Bytes = 5'000'000;
  PageBench bench;
  const QString page = bench.File(QStringLiteral("page.html"), "<!DOCTYPE html><p>before</p>");
  const QString document = OfficeDocument(Bytes);
  const int paragraphs = int(document.count(QStringLiteral("<p class")));
  auto *data = new QMimeData;
  data->setHtml(document);
  QGuiApplication::clipboard()->setMimeData(data);
  const auto paste = [&](QWidget *container) {
    bench.Load(page);
    return Paste(container, paragraphs);
  };
  Print(Compare(
      QStringLiteral("paste"), QStringLiteral("5 MB of office HTML"),
      QStringLiteral("the engine's own paste"), 3,
      [&] { return paste(bench.ours.editor.Widget()); }, [&] { return paste(&bench.theirs); }));
}

}  // namespace velor::bench
