// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/support/FakeComponents.h"

#include "tests/support/FakeDatabase.h"
#include "tests/support/FakeFileDialog.h"

namespace velor {

namespace {

template <typename Part>
std::unique_ptr<Part> Seen(std::vector<Part *> &seen, std::unique_ptr<Part> part) {
  seen.push_back(part.get());
  return part;
}

}  // namespace

std::unique_ptr<EditingComponent> FakeComponents::CreateEditingComponent(QWidget *parent) {
  auto part = Seen(editingComponents, std::make_unique<FakeEditingComponent>(files_, parent, log_));
  if (onEditingComponent) onEditingComponent(*editingComponents.back());
  return part;
}

std::unique_ptr<SourceControl> FakeComponents::CreateSourceControl(QWidget *parent,
                                                                   SourceAccess access) {
  return Seen(sourceControls, std::make_unique<FakeSourceControl>(parent, access, log_));
}

std::unique_ptr<Browser> FakeComponents::CreateBrowser(QWidget *parent) {
  return Seen(browsers, std::make_unique<FakeBrowser>(parent, log_));
}

std::unique_ptr<FileDialog> FakeComponents::CreateFileDialog() {
  auto dialog = std::make_unique<FakeFileDialog>(log_);
  if (onFileDialog) onFileDialog(*dialog);
  return dialog;
}

std::unique_ptr<DatabaseConnection> FakeComponents::CreateDatabaseConnection() {
  return database_->CreateConnection();
}

}  // namespace velor
