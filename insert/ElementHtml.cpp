// SPDX-License-Identifier: GPL-3.0-or-later
#include "insert/ElementHtml.h"

#include "platform/Conversions.h"
#include "platform/Runtime.h"
#include "platform/RuntimeError.h"
#include "platform/SourceControl.h"

#include <algorithm>

namespace velor {
namespace {

bool NeedsNoQuotes(QChar c) {
  const char16_t codeUnit = c.unicode();
  return (codeUnit >= u'a' && codeUnit <= u'z') || (codeUnit >= u'A' && codeUnit <= u'Z') ||
         (codeUnit >= u'0' && codeUnit <= u'9') || codeUnit == u'-' || codeUnit == u'.' ||
         codeUnit == u'_' || codeUnit == u':';
}

QString AttributeText(const QString &value) {
  if (!value.isEmpty() && std::all_of(value.begin(), value.end(), NeedsNoQuotes)) return value;
  QString escaped = value;
  escaped.replace(u'&', QStringLiteral("&amp;")).replace(u'"', QStringLiteral("&quot;"));
  return u'"' + escaped + u'"';
}

void SetAttribute(HtmlElement &element, const QString &name, const QString &value) {
  element.attributes.emplace_back(name, value);
}

/// Sets the attribute to CLng of `text`; leaves it out where the text is no number.
void SetWholeNumber(HtmlElement &element, const QString &name, const QString &text) {
  try {
    SetAttribute(element, name, QString::number(CLng(text)));
  } catch (const RuntimeError &) {
    // Only this attribute is left out.
  }
}

}  // namespace

HtmlElement CreateScratchElement(const QString &tagName) {
  return {tagName.toUpper(), {}};
}

QString OuterHTML(const HtmlElement &element) {
  QString html = u'<' + element.tagName;
  for (const auto &[name, value] : element.attributes) {
    html += u' ' + name + u'=' + AttributeText(value);
  }
  return html + u'>';
}

PictureSize PictureSize::OfPixels(int pixelHeight, int pixelWidth) {
  constexpr double HimetricPerInch = 2540;
  constexpr double PixelsPerInch = 96;
  const auto himetric = [](int pixels) { return CLng(pixels * HimetricPerInch / PixelsPerInch); };
  return {himetric(pixelHeight), himetric(pixelWidth)};
}

std::int32_t DefaultLength(std::int32_t himetric, double twipsPerPixel) {
  return himetric / CLng(twipsPerPixel) / 2;
}

QString ImageHtml(const ImageValues &values) {
  if (values.source.isEmpty()) return {};
  HtmlElement image = CreateScratchElement(QStringLiteral("IMG"));
  SetAttribute(image, QStringLiteral("src"), values.source);
  SetAttribute(image, QStringLiteral("alt"), values.alternativeText);
  SetAttribute(image, QStringLiteral("lowsrc"), values.lowResolutionSource);
  if (values.alignment != u"Default") {
    SetAttribute(image, QStringLiteral("align"), values.alignment);
  }
  if (IsNumeric(values.border)) SetAttribute(image, QStringLiteral("border"), values.border);
  SetWholeNumber(image, QStringLiteral("hspace"), values.horizontalSpacing);
  SetWholeNumber(image, QStringLiteral("vspace"), values.verticalSpacing);
  const bool fromBoxes = values.sizeSource == SizeSource::Boxes;
  const auto length = [fromBoxes](const QString &text, std::int32_t himetric) {
    return fromBoxes ? text : QString::number(DefaultLength(himetric));
  };
  SetWholeNumber(image, QStringLiteral("height"), length(values.height, values.picture.height));
  SetWholeNumber(image, QStringLiteral("width"), length(values.width, values.picture.width));
  return OuterHTML(image);
}

QString InsertHtmlAtSelection(Runtime &runtime, bool isCreator, const QString &html,
                              HtmlDocument *document, SourceControl *code) {
  const QString source = QStringLiteral("InsertHtmlAtSelection");
  try {
    if (isCreator) {
      if (!document) throw RuntimeError::Of(ErrorNumber::ObjectNotSet, source);
      const auto range = document->Selection().CreateRange();
      runtime.ProcessPendingEvents();
      range->PasteHTML(html);
    } else {
      if (!code) throw RuntimeError::Of(ErrorNumber::ObjectNotSet, source);
      code->ReplaceSelection(html);
    }
  } catch (const RuntimeError &error) {
    return error.Description();
  }
  return {};
}

}  // namespace velor
