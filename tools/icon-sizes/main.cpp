// SPDX-License-Identifier: GPL-3.0-or-later
// velor-icon-sizes SVG FOLDER SIZE...: draws an icon as FOLDER/SIZE.png for each size in pixels.
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>

#include <cstdio>

int main(int argc, char **argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QGuiApplication application(argc, argv);
  const QStringList arguments = QCoreApplication::arguments();
  if (arguments.size() < 4) {
    std::fputs("usage: velor-icon-sizes SVG FOLDER SIZE...\n", stderr);
    return 2;
  }
  QSvgRenderer icon(arguments[1]);
  for (const QString &size : arguments.mid(3)) {
    QImage image(size.toInt(), size.toInt(), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    icon.render(&painter);
    painter.end();
    const QString file = QStringLiteral("%1/%2.png").arg(arguments[2], size);
    if (!icon.isValid() || !image.save(file)) {
      std::fprintf(stderr, "velor-icon-sizes: %s cannot be drawn\n", qPrintable(file));
      return 1;
    }
  }
  return 0;
}
