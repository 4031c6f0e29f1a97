// SPDX-License-Identifier: GPL-3.0-or-later
// @ts-check
// The caret keeps its height in the view when that has another size or zoom, so that lines which
// break anew do not carry it out of sight.
import * as boxes from './boxes.js';
import * as overlay from './overlay.js';
import * as selection from '../page/selection.js';

// Set for a moment only, since the engine follows every range through each change of the document.
const range = document.createRange();

const viewNow = () => `${innerWidth} ${innerHeight} ${devicePixelRatio}`;
let view = '';
/** @type {number | null} pixels of the screen; null for a caret that was not in sight */
let height = null;
/** @type {number | null} where the caret was put in a view that is too low, or at the page's end */
let placed = null;

/** The box of the caret, or of the selection's moving end. */
function caretBox() {
  const selected = selection.range() && selection.points();
  if (!selected) return null;
  const { focusNode: node, focusOffset: offset } = selected;
  range.setStart(node, offset);
  range.collapse(true);
  const [line] = boxes.boxesOf(range, selection.element());
  range.setStart(document, 0);
  range.collapse(true);
  // A place beside elements has no box of its own.
  return line ?? boxes.firstBoxOf(node.childNodes[offset] ?? node);
}

function note() {
  // The caret has moved already where the page was laid out anew.
  if (view !== viewNow()) return;
  const box = caretBox();
  if (box && placed !== null && Math.abs(box.top - placed) < 1) return;
  placed = null;
  const isSeen = box && box.top >= 0 && box.top + box.height <= innerHeight;
  height = isSeen ? box.top * devicePixelRatio : null;
}
overlay.addRedraw(note);

function restore() {
  view = viewNow();
  const box = height === null ? null : caretBox();
  if (!box) return;
  const most = Math.max(0, innerHeight - box.height);
  const top = Math.min(height / devicePixelRatio, most);
  // The type of a DOM library that does not know this value.
  const behavior = /** @type {ScrollBehavior} */ (/** @type {string} */ ('instant'));
  scrollBy({ top: box.top - top, behavior });
  placed = caretBox()?.top ?? null;
}

/** Begins to keep the caret's height on a document that was loaded. */
export function keepCaretHeight() {
  view = viewNow();
  addEventListener('resize', restore);
}
