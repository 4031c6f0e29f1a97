// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/SourceControl.h"

#include <memory>

class QWidget;

namespace velor {

class Browser;
class DatabaseConnection;
class Dialogs;
class EditingComponent;
class FileDialog;
class FileWatches;
class Files;
class Journals;
class Registry;
class ReplacedVersions;
class Runtime;
class Spelling;
class TemporaryCopies;
class WindowSystem;

/// Creates the parts of which the program needs several. A part's widget becomes a child of
/// `parent`.
class Components {
 public:
  virtual ~Components() = default;
  virtual std::unique_ptr<EditingComponent> CreateEditingComponent(QWidget *parent) = 0;
  virtual std::unique_ptr<SourceControl> CreateSourceControl(QWidget *parent,
                                                             SourceAccess access) = 0;
  virtual std::unique_ptr<Browser> CreateBrowser(QWidget *parent) = 0;
  virtual std::unique_ptr<FileDialog> CreateFileDialog() = 0;
  virtual std::unique_ptr<DatabaseConnection> CreateDatabaseConnection() = 0;
};

/// All services of the environment. Only what composes others has the whole of it; a class takes
/// the services that it uses.
struct Platform {
  Files &files;
  Runtime &runtime;
  Dialogs &dialogs;
  Registry &registry;
  Components &components;
  /// Null where controls are not styled.
  WindowSystem *windows = nullptr;
  /// Null where unsaved changes are not journalled.
  Journals *journals = nullptr;
  /// Null where replaced versions are not kept.
  ReplacedVersions *replaced = nullptr;
  /// Null where pages have no temporary copies: previews get the page's text instead of a file.
  TemporaryCopies *copies = nullptr;
  /// Null where files are not watched for changes by others.
  FileWatches *watches = nullptr;
  /// Null where no spelling is checked.
  Spelling *spelling = nullptr;
};

}  // namespace velor
