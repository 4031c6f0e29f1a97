// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/window/CoolBar.h"

#include "app/window/FormattingBar.h"
#include "app/window/GeneralToolbar.h"
#include "chrome/HouseStyle.h"
#include "chrome/Palette.h"
#include "chrome/ToolBarButtons.h"
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
  bar->setProperty(HouseStyle::OnBand, true);
  return bar;
}

ToolBarAction *AddButton(QToolBar &bar, const QString &key, const QString &tooltip,
                         ButtonKind kind) {
  ToolBarAction *button = AddToolBarButton(bar, key, tooltip, tooltip, kind);
  const QString name = bar.objectName() + u'_' + key;
  button->setObjectName(name);
  bar.widgetForAction(button)->setObjectName(name);
  if (GroupEnds().contains(key)) bar.addSeparator();
  return button;
}

ToolBarAction &ButtonOf(const QToolBar &bar, const QString &key) {
  for (QAction *button : bar.actions()) {
    if (!button->isSeparator() && button->data().toString() == key) {
      return static_cast<ToolBarAction &>(*button);
    }
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
  formatting->setContentsMargins(BarMargin - BarSpacing, 0, 0, 0);
  formatting->setSpacing(BarMargin);
  formatting->addWidget(boxes_);
  formatting->addWidget(tbrEdit, 1);
  // One row for the eye: the colours close it.
  tbrEdit->addWidget(boxes_->ColorPickers());

  auto *bands = new QVBoxLayout(this);
  bands->setContentsMargins(BarSpacing, 0, BarSpacing, 1);
  bands->setSpacing(0);
  bands->addWidget(tbrGeneral);
  bands->addLayout(formatting);
}

QToolBar *CoolBar::BuildGeneral() {
  QToolBar *bar = NewToolBar("tbrGeneral", tr("General"), this);
  for (const GeneralButton &row : GeneralButtons) {
    ToolBarAction *button = AddButton(*bar, QString::fromLatin1(row.key),
                                      QString::fromLatin1(row.tooltip), ButtonKind::Click);
    connect(button, &ToolBarAction::Chosen, this, [this, &row] { Q_EMIT GeneralClicked(row); });
  }
  return bar;
}

QToolBar *CoolBar::BuildEdit() {
  QToolBar *bar = NewToolBar("tbrEdit", tr("Formatting"), this);
  for (const EditCommand &row : EditCommands) {
    ToolBarAction *button =
        AddButton(*bar, row.key.toString(), row.tooltip.toString(), ButtonKind::Toggle);
    // The page says whether a button is pressed, not the click.
    connect(button, &ToolBarAction::Chosen, this,
            [this, &row] { Q_EMIT EditClicked(row.Number()); });
  }
  return bar;
}

ToolBarAction &CoolBar::GeneralButtonOf(const QString &key) const {
  return ButtonOf(*tbrGeneral, key);
}

ToolBarAction &CoolBar::EditButtonOf(const QString &key) const {
  return ButtonOf(*tbrEdit, key);
}

void CoolBar::paintEvent(QPaintEvent *) {
  QPainter painter(this);
  painter.fillRect(rect(), palette().window());
  painter.fillRect(0, height() - 1, width(), 1, Hairline(palette()));
}

}  // namespace velor
