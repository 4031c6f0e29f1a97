// SPDX-License-Identifier: GPL-3.0-or-later
#include "properties/PropertySheets.h"

#include "platform/Words.h"

#include <QColor>
#include <QRegularExpression>

namespace velor {
namespace {

constexpr char Sides[] = "=As it is|left=Left|center=Center|right=Right";
constexpr char Heights[] = "=As it is|top=Top|middle=Middle|bottom=Bottom|baseline=Baseline";
constexpr char Windows[] =
    "=The same|_blank=A new one|_top=All of the window|_parent=The frame above";
constexpr char Directions[] = "=As it is|ltr=Left to right|rtl=Right to left";
constexpr char Loading[] = "=At once|lazy=When it comes into sight";

constexpr PropertyField Length(const char *name, const char *label) {
  return {name, label, FieldKind::Length, "", "Pixels, or a number with % or another unit"};
}
constexpr PropertyField Color(const char *name, const char *label) {
  return {name, label, FieldKind::Color, "", "#RRGGBB, or a colour's name"};
}
constexpr PropertyField Truth(const char *name, const char *label, const char *help = "") {
  return {name, label, FieldKind::Truth, "", help};
}
constexpr PropertyField Choice(const char *name, const char *label, const char *choices) {
  return {name, label, FieldKind::Choice, choices};
}
constexpr PropertyField Told(const char *name, const char *label) {
  return {name, label, FieldKind::Told};
}
constexpr PropertyField Class = {"class", "C&lass:", FieldKind::Text, "",
                                 "Names of rules of the page's style sheets, parted by blanks"};
constexpr PropertyField Id = {"id", "&Id:", FieldKind::Text, "",
                              "A name of its own, for links and style sheets"};

constexpr PropertyField PageFields[] = {
    {"title", "&Title:"},
    {"language", "&Language:", FieldKind::Text, "", "Such as en, de or zh-Hant"},
    Choice("direction", "Direct&ion:", Directions),
    {"description", "D&escription:"},
    {"author", "&Author:"},
    {"viewport", "&Viewport:", FieldKind::Text, "",
     "How phones show it: width=device-width, initial-scale=1"},
    Color("text", "Te&xt colour:"),
    Color("background", "&Background:"),
    {"picture", "Background &picture:"},
    Color("link", "Lin&k colour:"),
    Color("vlink", "Visited link col&our:"),
    Color("alink", "Active link colo&ur:"),
    Told("charset", "Charset:"),
    Told("mode", "Rendering:"),
};
constexpr PropertyField ImageFields[] = {
    {"src", "&Address:"},
    {"alt", "&Description:", FieldKind::Text, "", "Read out, and shown where the picture is not"},
    Truth("decorative", "It only ador&ns", "Nothing is read out for it"),
    Length("width", "&Width:"),
    Length("height", "&Height:"),
    Length("border", "&Border:"),
    Choice("loading", "L&oading:", Loading),
    {"title", "&Title:"},
    Class,
    Id,
};
constexpr PropertyField TableFields[] = {
    Told("rows", "Rows:"),
    Told("columns", "Columns:"),
    {"caption", "C&aption:"},
    Truth("headRow", "&Headings in the first row"),
    Truth("headColumn", "Headings in the &first column"),
    Length("width", "&Width:"),
    Choice("align", "Ali&gn:", Sides),
    Length("border", "&Border:"),
    Length("cellpadding", "Cell &padding:"),
    Length("cellspacing", "Cell &spacing:"),
    Color("background", "Bac&kground:"),
    Class,
    Id,
};
constexpr PropertyField CellFields[] = {
    Told("rows", "Rows that it takes:"),
    Told("columns", "Columns that it takes:"),
    Truth("heading", "&Heading"),
    Length("width", "&Width:"),
    Length("height", "H&eight:"),
    Choice("align", "Ali&gn:", Sides),
    Choice("valign", "&Vertically:", Heights),
    Truth("noWrap", "&No line breaks"),
    Color("background", "Bac&kground:"),
    Color("color", "Te&xt colour:"),
    Class,
    Id,
};
constexpr PropertyField LinkFields[] = {
    {"href", "&Address:"},
    {"title", "&Title:"},
    Choice("target", "&Window:", Windows),
    {"rel", "&Relation:", FieldKind::Text, "", "Such as nofollow or noopener"},
    Class,
    Id,
};
constexpr PropertyField FontsFields[] = {
    {"fontName", "&Font:"},
    {"fontSize", "&Size:", FieldKind::Text, "", "Points, or a number with px"},
    Color("color", "&Colour:"),
    Color("background", "Bac&kground:"),
    Truth("bold", "&Bold"),
    Truth("italic", "&Italic"),
    Truth("underline", "&Underline"),
};

constexpr PropertySheet Sheets[] = {
    {PropertySubject::Page, "Page Properties", PageFields},
    {PropertySubject::Image, "Image Properties", ImageFields},
    {PropertySubject::Table, "Table Properties", TableFields},
    {PropertySubject::Cell, "Table Cell Properties", CellFields},
    {PropertySubject::Link, "Hyperlink Properties", LinkFields},
    {PropertySubject::Fonts, "Fonts Properties", FontsFields},
};

}  // namespace

const PropertySheet &SheetOf(PropertySubject subject) {
  return Sheets[static_cast<std::size_t>(subject)];
}

QString PropertyRefusal(const PropertyField &field, const QString &text) {
  static const QRegularExpression length(QStringLiteral("^\\d+(\\.\\d+)?(%|[a-z]{2,4})?$"));
  if (text.isEmpty()) return {};
  if (field.kind == FieldKind::Length && !length.match(text).hasMatch())
    return Words::tr("\"%1\" is no length. Write a number, or one with a unit: 120, 50%, 8em.")
        .arg(text);
  if (field.kind == FieldKind::Color && !QColor::isValidColor(text))
    return Words::tr("\"%1\" is no colour. Write #RRGGBB or a name: #C00000, navy.").arg(text);
  return {};
}

}  // namespace velor
