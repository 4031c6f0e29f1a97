// SPDX-License-Identifier: GPL-3.0-or-later
// @ts-check
// Input. The engine types; here its input becomes steps of the history, and what it does badly or
// behind the history's back is done by the bridge.
import { deletionAtCaret } from '../blocks/caretDeletion.js';
import * as typing from '../blocks/typing.js';
import * as pending from '../formats/pending.js';
import * as blanks from '../page/blanks.js';
import * as dom from '../page/dom.js';
import * as history from '../page/history.js';
import * as selection from '../page/selection.js';
import { isWorking, work } from '../page/working.js';
import { exec } from '../talk/commands.js';
import { schedulePush } from '../talk/pace.js';
import { selectionMoved } from '../talk/push.js';
import { continues, isComposing } from './composition.js';
import { ownEnter, tidySplit } from './enter.js';
import { commandOfInput, isCommand } from './shortcuts.js';

const typingInputs = new Set(['insertText', 'insertCompositionText', 'deleteCompositionText']);
// Deletions that are parts of something else.
const partialDeletions = new Set(['deleteByDrag', 'deleteCompositionText']);
const backward = /^delete.*Backward$/;

function kindOf({ inputType }) {
  if (typingInputs.has(inputType)) return 'typing';
  if (inputType === 'deleteByDrag' || inputType === 'insertFromDrop') return 'drag';
  if (/^deleteBy/.test(inputType)) return inputType;
  return inputType.startsWith('delete') ? 'delete' : inputType;
}

// Typing is undone word by word: the first letter after a blank begins a step.
function joins({ inputType, data }, kind) {
  if (kind === 'drag') return true;
  if (kind !== 'typing') return kind === 'delete';
  if (inputType !== 'insertText') return true;
  const { anchorNode, anchorOffset } = selection.points();
  const before = dom.isText(anchorNode) ? anchorNode.data[anchorOffset - 1] : '';
  return !(/^\S/.test(data ?? '') && /\s/.test(before ?? ''));
}

// What the bridge does in place of a deletion of the engine's; null where the engine does it well.
function ownDeletion({ inputType }) {
  const isWhole = inputType.startsWith('delete') && !partialDeletions.has(inputType);
  if (!isWhole || isComposing()) return null;
  const range = selection.range();
  if (!range) return null;
  return range.collapsed
    ? deletionAtCaret(range, backward.test(inputType) ? 'start' : 'end')
    : () => typing.deleteKeepingLooks(range);
}

// Carries the input out where that is not left to the engine; tells whether it was done.
function takeOver(event) {
  if (isCommand(event)) {
    exec(commandOfInput(event));
    return true;
  }
  const { inputType } = event;
  const deletes = ownDeletion(event);
  const deed = deletes ?? (inputType === 'insertParagraph' ? ownEnter() : null);
  if (!deed) return false;
  history.step(deletes ? 'delete' : inputType, () => work(deed));
  schedulePush();
  return true;
}

// inputType of the last beforeinput. Chromium's `input` reports insertText for Enter after typing.
let announced = null;
// Whether an input method had begun what it writes on before the last beforeinput.
let composedBefore = false;

export function beforeInput(event) {
  if (isWorking() || !dom.isEditable()) return;
  const { inputType } = event;
  announced = inputType;
  if (takeOver(event)) {
    event.preventDefault();
    return;
  }
  composedBefore = continues(event);
  if (composedBefore) {
    work(() => blanks.watch());
    return;
  }
  const kind = kindOf(event);
  history.expect(kind, joins(event, kind));
  if (inputType === 'insertText' && work(() => typing.typeOver(event.data))) {
    event.preventDefault();
    input(event);
    return;
  }
  if (inputType.startsWith('insert') && kind !== 'drag') work(() => typing.prepareCaret(event));
  work(() => blanks.watch(inputType, event.getTargetRanges()[0]));
}

export function input(event) {
  if (isWorking()) return;
  const { data } = event;
  const inputType = announced ?? event.inputType;
  announced = null;
  const begins = isComposing() && !composedBefore;
  work(() => blanks.engineDone({ inputType: begins ? 'insertText' : inputType, data }));
  if (inputType === 'insertParagraph') work(tidySplit);
  if (inputType === 'insertText') work(() => pending.applyToTyped(data));
  typing.noteTyped();
  work(() => blanks.watched({ inputType, data }));
  pending.moveToCaret();
  history.arrive();
  // What the engine changed was mostly told of before it says so.
  selectionMoved();
}
