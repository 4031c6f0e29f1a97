// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <memory>
#include <utility>
#include <vector>

namespace velor {

/// A copy of an element: name and attributes at the time of the call that returned it.
struct HtmlElement {
  /// Upper case, as the document object model reports HTML elements; empty for no element.
  QString tagName;
  /// In source order; names in lower case.
  std::vector<std::pair<QString, QString>> attributes;

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

/// The document of an editing component.
class HtmlDocument {
 public:
  virtual ~HtmlDocument() = default;
  virtual DocumentSelection &Selection() = 0;
};

}  // namespace velor
