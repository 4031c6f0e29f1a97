// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "insert/MediaHtml.h"
#include "platform/HtmlDocument.h"

#include <QString>
#include <QStringList>

#include <functional>

class QCheckBox;
class QComboBox;
class QLabel;
class QListWidget;

/// The controls of the element dialog's pages, and what the dialog is told of the page that it
/// works on.
namespace velor {

class TextBox;

/// The boxes of a page's half "Appearance", the same for pictures and videos.
struct AppearanceBoxes {
  QComboBox *alignment = nullptr;
  TextBox *border = nullptr;
  TextBox *horizontalSpacing = nullptr;
  TextBox *verticalSpacing = nullptr;
  QCheckBox *sizeFromBoxes = nullptr;
  TextBox *height = nullptr;
  TextBox *width = nullptr;
};

struct HyperlinkPage {
  TextBox *address = nullptr;
  QComboBox *frame = nullptr;
  /// An addition; null without.
  TextBox *title = nullptr;
  QListWidget *bookmarks = nullptr;
};

struct VideoPage {
  TextBox *source = nullptr;
  /// An addition; null without.
  TextBox *poster = nullptr;
  QCheckBox *controls = nullptr;
  TextBox *loops = nullptr;
  QCheckBox *forever = nullptr;
  QCheckBox *onOpen = nullptr;
};

/// The address of a file that was put into a box in full, since the page had no path.
struct FullAddress {
  QString address;
  QString target;  ///< the file, in logic form
};

/// What the page is that something is put into, and what is selected in it.
struct EditedPage {
  Dialect dialect = Dialect::Attributes;
  /// That the selection is in; null for none.
  HtmlElement link = {};
  /// The selected IMG; null for none.
  HtmlElement picture = {};
  bool isCentered = false;  ///< the paragraph of the selection
  /// The names of places in the page that an address leads to; the empty address is the page
  /// itself.
  std::function<QStringList(const QString &address)> bookmarks = {};
  /// The address of a picture once its file is part of the site; empty where it stays as it is.
  std::function<QString(const QString &address)> pictureAddress = {};
};

}  // namespace velor
