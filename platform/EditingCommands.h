// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringList>

#include <vector>

namespace velor {

/// The editing commands by their numbers. Those from 5000 are published (DECMD values of the DHTML
/// Editing Component's SDK). All are frozen: never renumbered.
enum class EditingCommand : int {
  Bold = 5000,
  Copy = 5002,
  Cut = 5003,
  Delete = 5004,
  GetBackColor = 5010,
  GetBlockFormat = 5011,
  GetFontName = 5013,
  GetFontSize = 5014,
  GetForeColor = 5015,
  Indent = 5018,
  Italic = 5023,
  JustifyCenter = 5024,
  JustifyLeft = 5025,
  JustifyRight = 5026,
  OrderList = 5030,
  Outdent = 5031,
  Paste = 5032,
  Redo = 5033,
  SelectAll = 5035,
  SetBackColor = 5042,
  SetBlockFormat = 5043,
  SetFontName = 5044,
  SetFontSize = 5045,
  SetForeColor = 5046,
  Underline = 5048,
  Undo = 5049,
  UnorderList = 5051,

  // Additions, with numbers of our own: they apply in the design view only.
  InsertRowBelow = 6001,
  InsertRowAbove = 6002,
  InsertColumnRight = 6003,
  InsertColumnLeft = 6004,
  DeleteRow = 6005,
  DeleteColumn = 6006,
  DeleteTable = 6007,
  MergeCells = 6008,
  SplitCell = 6009,
  SelectCell = 6010,
  SelectRow = 6011,
  SelectColumn = 6012,
  SelectTable = 6013,
  MoveRowUp = 6014,
  MoveRowDown = 6015,
  MoveColumnLeft = 6016,
  MoveColumnRight = 6017,
  DistributeColumns = 6018,
  AbsolutePosition = 6020,
  BringToFront = 6021,
  BringForward = 6022,
  BringAboveText = 6023,
  SendToBack = 6024,
  SendBackward = 6025,
  SendBelowText = 6026,
};

constexpr int Number(EditingCommand command) {
  return static_cast<int>(command);
}

constexpr bool IsAddition(EditingCommand command) {
  return Number(command) > 6000;
}

/// One block format: the name people choose and the element that carries it.
struct BlockFormat {
  const char *name;     ///< "Heading 1"
  const char *element;  ///< "H1"; a list format names the list, "OL"
};

/// The sixteen block formats in the order in which the list shows them.
const std::vector<BlockFormat> &BlockFormats();
QStringList BlockFormatNames();

/// The seven HTML font sizes: points[n - 1] is the size of <font size=n>.
inline constexpr int FontSizePoints[] = {8, 10, 12, 14, 18, 24, 36};

}  // namespace velor
