// SPDX-License-Identifier: GPL-3.0-or-later
// @ts-check
// Keys beside islands (`contenteditable="false"`). The engine sends no input events where the
// selection begins or ends with an island that is a block, or where there is one in place of a
// line.
import { deleteToPoint } from '../blocks/deletion.js';
import { unitAt } from '../blocks/extent.js';
import * as typing from '../blocks/typing.js';
import * as dom from '../page/dom.js';
import * as history from '../page/history.js';
import * as selection from '../page/selection.js';
import { firstShownLeaf, gapAt, lastShown } from '../page/units.js';
import { work } from '../page/working.js';
import { exec } from '../talk/commands.js';
import { schedulePush } from '../talk/pace.js';
import { Command } from '../talk/vocabulary.js';

/** @param {Range} range */
function firstShown(range) {
  for (const leaf of selection.leavesIn(range)) if (dom.isShown(leaf)) return leaf;
  return null;
}

/**
 * True where a key has to be handled here: the selection begins or ends with an island, or the
 * caret is at a point beside one where no line is.
 * @param {any} range the selected one; null for none
 */
export function isBesideIsland(range) {
  if (!range) return false;
  if (!range.collapsed) {
    const first = firstShown(range);
    // The source's line end behind an island is selected with it.
    const last = dom.shownFrom(range.endContainer.childNodes[range.endOffset - 1],
      'previousSibling');
    return dom.isIsland(first) || (Boolean(last) && dom.isIsland(dom.lastLeaf(last)));
  }
  const [node, offset] = gapAt(range) ?? [];
  if (!node) return false;
  const before = dom.shownFrom(node.childNodes[offset - 1], 'previousSibling');
  const behind = dom.shownFrom(node.childNodes[offset], 'nextSibling');
  return [before && lastShown(before), behind && firstShownLeaf(behind)].some(dom.isIsland);
}

/**
 * End, where the engine would go on into a closed block behind the line: the caret stays behind the
 * line. False elsewhere.
 * @param {boolean} isExtended whether the selection's other end stays
 */
export function endBeforeIsland(isExtended) {
  const was = selection.points();
  const selected = /** @type {any} */ (getSelection());
  if (!selection.range()) return false;
  selected.modify(isExtended ? 'extend' : 'move', 'forward', 'lineboundary');
  const isIn = dom.ancestor(selected.focusNode, dom.isIsland) !== null;
  selection.select(was);
  const last = isIn && unitAt(was.focusNode, was.focusOffset)?.nodes.at(-1);
  if (!last) return false;
  const [focusNode, focusOffset] = selection.pointOf(selection.endOf(last));
  const caret = { anchorNode: focusNode, anchorOffset: focusOffset, focusNode, focusOffset };
  selection.select(isExtended ? { ...was, focusNode, focusOffset } : caret);
  return true;
}

// Whether the step at hand has the deletion that the next character belongs to.
let awaitsCharacter = false;
/** Tells that once: the character joins the step, whatever it stands behind. */
export function takeAwaited() {
  const awaited = awaitsCharacter;
  awaitsCharacter = false;
  return awaited;
}

/**
 * Handles a key there. Delete and Backspace delete what is selected. Enter and a character do too,
 * and make a line with the caret in it; the character is typed by the engine then.
 * @param {KeyboardEvent} event
 */
export function typeBesideIsland(event) {
  const { key } = event;
  const range = selection.range();
  const types = key.length === 1 || key === 'Enter';
  const deletes = /^(Delete|Backspace)$/.test(key) && !range.collapsed;
  if (!types && !deletes) return;
  if (deletes || key === 'Enter') event.preventDefault();
  if (deletes) {
    exec(Command.Delete);
    return;
  }
  history.expect('typing', false);
  work(() => {
    if (!range.collapsed) deleteToPoint(range);
    const gap = gapAt(selection.range());
    if (gap) typing.makeLine(gap);
  });
  history.arrive();
  awaitsCharacter = true;
  schedulePush();
}
