// SPDX-License-Identifier: GPL-3.0-or-later
#include "chrome/WidgetControl.h"

#include <QAbstractScrollArea>
#include <QAbstractSpinBox>
#include <QAction>
#include <QComboBox>
#include <QEvent>
#include <QLayout>
#include <QLineEdit>
#include <QListView>
#include <QMenu>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QScrollBar>
#include <QTextEdit>

namespace velor {
namespace {

struct KindOfWidget {
  const QMetaObject *base;
  const char16_t *name;
};

const KindOfWidget Kinds[] = {
    {&QPushButton::staticMetaObject, u"CommandButton"},
    {&QLineEdit::staticMetaObject, u"TextBox"},
    {&QTextEdit::staticMetaObject, u"TextBox"},
    {&QPlainTextEdit::staticMetaObject, u"TextBox"},
    {&QComboBox::staticMetaObject, u"ComboBox"},
    {&QListView::staticMetaObject, u"ListBox"},
    {&QProgressBar::staticMetaObject, u"ProgressBar"},
};

/// Whether the widget is a part of another control, such as the text box in a combo box.
bool IsInnerPart(const QWidget &widget) {
  for (const QWidget *above = widget.parentWidget(); above; above = above->parentWidget()) {
    if (qobject_cast<const QComboBox *>(above) || qobject_cast<const QAbstractSpinBox *>(above)) {
      return true;
    }
  }
  return false;
}

bool IsBarOfItsOwn(const QScrollBar &bar) {
  for (const QWidget *above = bar.parentWidget(); above; above = above->parentWidget()) {
    const auto *area = qobject_cast<const QAbstractScrollArea *>(above);
    if (area && (&bar == area->horizontalScrollBar() || &bar == area->verticalScrollBar())) {
      return false;
    }
  }
  return bar.orientation() == Qt::Horizontal;
}

/// Keeps a widget smaller, by fixed margins, than the place that its layout gives it.
class InwardsKeeper final : public QObject {
 public:
  InwardsKeeper(QWidget &widget, const QMargins &inwards)
      : QObject(&widget), widget_(widget), inwards_(inwards) {
    widget.installEventFilter(this);
  }

  bool eventFilter(QObject *, QEvent *event) override {
    if (event->type() == QEvent::Resize || event->type() == QEvent::Move) ShrinkByMargins();
    return false;
  }

 private:
  void ShrinkByMargins() {
    if (widget_.geometry() == kept_) return;
    kept_ = widget_.geometry().marginsRemoved(inwards_);
    widget_.setGeometry(kept_);
  }

  QWidget &widget_;
  QMargins inwards_;
  QRect kept_;
};

bool IsLaidOut(QWidget &widget) {
  const QWidget *parent = widget.parentWidget();
  if (!parent || !parent->layout()) return false;
  if (parent->layout()->indexOf(&widget) >= 0) return true;
  for (const QLayout *inner : parent->layout()->findChildren<QLayout *>()) {
    if (inner->indexOf(&widget) >= 0) return true;
  }
  return false;
}

}  // namespace

QString ControlTypeName(const QWidget &widget) {
  if (IsInnerPart(widget)) return {};
  if (const auto *bar = qobject_cast<const QScrollBar *>(&widget)) {
    return IsBarOfItsOwn(*bar) ? QStringLiteral("HScrollBar") : QString();
  }
  for (const KindOfWidget &kind : Kinds) {
    if (widget.metaObject()->inherits(kind.base)) return QString::fromUtf16(kind.name);
  }
  return {};
}

QList<QWidget *> ControlsOf(const QWidget &window) {
  return window.findChildren<QWidget *>();
}

QList<QAction *> MenuItemsOf(const QWidget &window) {
  QList<QAction *> items;
  for (const QMenu *menu : window.findChildren<QMenu *>()) {
    items.append(menu->menuAction());
    for (QAction *item : menu->actions()) {
      if (!item->menu()) items.append(item);
    }
  }
  return items;
}

TwipRect WidgetControl::Place() const {
  const std::int32_t across = windows_.TwipsPerPixelX();
  const std::int32_t down = windows_.TwipsPerPixelY();
  const QRect place = widget_.geometry();
  return {place.x() * across, place.y() * down, place.width() * across, place.height() * down};
}

void WidgetControl::Move(const TwipRect &place) {
  const std::int32_t across = windows_.TwipsPerPixelX();
  const std::int32_t down = windows_.TwipsPerPixelY();
  const QRect before = widget_.geometry();
  const QRect after(place.left / across, place.top / down, place.width / across,
                    place.height / down);
  if (IsLaidOut(widget_)) {
    new InwardsKeeper(widget_, {after.left() - before.left(), after.top() - before.top(),
                                before.right() - after.right(), before.bottom() - after.bottom()});
  }
  widget_.setGeometry(after);
}

}  // namespace velor
