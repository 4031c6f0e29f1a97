// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/PastedPicture.h"

#include <QBuffer>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QImage>

namespace velor {

namespace {

QByteArray PngOf(const QImage &image) {
  QByteArray bytes;
  QBuffer buffer(&bytes);
  buffer.open(QIODevice::WriteOnly);
  image.save(&buffer, "PNG");
  return bytes;
}

/// The name under which the bytes were written; empty where they could not be.
QString WriteBeside(const QString &pagePath, const QByteArray &bytes) {
  if (!QFileInfo(pagePath).isFile()) return {};
  const QDir folder = QFileInfo(pagePath).dir();
  for (int number = 1;; ++number) {
    const QString name = QStringLiteral("picture%1.png").arg(number);
    if (folder.exists(name)) continue;
    QFile file(folder.filePath(name));
    if (!file.open(QIODevice::WriteOnly | QIODevice::NewOnly)) return {};
    if (file.write(bytes) == bytes.size() && file.flush()) return name;
    file.remove();
    return {};
  }
}

}  // namespace

QString PastedPicture(const QImage &image, const QString &nativePagePath) {
  const QByteArray bytes = PngOf(image);
  QString address = WriteBeside(nativePagePath, bytes);
  if (address.isEmpty())
    address = QStringLiteral("data:image/png;base64,") + QString::fromLatin1(bytes.toBase64());
  return QStringLiteral("<img src=\"%1\" alt=\"\" width=\"%2\" height=\"%3\">")
      .arg(address)
      .arg(image.width())
      .arg(image.height());
}

}  // namespace velor
