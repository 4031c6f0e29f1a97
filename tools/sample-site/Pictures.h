// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QImage>
#include <QSize>
#include <QString>
#include <QStringList>

#include <vector>

class QPainter;

namespace velor {

/// A picture of the sample sites and where it lies, relative to the sample's folder.
struct SamplePicture {
  QSize size;
  void (*draw)(QPainter &painter);
  QStringList files;
};

const std::vector<SamplePicture> &SamplePictures();

QImage Drawn(const SamplePicture &picture);

}  // namespace velor
