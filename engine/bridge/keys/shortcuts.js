// SPDX-License-Identifier: GPL-3.0-or-later
// @ts-check
// Which command a shortcut means, and which one an input event that the engine makes of shortcuts
// and of its own menus.
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

/**
 * True for input that the engine must not carry out: our commands, and formats that the program
 * does not have.
 * @param {InputEvent} event
 */
export const isCommand = ({ inputType }) =>
  byInput.has(inputType) || inputType.startsWith('format');

/**
 * The command that such input means; undefined for none.
 * @param {InputEvent} event
 */
export const commandOfInput = ({ inputType }) => byInput.get(inputType);

/**
 * The command that a key means with the modifiers that are held; undefined for none.
 * @param {KeyboardEvent} event
 */
export function commandOfKey({ key, ctrlKey, altKey, metaKey, shiftKey }) {
  if (!ctrlKey || altKey || metaKey) return undefined;
  return byKey.get((shiftKey ? 'shift+' : '') + key.toLowerCase());
}
