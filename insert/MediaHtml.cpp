// SPDX-License-Identifier: GPL-3.0-or-later
#include "insert/MediaHtml.h"

#include "platform/Conversions.h"
#include "platform/RuntimeError.h"

#include <QRegularExpression>
#include <QStringList>

#include <algorithm>
#include <array>

namespace velor {
namespace {

const QString Default = QStringLiteral("Default");
const QString Center = QStringLiteral("Center");

/// A style property, with its values for the dialog's alignments. The first of several alignments
/// with one value is the one that a style is read as.
struct AlignmentStyle {
  const char *alignment;
  const char *property;
  const char *value;
};
constexpr std::array AlignmentStyles = {
    AlignmentStyle{"Left", "float", "left"},
    AlignmentStyle{"Right", "float", "right"},
    AlignmentStyle{"Top", "vertical-align", "top"},
    AlignmentStyle{"Texttop", "vertical-align", "text-top"},
    AlignmentStyle{"Middle", "vertical-align", "middle"},
    AlignmentStyle{"Absmiddle", "vertical-align", "middle"},
    AlignmentStyle{"Baseline", "vertical-align", "baseline"},
    AlignmentStyle{"Botton", "vertical-align", "baseline"},
    AlignmentStyle{"Absbottom", "vertical-align", "bottom"},
    AlignmentStyle{"Center", "display", "block"},
};

/// The text of a whole number that is not 0; else the empty text.
QString Length(const QString &text) {
  try {
    const std::int32_t number = CLng(text);
    return number == 0 ? QString() : QString::number(number);
  } catch (const RuntimeError &) {
    return {};
  }
}

/// An inline style, changed as a text: what is not changed stays as it is written.
class Style {
 public:
  explicit Style(const QString &text) {
    static const QRegularExpression one(
        QStringLiteral("(?:[^;\"'(]|\"[^\"]*\"|'[^']*'|\\([^)]*\\))+"));
    for (auto matches = one.globalMatch(text); matches.hasNext();) {
      const QString declaration = matches.next().captured();
      if (!declaration.trimmed().isEmpty()) declarations_ << declaration;
    }
  }

  QString Value(const QString &property) const {
    const qsizetype at = Find(property);
    return at < 0 ? QString() : declarations_[at].section(u':', 1).trimmed().toLower();
  }
  /// The empty value takes the property out.
  void Set(const QString &property, const QString &value) {
    const qsizetype at = Find(property);
    const QString written = property + QStringLiteral(": ") + value;
    if (value.isEmpty()) {
      if (at >= 0) declarations_.removeAt(at);
    } else if (at >= 0) {
      declarations_[at] = (at > 0 ? QStringLiteral(" ") : QString()) + written;
    } else {
      declarations_ << (declarations_.isEmpty() ? QString() : QStringLiteral(" ")) + written;
    }
  }
  QString Text() const { return declarations_.join(u';').trimmed(); }

 private:
  qsizetype Find(const QString &property) const {
    for (qsizetype at = declarations_.size() - 1; at >= 0; --at)
      if (declarations_[at].section(u':', 0, 0).trimmed().compare(property, Qt::CaseInsensitive) ==
          0)
        return at;
    return -1;
  }

  QStringList declarations_;
};

const AlignmentStyle *StyleOf(const QString &alignment) {
  const auto *found = std::find_if(
      AlignmentStyles.begin(), AlignmentStyles.end(),
      [&](const AlignmentStyle &one) { return alignment == QLatin1String(one.alignment); });
  return found == AlignmentStyles.end() ? nullptr : found;
}

void SetAlignment(Style &style, const QString &before, const QString &after) {
  if (const AlignmentStyle *old = StyleOf(before)) style.Set(QLatin1String(old->property), {});
  if (const AlignmentStyle *fresh = StyleOf(after))
    style.Set(QLatin1String(fresh->property), QLatin1String(fresh->value));
}

void SetBorder(Style &style, const QString &border) {
  const QString width = Length(border);
  style.Set(QStringLiteral("border"),
            width.isEmpty() ? QString() : width + QStringLiteral("px solid"));
}

/// The margins of a picture: its spacing, and what centres it.
void SetMargins(Style &style, const QString &alignment, const QString &vertical,
                const QString &horizontal) {
  const auto pixels = [](const QString &text) {
    const QString length = Length(text);
    return length.isEmpty() ? QStringLiteral("0") : length + QStringLiteral("px");
  };
  const QString beside = alignment == Center ? QStringLiteral("auto") : pixels(horizontal);
  const QString above = pixels(vertical);
  const bool isPlain = above == u"0" && beside == u"0";
  for (const char *side : {"margin-left", "margin-right"}) style.Set(QLatin1String(side), {});
  style.Set(QStringLiteral("margin"), isPlain ? QString() : above + u' ' + beside);
}

QString PixelsOf(const QString &length) {
  static const QRegularExpression pixels(QStringLiteral("^(-?\\d+)(px)?$"));
  return pixels.match(length).captured(1);
}

/// Appends the attributes that have a value.
void Append(HtmlAttributes &attributes, const QString &name, const QString &value) {
  if (!value.isEmpty()) attributes.emplace_back(name, value);
}

/// The looks of something new as an inline style.
template <typename Values>
QString LooksOf(const Values &values) {
  Style style({});
  SetAlignment(style, {}, values.alignment);
  SetBorder(style, values.border);
  SetMargins(style, values.alignment, values.verticalSpacing, values.horizontalSpacing);
  return style.Text();
}

QString OrDefault(const QString &text, const char *otherwise) {
  return text.isEmpty() ? QLatin1String(otherwise) : text;
}

/// One of the fields that are attributes by nature.
struct PlainField {
  const char *attribute;
  QString ImageValues::*field;
};
const std::array PlainFields = {
    PlainField{"src", &ImageValues::source},
    PlainField{"alt", &ImageValues::alternativeText},
    PlainField{"lowsrc", &ImageValues::lowResolutionSource},
    PlainField{"height", &ImageValues::height},
    PlainField{"width", &ImageValues::width},
};
/// One of the looks that old pages have as attributes.
struct LookField {
  const char *attribute;
  QString ImageValues::*field;
  /// As a dialog has a picture without the attribute.
  const char *absent;
};
const std::array LookFields = {
    LookField{"align", &ImageValues::alignment, "Default"},
    LookField{"border", &ImageValues::border, "0"},
    LookField{"hspace", &ImageValues::horizontalSpacing, "0"},
    LookField{"vspace", &ImageValues::verticalSpacing, "0"},
};

bool Has(const HtmlElement &element, const QString &name) {
  return std::any_of(element.attributes.begin(), element.attributes.end(),
                     [&](const auto &attribute) { return attribute.first == name; });
}

}  // namespace

Dialect DialectOf(const QString &html) {
  static const QRegularExpression doctype(
      QStringLiteral("^\\s*(?:<!--.*?-->\\s*)*<!doctype\\s+html\\s*(?:system[^>]*)?>"),
      QRegularExpression::CaseInsensitiveOption | QRegularExpression::DotMatchesEverythingOption);
  return doctype.match(html).hasMatch() ? Dialect::Styles : Dialect::Attributes;
}

HtmlAttributes PictureAttributes(const ImageValues &values, Dialect dialect) {
  HtmlAttributes attributes;
  Append(attributes, QStringLiteral("src"), values.source);
  Append(attributes, QStringLiteral("alt"), values.alternativeText);
  Append(attributes, QStringLiteral("lowsrc"), values.lowResolutionSource);
  if (dialect == Dialect::Styles) {
    Append(attributes, QStringLiteral("style"), LooksOf(values));
  } else {
    const bool isPlaced = values.alignment != Default && values.alignment != Center;
    if (isPlaced) Append(attributes, QStringLiteral("align"), values.alignment);
    Append(attributes, QStringLiteral("border"), Length(values.border));
    Append(attributes, QStringLiteral("hspace"), Length(values.horizontalSpacing));
    Append(attributes, QStringLiteral("vspace"), Length(values.verticalSpacing));
  }
  Append(attributes, QStringLiteral("height"), Length(values.height));
  Append(attributes, QStringLiteral("width"), Length(values.width));
  return attributes;
}

QString PictureHtml(const ImageValues &values, Dialect dialect) {
  if (values.source.isEmpty()) return {};
  HtmlElement picture = CreateScratchElement(QStringLiteral("IMG"));
  picture.attributes = PictureAttributes(values, dialect);
  const QString html = OuterHTML(picture);
  return dialect == Dialect::Attributes && values.alignment == Center
             ? QStringLiteral("<P align=center>%1</P>").arg(html)
             : html;
}

ImageValues ValuesOfPicture(const HtmlElement &picture) {
  const Style style(picture.Attribute(QStringLiteral("style")));
  ImageValues values;
  for (const PlainField &plain : PlainFields)
    values.*plain.field = picture.Attribute(QLatin1String(plain.attribute));
  for (const LookField &look : LookFields)
    values.*look.field = OrDefault(picture.Attribute(QLatin1String(look.attribute)), look.absent);
  if (values.alignment == Default) {
    for (const AlignmentStyle &one : AlignmentStyles) {
      if (style.Value(QLatin1String(one.property)) != QLatin1String(one.value)) continue;
      values.alignment = QLatin1String(one.alignment);
      break;
    }
  }
  static const QRegularExpression border(QStringLiteral("^(\\d+)px\\b"));
  if (const QString width = border.match(style.Value(QStringLiteral("border"))).captured(1);
      !width.isEmpty())
    values.border = width;
  const QStringList margin = style.Value(QStringLiteral("margin")).split(u' ', Qt::SkipEmptyParts);
  if (!margin.isEmpty()) {
    const QString above = PixelsOf(margin.front());
    const QString beside = PixelsOf(margin[std::min<qsizetype>(1, margin.size() - 1)]);
    if (!above.isEmpty()) values.verticalSpacing = above;
    if (!beside.isEmpty()) values.horizontalSpacing = beside;
  }
  return values;
}

HtmlAttributes PictureChanges(const HtmlElement &picture, const ImageValues &before,
                              const ImageValues &after, Dialect dialect) {
  HtmlAttributes changes;
  for (const PlainField &plain : PlainFields) {
    if (before.*plain.field != after.*plain.field)
      changes.emplace_back(QLatin1String(plain.attribute), after.*plain.field);
  }
  Style style(picture.Attribute(QStringLiteral("style")));
  const QString written = style.Text();
  bool hasNewMargins = false;
  for (const LookField &look : LookFields) {
    const QString &value = after.*look.field;
    if (before.*look.field == value) continue;
    const QString name = QLatin1String(look.attribute);
    const bool isAlignment = look.field == &ImageValues::alignment;
    // In old pages the paragraph is centred.
    const bool isCentred = isAlignment && value == Center;
    const bool isAttribute = dialect == Dialect::Attributes || Has(picture, name);
    if (isAttribute) {
      const bool isOff = isCentred || value == QLatin1String(look.absent);
      if (!isOff || Has(picture, name)) changes.emplace_back(name, isOff ? QString() : value);
    }
    if (dialect == Dialect::Attributes || (isAttribute && !isCentred)) continue;
    if (isAlignment) SetAlignment(style, before.alignment, value);
    if (look.field == &ImageValues::border) {
      SetBorder(style, value);
    } else {
      hasNewMargins = true;
    }
  }
  if (hasNewMargins)
    SetMargins(style, after.alignment, after.verticalSpacing, after.horizontalSpacing);
  if (style.Text() != written) changes.emplace_back(QStringLiteral("style"), style.Text());
  return changes;
}

QString VideoHtml(const VideoValues &values) {
  if (values.source.isEmpty()) return {};
  HtmlElement video = CreateScratchElement(QStringLiteral("video"));
  Append(video.attributes, QStringLiteral("src"), values.source);
  Append(video.attributes, QStringLiteral("poster"), values.poster);
  Append(video.attributes, QStringLiteral("style"), LooksOf(values));
  Append(video.attributes, QStringLiteral("height"), Length(values.height));
  Append(video.attributes, QStringLiteral("width"), Length(values.width));
  QString tag = OuterHTML(video);
  tag.chop(1);
  if (values.hasControls) tag += QStringLiteral(" controls");
  if (values.isLooped) tag += QStringLiteral(" loop");
  if (values.startsItself) tag += QStringLiteral(" autoplay");
  return tag + QStringLiteral("></VIDEO>");
}

}  // namespace velor
