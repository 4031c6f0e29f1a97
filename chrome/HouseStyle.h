// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QProxyStyle>

namespace velor {

/// Fusion drawn calmer: flat fields, hairlines instead of bevels, round corners under the pointer,
/// room around icons and texts, scroll bars that are a slider alone, our own pictures in message
/// boxes. Where else things lie within a control stays Fusion's business.
class HouseStyle : public QProxyStyle {
  Q_OBJECT

 public:
  /// A toolbar with this property set lies on a larger band and draws no line below itself.
  static constexpr const char *OnBand = "velorOnBand";
  /// A control with this property set has a flat painter, which draws its edges.
  static constexpr const char *Flat = "velorFlat";

  HouseStyle();

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
