// SPDX-License-Identifier: GPL-3.0-or-later
#include "pictures/PictureEndings.h"

#include <algorithm>
#include <iterator>

namespace velor {

namespace {

struct Ending {
  const char16_t *text;
  PictureKind kind;
};

constexpr Ending Endings[] = {
    {u".gif", PictureKind::Old},        {u".jpg", PictureKind::Old},
    {u".jpeg", PictureKind::Old},       {u".png", PictureKind::Old},
    {u".bmp", PictureKind::Old},        {u".webp", PictureKind::Old},
    {u".svg", PictureKind::Old},        {u".ico", PictureKind::Old},
    {u".avif", PictureKind::New},       {u".tif", PictureKind::Converted},
    {u".tiff", PictureKind::Converted}, {u".heic", PictureKind::Converted},
    {u".heif", PictureKind::Converted}, {u".tga", PictureKind::Converted},
    {u".pcx", PictureKind::Converted},  {u".ras", PictureKind::Converted},
};

}  // namespace

PictureKind KindOfPicture(QStringView path) {
  const auto *found = std::find_if(std::begin(Endings), std::end(Endings), [&](const Ending &one) {
    return path.endsWith(QStringView(one.text), Qt::CaseInsensitive);
  });
  return found == std::end(Endings) ? PictureKind::None : found->kind;
}

}  // namespace velor
