// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/EditingComponent.h"

#include <QList>
#include <QRect>
#include <QString>
#include <QStringList>

#include <map>
#include <optional>

namespace velor {

/// The state of a page as the bridge last pushed it (docs/bridge.md). Commands' states, their
/// values and the document object are answered from it without asking the page.
struct StateSnapshot {
  int version = 0;
  /// The content changed since the push before.
  bool dirty = false;
  /// Number of the document that the page shows: 0 for the loaded one, else that of its exchange
  /// (DocumentHistory, engine/bridge/talk/replace.js).
  int generation = 0;
  std::map<EditingCommand, CommandStatus> commands;
  QString fontName;
  QString fontSize;
  QString foreColor;
  QString backColor;
  QString blockFormat;
  SelectionType selection = SelectionType::None;
  HtmlElement element;
  HtmlElement link;
  QSize picturePixels;      ///< of a selected picture's file
  QSize pictureShown;       ///< of a selected picture, in CSS pixels; empty for none
  QStringList path;         ///< HtmlDocument::Path
  QList<int> pathElements;  ///< HtmlDocument::PathElement, by the index in `path`
  QRect place;              ///< HtmlDocument::ObjectPlace
  QRect cells;              ///< HtmlDocument::SelectedCells
  QRect asked;              ///< HtmlDocument::AskedPicture

  /// Nothing for a text that is no JSON of a state.
  static std::optional<StateSnapshot> FromJson(const QString &json);

  /// A command that the state does not name counts as not supported.
  CommandStatus StatusOf(EditingCommand command) const;
  /// The value of a query command; nothing for any other command.
  std::optional<QString> ValueOf(EditingCommand command) const;
};

}  // namespace velor
