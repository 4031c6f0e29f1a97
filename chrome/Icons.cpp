// SPDX-License-Identifier: GPL-3.0-or-later
#include "chrome/Icons.h"

#include <QFile>
#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPalette>
#include <QPixmapCache>
#include <QSvgRenderer>

namespace velor {
namespace {

/// The second colour of the drawings, besides that of their lines; replaced by the palette's
/// accent.
constexpr const char *DrawnAccent = "#2f6fde";

struct Inks {
  QColor line;
  QColor accent;
};

Inks InksFor(QIcon::Mode mode) {
  const QPalette palette = QGuiApplication::palette();
  switch (mode) {
    case QIcon::Disabled: {
      const QColor faded = palette.color(QPalette::Disabled, QPalette::ButtonText);
      return {faded, faded};
    }
    case QIcon::Selected: {
      const QColor onHighlight = palette.color(QPalette::HighlightedText);
      return {onHighlight, onHighlight};
    }
    case QIcon::Normal:
    case QIcon::Active:
      break;
  }
  return {palette.color(QPalette::ButtonText), palette.color(QPalette::Link)};
}

class DrawingEngine final : public QIconEngine {
 public:
  DrawingEngine(QString key, QByteArray drawing)
      : key_(std::move(key)), drawing_(std::move(drawing)) {}

  void paint(QPainter *painter, const QRect &rect, QIcon::Mode mode, QIcon::State state) override {
    const qreal ratio = painter->device()->devicePixelRatio();
    painter->drawPixmap(rect, scaledPixmap(rect.size() * ratio, mode, state, ratio));
  }

  QPixmap pixmap(const QSize &size, QIcon::Mode mode, QIcon::State state) override {
    return scaledPixmap(size, mode, state, 1.0);
  }

  QPixmap scaledPixmap(const QSize &size, QIcon::Mode mode, QIcon::State, qreal) override {
    const Inks inks = InksFor(mode);
    const QString cacheKey =
        QStringLiteral("velor-icon:%1:%2x%3:%4:%5")
            .arg(key_)
            .arg(size.width())
            .arg(size.height())
            .arg(inks.line.name(QColor::HexArgb), inks.accent.name(QColor::HexArgb));
    QPixmap picture;
    if (QPixmapCache::find(cacheKey, &picture)) return picture;
    QByteArray tinted = drawing_;
    tinted.replace("currentColor", inks.line.name().toLatin1());
    tinted.replace(DrawnAccent, inks.accent.name().toLatin1());
    picture = QPixmap(size);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    QSvgRenderer renderer(tinted);
    renderer.setAspectRatioMode(Qt::KeepAspectRatio);
    renderer.render(&painter);
    painter.end();
    QPixmapCache::insert(cacheKey, picture);
    return picture;
  }

  QIconEngine *clone() const override { return new DrawingEngine(key_, drawing_); }

 private:
  QString key_;
  QByteArray drawing_;
};

}  // namespace

QIcon IconFor(const QString &key) {
  const QString name = key.toLower().replace(u' ', u'-');
  QFile file(QStringLiteral(":/velor/icons/%1.svg").arg(name));
  if (!file.open(QIODevice::ReadOnly)) return {};
  return QIcon(new DrawingEngine(name, file.readAll()));
}

QIcon ProgramIcon() {
  return QIcon(QStringLiteral(":/velor/icons/app.svg"));
}

}  // namespace velor
