// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/EditingEngine.h"
#include "platform/Platform.h"

#include <QString>

namespace velor {

/// Makes the real components. It must outlive the editing components, which share its engine.
class QtComponents final : public Components {
 public:
  /// `programFolder` in logic form.
  QtComponents(Files &files, QString programFolder);
  ~QtComponents() override;

  std::unique_ptr<EditingComponent> CreateEditingComponent(QWidget *parent) override;
  std::unique_ptr<SourceControl> CreateSourceControl(QWidget *parent, SourceAccess access) override;
  std::unique_ptr<Browser> CreateBrowser(QWidget *parent) override;
  std::unique_ptr<FileDialog> CreateFileDialog() override;
  std::unique_ptr<DatabaseConnection> CreateDatabaseConnection() override;

 private:
  Files &files_;
  QString programFolder_;
  EditingEngine engine_;
};

}  // namespace velor
