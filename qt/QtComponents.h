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

  /// Whether the editing components that are made from now on keep template signs whole
  /// (WebEditor).
  void SetWholeSigns(bool on) { wholeSigns_ = on; }
  /// The same of what goes beyond the published behaviour.
  void SetAdditions(bool on) { additions_ = on; }

  std::unique_ptr<EditingComponent> CreateEditingComponent(QWidget *parent) override;
  std::unique_ptr<SourceControl> CreateSourceControl(QWidget *parent, SourceAccess access) override;
  std::unique_ptr<Browser> CreateBrowser(QWidget *parent) override;
  std::unique_ptr<FileDialog> CreateFileDialog() override;
  std::unique_ptr<DatabaseConnection> CreateDatabaseConnection() override;

 private:
  Files &files_;
  QString programFolder_;
  bool wholeSigns_ = true;
  bool additions_ = true;
  EditingEngine engine_;
};

}  // namespace velor
