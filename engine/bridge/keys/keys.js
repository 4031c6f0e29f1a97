// SPDX-License-Identifier: GPL-3.0-or-later
// @ts-check
// Which module of this folder each event of the keyboard, of input and of the selection goes to.
import * as pending from '../formats/pending.js';
import { isEditable } from '../page/dom.js';
import * as history from '../page/history.js';
import * as selection from '../page/selection.js';
import * as standIns from '../page/standIns.js';
import { exec } from '../talk/commands.js';
import { selectionMoved } from '../talk/push.js';
import { endComposition } from './composition.js';
import { beforeInput, input } from './input.js';
import { endBeforeIsland, isBesideIsland, typeBesideIsland } from './islands.js';
import { commandOfKey } from './shortcuts.js';
import { pressTab } from './tab.js';

// What Tab and End do here in the engine's place; false where they do not.
/**
 * @param {string} key
 * @param {boolean} shiftKey
 */
function takesOver(key, shiftKey) {
  if (key === 'Tab') pressTab(shiftKey);
  return key === 'Tab' || (key === 'End' && endBeforeIsland(shiftKey));
}

/** @param {KeyboardEvent} event */
function keyDown(event) {
  if (!isEditable() || event.isComposing) return;
  const { key, ctrlKey, altKey, metaKey, shiftKey } = event;
  const isPlain = !ctrlKey && !altKey && !metaKey;
  if (isPlain && takesOver(key, shiftKey)) {
    event.preventDefault();
    return;
  }
  // The engine's word deletions are no other where something is selected.
  const deletes = ctrlKey && /^(Backspace|Delete)$/.test(key) && !getSelection().isCollapsed;
  if ((isPlain || deletes) && isBesideIsland(selection.range())) {
    typeBesideIsland(event);
    return;
  }
  const command = commandOfKey(event);
  if (!command) return;
  event.preventDefault();
  exec(command);
}

function selectionChange() {
  pending.clearIfMoved();
  standIns.selectionMoved();
  history.selectionMoved();
  selectionMoved();
}

/** Begins to listen on a document that was loaded. */
export function listenToKeys() {
  document.addEventListener('beforeinput', beforeInput, true);
  document.addEventListener('input', input, true);
  document.addEventListener('compositionend', endComposition, true);
  document.addEventListener('keydown', keyDown, true);
  document.addEventListener('selectionchange', selectionChange);
}
