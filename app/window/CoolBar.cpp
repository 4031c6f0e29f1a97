// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/window/CoolBar.h"

#include "app/window/FormattingBar.h"
#include "app/window/GeneralToolbar.h"
#include "chrome/Icons.h"
#include "chrome/Palette.h"
#include "editor/EditCommands.h"
#include "platform/RuntimeError.h"

#include <QAction>
#include <QHBoxLayout>
#include <QPainter>
#include <QSet>
#include <QToolBar>
#include <QVBoxLayout>

namespace velor {
namespace {

/// Keys after which the eye gets a rest.
const QSet<QString> &GroupEnds() {
  static const QSet<QString> keys{
      QStringLiteral("saveas"),    QStringLiteral("startman"), QStringLiteral("delete"),
      QStringLiteral("redo"),      QStringLiteral("preview"),  QStringLiteral("anchor"),
      QStringLiteral("underline"), QStringLiteral("right"),    QStringLiteral("indent")};
  return keys;
}

QToolBar *NewToolBar(const char *name, const QString &label, QWidget *parent) {
  auto *bar = new QToolBar(parent);
  bar->setObjectName(QString::fromLatin1(name));
  bar->setAccessibleName(label);
  bar->setIconSize(QSize(ToolIconSize, ToolIconSize));
  bar->setMovable(false);
  return bar;
}

QAction *AddButton(QToolBar &bar, const QString &key, const QString &tooltip) {
  QAction *button = bar.addAction(IconFor(key), tooltip);
  const QString name = bar.objectName() + u'_' + key;
  button->setObjectName(name);
  button->setToolTip(tooltip);
  button->setData(key);
  QWidget *widget = bar.widgetForAction(button);
  widget->setObjectName(name);
  widget->setProperty("key", key);
  widget->setAccessibleName(tooltip);
  widget->setFocusPolicy(Qt::TabFocus);
  if (GroupEnds().contains(key)) bar.addSeparator();
  return button;
}

QAction &ButtonOf(const QToolBar &bar, const QString &key) {
  for (QAction *button : bar.actions()) {
    if (!button->isSeparator() && button->data().toString() == key) return *button;
  }
  throw RuntimeError::Of(ErrorNumber::ElementNotFound, bar.objectName(), key);
}

}  // namespace

CoolBar::CoolBar(QWidget *parent)
    : QWidget(parent),
      tbrGeneral(BuildGeneral()),
      boxes_(new FormattingBar(this)),
      tbrEdit(BuildEdit()) {
  setObjectName(QStringLiteral("CoolBar"));
  auto *formatting = new QHBoxLayout;
  formatting->setSpacing(2 * BarMargin);
  formatting->addWidget(boxes_);
  formatting->addWidget(tbrEdit, 1);
  // One row for the eye: the colours close it.
  tbrEdit->addWidget(boxes_->ColorPickers());

  auto *bands = new QVBoxLayout(this);
  bands->setContentsMargins(BarMargin, BarMargin - 2, BarMargin, BarMargin);
  bands->setSpacing(BarMargin - 2);
  bands->addWidget(tbrGeneral);
  bands->addLayout(formatting);
}

QToolBar *CoolBar::BuildGeneral() {
  QToolBar *bar = NewToolBar("tbrGeneral", tr("General"), this);
  for (const GeneralButton &row : GeneralButtons) {
    QAction *button =
        AddButton(*bar, QString::fromLatin1(row.key), QString::fromLatin1(row.tooltip));
    connect(button, &QAction::triggered, this, [this, &row] { Q_EMIT GeneralClicked(row); });
  }
  return bar;
}

QToolBar *CoolBar::BuildEdit() {
  QToolBar *bar = NewToolBar("tbrEdit", tr("Formatting"), this);
  for (const EditCommand &row : EditCommands) {
    QAction *button = AddButton(*bar, row.key.toString(), row.tooltip.toString());
    button->setCheckable(true);
    connect(button, &QAction::triggered, this, [this, button, &row] {
      // The page says whether a button is pressed, not the click.
      button->setChecked(!button->isChecked());
      Q_EMIT EditClicked(row.Number());
    });
  }
  return bar;
}

QAction &CoolBar::GeneralButtonOf(const QString &key) const {
  return ButtonOf(*tbrGeneral, key);
}

QAction &CoolBar::EditButtonOf(const QString &key) const {
  return ButtonOf(*tbrEdit, key);
}

void CoolBar::paintEvent(QPaintEvent *) {
  QPainter painter(this);
  painter.fillRect(rect(), palette().window());
  painter.fillRect(0, height() - 1, width(), 1, Hairline(palette()));
}

}  // namespace velor
