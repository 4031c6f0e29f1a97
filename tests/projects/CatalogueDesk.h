// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "projects/ProjectHost.h"

#include <QStringList>

namespace velor {

/// A main window without pages; how it picks a folder is each test's own.
class CatalogueDesk : public ProjectHost {
 public:
  QStringList pages;
  QString opened;

  void ClearTabs() override {}
  void ClearPageChooser() override { pages.clear(); }
  void AddChooserPage(const QString &name, std::int32_t pageId) override {
    pages.append(QStringLiteral("%1 %2").arg(pageId).arg(name));
  }
  int DocumentCount() const override { return 0; }
  void UnloadDocument(int) override {}
  void OpenProjectPage(const QString &path) override { opened = path; }
  void NameDrives(const QString &) override {}
};

}  // namespace velor
