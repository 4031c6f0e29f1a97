// SPDX-License-Identifier: GPL-3.0-or-later
// @ts-check
// Keys: which module of this folder each event goes to.
import * as pending from '../formats/pending.js';
import { isEditable } from '../page/dom.js';
import * as history from '../page/history.js';
import * as selection from '../page/selection.js';
import * as standIns from '../page/standIns.js';
import { exec } from '../talk/commands.js';
import { selectionMoved } from '../talk/push.js';
import { compositionEnd } from './composition.js';
import { beforeInput, input } from './input.js';
import { isBesideIsland, makeWay } from './islands.js';
import { commandOfKey } from './shortcuts.js';
import { tab } from './tab.js';

function keyDown(event) {
  if (!isEditable() || event.isComposing) return;
  const { key, ctrlKey, altKey, metaKey, shiftKey } = event;
  const isPlain = !ctrlKey && !altKey && !metaKey;
  if (isPlain && key === 'Tab') {
    event.preventDefault();
    tab(shiftKey);
    return;
  }
  if (isPlain && isBesideIsland(selection.range())) {
    makeWay(event);
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

export function listenToKeys() {
  document.addEventListener('beforeinput', beforeInput, true);
  document.addEventListener('input', input, true);
  document.addEventListener('compositionend', compositionEnd, true);
  document.addEventListener('keydown', keyDown, true);
  document.addEventListener('selectionchange', selectionChange);
}
