// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/EditingCommands.h"

#include <QPoint>
#include <QString>
#include <QStringList>

class QWidget;

namespace velor {

class FileDialog;
class frmMain;

/// The area in which page windows, source editors and the preview lie, each in a frame of its own.
class ChildWindows {
 public:
  virtual ~ChildWindows() = default;
  /// Makes `window` a child of the area, not yet shown.
  virtual void Adopt(QWidget *window) = 0;
  /// Shows an adopted window filling the area, in front and with the keyboard.
  virtual void Show(QWidget *window) = 0;
  /// Brings an adopted window to the front.
  virtual void Activate(QWidget *window) = 0;
  /// Hides an adopted window and its frame until Show.
  virtual void Hide(QWidget *window) = 0;
  /// Removes the frame of an adopted window that is closing. The window deletes itself.
  virtual void Release(QWidget *window) = 0;
  /// The window in front; null when none is open.
  virtual QWidget *Current() const = 0;
};

/// What a tab shows of its page in addition to the caption.
struct TabState {
  /// The page's file in the form for people (ForPeople); empty where it has none.
  QString path;
  /// The page, or its source editor, has unsaved changes.
  bool hasChanges = false;
  /// Stands behind the caption.
  QString note = {};
  /// The file cannot be written: changes go under another name.
  bool isReadOnly = false;
};

/// The page tabs `FileTab`: one a page, under the key "key" and the page number. Unknown keys raise
/// ElementNotFound (35601), images out of range IndexOutOfBounds (35600). No call
/// counts as a choice of the person.
class TabStrip {
 public:
  virtual ~TabStrip() = default;
  virtual int Count() const = 0;
  /// `image` counts from 1 in the strip's image list.
  virtual void Add(const QString &key, int image) = 0;
  virtual void SetCaption(const QString &key, const QString &caption) = 0;
  virtual void SetState(const QString &key, const TabState &state) = 0;
  virtual void Select(const QString &key) = 0;
  virtual void Remove(const QString &key) = 0;
  virtual void Clear() = 0;
};

/// How a button of the editing toolbar looks.
enum class ButtonState {
  Unsupported,  ///< disabled; whether it is pressed stays as it was
  Off,          ///< disabled, not pressed
  On,           ///< enabled, not pressed
  Pressed,      ///< enabled and pressed
};

/// The editing toolbar `tbrEdit` and the formatting boxes. Each box is written only when its value
/// differs, and no call counts as a choice of the person.
class FormatDisplay {
 public:
  virtual ~FormatDisplay() = default;
  /// `command` is one of the ten of EditCommands.h.
  virtual void ShowButton(EditingCommand command, ButtonState state) = 0;
  virtual void ShowFontName(const QString &name) = 0;
  /// Colours as "#RRGGBB", compared as colours.
  virtual void ShowBackColor(const QString &htmlColor) = 0;
  virtual void ShowForeColor(const QString &htmlColor) = 0;
  virtual void ShowBlockFormat(const QString &name) = 0;
  virtual void ShowFontSize(const QString &points) = 0;
  /// Disables the buttons and empties the boxes, since nothing that can be formatted is in front.
  virtual void ShowNothing() = 0;
};

/// The status bar `Sta`.
class StatusDisplay {
 public:
  virtual ~StatusDisplay() = default;
  /// The tag of the element under the caret.
  virtual void ShowTag(const QString &tag) = 0;
  /// The elements around the caret (HtmlDocument::Path); empty where no page is edited.
  virtual void ShowPath(const QStringList & /*path*/) {}
  /// Where the selected object or cells are, in words; empty for none.
  virtual void ShowMeasures(const QString & /*words*/) {}
  /// Encoding and line ends of the page (EditingComponent::TextForm); empty without a page.
  virtual void ShowTextForm(const QString &words) = 0;
  /// Shows a notice about what is in front, in place of the tag, for ten seconds or until another
  /// page comes to the front.
  virtual void Report(const QString &message) = 0;
  /// As Report, about the page of that slot, which may not be in front yet. An empty text removes
  /// the notices about it.
  virtual void ReportOn(int page, const QString &message) = 0;
  /// Whether there is a notice about what is in front.
  virtual bool HasNotice() const = 0;
};

/// Which menus and toolbar buttons can be used.
class CommandAvailability {
 public:
  virtual ~CommandAvailability() = default;
  /// Enables or disables the Edit, Insert and Table menus and all toolbar buttons that need a page.
  virtual void SetPageCommandsEnabled(bool enabled) = 0;
  /// Enables or disables the action that opens the source editor.
  virtual void SetSourceEditingEnabled(bool enabled) = 0;
  /// Enables or disables all of it by the open pages and by what is in front.
  virtual void Refresh() = 0;
};

/// Requests of a page window that concern more than its page.
class PageRequests {
 public:
  virtual ~PageRequests() = default;
  /// Shows the context menu of the editing area.
  virtual void PopUpContextMenu(QPoint screenPosition) = 0;
  /// Files were dropped, paths in logic form: pages are opened, pictures go into `page` at its
  /// caret where there is one.
  virtual void OpenDroppedFiles(const QStringList &paths, frmMain *page) = 0;
  /// The selected picture of `page` was double clicked.
  virtual void ShowPictureProperties(frmMain & /*page*/) {}
  /// A part of the selected picture of `page` is to be chosen.
  virtual void CropPicture(frmMain & /*page*/) {}
  /// Clears the element tool box's record of the element under the caret.
  virtual void ResetElementInspection() = 0;
};

/// The parts of the main window that pages talk to. All outlive every page.
struct MainWindow {
  ChildWindows &windows;
  TabStrip &tabs;
  FormatDisplay &formats;
  StatusDisplay &status;
  CommandAvailability &commands;
  PageRequests &requests;
  /// The one file dialog that Open, Save and Save As share.
  FileDialog &fileDialog;
};

}  // namespace velor
