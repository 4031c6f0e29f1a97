// SPDX-License-Identifier: GPL-3.0-or-later
// @ts-check
// Verifies a save, in the spare page: whether the engine parses the text that is to be saved to the
// document that was edited. Both texts are kept from call to call, and given by what differs.
import { serialize } from '../page/serialize.js';

let text = '';
let expected = '';

/** @type {(before: string, edit: TextEdit) => string} */
const edited = (before, [offset, length, fresh]) =>
  before.slice(0, offset) + fresh + before.slice(offset + length);

/**
 * Parses a text.
 * @param {TextEdit} textEdit what differs from the text of the call before
 * @param {TextEdit} expectedEdit the same for the serialized document that is expected
 * @returns {true | string} true for the expected document, else the document's text
 */
export const parsed = (textEdit, expectedEdit) => {
  text = edited(text, textEdit);
  expected = edited(expected, expectedEdit);
  const found = serialize(new DOMParser().parseFromString(text, 'text/html'));
  return found === expected || found;
};
