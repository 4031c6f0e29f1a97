// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/HtmlDocument.h"

#include <QString>

#include <cstdint>

namespace velor {

class Runtime;
class SourceControl;

/// Makes an element that belongs to no page: the tag name in upper case, no attributes.
HtmlElement CreateScratchElement(const QString &tagName);

/// The element's start tag. A value that is empty or holds anything but ASCII letters, digits, "-",
/// ".", "_" and ":" is quoted; "&" and the quote are escaped.
QString OuterHTML(const HtmlElement &element);

/// Sides of a picture in hundredths of a millimetre (HIMETRIC), 0 while there is none.
struct PictureSize {
  std::int32_t height = 0;
  std::int32_t width = 0;

  /// The size of a picture of so many pixels, at 96 pixels an inch.
  static PictureSize OfPixels(int pixelHeight, int pixelWidth);
  bool operator==(const PictureSize &) const = default;
};

/// Twips in one pixel of a screen of 96 pixels an inch.
inline constexpr double TwipsPerPixel = 15;

/// The length in pixels that a picture without a size of its own is given: half of the HIMETRIC
/// length divided by the twips of a pixel, both divisions cut to whole numbers. Pages depend on
/// this figure; it is no conversion of units.
std::int32_t DefaultLength(std::int32_t himetric, double twipsPerPixel = TwipsPerPixel);

/// Where height and width of the tag come from: DefaultLength of the picture, or the size boxes.
enum class SizeSource { Picture, Boxes };

/// The fields of the picture page. Texts are as typed.
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
  QString height = {};
  QString width = {};
  PictureSize picture = {};
};

/// The IMG tag of a picture; the empty text where `source` is empty. An attribute whose text is not
/// the number that it needs is left out.
QString ImageHtml(const ImageValues &values);

/// Replaces the selection of `document` (where `isCreator`) or of `code` by `html`. Pending window
/// events run once between reading the selection and pasting. Never raises: returns the failure's
/// description, the empty text on success.
QString InsertHtmlAtSelection(Runtime &runtime, bool isCreator, const QString &html,
                              HtmlDocument *document, SourceControl *code);

}  // namespace velor
