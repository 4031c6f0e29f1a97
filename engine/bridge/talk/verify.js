// SPDX-License-Identifier: GPL-3.0-or-later
// @ts-check
// What the engine makes of a text, for the spare page that saves are verified in. Texts are given
// by what differs from the one before.
import { serialize } from '../page/serialize.js';

let text = '';
let expected = '';

/** @type {(before: string, edit: TextEdit) => string} */
const edited = (before, [offset, length, fresh]) =>
  before.slice(0, offset) + fresh + before.slice(offset + length);

// True where the text is parsed to the expected document, else that document's text.
export const parsed = (textEdit, expectedEdit) => {
  text = edited(text, textEdit);
  expected = edited(expected, expectedEdit);
  const found = serialize(new DOMParser().parseFromString(text, 'text/html'));
  return found === expected || found;
};
