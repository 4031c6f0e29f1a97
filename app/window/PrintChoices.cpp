// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/window/PrintChoices.h"

#include "app/settings/modSettingManager.h"
#include "platform/Conversions.h"

#include <QMarginsF>

#include <algorithm>
#include <map>

namespace velor {
namespace {

constexpr int Percent = 100;

const QString Section = QStringLiteral("print");

QString Stored(const Registry &registry, const QString &name) {
  return modSettingManager::StoredText(registry, Section, name);
}

/// The choices as texts, by the names that they are stored under.
std::map<QString, QString> TextsOf(const PrintChoices &choices) {
  const PaperForm &form = choices.form;
  const bool isAcross = form.layout.orientation() == QPageLayout::Landscape;
  return {
      {QStringLiteral("Paper"), QPageSize::key(form.layout.pageSize().id())},
      {QStringLiteral("Direction"),
       isAcross ? QStringLiteral("Across") : QStringLiteral("Upright")},
      {QStringLiteral("Margins"), QString::number(MarginOf(form))},
      {QStringLiteral("Scale"), QString::number(PercentOf(form))},
      {QStringLiteral("Backgrounds"),
       BoolText(form.backgrounds == PaperForm::Backgrounds::Printed)},
      {QStringLiteral("HeaderAndFooter"), BoolText(choices.hasEdgeLines)},
  };
}

}  // namespace

int MarginOf(const PaperForm &form) {
  return qRound(form.layout.margins(QPageLayout::Millimeter).top());
}

int PercentOf(const PaperForm &form) {
  return qRound(form.scale * Percent);
}

QPageLayout LayoutOf(QPageSize::PageSizeId paper, QPageLayout::Orientation orientation,
                     int margin) {
  const qreal width = margin;
  return {QPageSize(paper), orientation, QMarginsF(width, width, width, width),
          QPageLayout::Millimeter};
}

PrintChoices ReadPrintChoices(const Registry &registry) {
  PrintChoices choices;
  PaperForm &form = choices.form;
  const auto number = [&registry](const char *name, int least, int most, int otherwise) {
    bool isNumber = false;
    const int value = Stored(registry, QString::fromLatin1(name)).toInt(&isNumber);
    return isNumber && value >= least && value <= most ? value : otherwise;
  };
  const auto isOff = [&registry](const char *name) {
    return Stored(registry, QString::fromLatin1(name)) == BoolText(false);
  };
  const QString paper = Stored(registry, QStringLiteral("Paper"));
  QPageSize::PageSizeId size = form.layout.pageSize().id();
  for (const Paper &one : Papers)
    if (paper == QPageSize::key(one.size)) size = one.size;
  const bool isAcross = Stored(registry, QStringLiteral("Direction")) == u"Across";
  form.layout = LayoutOf(size, isAcross ? QPageLayout::Landscape : QPageLayout::Portrait,
                         number("Margins", 0, WidestMargin, MarginOf(form)));
  form.scale =
      static_cast<double>(number("Scale", LeastScale, MostScale, PercentOf(form))) / Percent;
  if (isOff("Backgrounds")) form.backgrounds = PaperForm::Backgrounds::LeftOut;
  choices.hasEdgeLines = !isOff("HeaderAndFooter");
  return choices;
}

void StorePrintChoices(Registry &registry, const PrintChoices &choices) {
  const std::map<QString, QString> before = TextsOf(ReadPrintChoices(registry));
  for (const auto &[name, text] : TextsOf(choices)) {
    if (text != before.at(name)) modSettingManager::SaveText(registry, Section, name, text);
  }
}

}  // namespace velor
