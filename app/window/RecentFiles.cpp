// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/window/RecentFiles.h"

#include "app/settings/modSettingManager.h"
#include "chrome/Captions.h"
#include "platform/Paths.h"

#include <QAction>
#include <QMenu>

#include <utility>

namespace velor {
namespace {

constexpr int MostListed = 15;
/// The digits 1 to 9 are mnemonics.
constexpr int MostMnemonics = 9;

}  // namespace

RecentFiles::RecentFiles(QMenu &menu, const Registry &registry,
                         std::function<void(const QString &path)> open, QObject *parent)
    : QObject(parent), menu_(menu), registry_(registry), open_(std::move(open)) {
  connect(&menu_, &QMenu::aboutToShow, this, &RecentFiles::Refill);
}

void RecentFiles::Refill() {
  menu_.clear();
  const QStringList paths = modSettingManager::History(registry_).mid(0, MostListed);
  for (const QString &path : paths) {
    const qsizetype number = menu_.actions().size() + 1;
    const QString mark = number > MostMnemonics ? QString() : QStringLiteral("&");
    const QString name = ForPeople(path);
    QAction *item =
        menu_.addAction(QStringLiteral("%1%2 %3").arg(mark).arg(number).arg(AsCaption(name)), this,
                        [this, path] { open_(path); });
    item->setToolTip(name);
  }
  if (paths.isEmpty()) menu_.addAction(tr("No file was opened yet"))->setEnabled(false);
}

}  // namespace velor
