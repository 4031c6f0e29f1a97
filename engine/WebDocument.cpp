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

/// The property that the bytes have, not the document.
const QString Charset = QStringLiteral("charset");

using namespace std::chrono_literals;

/// Asking the page delays a dialog or a menu no longer than this.
constexpr std::chrono::milliseconds AskingLimit = 2s;

QString InScript(PropertySubject subject) {
  switch (subject) {
    case PropertySubject::Page:
      return QStringLiteral("'page'");
    case PropertySubject::Image:
      return QStringLiteral("'image'");
    case PropertySubject::Table:
      return QStringLiteral("'table'");
    case PropertySubject::Cell:
      return QStringLiteral("'cell'");
    case PropertySubject::Link:
      return QStringLiteral("'link'");
    case PropertySubject::Fonts:
      return QStringLiteral("'fonts'");
    case PropertySubject::Element:
      break;
  }
  return QStringLiteral("'element'");
}

QString InScript(HtmlDocument::PathDeed deed) {
  switch (deed) {
    case HtmlDocument::PathDeed::Select:
      return QStringLiteral("'select'");
    case HtmlDocument::PathDeed::RemoveTag:
      return QStringLiteral("'removeTag'");
    case HtmlDocument::PathDeed::Delete:
      break;
  }
  return QStringLiteral("'delete'");
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

void WebDocument::AskAboutPicture(const QString &address) {
  document_.Run(QStringLiteral("velor.askAboutPicture(%1)").arg(ScriptValue(address)));
}

QRect WebDocument::AskedPicture() const {
  return document_.Snapshot().asked;
}

ShownPicture WebDocument::SelectedPicture() const {
  const StateSnapshot &state = document_.Snapshot();
  if (state.pictureShown.isEmpty()) return {};
  return {state.element.Attribute(QStringLiteral("src")), state.picturePixels, state.pictureShown};
}

void WebDocument::SetProperties(PropertyOwner owner, const PropertyValues &changed) {
  QVariantMap values;
  for (auto value = changed.begin(); value != changed.end(); ++value)
    values.insert(value.key(), value.value());
  const QString charset =
      owner.subject == PropertySubject::Page ? values.take(Charset).toString() : QString();
  if (!values.isEmpty())
    document_.Run(
        QStringLiteral("velor.setProperties(%1,%2,%3)")
            .arg(InScript(owner.subject), ScriptValue(values), QString::number(owner.element)));
  if (!charset.isEmpty()) convert_(charset);
}

QVariantMap WebDocument::Ask(const QString &expression) {
  if (document_.View() == nullptr) return {};
  const auto answer = document_.View()->Ask(expression, AskingLimit);
  return answer ? answer->toMap() : QVariantMap();
}

PropertyValues WebDocument::Properties(PropertyOwner owner) {
  PropertyValues values;
  const QVariantMap told = Ask(
      QStringLiteral("velor.properties(%1,%2)").arg(InScript(owner.subject)).arg(owner.element));
  for (auto value = told.begin(); value != told.end(); ++value)
    values.insert(value.key(), value.value().toString());
  // The page is shown from its text; its bytes are known here.
  if (values.contains(Charset))
    values[Charset] = document_.History().Current()->Original().page.encoding.charset;
  return values;
}

QStringList WebDocument::Path() const {
  return document_.Snapshot().path;
}

int WebDocument::PathElement(int index) const {
  return document_.Snapshot().pathElements.value(index);
}

void WebDocument::ActOnPath(int element, PathDeed deed) {
  document_.Run(QStringLiteral("velor.actOnPath(%1,%2)").arg(element).arg(InScript(deed)));
}

PathChoices WebDocument::ChoicesOnPath(int element) {
  const QVariantMap told = Ask(QStringLiteral("velor.choicesOnPath(%1)").arg(element));
  PathChoices choices{.tagCanGo = told[QStringLiteral("removable")].toBool(), .classes = {}};
  for (const QVariant &pair : told[QStringLiteral("classes")].toList())
    choices.classes.emplace_back(pair.toList().value(0).toString(),
                                 pair.toList().value(1).toBool());
  return choices;
}

void WebDocument::SetClassOnPath(int element, const QString &name, bool on) {
  document_.Run(QStringLiteral("velor.setClassOnPath(%1,%2,%3)")
                    .arg(QString::number(element), ScriptValue(name),
                         on ? QStringLiteral("true") : QStringLiteral("false")));
}

QRect WebDocument::ObjectPlace() const {
  return document_.Snapshot().place;
}

QRect WebDocument::SelectedCells() const {
  return document_.Snapshot().cells;
}

HtmlElement WebDocument::ControlElement() const {
  return Type() == SelectionType::Control ? document_.Snapshot().element : HtmlElement{};
}

}  // namespace velor
