// SPDX-License-Identifier: GPL-3.0-or-later
// How long a PDF of a hundred sheets takes, from the command to its bytes.
#include "bench/Figures.h"
#include "bench/Measure.h"
#include "bench/OurProgram.h"
#include "editor/PageSlots.h"
#include "editor/frmMain.h"
#include "editor/modWorkFlow.h"
#include "platform/PagePrinting.h"
#include "platform/Paths.h"

#include <QFile>
#include <QTemporaryDir>
#include <QWebEnginePage>

namespace velor::bench {

namespace {

constexpr int Rounds = 3;
constexpr int Sheets = 100;

QByteArray PageOfSheets() {
  QByteArray page = "<!DOCTYPE html><html><head><title>Sheets</title></head><body>\n";
  for (int sheet = 0; sheet < Sheets; ++sheet)
    page += "<div style=\"height: 20cm; break-after: page\">" +
            QByteArray("<p>A line of a page that is printed.</p>\n").repeated(12) + "</div>\n";
  return page + "</body></html>\n";
}

}  // namespace

void PrintFigures() {
  const QTemporaryDir folder;
  const QString path = folder.filePath(QStringLiteral("page.html"));
  QFile file(path);
  if (file.open(QIODevice::WriteOnly)) file.write(PageOfSheets());
  file.close();

  OurProgram program;
  modWorkFlow::OpenPage(program.Context(), ToLogic(path));
  frmMain &page = *program.Context().pages.Page(1);
  WaitUntil([&] { return page.PendingAction.isEmpty(); });
  const PaperForm form;
  const auto ours = [&] {
    bool isMade = false;
    page.DHTML1().Printing().MakePdf(form, [&](const QByteArray &) { isMade = true; });
    WaitUntil([&] { return isMade; });
  };
  const auto theirs = [&] {
    bool isMade = false;
    QWebEnginePage bare;
    QObject::connect(&bare, &QWebEnginePage::loadFinished, &bare, [&] {
      bare.printToPdf([&](const QByteArray &) { isMade = true; }, form.layout);
    });
    bare.load(QUrl::fromLocalFile(path));
    WaitUntil([&] { return isMade; });
  };
  Print(Compare(
      QStringLiteral("PDF"), QStringLiteral("100 sheets"), QStringLiteral("bare printToPdf"),
      Rounds, [&] { return Milliseconds(ours); }, [&] { return Milliseconds(theirs); }));
}

}  // namespace velor::bench
