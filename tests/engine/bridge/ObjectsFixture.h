// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tests/engine/bridge/BridgeFixture.h"
#include "tests/support/Waiting.h"

#include <gtest/gtest.h>

namespace velor {

/// A page with objects in a bare view, its body at the viewport's corner.
class Objects : public BridgeFixture {
 protected:
  void Load(const QString &body) {
    page_.Load(QStringLiteral("<!DOCTYPE html><html><head><style>body { margin: 0 }</style></head>"
                              "<body>") +
               body + QStringLiteral("</body></html>"));
    loaded_ = Body();
  }
  QString Body() { return Text(QStringLiteral("document.body.innerHTML")); }
  bool BecomesBody(const QString &body) {
    return WaitFor([&] { return Body() == body; }, 5000);
  }
  /// The tag of the selected object; empty for text.
  QString Selected() {
    return Text(
        QStringLiteral("{ const {selection, element} = velor.state();"
                       "  selection === 'Control' ? element.tag : '' }"));
  }
  bool BecomesSelected(const QString &tag) {
    return WaitFor([&] { return Selected() == tag; }, 5000);
  }
  int Steps() {
    return Evaluate(QStringLiteral("{ let n = 0; while (inside.history.canUndo()) {"
                                   "velor.exec(5049); n++; }"
                                   "for (let i = 0; i < n; i++) velor.exec(5033); n }"))
        .toInt();
  }
  /// Whether the last drag is one step, which undo takes back to what was loaded.
  void ExpectOneStep() {
    EXPECT_EQ(Steps(), 1);
    Evaluate(QStringLiteral("velor.exec(5049)"));
    EXPECT_EQ(Body(), loaded_);
    EXPECT_NE(Selected(), QString());
    Evaluate(QStringLiteral("velor.exec(5033)"));
  }
  void Drag(QPoint from, QPoint to, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    page_.Move(from);
    page_.Button(QEvent::MouseButtonPress, from, modifiers);
    page_.Move((from + to) / 2, Qt::LeftButton, modifiers);
    page_.Move(to, Qt::LeftButton, modifiers);
    page_.Button(QEvent::MouseButtonRelease, to, modifiers);
  }
  /// Whether the frame is drawn around this box of the viewport, with its eight handles.
  bool FrameComesAround(const QString &selector) {
    return Comes(QStringLiteral(
                     "{ const style = getComputedStyle(document.head, '::after');"
                     "  const r = document.querySelector('%1').getBoundingClientRect();"
                     "  const near = (one, other) => Math.abs(one - other) < 6;"
                     "  style.content !== 'none' && near(parseFloat(style.left) - scrollX, r.left)"
                     "  && near(parseFloat(style.top) - scrollY, r.top)"
                     "  && near(parseFloat(style.width), r.width + 8)"
                     "  && near(parseFloat(style.height), r.height + 8)"
                     "  && style.backgroundImage.split('linear-gradient').length === 21 }")
                     .arg(selector));
  }

  QString loaded_;
};

/// An absolutely positioned box.
inline const auto *const Box =
    "<p>one</p><div style=\"position: absolute; left: 210px; top: 120px; width: 150px; height: "
    "60px\">text</div>";

}  // namespace velor
