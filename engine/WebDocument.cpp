// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/WebDocument.h"

#include "engine/BridgeScript.h"
#include "engine/LiveDocument.h"
#include "engine/NoticeQueue.h"
#include "platform/PasteLimit.h"
#include "platform/Words.h"

#include <QVariantList>

namespace velor {

namespace {

class WebTextRange : public TextRange {
 public:
  WebTextRange(LiveDocument &document, NoticeQueue &notices)
      : document_(document), notices_(notices) {}

  void Collapse() override { collapsed_ = true; }
  HtmlElement ParentElement() const override { return document_.Snapshot().element; }
  void PasteHTML(const QString &html) override {
    if (html.count(u'<') > MostPastedTags) {
      notices_.Report(Words::tr("That is too large to be put into a page."));
      return;
    }
    if (collapsed_) document_.Run(QStringLiteral("getSelection().collapseToStart()"));
    document_.Run(QStringLiteral("velor.pasteHTML(%1)").arg(ScriptValue(html)));
  }

 private:
  LiveDocument &document_;
  NoticeQueue &notices_;
  bool collapsed_ = false;
};

/// The attributes as the bridge takes them.
QString InScript(const HtmlAttributes &attributes) {
  QVariantList pairs;
  for (const auto &[name, value] : attributes) pairs << QVariant(QVariantList{name, value});
  return ScriptValue(pairs);
}

QString InScript(HtmlDocument::ParagraphSide side) {
  switch (side) {
    case HtmlDocument::ParagraphSide::Left:
      return QStringLiteral("'left'");
    case HtmlDocument::ParagraphSide::Center:
      return QStringLiteral("'center'");
    case HtmlDocument::ParagraphSide::AsItIs:
      break;
  }
  return QStringLiteral("''");
}

}  // namespace

SelectionType WebDocument::Type() const {
  return document_.Snapshot().selection;
}

std::unique_ptr<TextRange> WebDocument::CreateRange() {
  return std::make_unique<WebTextRange>(document_, notices_);
}

HtmlElement WebDocument::Link() const {
  return document_.Snapshot().link;
}

void WebDocument::SetLink(const HtmlAttributes &attributes, const QString &text) {
  document_.Run(
      QStringLiteral("velor.setLink(%1,%2)").arg(InScript(attributes), ScriptValue(text)));
}

void WebDocument::SetBookmark(const QString &name) {
  document_.Run(QStringLiteral("velor.setBookmark(%1)").arg(ScriptValue(name)));
}

void WebDocument::ChangeObject(const HtmlAttributes &attributes, ParagraphSide side) {
  document_.Run(
      QStringLiteral("velor.changeObject(%1,%2)").arg(InScript(attributes), InScript(side)));
}

void WebDocument::ChangePicture(const QString &address, const HtmlAttributes &attributes) {
  QVariantList pairs;
  for (const auto &[name, value] : attributes)
    pairs << QVariant(QVariantList{name, value.isNull() ? QVariant() : QVariant(value)});
  document_.Run(
      QStringLiteral("velor.changePicture(%1,%2)").arg(ScriptValue(address), ScriptValue(pairs)));
}

void WebDocument::RemovePicture(const QString &address) {
  document_.Run(QStringLiteral("velor.removePicture(%1)").arg(ScriptValue(address)));
}

ShownPicture WebDocument::SelectedPicture() const {
  const StateSnapshot &state = document_.Snapshot();
  if (state.pictureShown.isEmpty()) return {};
  return {state.element.Attribute(QStringLiteral("src")), state.picturePixels, state.pictureShown};
}

HtmlElement WebDocument::ControlElement() const {
  return Type() == SelectionType::Control ? document_.Snapshot().element : HtmlElement{};
}

}  // namespace velor
