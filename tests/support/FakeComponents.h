// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/Platform.h"
#include "tests/support/CallLog.h"
#include "tests/support/FakeBrowser.h"
#include "tests/support/FakeEditingComponent.h"
#include "tests/support/FakeSourceControl.h"

#include <functional>
#include <vector>

namespace velor {

class FakeDatabase;
class FakeFileDialog;

/// Makes fakes and lists them in the order in which they were made. The pointer to a fake that its
/// owner has deleted dangles.
class FakeComponents final : public Components {
 public:
  /// `database` may be null where no connection is made.
  explicit FakeComponents(Files &files, FakeDatabase *database = nullptr, CallLog *log = nullptr)
      : files_(files), database_(database), log_(log) {}

  /// Called with each editing component when it is made.
  std::function<void(FakeEditingComponent &)> onEditingComponent;

  /// Called with each file dialog when it is made.
  std::function<void(FakeFileDialog &)> onFileDialog;

  std::vector<FakeEditingComponent *> editingComponents;
  std::vector<FakeSourceControl *> sourceControls;
  std::vector<FakeBrowser *> browsers;

  std::unique_ptr<EditingComponent> CreateEditingComponent(QWidget *parent) override;
  std::unique_ptr<SourceControl> CreateSourceControl(QWidget *parent, SourceAccess access) override;
  std::unique_ptr<Browser> CreateBrowser(QWidget *parent) override;
  std::unique_ptr<FileDialog> CreateFileDialog() override;
  std::unique_ptr<DatabaseConnection> CreateDatabaseConnection() override;

 private:
  Files &files_;
  FakeDatabase *database_;
  CallLog *log_;
};

}  // namespace velor
