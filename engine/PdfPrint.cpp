// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/PdfPrint.h"

#include "engine/BridgeScript.h"
#include "engine/PageScheme.h"
#include "engine/preview/SiteScheme.h"

#include <QPointer>
#include <QTimer>
#include <QVariant>
#include <QWebEnginePage>
#include <QWebEngineSettings>

#include <array>
#include <chrono>
#include <utility>

namespace velor {

namespace {

using namespace std::chrono_literals;

constexpr std::chrono::milliseconds PartsLimit = 10s;
constexpr std::chrono::milliseconds PartsPause = 30ms;

/// Answers whether all parts of the page are there, and the margins of its `@page` rules in points:
/// top, right, bottom, left, null where none is given. `scale` enlarges what is printed, `top` is
/// the upper margin where the page gives none. A wider one of the first sheet becomes a space at
/// the page's start.
const QString PaperScript = QStringLiteral(R"(((scale, top) => {
  // A page that is never on a screen would wait for these for ever.
  for (const image of document.querySelectorAll('img[loading=lazy]')) image.loading = 'eager';
  globalThis.velorPaper ??= new CSSStyleSheet();
  if (!document.adoptedStyleSheets.includes(velorPaper)) {
    document.adoptedStyleSheets = [...document.adoptedStyleSheets, velorPaper];
  }
  // The layout asks for the fonts.
  document.documentElement.getBoundingClientRect();
  const isReady = document.readyState === 'complete' && document.fonts.status === 'loaded' &&
    [...document.images].every((image) => image.complete);

  const points = { px: 0.75, pt: 1, pc: 12, in: 72, cm: 72 / 2.54, mm: 72 / 25.4, q: 18 / 25.4 };
  const inPoints = (length) => {
    const parts = length.match(/^([0-9.]+)([a-z]*)$/);
    return parts === null ? null : Number(parts[1]) * (points[parts[2]] ?? 0);
  };
  const isForPaper = (media) => media.length === 0 ||
    [...media].some((query) => /^(only +)?(print|all)\b|^\(/.test(query));
  const sides = ['margin-top', 'margin-right', 'margin-bottom', 'margin-left'];
  const margins = [null, null, null, null];
  let first = null;  // upper margin of the first sheet
  const read = (rules) => {
    for (const rule of rules) {
      if (rule instanceof CSSPageRule && rule.selectorText === '') {
        sides.forEach((side, at) => {
          margins[at] = inPoints(rule.style.getPropertyValue(side)) ?? margins[at];
        });
      } else if (rule instanceof CSSPageRule && rule.selectorText === ':first') {
        first = inPoints(rule.style.getPropertyValue('margin-top')) ?? first;
      } else if (rule instanceof CSSImportRule && isForPaper(rule.media)) {
        readSheet(rule.styleSheet);
      } else if (rule instanceof CSSMediaRule && isForPaper(rule.media)) {
        read(rule.cssRules);
      }
    }
  };
  const readSheet = (sheet) => {
    if (sheet === null || sheet.disabled || !isForPaper(sheet.media)) return;
    try {
      read(sheet.cssRules);
    } catch {
      // A sheet of another site shows its rules to nobody.
    }
  };
  [...document.styleSheets].forEach(readSheet);
  const extra = Math.max(0, (first ?? 0) - (margins[0] ?? top)) / scale;
  const padding = getComputedStyle(document.documentElement).paddingTop;
  velorPaper.replaceSync((scale === 1 ? '' : `@media print { html { zoom: ${scale} } }`) +
    (extra === 0 ? '' :
      `@media print { html { padding-top: calc(${padding} + ${extra}pt) !important } }`));
  return { isReady, margins };
}))");

QPageLayout WithMargins(QPageLayout layout, const QVariantList &margins) {
  layout.setUnits(QPageLayout::Point);
  QMarginsF all = layout.margins();
  const auto set = [&](int side, void (QMarginsF::*setter)(qreal)) {
    const QVariant margin = margins.value(side);
    if (margin.isValid() && !margin.isNull()) (all.*setter)(margin.toDouble());
  };
  set(0, &QMarginsF::setTop);
  set(1, &QMarginsF::setRight);
  set(2, &QMarginsF::setBottom);
  set(3, &QMarginsF::setLeft);
  layout.setMargins(all);
  return layout;
}

}  // namespace

PdfPrint::PdfPrint(QWebEnginePage &page, PaperForm form)
    : page_(page), form_(std::move(form)), partsLimit_(PartsLimit) {
  connect(&page, &QWebEnginePage::renderProcessTerminated, this, [this] { End({}); });
  AwaitParts();
}

void PdfPrint::End(const QByteArray &pdf) {
  if (std::exchange(hasEnded_, true)) return;
  QTimer::singleShot(1ms, this, [this, pdf] { Q_EMIT Ended(pdf); });
}

void PdfPrint::AwaitParts() {
  const qreal top = form_.layout.margins(QPageLayout::Point).top();
  page_.runJavaScript(QStringLiteral("%1(%2,%3)").arg(PaperScript).arg(form_.scale).arg(top),
                      BridgeWorld, [alive = QPointer(this)](const QVariant &answer) {
                        if (alive.isNull()) return;
                        const QVariantMap paper = answer.toMap();
                        const bool isReady = paper.value(QStringLiteral("isReady")).toBool();
                        if (!isReady && !alive->partsLimit_.hasExpired()) {
                          QTimer::singleShot(PartsPause, alive, &PdfPrint::AwaitParts);
                          return;
                        }
                        alive->form_.layout = WithMargins(
                            alive->form_.layout, paper.value(QStringLiteral("margins")).toList());
                        alive->Print();
                      });
}

void PdfPrint::Print() {
  page_.settings()->setAttribute(QWebEngineSettings::PrintElementBackgrounds,
                                 form_.backgrounds == PaperForm::Backgrounds::Printed);
  page_.printToPdf(
      [alive = QPointer(this)](const QByteArray &pdf) {
        if (!alive.isNull()) alive->End(WithFileLinks(pdf));
      },
      form_.layout);
}

QByteArray WithFileLinks(QByteArray pdf) {
  const QByteArray mark = QByteArrayLiteral("/URI (");
  const std::array<QByteArray, 2> schemes = {PageScheme::Name() + "://",
                                             SiteScheme::Name() + "://"};
  for (qsizetype at = pdf.indexOf(mark); at >= 0; at = pdf.indexOf(mark, at + mark.size())) {
    const qsizetype start = at + mark.size();
    for (const QByteArray &scheme : schemes) {
      if (pdf.mid(start, scheme.size()) != scheme) continue;
      const qsizetype path = pdf.indexOf('/', start + scheme.size());
      qsizetype end = start;
      while (end < pdf.size() && pdf[end] != ')') end += pdf[end] == '\\' ? 2 : 1;
      if (path < 0 || path >= end || end >= pdf.size()) continue;
      const QByteArray file = "file://" + pdf.mid(path, end - path) + ')';
      pdf.replace(start, end + 1 - start, file.leftJustified(end + 1 - start, ' '));
    }
  }
  return pdf;
}

}  // namespace velor
