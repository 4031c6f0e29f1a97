// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QMap>
#include <QRect>
#include <QSize>
#include <QString>
#include <QStringList>

#include <memory>
#include <utility>
#include <vector>

namespace velor {

/// Names and values of attributes, in source order; names in lower case.
using HtmlAttributes = std::vector<std::pair<QString, QString>>;

/// A copy of an element: name and attributes at the time of the call that returned it.
struct HtmlElement {
  /// Upper case, as the document object model reports HTML elements; empty for no element.
  QString tagName;
  HtmlAttributes attributes;

  bool IsNull() const { return tagName.isEmpty(); }
  /// The attribute's text as written in the page; empty when absent.
  QString Attribute(const QString &name) const;
};

/// The kinds of selection: "None" (a caret), "Text" (a range of text), "Control" (one object).
enum class SelectionType { None, Text, Control };

/// A range of the document, at first that of the selection it was created from.
class TextRange {
 public:
  virtual ~TextRange() = default;
  /// Shrinks the range to its start.
  virtual void Collapse() = 0;
  /// The element that holds the (collapsed) range.
  virtual HtmlElement ParentElement() const = 0;
  /// Replaces the range by the markup unchanged (scripts, handlers, comments and objects are kept),
  /// as one undo step. The empty text removes the range's content.
  virtual void PasteHTML(const QString &html) = 0;
};

/// The selection of a document.
class DocumentSelection {
 public:
  virtual ~DocumentSelection() = default;
  virtual SelectionType Type() const = 0;
  virtual std::unique_ptr<TextRange> CreateRange() = 0;
  /// The selected object of a Control selection; null otherwise.
  virtual HtmlElement ControlElement() const = 0;
};

/// A picture as the page shows it.
struct ShownPicture {
  QString address;  ///< as written in the page
  QSize pixels;     ///< of the file; empty where it is not shown
  QSize shown;      ///< in CSS pixels

  bool operator==(const ShownPicture &) const = default;
};

/// What a properties dialog is about: the page, what is selected or around the caret, or an element
/// of the path.
enum class PropertySubject { Page, Image, Table, Cell, Link, Fonts, Element };
struct PropertyOwner {
  PropertySubject subject = PropertySubject::Page;
  int element = 0;  ///< of an Element: HtmlDocument::PathElement
};

/// Values of properties by their names in the bridge (docs/bridge.md).
using PropertyValues = QMap<QString, QString>;

/// What can be done to an element of the path.
struct PathChoices {
  bool tagCanGo = false;
  /// The classes that the page's style sheets define for it, and whether it has each.
  std::vector<std::pair<QString, bool>> classes;
};

/// The document of an editing component.
class HtmlDocument {
 public:
  virtual ~HtmlDocument() = default;
  virtual DocumentSelection &Selection() = 0;
  /// The link that the selected object, the first selected text or the caret is in; null for none.
  virtual HtmlElement Link() const { return {}; }

  // Each is one undo step. An empty value takes the attribute off what is there.

  /// Makes, changes or (without "href") takes off the link of the selection, of the word at the
  /// caret or of the selected picture. Where there is nothing of these, `text` is put in as a link.
  virtual void SetLink(const HtmlAttributes & /*attributes*/, const QString & /*text*/) {}
  /// Names the place of the selection, for links to lead to. Does nothing where the page has the
  /// name.
  virtual void SetBookmark(const QString & /*name*/) {}
  enum class ParagraphSide { AsItIs, Left, Center };
  /// Changes attributes of the selected object, and aligns its paragraph.
  virtual void ChangeObject(const HtmlAttributes & /*attributes*/, ParagraphSide /*side*/) {}
  /// Changes attributes of the picture with this address that was put in last, wherever the
  /// selection is. Here an empty value stays as such; a null text takes the attribute off.
  virtual void ChangePicture(const QString & /*address*/, const HtmlAttributes & /*attributes*/) {}
  /// Takes that picture out.
  virtual void RemovePicture(const QString & /*address*/) {}

  /// Has AskedPicture tell of that picture; the empty address ends it.
  virtual void AskAboutPicture(const QString & /*address*/) {}
  /// Where that picture is, in CSS pixels of the viewport, as the page last told; null for none.
  virtual QRect AskedPicture() const { return {}; }

  /// The picture of a Control selection; without an address where it is none.
  virtual ShownPicture SelectedPicture() const { return {}; }

  /// Changes the properties given; the others stay. Does nothing where the subject is not there. A
  /// page's charset converts the page: that waits for the engine, and raises RuntimeError where the
  /// page does not answer or cannot be written or read in that charset; the other properties are
  /// changed then.
  virtual void SetProperties(PropertyOwner, const PropertyValues & /*changed*/) {}

  /// The properties of the subject; empty where it is not there, or the page does not answer. Waits
  /// for the engine.
  virtual PropertyValues Properties(PropertyOwner) { return {}; }

  /// The elements around the start of the selection from the body inwards, a selected object last,
  /// each by name, id and classes: "body", "p.intro", "img#logo".
  virtual QStringList Path() const { return {}; }
  enum class PathDeed {
    Select,     ///< selects what the element holds, an object as a whole
    RemoveTag,  ///< its content stays
    Delete,
  };
  /// The number of the element with this index in Path; 0 where there is none. It stays the
  /// element's own when the selection moves or the page changes.
  virtual int PathElement(int index) const { return index; }

  // Each does nothing where the element with that number has gone from the page.

  /// Does that to an element.
  virtual void ActOnPath(int /*element*/, PathDeed) {}
  /// What can be done to an element; nothing where the page does not answer. Waits for the engine.
  virtual PathChoices ChoicesOnPath(int /*element*/) { return {}; }
  /// Gives a class to an element, and to those of its name that are selected with it, or takes it
  /// off them.
  virtual void SetClassOnPath(int /*element*/, const QString & /*name*/, bool /*on*/) {}

  /// Where the selected object, or the box around the caret, is out of the flow, and its size, in
  /// its own pixels; null for none.
  virtual QRect ObjectPlace() const { return {}; }
  /// The columns (x) and rows (y) of the cells that are selected as such; null for none.
  virtual QRect SelectedCells() const { return {}; }
};

}  // namespace velor
