// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/HtmlDocument.h"

namespace velor {

class WebEditor;

/// The document object of a WebEditor; answers from its snapshot.
class WebDocument : public HtmlDocument, private DocumentSelection {
 public:
  explicit WebDocument(WebEditor &editor) : editor_(editor) {}

  DocumentSelection &Selection() override { return *this; }

 private:
  SelectionType Type() const override;
  std::unique_ptr<TextRange> CreateRange() override;
  HtmlElement ControlElement() const override;

  WebEditor &editor_;
};

}  // namespace velor
