// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/WebDocument.h"

#include "engine/BridgeScript.h"
#include "engine/WebEditor.h"

namespace velor {

namespace {

/// The engine takes minutes and all memory for millions of cells, and nobody could stop it; this
/// many, ends included, it shows in seconds.
constexpr qsizetype MostTags = 400'000;

}  // namespace

class WebTextRange : public TextRange {
 public:
  explicit WebTextRange(WebEditor &editor) : editor_(editor) {}

  void Collapse() override { collapsed_ = true; }
  HtmlElement ParentElement() const override { return editor_.snapshot_.element; }
  void PasteHTML(const QString &html) override {
    if (html.count(u'<') > MostTags) {
      editor_.Report(QStringLiteral("That is too large to be put into a page."));
      return;
    }
    if (collapsed_) editor_.Run(QStringLiteral("getSelection().collapseToStart()"));
    editor_.Run(QStringLiteral("velor.pasteHTML(%1)").arg(ScriptValue(html)));
  }

 private:
  WebEditor &editor_;
  bool collapsed_ = false;
};

SelectionType WebDocument::Type() const {
  return editor_.snapshot_.selection;
}

std::unique_ptr<TextRange> WebDocument::CreateRange() {
  return std::make_unique<WebTextRange>(editor_);
}

HtmlElement WebDocument::ControlElement() const {
  return Type() == SelectionType::Control ? editor_.snapshot_.element : HtmlElement{};
}

}  // namespace velor
