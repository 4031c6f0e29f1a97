// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/HtmlDocument.h"

#include <QString>

#include <cstdint>

namespace velor {

class Runtime;
class SourceControl;

/// An element of no page: its tag name in upper case and no attributes.
HtmlElement CreateScratchElement(const QString &tagName);

/// The element's start tag. A value that is empty or holds anything but ASCII letters, digits, "-",
/// ".", "_" and ":" is quoted; "&" and the quote are escaped.
QString OuterHTML(const HtmlElement &element);

/// Sides of a picture in hundredths of a millimetre (HIMETRIC), 0 while there is none.
struct PictureSize {
  std::int32_t height = 0;
  std::int32_t width = 0;

  /// At 96 pixels an inch.
  static PictureSize OfPixels(int pixelHeight, int pixelWidth);
  bool operator==(const PictureSize &) const = default;
};

/// Twips in one pixel of a screen of 96 pixels an inch.
inline constexpr double TwipsPerPixel = 15;

/// The length in pixels that a picture without a size of its own is given: half of the HIMETRIC
/// length divided by the twips of a pixel, both divisions cut to whole numbers. Pages depend on
/// this figure; it is no conversion of units.
std::int32_t DefaultLength(std::int32_t himetric, double twipsPerPixel = TwipsPerPixel);

enum class SizeSource { Picture, Boxes };

/// What the person entered for a picture, as typed.
struct ImageValues {
  QString source;
  QString alternativeText;
  QString lowResolutionSource;
  /// "Default" leaves the alignment to the page.
  QString alignment;
  QString border;
  QString horizontalSpacing;
  QString verticalSpacing;
  SizeSource sizeSource = SizeSource::Picture;
  QString height;
  QString width;
  PictureSize picture;
};

/// The picture's tag; the empty text without a source. An attribute whose text does not convert is
/// left out, the others are written.
QString ImageHtml(const ImageValues &values);

/// Puts `html` in place of the selection: of `document` when `isCreator`, else of `code`. Pending
/// window events run once between taking the selection and pasting. A failure is not raised: its
/// description is returned, the empty text when all went well.
QString InsertHtmlAtSelection(Runtime &runtime, bool isCreator, const QString &html,
                              HtmlDocument *document, SourceControl *code);

}  // namespace velor
