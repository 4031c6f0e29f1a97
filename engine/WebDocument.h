// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/HtmlDocument.h"

#include <functional>
#include <utility>

namespace velor {

class LiveDocument;
class NoticeQueue;

/// The document object of a WebEditor: answers from the state that the page pushed last; only
/// properties, and what can be done to an element of the path, are asked of the page.
class WebDocument : public HtmlDocument, private DocumentSelection {
 public:
  /// `convert` writes the page in another charset, by its WHATWG name.
  WebDocument(LiveDocument &document, NoticeQueue &notices,
              std::function<void(const QString &charset)> convert)
      : document_(document), notices_(notices), convert_(std::move(convert)) {}

  DocumentSelection &Selection() override { return *this; }
  HtmlElement Link() const override;
  void SetLink(const HtmlAttributes &attributes, const QString &text) override;
  void SetBookmark(const QString &name) override;
  void ChangeObject(const HtmlAttributes &attributes, ParagraphSide side) override;
  void ChangePicture(const QString &address, const HtmlAttributes &attributes) override;
  void RemovePicture(const QString &address) override;
  void AskAboutPicture(const QString &address) override;
  QRect AskedPicture() const override;
  ShownPicture SelectedPicture() const override;
  void SetProperties(PropertyOwner owner, const PropertyValues &changed) override;
  PropertyValues Properties(PropertyOwner owner) override;
  QStringList Path() const override;
  int PathElement(int index) const override;
  void ActOnPath(int element, PathDeed deed) override;
  PathChoices ChoicesOnPath(int element) override;
  void SetClassOnPath(int element, const QString &name, bool on) override;
  QRect ObjectPlace() const override;
  QRect SelectedCells() const override;

 private:
  /// The value of an expression; nothing where the page does not answer in time.
  QVariantMap Ask(const QString &expression);
  SelectionType Type() const override;
  std::unique_ptr<TextRange> CreateRange() override;
  HtmlElement ControlElement() const override;

  LiveDocument &document_;
  NoticeQueue &notices_;
  std::function<void(const QString &)> convert_;
};

}  // namespace velor
