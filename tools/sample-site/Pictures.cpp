// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/sample-site/Pictures.h"

#include <QColor>
#include <QPainter>
#include <QPainterPath>
#include <QPolygon>

namespace velor {

namespace {

void DrawGround(QPainter &painter, QRgb sky, QRgb ground, int horizon) {
  const QRect whole = painter.window();
  painter.fillRect(whole, QColor(sky));
  painter.fillRect(whole.adjusted(0, horizon, 0, 0), QColor(ground));
}

void DrawShape(QPainter &painter, QRgb color, const QPolygon &corners) {
  painter.setPen(Qt::NoPen);
  painter.setBrush(QColor(color));
  painter.drawPolygon(corners);
}

void DrawDisc(QPainter &painter, QRgb color, QPoint centre, int radius) {
  painter.setPen(Qt::NoPen);
  painter.setBrush(QColor(color));
  painter.drawEllipse(centre, radius, radius);
}

void DrawRoses(QPainter &painter) {
  DrawGround(painter, 0xDCEBF5, 0x8A6A4A, 120);
  constexpr QRgb Petals[] = {0xB23348, 0xD9707F, 0xE8B04A};
  int x = 50;
  for (const QRgb petals : Petals) {
    painter.setPen(QPen(QColor(0x3F6B35), 4));
    painter.drawLine(x, 125, x, 70);
    painter.drawLine(x, 100, x + 18, 88);
    DrawDisc(painter, petals, {x, 58}, 22);
    DrawDisc(painter, QColor(petals).darker(125).rgb(), {x, 58}, 12);
    DrawDisc(painter, QColor(petals).darker(160).rgb(), {x, 58}, 5);
    x += 70;
  }
}

void DrawHerbs(QPainter &painter) {
  DrawGround(painter, 0xF4F1E4, 0xC9B68F, 130);
  for (int stem = 0; stem < 9; ++stem) {
    const QPoint tip(60 + stem * 15, 30 + (stem % 3) * 12);
    painter.setPen(QPen(QColor(0x4C7A3A), 3));
    painter.drawLine(QPoint(120, 95), tip);
    DrawDisc(painter, stem % 2 == 0 ? 0x6FA052 : 0x8FB37A, tip, 9);
  }
  DrawShape(painter, 0xB5623C, QPolygon({{75, 85}, {165, 85}, {150, 145}, {90, 145}}));
  DrawShape(painter, 0x964C2B, QPolygon({{70, 80}, {170, 80}, {170, 94}, {70, 94}}));
}

void DrawHouses(QPainter &painter) {
  DrawGround(painter, 0xE7EEF6, 0x9A948A, 130);
  constexpr QRgb Walls[] = {0xD8A35B, 0xB9C3A0, 0xC98B7A, 0xA9B7C9};
  int x = 15;
  for (const QRgb wall : Walls) {
    const int top = 62 + (x * 7) % 20;
    painter.fillRect(x, top, 56, 132 - top, QColor(wall));
    DrawShape(painter, 0x7A3B2E, QPolygon({{x - 4, top}, {x + 28, top - 34}, {x + 60, top}}));
    painter.fillRect(x + 10, top + 12, 12, 14, QColor(0xFDF3C8));
    painter.fillRect(x + 34, top + 12, 12, 14, QColor(0xFDF3C8));
    painter.fillRect(x + 21, 106, 14, 26, QColor(0x5A4632));
    x += 64;
  }
}

void DrawTea(QPainter &painter) {
  DrawGround(painter, 0xF3EDE2, 0x8C5A3C, 112);
  QPainterPath steam;
  for (const int x : {80, 100, 120}) {
    steam.moveTo(x, 52);
    steam.cubicTo(x - 12, 42, x + 12, 30, x, 16);
  }
  painter.setPen(QPen(QColor(0xB9AFA0), 3));
  painter.setBrush(Qt::NoBrush);
  painter.drawPath(steam);
  painter.setPen(QPen(QColor(0x2F5F9E), 6));
  painter.drawEllipse(QPoint(146, 78), 15, 13);
  DrawShape(painter, 0x2F5F9E, QPolygon({{55, 58}, {145, 58}, {128, 112}, {72, 112}}));
  painter.setBrush(QColor(0x9DB26B));
  painter.drawEllipse(QPoint(100, 59), 43, 6);
}

void DrawLighthouse(QPainter &painter) {
  DrawGround(painter, 0x24324A, 0x2C5870, 140);
  DrawShape(painter, 0x6B7480, QPolygon({{50, 160}, {85, 132}, {140, 130}, {175, 160}}));
  DrawShape(painter, 0xF4F1E4, QPolygon({{94, 134}, {132, 134}, {124, 58}, {102, 58}}));
  DrawShape(painter, 0xB23348, QPolygon({{96, 118}, {130, 118}, {128, 98}, {98, 98}}));
  DrawShape(painter, 0xB23348, QPolygon({{100, 80}, {126, 80}, {125, 66}, {101, 66}}));
  DrawShape(painter, 0x7D7A5E, QPolygon({{126, 48}, {220, 20}, {220, 76}}));
  painter.fillRect(103, 40, 20, 18, QColor(0xFFE9A0));
  DrawShape(painter, 0x3A3F47, QPolygon({{99, 40}, {113, 26}, {127, 40}}));
}

}  // namespace

const std::vector<SamplePicture> &SamplePictures() {
  static const std::vector<SamplePicture> pictures = {
      {{240, 160},
       DrawRoses,
       {QStringLiteral("eImages/roses.png"),
        QStringLiteral("Sites/Garden/Files/Images/roses.png")}},
      {{240, 160},
       DrawHerbs,
       {QStringLiteral("eImages/herbs.png"),
        QStringLiteral("Sites/Garden/Files/Images/herbs.png")}},
      {{280, 150},
       DrawHouses,
       {QStringLiteral("eImages/houses.png"),
        QStringLiteral("Sites/OldTown/Files/Images/houses.png")}},
      {{200, 140}, DrawTea, {QStringLiteral("Sites/OldTown/Files/Images/tea.png")}},
      {{220, 180},
       DrawLighthouse,
       {QStringLiteral("eImages/lighthouse.png"),
        QStringLiteral("Sites/Lighthouse/Files/Images/lighthouse.png")}},
  };
  return pictures;
}

QImage Drawn(const SamplePicture &picture) {
  QImage image(picture.size, QImage::Format_RGB32);
  QPainter painter(&image);
  painter.setRenderHint(QPainter::Antialiasing);
  picture.draw(painter);
  return image;
}

}  // namespace velor
