// SPDX-License-Identifier: GPL-3.0-or-later
// A reader of pictures that begin with "heic", as an installed plugin would be one.
#pragma once

#include <QImageIOPlugin>

namespace velor {

class FakeHeicReader final : public QImageIOHandler {
 public:
  bool canRead() const override {
    setFormat("heic");
    return true;
  }
  bool read(QImage *image) override {
    *image = QImage(20, 10, QImage::Format_RGB32);
    image->fill(Qt::red);
    return !device()->readAll().isEmpty();
  }
};

class FakeHeicPlugin final : public QImageIOPlugin {
  Q_OBJECT
  Q_PLUGIN_METADATA(IID QImageIOHandlerFactoryInterface_iid FILE "FakeHeic.json")

 public:
  Capabilities capabilities(QIODevice *device, const QByteArray &format) const override {
    const bool isOurs = format == "heic" || (device != nullptr && device->peek(4) == "heic");
    return isOurs ? CanRead : Capabilities();
  }
  QImageIOHandler *create(QIODevice *device, const QByteArray & /*format*/) const override {
    auto *reader = new FakeHeicReader;
    reader->setDevice(device);
    return reader;
  }
};

}  // namespace velor
