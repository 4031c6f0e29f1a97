// SPDX-License-Identifier: GPL-3.0-or-later
// @ts-check
// Shortcuts, and the input that the engine makes of them and of its own menus, as commands.
import { Command } from '../talk/vocabulary.js';

const byInput = new Map([
  ['historyUndo', Command.Undo], ['historyRedo', Command.Redo],
  ['formatBold', Command.Bold], ['formatItalic', Command.Italic],
  ['formatUnderline', Command.Underline],
  ['formatJustifyCenter', Command.JustifyCenter], ['formatJustifyLeft', Command.JustifyLeft],
  ['formatJustifyRight', Command.JustifyRight],
  ['formatIndent', Command.Indent], ['formatOutdent', Command.Outdent],
  ['insertOrderedList', Command.OrderList], ['insertUnorderedList', Command.UnorderList],
]);
const byKey = new Map([
  ['z', Command.Undo], ['y', Command.Redo], ['shift+z', Command.Redo],
  ['b', Command.Bold], ['i', Command.Italic], ['u', Command.Underline],
  ['a', Command.SelectAll],
]);

/** True for input that the engine must not carry out: commands, and formats that nobody offers. */
export const isCommand = ({ inputType }) =>
  byInput.has(inputType) || inputType.startsWith('format');

export const commandOfInput = ({ inputType }) => byInput.get(inputType);

/** The command of a key that is pressed; undefined for none. */
export function commandOfKey({ key, ctrlKey, altKey, metaKey, shiftKey }) {
  if (!ctrlKey || altKey || metaKey) return undefined;
  return byKey.get((shiftKey ? 'shift+' : '') + key.toLowerCase());
}
