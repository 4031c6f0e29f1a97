// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/window/BandToolBar.h"

#include "chrome/HouseStyle.h"
#include "chrome/Palette.h"

#include <QSet>
#include <QToolBar>

namespace velor {
namespace {

/// Keys of the buttons behind which a separator stands.
const QSet<QString> &GroupEnds() {
  static const QSet<QString> keys{
      QStringLiteral("saveas"),    QStringLiteral("startman"), QStringLiteral("delete"),
      QStringLiteral("redo"),      QStringLiteral("preview"),  QStringLiteral("anchor"),
      QStringLiteral("underline"), QStringLiteral("right"),    QStringLiteral("indent")};
  return keys;
}

}  // namespace

QToolBar *NewBandToolBar(const char *name, const QString &label, QWidget *parent) {
  auto *bar = new QToolBar(parent);
  bar->setObjectName(QString::fromLatin1(name));
  bar->setAccessibleName(label);
  bar->setIconSize(QSize(ToolIconSize, ToolIconSize));
  bar->setMovable(false);
  bar->setProperty(HouseStyle::OnBand, true);
  return bar;
}

ToolBarAction *AddBandButton(QToolBar &bar, const QString &key, const QString &tooltip,
                             ButtonKind kind) {
  ToolBarAction *button = AddToolBarButton(bar, key, tooltip, tooltip, kind);
  const QString name = bar.objectName() + u'_' + key;
  button->setObjectName(name);
  bar.widgetForAction(button)->setObjectName(name);
  if (GroupEnds().contains(key)) bar.addSeparator();
  return button;
}

}  // namespace velor
