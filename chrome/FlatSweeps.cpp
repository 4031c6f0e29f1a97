// SPDX-License-Identifier: GPL-3.0-or-later
#include "chrome/FlatSweeps.h"

#include "chrome/HouseStyle.h"
#include "chrome/WidgetControl.h"
#include "chrome/cControlFlater.h"
#include "platform/RuntimeError.h"

#include <QWidget>

#include <algorithm>

namespace velor {
namespace {

template <typename Eligible>
void ThinEdges(WindowSystem &windows, const QWidget &window, Eligible eligible) {
  for (QWidget *control : ControlsOf(window)) {
    if (eligible(ControlTypeName(*control))) ThinEdge(windows, windows.HandleOf(*control));
  }
}

}  // namespace

void ThinEdge(WindowSystem &windows, WindowHandle window) {
  using namespace WindowBits;
  const std::int32_t style = windows.ExtendedStyle(window);
  windows.SetExtendedStyle(window, (style & ~ExtendedClientEdge) | ExtendedStaticEdge);
  windows.SetPosition(window, PositionNoSize | PositionNoMove | PositionNoOrder |
                                  PositionNoActivate | PositionFrameChanged);
}

FlatSweeps::FlatSweeps(WindowSystem &windows) : windows_(windows) {}

FlatSweeps::~FlatSweeps() = default;

void FlatSweeps::FlatSweep(QWidget &window) {
  AttachPainters(window, {u"CommandButton", u"TextBox", u"ComboBox", u"ImageCombo", u"HScrollBar",
                          u"ListBox"});
}

void FlatSweeps::FlatComboSweep(QWidget &window) {
  AttachPainters(window, {u"ComboBox", u"ImageCombo"});
}

void FlatSweeps::ThinEdgeSweep(QWidget &window) {
  ThinEdges(windows_, window, [](const QString &type) {
    return type == u"CommandButton" || type == u"TextBox" || type == u"ProgressBar";
  });
}

void FlatSweeps::ThinEdgeByType(QWidget &window, const QString &typeName) {
  ThinEdges(windows_, window,
            [&](const QString &type) { return type.compare(typeName, Qt::CaseInsensitive) == 0; });
}

void FlatSweeps::AttachPainters(QWidget &window, std::initializer_list<QStringView> typeNames) {
  const QList<QWidget *> controls = ControlsOf(window);
  const qsizetype count = controls.size() + MenuItemsOf(window).size();
  painters_.resize(static_cast<std::size_t>(count) + 1);
  for (QWidget *control : controls) {
    if (std::ranges::find(typeNames, ControlTypeName(*control)) == typeNames.end()) continue;
    const auto index = static_cast<std::size_t>(painterCount_);
    if (index >= painters_.size()) {
      throw RuntimeError::Of(ErrorNumber::SubscriptOutOfRange, QStringLiteral("Painters"),
                             window.objectName());
    }
    painters_[index] = std::make_unique<cControlFlater>(windows_);
    WidgetControl flat(*control, windows_);
    painters_[index]->Attach(flat);
    control->setProperty(HouseStyle::Flat, true);
    ++painterCount_;
  }
}

}  // namespace velor
