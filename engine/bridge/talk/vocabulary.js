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
});

/** What a command answers when it is asked whether it applies. */
export const Status = Object.freeze({
  Disabled: 1,
  Enabled: 3,
  Latched: 7,   // all of the selection has what the command gives
  Ninched: 11,  // some of it has
});
