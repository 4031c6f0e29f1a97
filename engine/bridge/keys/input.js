// SPDX-License-Identifier: GPL-3.0-or-later
// @ts-check
// Input events. The engine carries out most input; here that is made ready before (beforeinput),
// and made a step of the history after (input). What the engine would do badly, or past the
// history, is done by the bridge in its place.
import { deletionAtCaret } from '../blocks/caretDeletion.js';
import * as typing from '../blocks/typing.js';
import * as keptLooks from '../formats/keptLooks.js';
import * as pending from '../formats/pending.js';
import * as blanks from '../page/blanks.js';
import * as dom from '../page/dom.js';
import * as history from '../page/history.js';
import * as selection from '../page/selection.js';
import * as signs from '../page/signs.js';
import { isWorking, work } from '../page/working.js';
import { exec } from '../talk/commands.js';
import { schedulePush } from '../talk/pace.js';
import { selectionMoved } from '../talk/push.js';
import { continuesComposition, isComposing } from './composition.js';
import { ownBreak, ownEnter, tidySplit } from './enter.js';
import { takeAwaited } from './islands.js';
import { commandOfInput, isCommand } from './shortcuts.js';

const typingInputs = new Set(['insertText', 'insertCompositionText', 'deleteCompositionText']);
// Deletions that are parts of other input.
const partialDeletions = new Set(['deleteByDrag', 'deleteCompositionText']);
const backward = /^delete.*Backward$/;

// The kind of step that input makes: input of the same kind may be one step.
/** @param {{ inputType: string }} event */
function kindOf({ inputType }) {
  if (typingInputs.has(inputType)) return 'typing';
  if (inputType === 'deleteByDrag' || inputType === 'insertFromDrop') return 'drag';
  if (/^deleteBy/.test(inputType)) return inputType;
  return inputType.startsWith('delete') ? 'delete' : inputType;
}

// True where input may join the step before it. Typing is undone word by word: the first letter
// behind a blank begins a new step.
/**
 * @param {InputEvent} event
 * @param {string} kind
 */
function joinsLastStep({ inputType, data }, kind) {
  if (kind === 'drag') return true;
  if (kind !== 'typing') return kind === 'delete';
  if (takeAwaited() || inputType !== 'insertText') return true;
  const { anchorNode, anchorOffset } = selection.points();
  const before = dom.isText(anchorNode) ? anchorNode.data[anchorOffset - 1] : '';
  return !(/^\S/.test(data ?? '') && /\s/.test(before ?? ''));
}

// What the bridge does in place of a deletion of the engine's; null where the engine does it well.
/** @param {InputEvent} event */
function ownDeletion(event) {
  const { inputType } = event;
  const isWhole = inputType.startsWith('delete') && !partialDeletions.has(inputType);
  if (!isWhole || isComposing()) return null;
  const range = selection.range();
  if (!range) return null;
  return range.collapsed
    ? deletionAtCaret(range, backward.test(inputType) ? 'start' : 'end', event.getTargetRanges()[0])
    : () => typing.deleteSelected(range);
}

/** @param {string} inputType */
function ownLine(inputType) {
  if (inputType === 'insertParagraph') return ownEnter();
  return inputType === 'insertLineBreak' ? ownBreak() : null;
}

// Carries input out where that is not left to the engine; false where it is.
/** @param {InputEvent} event */
function takeOver(event) {
  if (isCommand(event)) {
    exec(commandOfInput(event));
    return true;
  }
  const { inputType } = event;
  const deletes = ownDeletion(event);
  const deed = deletes ?? ownLine(inputType);
  if (!deed) return false;
  history.step(deletes ? 'delete' : inputType, () => work(deed));
  schedulePush();
  return true;
}

// inputType of the last beforeinput. Chromium's `input` reports insertText for Enter after typing.
/** @type {string | null} */
let announced = null;
// Whether the last beforeinput belonged to a composition that had begun before.
let composedBefore = false;

/**
 * Makes the page ready for input that the engine is about to carry out, or carries it out.
 * @param {InputEvent} event
 */
export function beforeInput(event) {
  if (isWorking() || !dom.isEditable()) return;
  const { inputType } = event;
  announced = inputType;
  if (inputType.startsWith('insert') && !isComposing()) work(signs.leaveSign);
  if (takeOver(event)) {
    event.preventDefault();
    return;
  }
  composedBefore = continuesComposition(event);
  if (composedBefore) {
    work(() => blanks.watch());
    return;
  }
  const kind = kindOf(event);
  history.expect(kind, joinsLastStep(event, kind));
  if (inputType === 'insertText' && work(() => typing.typeOver(event.data))) {
    event.preventDefault();
    announced = null;
    finish(inputType, event.data);
    return;
  }
  if (inputType.startsWith('delete')) keptLooks.noteDeletion(event.getTargetRanges()[0]);
  if (inputType.startsWith('insert') && kind !== 'drag') work(() => typing.prepareCaret(event));
  work(() => blanks.watch(inputType, event.getTargetRanges()[0]));
}

/**
 * Tidies up what the engine has put in, and ends the step.
 * @param {any} event
 */
export function input(event) {
  if (isWorking()) return;
  const { data } = event;
  const inputType = announced ?? event.inputType;
  announced = null;
  const begins = isComposing() && !composedBefore;
  work(() => blanks.engineDone({ inputType: begins ? 'insertText' : inputType, data }));
  finish(inputType, data);
}

/**
 * @param {string} inputType
 * @param {string | null} data
 */
function finish(inputType, data) {
  if (inputType === 'insertParagraph') work(tidySplit);
  if (inputType.startsWith('delete')) work(keptLooks.keepLooksOfDeleted);
  if (inputType === 'insertText') {
    work(() => {
      blanks.typed({ inputType, data });
      pending.applyToTyped(data);
    });
  }
  work(() => typing.noteTyped(data));
  signs.noteTyped();
  work(() => blanks.watched({ inputType, data }));
  pending.moveToCaret();
  history.arrive();
  // Pushes nothing where the state was pushed during this input already.
  selectionMoved();
}
