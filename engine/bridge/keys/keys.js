// SPDX-License-Identifier: GPL-3.0-or-later
// Keys and input. The engine types; here its input becomes steps of the history, and what it does
// badly or behind the history's back is done by the bridge.
import * as deletion from '../blocks/deletion.js';
import * as lists from '../blocks/lists.js';
import * as typing from '../blocks/typing.js';
import * as inline from '../formats/inline.js';
import * as pending from '../formats/pending.js';
import * as objects from '../objects/objects.js';
import * as blanks from '../page/blanks.js';
import * as dom from '../page/dom.js';
import * as history from '../page/history.js';
import * as selection from '../page/selection.js';
import { gapAt, unitsIn } from '../page/units.js';
import { exec } from '../talk/commands.js';
import { schedulePush } from '../talk/pace.js';
import { selectionMoved } from '../talk/push.js';
import { isWorking, work } from '../page/working.js';

// Input that is a command of the bridge.
const commands = new Map([
  ['historyUndo', 5049], ['historyRedo', 5033],
  ['formatBold', 5000], ['formatItalic', 5023], ['formatUnderline', 5048],
  ['formatJustifyCenter', 5024], ['formatJustifyLeft', 5025], ['formatJustifyRight', 5026],
  ['formatIndent', 5018], ['formatOutdent', 5031],
  ['insertOrderedList', 5030], ['insertUnorderedList', 5051],
]);
const shortcuts = new Map([
  ['z', 5049], ['y', 5033], ['b', 5000], ['i', 5023], ['u', 5048], ['a', 5035],
  ['shift+z', 5033],
]);

const typingInputs = new Set(['insertText', 'insertCompositionText', 'deleteCompositionText']);
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

// True when the deletion was carried out here.
function deleted(event) {
  const range = selection.range();
  if (!range) return false;
  const own = range.collapsed
    ? deletion.joining(range, backward.test(event.inputType) ? 'start' : 'end')
    : () => deletion.remove(range);
  if (!own) return false;
  history.step('delete', own);
  return true;
}

// Enter in preformatted text is a line end, but on an empty last line leaves it.
const preAt = (range) =>
  dom.ancestor(range.startContainer, dom.isPreformatted);
function breaksLine() {
  const range = selection.range();
  return Boolean(range && preAt(range) && !deletion.spansUnits(range));
}
function breakLine() {
  if (!selection.range().collapsed) deletion.remove(selection.range());
  const range = selection.range();
  const pre = preAt(range);
  const before = document.createRange();
  before.setStart(pre, 0);
  before.setEnd(range.startContainer, range.startOffset);
  const after = document.createRange();
  after.setStart(range.startContainer, range.startOffset);
  after.setEnd(pre, pre.childNodes.length);
  const [above, below] = [before.toString(), after.toString()];
  const atEnd = /^\n?$/.test(below);
  if (atEnd && above.endsWith('\n') && above + below !== '\n') {
    leavePre(pre);
    return;
  }
  const end = document.createTextNode(below === '' ? '\n\n' : '\n');
  range.insertNode(end);
  const place = { node: end, offset: 1 };
  inline.joinTexts([end], [place]);
  selection.setCaret(place.node, place.offset);
}
function leavePre(pre) {
  const last = dom.lastLeaf(pre);
  if (dom.isText(last)) last.data = last.data.replace(/\n{1,2}$/, '');
  const paragraph = dom.create('P');
  paragraph.append(dom.create('BR'));
  pre.after(paragraph);
  selection.setCaret(paragraph, 0);
}

// What is done by the engine after all, with an eye on the blanks beside it as at typing.
function byEngine(inputType) {
  blanks.watch();
  document.execCommand(inputType);
  blanks.watched({ inputType });
}

// The lines of an address are one address; Enter on its empty last line leaves it.
function breakAddress(address) {
  const { startContainer, startOffset } = selection.range();
  const at = dom.isText(startContainer) ? null : startContainer.childNodes[startOffset];
  const isLast = dom.isBreak(at) && dom.lastLeaf(address) === at;
  if (!isLast || !dom.isBreak(at.previousSibling)) {
    byEngine('insertLineBreak');
    return;
  }
  at.previousSibling.remove();
  at.remove();
  const paragraph = dom.create('P');
  paragraph.append(dom.create('BR'));
  address.after(paragraph);
  selection.setCaret(paragraph, 0);
}

// Over selected text Enter first deletes that.
function replaceByEnter() {
  deletion.empty(selection.range());
  const own = ownEnter();
  if (own) {
    own();
    return;
  }
  typing.prepare({ inputType: 'insertParagraph' });
  byEngine('insertParagraph');
  tidySplit();
}

// What Enter does here where the engine would do it badly, else null.
function ownEnter() {
  if (breaksLine()) return breakLine;
  const range = selection.range();
  if (!range) return null;
  const object = selection.control(range);
  const entering = object && objects.entering(object);
  if (entering) return entering;
  if (!range.collapsed) return replaceByEnter;
  const gap = gapAt(range);
  if (gap) return () => typing.makeLine(gap);
  const [unit] = unitsIn(range);
  if (!unit) return null;
  // A table has one caption.
  if (unit.container.tagName === 'CAPTION') return () => byEngine('insertLineBreak');
  if (unit.block?.tagName === 'ADDRESS' && !dom.isHollow(unit.block)) {
    return () => breakAddress(unit.block);
  }
  const item = lists.itemOf(unit);
  if (!item) return null;
  const alone = unit.block && [...item.childNodes].filter(dom.isShown).length === 1;
  if (dom.isHollow(item) || alone && dom.isHollow(unit.block)) return () => lists.leave(unit);
  // With other blocks in the item the engine would put the new one among those.
  const others = [...item.children].filter((child) => child !== unit.block && dom.isBlock(child));
  const goesOn = unit.block
    ? /^(P|DIV)$/.test(unit.block.tagName) && unit.block.parentNode === item &&
      dom.neighbour(unit.block, 'nextSibling')
    : unit.container === item && others.some((child) => !dom.isList(child));
  return goesOn ? () => lists.split(item) : null;
}

// What the engine was left to carry out: it tells of Enter behind typed text as of more typing.
let announced = null;
let composing = false;  // an input method has written something that is not final yet

function beforeInput(event) {
  if (isWorking() || !dom.isEditable()) return;
  const { inputType } = event;
  announced = inputType;
  if (commands.has(inputType) || inputType.startsWith('format')) {
    event.preventDefault();
    exec(commands.get(inputType));
    return;
  }
  if (inputType.startsWith('delete') && inputType !== 'deleteByDrag' &&
      inputType !== 'deleteCompositionText' && !composing && work(() => deleted(event))) {
    event.preventDefault();
    schedulePush();
    return;
  }
  const entered = inputType === 'insertParagraph' ? ownEnter() : null;
  if (entered) {
    event.preventDefault();
    history.step(inputType, () => work(entered));
    schedulePush();
    return;
  }
  // An input method replaces what it has written before: all of that is one input.
  if (/Composition/.test(inputType)) {
    if (composing) return;
    composing = true;
  }
  const kind = kindOf(event);
  history.expect(kind, joins(event, kind));
  if (inputType === 'insertText' && work(() => typing.over(event.data))) {
    event.preventDefault();
    input(event);
    return;
  }
  if (inputType.startsWith('insert') && kind !== 'drag') work(() => typing.prepare(event));
  work(() => blanks.watch(inputType));
}

// A split paragraph leaves its id with the first half only.
function dropDoubledId() {
  const element = selection.element();
  for (let at = element; at && at !== document.body; at = at.parentElement) {
    if (!at.id || document.getElementById(at.id) === at) continue;
    history.attributesOf(at);
    at.removeAttribute('id');
  }
}

// A new paragraph that is empty is outside of the link that the one before it ended with.
function leaveLink(block) {
  const link = dom.lastLeaf(block).parentNode.closest('a[href]');
  if (!link || !block.contains(link)) return;
  const kept = selection.keep();
  dom.unwrap(link);
  selection.restore(kept);
}

// A definition follows a term, and a term a definition.
function alternate(block) {
  const item = block.closest('DT, DD');
  const others = item && [...item.childNodes].some((node) => node !== block && dom.isShown(node));
  if (!item || item !== block && others) return;
  const before = dom.neighbour(item, 'previousSibling');
  if (before?.tagName !== item.tagName) return;
  const kept = selection.keep();
  dom.rename(item, item.tagName === 'DT' ? 'DD' : 'DT');
  selection.restore(kept);
}

// The break that held a line open is not needed where text stands before it.
function tidySplit() {
  dropDoubledId();
  const split = dom.blockOf(selection.points().anchorNode);
  if (dom.isHollow(split)) {
    leaveLink(split);
    alternate(split);
  }
  const block = dom.successor(split);
  const first = dom.neighbour(block, 'previousSibling');
  if (!dom.isElement(first) || !dom.isBlock(first) || dom.isHollow(first)) return;
  const last = dom.lastLeaf(first);
  const before = last.previousSibling;
  if (dom.isBreak(last) && before && !dom.isBreak(before)) last.remove();
}

function input(event) {
  if (isWorking()) return;
  const { data } = event;
  const inputType = announced ?? event.inputType;
  announced = null;
  if (inputType === 'insertParagraph') work(tidySplit);
  if (inputType === 'insertText') work(() => pending.typed(data));
  typing.done();
  work(() => blanks.watched({ inputType, data }));
  pending.moved();
  history.arrive();
  // What the engine changed was mostly told of before it says so.
  selectionMoved();
}

function compositionEnd({ data }) {
  composing = false;
  work(() => pending.typed(data));
  history.arrive();
  // An abandoned one leaves nothing behind.
  if (!data) history.finish();
}

const cellAt = () => {
  const range = selection.range();
  return range && dom.ancestor(range.startContainer, (node) => /^(TD|TH)$/.test(node.tagName));
};

function intoCell(cell) {
  const leaf = dom.firstLeaf(cell);
  if (dom.isText(leaf)) selection.setCaret(leaf, 0);
  else if (leaf === cell) selection.setCaret(cell, 0);
  else selection.setCaret(leaf.parentNode, [...leaf.parentNode.childNodes].indexOf(leaf));
}

function addRow(row) {
  const added = dom.twin(row);
  for (const cell of row.cells) {
    const copy = dom.twin(cell);
    copy.removeAttribute('rowspan');
    copy.append(dom.create('BR'));
    added.append(copy);
  }
  row.after(added);
  return added.cells[0];
}

// In a table from cell to cell, in a list one level in or out.
function tab(backwards) {
  const cell = cellAt();
  if (!cell) {
    const [unit] = unitsIn(selection.range());
    if (unit && lists.tagOf(unit)) exec(backwards ? 5031 : 5018);
    return;
  }
  const step = backwards ? -1 : 1;
  const { rows } = cell.closest('TABLE');
  let next = cell.parentNode.cells[cell.cellIndex + step];
  for (let at = cell.parentNode.rowIndex + step; !next && rows[at]; at += step) {
    next = [...rows[at].cells].at(backwards ? -1 : 0);
  }
  if (next) intoCell(next);
  else if (!backwards) history.step('addRow', () => intoCell(addRow(cell.parentNode)));
}

// The engine tells of no input where the selection begins or ends with a closed block, or where
// there is one in place of a line.
function besideIsland(range) {
  if (!range) return false;
  if (!range.collapsed) {
    const last = range.endContainer.childNodes[range.endOffset - 1];
    const [first] = selection.leavesIn(range);
    return dom.isIsland(first) || Boolean(last) && dom.isIsland(dom.lastLeaf(last));
  }
  const [node, offset] = gapAt(range) ?? [];
  return Boolean(node) &&
    [node.childNodes[offset - 1], node.childNodes[offset]].some(dom.isIsland);
}
// Deletes what is selected there and makes the line that the key is for.
function makeWay(event) {
  const { key } = event;
  const range = selection.range();
  const types = key.length === 1 || key === 'Enter';
  const deletes = /^(Delete|Backspace)$/.test(key) && !range.collapsed;
  if (!types && !deletes) return;
  if (deletes || key === 'Enter') event.preventDefault();
  if (deletes) {
    exec(5004);
    return;
  }
  history.expect('typing', false);
  work(() => {
    if (!range.collapsed) deletion.empty(range);
    const gap = gapAt(selection.range());
    if (gap) typing.makeLine(gap);
  });
  history.arrive();
  schedulePush();
}

function keyDown(event) {
  if (!dom.isEditable() || event.isComposing) return;
  const { key, ctrlKey, altKey, metaKey, shiftKey } = event;
  if (key === 'Tab' && !ctrlKey && !altKey && !metaKey) {
    event.preventDefault();
    tab(shiftKey);
    return;
  }
  if (!ctrlKey && !altKey && !metaKey && besideIsland(selection.range())) {
    makeWay(event);
    return;
  }
  if (!ctrlKey || altKey || metaKey) return;
  const number = shortcuts.get((shiftKey ? 'shift+' : '') + key.toLowerCase());
  if (!number) return;
  event.preventDefault();
  exec(number);
}

function selectionChange() {
  pending.selectionMoved();
  blanks.selectionMoved();
  history.selectionMoved();
  selectionMoved();
}

export const listenToKeys = () => {
  document.addEventListener('beforeinput', beforeInput, true);
  document.addEventListener('input', input, true);
  document.addEventListener('compositionend', compositionEnd, true);
  document.addEventListener('keydown', keyDown, true);
  document.addEventListener('selectionchange', selectionChange);
};
