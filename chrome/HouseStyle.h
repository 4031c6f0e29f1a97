// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QProxyStyle>

namespace velor {

/// The style of the program's controls: Qt's Fusion with flat backgrounds, hairlines instead of
/// bevels, rounded highlights under the pointer, more room around icons and captions, scroll bars
/// without arrows and our own icons in message boxes. What it does not override is Fusion's.
class HouseStyle : public QProxyStyle {
  Q_OBJECT

 public:
  /// Dynamic property: the toolbar lies on a larger band and draws no line below itself.
  static constexpr const char *OnBand = "velorOnBand";
  /// Dynamic property: the control has a flat painter, which draws its edges instead of this style.
  static constexpr const char *Flat = "velorFlat";

  HouseStyle();

  using QProxyStyle::polish;
  void polish(QWidget *widget) override;
  void drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                     const QWidget *widget) const override;
  void drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                   const QWidget *widget) const override;
  void drawComplexControl(ComplexControl control, const QStyleOptionComplex *option,
                          QPainter *painter, const QWidget *widget) const override;
  QRect subControlRect(ComplexControl control, const QStyleOptionComplex *option, SubControl part,
                       const QWidget *widget) const override;
  QRect subElementRect(SubElement element, const QStyleOption *option,
                       const QWidget *widget) const override;
  int pixelMetric(PixelMetric metric, const QStyleOption *option,
                  const QWidget *widget) const override;
  QSize sizeFromContents(ContentsType type, const QStyleOption *option, const QSize &size,
                         const QWidget *widget) const override;
  int styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                QStyleHintReturn *returnData) const override;
  QIcon standardIcon(StandardPixmap picture, const QStyleOption *option,
                     const QWidget *widget) const override;
};

}  // namespace velor
