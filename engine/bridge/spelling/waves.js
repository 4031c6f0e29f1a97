// SPDX-License-Identifier: GPL-3.0-or-later
// @ts-check
// The waves under unknown words, those in sight only. The program knows which words these are: it
// is asked, in idle time, for lines that it has not judged yet. No key waits for any of it; while
// somebody types, the words around the change keep their waves.
import { spelledLines } from './spelledLines.js';
import { pointBefore, pointBehind } from '../find/pageText.js';
import * as boxes from '../objects/boxes.js';
import * as overlay from '../objects/overlay.js';
import * as selection from '../page/selection.js';
import { host } from '../talk/host.js';

const pause = 250;         // milliseconds without a change before the program is asked
const mostWaves = 500;     // drawn at a time
const mostAnswers = 4000;  // lines whose answers are kept
const height = 3;          // pixels

const wave = `url("data:image/svg+xml,${encodeURIComponent(
  '<svg xmlns="http://www.w3.org/2000/svg" width="100%" height="100%"><defs>' +
  '<pattern id="w" width="4" height="3" patternUnits="userSpaceOnUse">' +
  '<path d="M0 2.5L2 .5 4 2.5" fill="none" stroke="#e01b24"/></pattern></defs>' +
  '<rect width="100%" height="100%" fill="url(#w)"/></svg>')}")`;

let isOn = false;
/** @typedef {number[]} Places starts and ends, in turn */
/** @type {Map<string, Places>} what the program answered, by line */
const answers = new Map();
/** @typedef {{ told: SpelledLine, places: Places }} Judged */
/** @type {Judged[]} the lines in sight, as they were read last */
let inSight = [];
let isStale = true;  // the page has changed since
/** @type {string[]} the lines that the program is judging */
let asked = [];
let question = 0;    // counts them
let isLookDue = false;
let wasRead = false;  // what is drawn next is drawn for this
let changedLast = -Infinity;
// The text that was changed last, until the caret goes elsewhere: the word at the caret is being
// written.
let isWriting = false;

const observer = new MutationObserver(noteChange);
function noteChange() {
  isStale = true;
  isWriting = true;
  changedLast = performance.now();
}
function noteRecords() { if (observer.takeRecords().length) noteChange(); }

/** @param {SpelledLine} line */
const keyOf = ({ text, runs }) => `${runs.join()}|${text}`;

// The places of a line that was judged before it changed: those before and behind the change.
/**
 * @param {Judged} former
 * @param {string} text
 */
function carried({ told: { text: old }, places }, text) {
  const shorter = Math.min(old.length, text.length);
  let head = 0;
  while (head < shorter && old[head] === text[head]) head += 1;
  let tail = 0;
  while (tail < shorter - head && old.at(-1 - tail) === text.at(-1 - tail)) tail += 1;
  const moved = text.length - old.length;
  /** @type {Places} */
  const kept = [];
  for (let at = 0; at < places.length; at += 2) {
    const [start, end] = [places[at], places[at + 1]];
    if (end <= head) kept.push(start, end);
    else if (start >= old.length - tail) kept.push(start + moved, end + moved);
  }
  return kept;
}

// Asks the program for lines; one question at a time.
/** @param {SpelledLine[]} lines */
function ask(lines) {
  if (asked.length || !host()) return;
  asked = lines.map(keyOf);
  question += 1;
  host().spellingWanted(JSON.stringify(
    { question, lines: lines.map(({ text, runs }) => [text, runs]) }));
}

function look() {
  isLookDue = false;
  if (!isOn) return;
  noteRecords();
  const former = new Map(inSight.map((each) => [each.told.line.pieces[0].node, each]));
  /** @type {SpelledLine[]} */
  const unknown = [];
  inSight = spelledLines(boxes.nodesInSight()).map((told) => {
    const known = answers.get(keyOf(told));
    if (known) return { told, places: known };
    unknown.push(told);
    const before = former.get(told.line.pieces[0].node);
    return { told, places: before ? carried(before, told.text) : [] };
  });
  isStale = false;
  wasRead = true;
  overlay.scheduleRedraw();
  if (!unknown.length) return;
  if (performance.now() - changedLast >= pause) ask(unknown);
  else scheduleLook();
}

function scheduleLook() {
  if (isLookDue || !isOn) return;
  isLookDue = true;
  requestIdleCallback(look, { timeout: 2 * pause });
}

// Whether a word is being written: the caret is in it or behind it.
/**
 * @param {TextAnchor} start
 * @param {TextAnchor} end
 * @param {SelectionPoints} caret
 */
const holdsCaret = (start, end, { focusNode, focusOffset }) =>
  (focusNode === start.node && focusOffset >= start.offset &&
    (end.node !== start.node || focusOffset <= end.offset)) ||
  (focusNode === end.node && end.node !== start.node && focusOffset <= end.offset);

// Set for a moment only, since the engine follows every range through each change of the document.
const range = document.createRange();

// The waves of a word, one in each line on the screen.
/**
 * @param {TextLine} line
 * @param {number} from
 * @param {number} to
 * @param {SelectionPoints} caret
 * @returns {Layer[]}
 */
function wavesOf(line, from, to, caret) {
  const start = pointBefore(line, from);
  const end = pointBehind(line, to - 1);
  if (isWriting && holdsCaret(start, end, caret)) return [];
  range.setStart(start.node, start.offset);
  range.setEnd(end.node, end.offset);
  return boxes.boxesOf(range, start.node.parentElement).map((box) =>
    ({ image: wave, x: box.left, y: box.top + box.height - height, width: box.width, height }));
}

function layers() {
  const { clientHeight } = document.documentElement;
  const caret = selection.points();
  /** @type {Layer[]} */
  const found = [];
  for (const { told: { line }, places } of inSight) {
    for (let at = 0; at < places.length && found.length < mostWaves; at += 2) {
      found.push(...wavesOf(line, places[at], places[at + 1], caret));
    }
  }
  range.setStart(document, 0);
  range.collapse(true);
  return found.filter(({ y, width }) => width && y > -height && y < clientHeight);
}

function redraw() {
  if (!isOn) {
    overlay.drawInView('waves', []);
    return;
  }
  noteRecords();
  // What has changed is read again when there is time; until then the waves stay where they are.
  if (!isStale) overlay.drawInView('waves', layers());
  if (!wasRead || isStale) scheduleLook();
  wasRead = false;
}
overlay.addRedraw(redraw);

/**
 * The program's answer to a question.
 * @param {number} number the question's
 * @param {Places[]} found of each of its lines
 */
export function spelled(number, found) {
  if (number !== question) return;
  if (answers.size > mostAnswers) answers.clear();
  asked.forEach((key, index) => answers.set(key, found[index]));
  asked = [];
  scheduleLook();
}

/** Has all lines judged anew: words were added or ignored. */
export function checkAgain() {
  question += 1;
  asked = [];
  answers.clear();
  inSight = [];
  scheduleLook();
}

document.addEventListener('selectionchange', () => {
  noteRecords();
  if (performance.now() - changedLast > pause) isWriting = false;
});

/**
 * Turns the waves on or off.
 * @param {boolean} on
 */
export function setSpelling(on) {
  isOn = on;
  isStale = true;
  isWriting = false;
  observer.disconnect();
  inSight = [];
  if (on) {
    observer.observe(document, { subtree: true, childList: true, characterData: true,
      attributes: true, attributeFilter: ['lang', 'translate', 'spellcheck'] });
  }
  isWriting = false;
  overlay.scheduleRedraw();
}
