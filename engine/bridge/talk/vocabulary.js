// SPDX-License-Identifier: GPL-3.0-or-later
// @ts-check
// The published numbers that the program and the bridge speak in.

/** Commands. */
export const Command = Object.freeze({
  Bold: 5000,
  Copy: 5002,
  Cut: 5003,
  Delete: 5004,
  GetBackColor: 5010,
  GetBlockFormat: 5011,
  GetFontName: 5013,
  GetFontSize: 5014,
  GetForeColor: 5015,
  Indent: 5018,
  Italic: 5023,
  JustifyCenter: 5024,
  JustifyLeft: 5025,
  JustifyRight: 5026,
  OrderList: 5030,
  Outdent: 5031,
  Paste: 5032,
  Redo: 5033,
  SelectAll: 5035,
  SetBackColor: 5042,
  SetBlockFormat: 5043,
  SetFontName: 5044,
  SetFontSize: 5045,
  SetForeColor: 5046,
  Underline: 5048,
  Undo: 5049,
  UnorderList: 5051,
  // Additions.
  InsertRowBelow: 6001,
  InsertRowAbove: 6002,
  InsertColumnRight: 6003,
  InsertColumnLeft: 6004,
  DeleteRow: 6005,
  DeleteColumn: 6006,
  DeleteTable: 6007,
  MergeCells: 6008,
  SplitCell: 6009,
  SelectCell: 6010,
  SelectRow: 6011,
  SelectColumn: 6012,
  SelectTable: 6013,
  MoveRowUp: 6014,
  MoveRowDown: 6015,
  MoveColumnLeft: 6016,
  MoveColumnRight: 6017,
  DistributeColumns: 6018,
  AbsolutePosition: 6020,
  BringToFront: 6021,
  BringForward: 6022,
  BringAboveText: 6023,
  SendToBack: 6024,
  SendBackward: 6025,
  SendBelowText: 6026,
});

/** What a command answers when it is asked whether it applies. */
export const Status = Object.freeze({
  Disabled: 1,
  Enabled: 3,
  Latched: 7,   // all of the selection has what the command gives
  Ninched: 11,  // some of it has
});
