// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <cstdint>

namespace velor {

/// What the project manager needs of the main window. Changes of the page chooser made here do not
/// count as a choice of the person.
class ProjectHost {
 public:
  virtual ~ProjectHost() = default;

  /// Removes every page tab; the documents stay open.
  virtual void ClearTabs() = 0;
  /// Removes every item of the page chooser `CmbPages`.
  virtual void ClearPageChooser() = 0;
  /// Appends an item to the page chooser; `pageId` becomes its item data.
  virtual void AddChooserPage(const QString &name, std::int32_t pageId) = 0;

  /// The number of the page slot made last.
  virtual int DocumentCount() const = 0;
  /// Closes the document window of that slot (from 1), which may ask and stay open. Does nothing
  /// for a slot without a window.
  virtual void UnloadDocument(int index) = 0;

  /// Opens a page file of a project. `path` in logic form, found ignoring letter case (NameOrigin).
  virtual void OpenProjectPage(const QString &path) = 0;

  /// Shows the folder picker for a project's folder, modally, at `wanted` or the nearest folder
  /// above it that is there. Returns the folder in logic form, empty when cancelled.
  virtual QString PickProjectFolder(const QString &wanted) = 0;
  /// Shows the window that names folders for drives, modally, with a row for the drive that `path`
  /// begins with.
  virtual void NameDrives(const QString &path) = 0;
};

}  // namespace velor
