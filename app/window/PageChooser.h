// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QComboBox>
#include <QString>

#include <cstdint>

namespace velor {

/// The page chooser `CmbPages`: lists the pages of the open project. Disabled while it has none.
class PageChooser final : public QComboBox {
  Q_OBJECT

 public:
  explicit PageChooser(QWidget *parent);

  // These do not emit PageChosen.
  void RemovePages();
  /// `pageId` becomes the entry's item data.
  void AddPage(const QString &name, std::int32_t pageId);

 Q_SIGNALS:
  /// The person chose an entry, be it the one already shown.
  void PageChosen(std::int32_t pageId);
};

}  // namespace velor
