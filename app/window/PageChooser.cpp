// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/window/PageChooser.h"

#include "platform/Words.h"

#include <QSignalBlocker>

namespace velor {

PageChooser::PageChooser(QWidget *parent) : QComboBox(parent) {
  setMaxVisibleItems(20);
  setEnabled(false);
  setPlaceholderText(tr("Project pages"));
  connect(this, &QComboBox::activated, this,
          [this](int index) { Q_EMIT PageChosen(itemData(index).toInt()); });
}

void PageChooser::RemovePages() {
  const QSignalBlocker silence(this);
  clear();
  setEnabled(false);
}

void PageChooser::AddPage(const QString &name, std::int32_t pageId) {
  const QSignalBlocker silence(this);
  addItem(name.isEmpty() ? Words::tr("(no name)") : name, pageId);
  // Nothing is chosen until the person chooses.
  if (count() == 1) setCurrentIndex(-1);
  setEnabled(true);
}

}  // namespace velor
