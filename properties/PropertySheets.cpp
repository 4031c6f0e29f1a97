// SPDX-License-Identifier: GPL-3.0-or-later
#include "properties/PropertySheets.h"

#include "insert/FileFilters.h"
#include "platform/Words.h"

#include <QColor>
#include <QRegularExpression>

namespace velor {
namespace {

constexpr PropertyChoice Sides[] = {
    {"", Words::Mark("As it is")},
    {"left", Words::Mark("Left")},
    {"center", Words::Mark("Center")},
    {"right", Words::Mark("Right")},
};
constexpr PropertyChoice Heights[] = {
    {"", Words::Mark("As it is")},         {"top", Words::Mark("Top")},
    {"middle", Words::Mark("Middle")},     {"bottom", Words::Mark("Bottom")},
    {"baseline", Words::Mark("Baseline")},
};
constexpr PropertyChoice Placements[] = {
    {"", Words::Mark("As it is")},
    {"left", Words::Mark("Left")},
    {"right", Words::Mark("Right")},
    {"top", Words::Mark("Top")},
    {"texttop", Words::Mark("Top of the text")},
    {"middle", Words::Mark("Middle")},
    {"bottom", Words::Mark("Baseline")},
    {"absbottom", Words::Mark("Bottom")},
};
constexpr PropertyChoice Modes[] = {
    {"standards", Words::Mark("By the standards")},
    {"no doctype", Words::Mark("As old browsers did (quirks mode): the page has no doctype")},
    {"quirks", Words::Mark("As old browsers did (quirks mode): its doctype is an old one")},
};
constexpr PropertyChoice Windows[] = {
    {"", Words::Mark("The same")},
    {"_blank", Words::Mark("A new one")},
    {"_top", Words::Mark("All of the window")},
    {"_parent", Words::Mark("The frame above")},
};
constexpr PropertyChoice Directions[] = {
    {"", Words::Mark("As it is")},
    {"ltr", Words::Mark("Left to right")},
    {"rtl", Words::Mark("Right to left")},
};
constexpr PropertyChoice Loading[] = {
    {"", Words::Mark("At once")},
    {"lazy", Words::Mark("When it comes into sight")},
};

constexpr PropertyField Length(const char *name, const char *label) {
  return {name,
          label,
          FieldKind::Length,
          {},
          Words::Mark("Pixels, or a number with % or another unit")};
}
constexpr PropertyField Color(const char *name, const char *label) {
  return {name, label, FieldKind::Color, {}, Words::Mark("#RRGGBB, or a colour's name")};
}
constexpr PropertyField Truth(const char *name, const char *label, const char *help = "") {
  return {name, label, FieldKind::Truth, {}, help};
}
constexpr PropertyField Choice(const char *name, const char *label,
                               std::span<const PropertyChoice> choices) {
  return {name, label, FieldKind::Choice, choices};
}
constexpr PropertyField Told(const char *name, const char *label,
                             std::span<const PropertyChoice> words = {}) {
  return {name, label, FieldKind::Told, words};
}
constexpr PropertyField Address(const char *name, const char *label, const char *filter) {
  return {name, label, FieldKind::Address, {}, "", filter};
}
constexpr PropertyField Part(const char *label) {
  return {"", label, FieldKind::Part};
}
constexpr PropertyField Class = {
    "class",
    Words::Mark("C&lass:"),
    FieldKind::Text,
    {},
    Words::Mark("Names of rules of the page's style sheets, parted by blanks")};
constexpr PropertyField Id = {"id",
                              Words::Mark("&Id:"),
                              FieldKind::Text,
                              {},
                              Words::Mark("A name of its own, for links and style sheets")};

constexpr PropertyField PageFields[] = {
    Part(Words::Mark("General")),
    {"title", Words::Mark("&Title:")},
    {"language",
     Words::Mark("&Language:"),
     FieldKind::Text,
     {},
     Words::Mark("Such as en, de or zh-Hant")},
    Choice("direction", Words::Mark("Direct&ion:"), Directions),
    {"description", Words::Mark("D&escription:")},
    {"author", Words::Mark("&Author:")},
    {"viewport",
     Words::Mark("&Viewport:"),
     FieldKind::Text,
     {},
     Words::Mark("How phones show it: width=device-width, initial-scale=1")},
    {"icon",
     Words::Mark("Ico&n:"),
     FieldKind::Address,
     {},
     Words::Mark("A small picture for the page's tab in browsers"),
     FileFilters::Icons},
    {"charset", Words::Mark("&Charset:"), FieldKind::Charset},
    Told("mode", Words::Mark("Rendering:"), Modes),
    Part(Words::Mark("Appearance")),
    Color("text", Words::Mark("Te&xt colour:")),
    Color("background", Words::Mark("&Background:")),
    Address("picture", Words::Mark("Background &picture:"), FileFilters::Pictures),
    Color("link", Words::Mark("Lin&k colour:")),
    Color("vlink", Words::Mark("Visited link col&our:")),
    Color("alink", Words::Mark("Active link colo&ur:")),
    {"sheets",
     Words::Mark("&Style sheets:"),
     FieldKind::Addresses,
     {},
     Words::Mark("One address a line, in the order in which they apply"),
     FileFilters::StyleSheets},
};
constexpr PropertyField ImageFields[] = {
    Part(Words::Mark("General")),
    Address("src", Words::Mark("&Address:"), FileFilters::Pictures),
    Address("lowsrc", Words::Mark("Low Resolution:"), FileFilters::Pictures),
    {"alt",
     Words::Mark("&Description:"),
     FieldKind::Text,
     {},
     Words::Mark("Read out, and shown where the picture is not")},
    Truth("decorative", Words::Mark("It only ador&ns"), Words::Mark("Nothing is read out for it")),
    Address("link", Words::Mark("Lin&k:"), FileFilters::Pages),
    {"title", Words::Mark("&Title:")},
    Choice("loading", Words::Mark("L&oading:"), Loading),
    Part(Words::Mark("Appearance")),
    Length("width", Words::Mark("&Width:")),
    Length("height", Words::Mark("&Height:")),
    Length("border", Words::Mark("&Border:")),
    Choice("align", Words::Mark("Ali&gn:"), Placements),
    Length("hspace", Words::Mark("Room at the &sides:")),
    Length("vspace", Words::Mark("Room abo&ve and below:")),
    Class,
    Id,
};
constexpr PropertyField TableFields[] = {
    Told("rows", Words::Mark("Rows:")),
    Told("columns", Words::Mark("Columns:")),
    {"caption", Words::Mark("C&aption:")},
    Truth("headRow", Words::Mark("&Headings in the first row")),
    Truth("headColumn", Words::Mark("Headings in the &first column")),
    Length("width", Words::Mark("&Width:")),
    Choice("align", Words::Mark("Ali&gn:"), Sides),
    Length("border", Words::Mark("&Border:")),
    Length("cellpadding", Words::Mark("Cell &padding:")),
    Length("cellspacing", Words::Mark("Cell &spacing:")),
    Color("background", Words::Mark("Bac&kground:")),
    Color("bordercolor", Words::Mark("B&order colour:")),
    Class,
    Id,
};
constexpr PropertyField CellFields[] = {
    Told("rows", Words::Mark("Rows that it takes:")),
    Told("columns", Words::Mark("Columns that it takes:")),
    Truth("heading", Words::Mark("&Heading")),
    Length("width", Words::Mark("&Width:")),
    Length("height", Words::Mark("H&eight:")),
    Choice("align", Words::Mark("Ali&gn:"), Sides),
    Choice("valign", Words::Mark("&Vertically:"), Heights),
    Truth("noWrap", Words::Mark("&No line breaks")),
    Color("background", Words::Mark("Bac&kground:")),
    Color("color", Words::Mark("Te&xt colour:")),
    Class,
    Id,
};
constexpr PropertyField LinkFields[] = {
    Address("href", Words::Mark("&Address:"), FileFilters::Pages),
    {"title", Words::Mark("&Title:")},
    Choice("target", Words::Mark("&Window:"), Windows),
    {"rel",
     Words::Mark("&Relation:"),
     FieldKind::Text,
     {},
     Words::Mark("Such as nofollow or noopener")},
    Class,
    Id,
};
constexpr PropertyField FontsFields[] = {
    {"fontName", Words::Mark("&Font:"), FieldKind::Font},
    {"fontSize",
     Words::Mark("&Size:"),
     FieldKind::Size,
     {},
     Words::Mark("Points, or a number with px")},
    Color("color", Words::Mark("&Colour:")),
    Color("background", Words::Mark("Bac&kground:")),
    Truth("bold", Words::Mark("&Bold")),
    Truth("italic", Words::Mark("&Italic")),
    Truth("underline", Words::Mark("&Underline")),
    Truth("strike", Words::Mark("S&trikethrough")),
    Truth("sub", Words::Mark("Subscri&pt")),
    Truth("sup", Words::Mark("Supe&rscript")),
    Truth("code", Words::Mark("Co&de")),
};

constexpr PropertyField ElementFields[] = {
    Told("tag", Words::Mark("Tag:")),
    Told("path", Words::Mark("Path:")),
    Class,
    Id,
    {"title", Words::Mark("&Title:")},
    {"language", Words::Mark("Lan&guage:")},
    Choice("direction", Words::Mark("&Direction:"), Directions),
    {"style",
     Words::Mark("&Style:"),
     FieldKind::Text,
     {},
     Words::Mark("Declarations for this element alone: color: navy")},
};

constexpr PropertySheet Sheets[] = {
    {PropertySubject::Page, Words::Mark("Page Properties"), PageFields},
    {PropertySubject::Image, Words::Mark("Image Properties"), ImageFields},
    {PropertySubject::Table, Words::Mark("Table Properties"), TableFields},
    {PropertySubject::Cell, Words::Mark("Table Cell Properties"), CellFields},
    {PropertySubject::Link, Words::Mark("Hyperlink Properties"), LinkFields, "href",
     Words::Mark("Re&move Link")},
    {PropertySubject::Fonts, Words::Mark("Fonts Properties"), FontsFields},
    {PropertySubject::Element, Words::Mark("Element Properties"), ElementFields},
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
