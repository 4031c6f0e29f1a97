// SPDX-License-Identifier: GPL-3.0-or-later
#include "qt/QtComponents.h"

#include "catalogue/SqliteConnection.h"
#include "engine/WebEditor.h"
#include "engine/preview/WebBrowser.h"
#include "qt/QsciSourceControl.h"
#include "qt/QtFileDialog.h"

#include <utility>

namespace velor {

QtComponents::QtComponents(Files &files, QString programFolder)
    : files_(files), programFolder_(std::move(programFolder)) {}

QtComponents::~QtComponents() = default;

std::unique_ptr<EditingComponent> QtComponents::CreateEditingComponent(QWidget *parent) {
  auto editor = std::make_unique<WebEditor>(engine_, files_, programFolder_, parent);
  editor->SetWholeSigns(wholeSigns_);
  editor->SetAdditions(additions_);
  return editor;
}

std::unique_ptr<SourceControl> QtComponents::CreateSourceControl(QWidget *parent,
                                                                 SourceAccess access) {
  return std::make_unique<QsciSourceControl>(parent, access);
}

std::unique_ptr<Browser> QtComponents::CreateBrowser(QWidget *parent) {
  return std::make_unique<WebBrowser>(parent);
}

std::unique_ptr<FileDialog> QtComponents::CreateFileDialog() {
  return std::make_unique<QtFileDialog>();
}

std::unique_ptr<DatabaseConnection> QtComponents::CreateDatabaseConnection() {
  return std::make_unique<SqliteConnection>();
}

}  // namespace velor
