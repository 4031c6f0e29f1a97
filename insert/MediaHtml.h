// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "insert/ElementHtml.h"
#include "platform/HtmlDocument.h"

#include <QString>

/// Pictures and videos as a careful author writes them: the true size, no empty attributes, looks
/// in the page's dialect.
namespace velor {

/// Where a page has its looks: in attributes, or (pages with the HTML5 doctype) in styles.
enum class Dialect { Attributes, Styles };

/// The dialect of the document with that text.
Dialect DialectOf(const QString &html);

/// The attributes of a new picture. Its height and width are those of `values`, whatever their
/// source; spacing and border of 0 are left out.
HtmlAttributes PictureAttributes(const ImageValues &values, Dialect dialect);

/// The markup of a new picture; the empty text where `source` is empty. A centred one stands in a
/// paragraph of its own where the dialect has no other way.
QString PictureHtml(const ImageValues &values, Dialect dialect);

/// The values of a picture in a page. The alignment is "Default" where none of the dialog's says
/// what the picture has; height and width are empty where it has none.
ImageValues ValuesOfPicture(const HtmlElement &picture);

/// What has to be changed of a picture whose values become `after`: an empty value takes the
/// attribute off. Where it has its looks in attributes or in its style they stay there.
HtmlAttributes PictureChanges(const HtmlElement &picture, const ImageValues &before,
                              const ImageValues &after, Dialect dialect);

/// The fields of the video page that a page can say without a script. Texts are as typed.
struct VideoValues {
  QString source;
  QString poster;
  bool hasControls = true;
  bool isLooped = false;
  bool startsItself = false;
  QString alignment;
  QString border;
  QString horizontalSpacing;
  QString verticalSpacing;
  QString height;
  QString width;
};

/// The VIDEO element; the empty text where `source` is empty.
QString VideoHtml(const VideoValues &values);

}  // namespace velor
