// SPDX-License-Identifier: GPL-3.0-or-later
#include "properties/FontSample.h"

#include "platform/Words.h"

#include <QColor>

#include <algorithm>
#include <utility>

namespace velor {
namespace {

constexpr int Height = 64;
constexpr double LargestPoints = 36;
constexpr double CssPixelsPerPoint = 96.0 / 72.0;

bool Has(const PropertyValues &values, const char *name) {
  return values.value(QLatin1String(name)) == u"true";
}

/// A size as the dialog has it: points, or CSS pixels with their unit. 0 where it is none.
double PointsOf(QString size) {
  const bool inPixels = size.endsWith(u"px");
  const double number = size.remove(QStringLiteral("px")).remove(QStringLiteral("pt")).toDouble();
  return inPixels ? number / CssPixelsPerPoint : number;
}

QString ColorRule(const char *property, const QString &color) {
  return QColor::isValidColor(color)
             ? QStringLiteral("%1: %2;").arg(QLatin1String(property), QColor(color).name())
             : QString();
}

}  // namespace

FontSample::FontSample(QWidget *parent) : QLabel(parent) {
  setObjectName(QStringLiteral("lblSample"));
  setAccessibleName(Words::tr("Sample"));
  setFrameShape(QFrame::StyledPanel);
  setAlignment(Qt::AlignCenter);
  setTextFormat(Qt::RichText);
  setFixedHeight(Height);
  // The largest letters do not widen the window.
  setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
}

void FontSample::Show(const PropertyValues &values) {
  QString style = ColorRule("color", values.value(QStringLiteral("color"))) +
                  ColorRule("background-color", values.value(QStringLiteral("background")));
  QString family = values.value(QStringLiteral("fontName")).section(u',', 0, 0).trimmed();
  family.remove(u'\'').remove(u'"').remove(u';');
  if (!family.isEmpty()) style += QStringLiteral("font-family: '%1';").arg(family);
  if (const double points = PointsOf(values.value(QStringLiteral("fontSize"))); points > 0)
    style += QStringLiteral("font-size: %1pt;").arg(std::min(points, LargestPoints));
  if (Has(values, "code")) style += QStringLiteral("font-family: monospace;");
  QString sample = QStringLiteral("<span style=\"%1\">%2</span>")
                       .arg(style.toHtmlEscaped(), Words::tr("Sample text 123").toHtmlEscaped());
  for (const auto &[name, tag] : {std::pair{"bold", "b"},
                                  {"italic", "i"},
                                  {"underline", "u"},
                                  {"strike", "s"},
                                  {"sub", "sub"},
                                  {"sup", "sup"}}) {
    if (Has(values, name)) sample = QStringLiteral("<%1>%2</%1>").arg(QLatin1String(tag), sample);
  }
  setText(sample);
}

}  // namespace velor
