// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/window/CoolBar.h"

#include "app/window/BandToolBar.h"
#include "app/window/FormattingBar.h"
#include "chrome/Palette.h"
#include "platform/Words.h"

#include <QPainter>
#include <QToolBar>
#include <QVBoxLayout>

namespace velor {

CoolBar::CoolBar(QWidget *parent) : QWidget(parent) {
  setObjectName(QStringLiteral("CoolBar"));
  auto *bands = new QVBoxLayout(this);
  bands->setContentsMargins(BarSpacing, 0, BarSpacing, 1);
  bands->setSpacing(0);
  bands->addWidget(BuildGeneral());
  formatting_ = new FormattingBar(this);
  bands->addWidget(formatting_);
}

QToolBar *CoolBar::BuildGeneral() {
  QToolBar *bar = NewBandToolBar("tbrGeneral", tr("General"), this);
  for (std::size_t index = 0; index < GeneralButtons.size(); ++index) {
    const GeneralButton &row = GeneralButtons[index];
    general_[index] = AddBandButton(*bar, QString::fromLatin1(row.key), Words::tr(row.tooltip),
                                    ButtonKind::Click);
    connect(general_[index], &ToolBarAction::Chosen, this,
            [this, &row] { Q_EMIT GeneralClicked(row); });
  }
  return bar;
}

void CoolBar::SetPageButtonsEnabled(const std::function<bool(const Command &)> &isUsable) {
  for (std::size_t index = 0; index < GeneralButtons.size(); ++index) {
    const GeneralButton &row = GeneralButtons[index];
    if (row.needs == Needs::Page) general_[index]->setEnabled(isUsable(row.command));
  }
}

void CoolBar::paintEvent(QPaintEvent *) {
  QPainter painter(this);
  painter.fillRect(rect(), palette().window());
  painter.fillRect(0, height() - 1, width(), 1, Hairline(palette()));
}

}  // namespace velor
