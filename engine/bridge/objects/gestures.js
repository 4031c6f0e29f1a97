// SPDX-License-Identifier: GPL-3.0-or-later
// @ts-check
// What a person does to objects: a press selects, a drag sizes or moves. While a drag goes on it is
// shown by an animation that stands still, which changes no node. Its end writes to the document,
// as one step of the history.
import { arrow } from './arrows.js';
import * as boxes from './boxes.js';
import { leaveCells } from './cellGestures.js';
import { gripAt, pointAt, setDragging } from './frame.js';
import { gridStep, snaps } from './grid.js';
import { drawnBy, guidesInSight, linesBeside } from './guides.js';
import * as objects from './objects.js';
import { hasAdditions } from '../page/additions.js';
import * as dom from '../page/dom.js';
import * as history from '../page/history.js';
import * as selection from '../page/selection.js';

const slack = 3;  // pixels before a press becomes a drag
const least = 1;  // pixels of width and height
const tableEdge = 4;  // pixels beside a table's right edge where a press is on that
const stride = 16;  // pixels that the page scrolls in a frame while the pointer is outside

/**
 * A press or a drag. `preview`: what shows the change so far. `last`: the pointer's last event.
 * `again`: the object was selected before. `scrolls`: a step of scrolling is under way.
 * @typedef {{ object: HTMLElement, grip: string, again: boolean, from: Position,
 *   before: ReturnType<typeof objects.measure>, change: Resizing | null, box: Box,
 *   lines: import('./guides.js').Lines | null, scroll: Position,
 *   preview: Animation | null, last?: Pointer & { shiftKey: boolean }, scrolls?: boolean }} Gesture
 */

/** @type {Gesture | null} the one that goes on */
let gesture = null;
let taken = false;   // the press has selected an object: the click behind it does nothing
let tellShown = () => {};  // is called when an object is shown elsewhere, or in another size

/** @param {number} pixels */
const toGrid = (pixels) => Math.round(pixels / gridStep) * gridStep;

// The gesture's object's box, moved so far in its own pixels.
/**
 * @param {Gesture} gesture
 * @param {number} dx
 * @param {number} dy
 */
function boxAt({ box: { left, top, right, bottom }, before: { scale } }, dx, dy) {
  const [x, y] = [dx * scale.x, dy * scale.y];
  return { left: left + x, top: top + y, right: right + x, bottom: bottom + y };
}

// The change that a box comes to which is moved so far: to a guide, else to the grid.
/**
 * @param {Gesture} moved
 * @param {number} dx
 * @param {number} dy
 */
function moveChange(moved, dx, dy) {
  const { before } = moved;
  moved.lines ??= linesBeside(moved.object);
  if (!snaps()) return { dx, dy };
  const by = drawnBy(boxAt(moved, dx, dy), moved.lines);
  return {
    dx: by.x === null ? toGrid(before.left + dx) - before.left : dx + by.x / before.scale.x,
    dy: by.y === null ? toGrid(before.top + dy) - before.top : dy + by.y / before.scale.y,
  };
}

// How far a handle goes outwards that is moved by so much; 0 across its way.
/**
 * @param {string} grip
 * @param {string} ways the handles' letters, towards the start and towards the end
 * @param {number} by
 */
const outward = (grip, [back, on], by) =>
  (Number(grip.includes(on)) - Number(grip.includes(back))) * by;

// The change that an object comes to of which the handle `grip` is moved so far. A corner keeps the
// ratio of the sides, unless Shift is held; a side keeps it while Shift is held.
/**
 * @param {Gesture} gesture
 * @param {number} dx
 * @param {number} dy
 * @param {boolean} shift
 */
function sizeChange({ before, grip }, dx, dy, shift) {
  const horizontal = /[ew]/.test(grip);
  const vertical = /[ns]/.test(grip);
  let width = Math.max(least, before.width + outward(grip, 'we', dx));
  let height = Math.max(least, before.height + outward(grip, 'ns', dy));
  // At a corner without Shift, at a side with it.
  const keepsRatio = (horizontal && vertical) !== shift;
  const [wide, high] = [horizontal || keepsRatio, vertical || keepsRatio];
  if (keepsRatio) {
    // The side that has changed more gives the scale.
    const scale = [width / before.width, height / before.height]
      .reduce((one, other) => (Math.abs(other - 1) > Math.abs(one - 1) ? other : one));
    width = Math.max(1, before.width * scale);
    height = Math.max(1, before.height * scale);
  }
  /** @type {Resizing} */
  const change = {};
  // Where the page gives one side of a picture only, the engine computes the other by its ratio.
  /**
   * @param {boolean} auto
   * @param {boolean} other
   */
  const byShape = (auto, other) => before.keepsShape && keepsRatio && auto && !other;
  /**
   * @param {boolean} auto
   * @param {boolean} side
   */
  const changes = (auto, side) => side || (before.keepsShape && auto);
  if (changes(before.autoWidth, wide) && !byShape(before.autoWidth, before.autoHeight)) {
    change.width = wide ? width : before.width;
  }
  if (changes(before.autoHeight, high) && !byShape(before.autoHeight, before.autoWidth)) {
    change.height = high ? height : before.height;
  }
  if (grip.includes('w')) change.dx = before.width - width;
  if (grip.includes('n')) change.dy = before.height - height;
  return change;
}

// Shows what the gesture would change.
/** @param {Gesture} shown */
function show({ object, before, change }) {
  const frames = Object.fromEntries(Object.entries(objects.changedProperties(before, change))
    .map(([property, pixels]) => [property, [`${pixels}px`, `${pixels}px`]]));
  if (gesture.preview) {
    /** @type {KeyframeEffect} */ (gesture.preview.effect).setKeyframes(frames);
  } else {
    gesture.preview = object.animate(frames, { duration: 1, fill: 'both' });
    gesture.preview.pause();
  }
  const measures = objects.measure(object);
  const moves = gesture.grip === 'move';
  setDragging({ grid: moves && snaps() ? measures : null, size: moves ? null : measures,
    guides: guidesInSight(object, gesture.lines, gesture.scroll) });
  tellShown();
}

// The position of a mouse event, counted from where the elements around the object begin: scrolling
// them does not change it.
/**
 * @param {Element} object
 * @param {Pointer} event
 */
function positionFor(object, { clientX, clientY }) {
  const { x, y } = boxes.scrolled(object);
  return { x: clientX + x, y: clientY + y };
}

/** @param {Pointer & { shiftKey: boolean }} event */
function drag({ clientX, clientY, shiftKey }) {
  const { object, grip, from, before: { scale } } = gesture;
  gesture.last = { clientX, clientY, shiftKey };
  const { x, y } = positionFor(object, gesture.last);
  if (!gesture.change && Math.max(Math.abs(x - from.x), Math.abs(y - from.y)) < slack) return;
  const [dx, dy] = [(x - from.x) / scale.x, (y - from.y) / scale.y];
  gesture.change = grip === 'move'
    ? moveChange(gesture, dx, dy) : sizeChange(gesture, dx, dy, shiftKey);
  show(gesture);
  scrollAlong();
}

// Scrolls the page for as long as the pointer is held outside the window.
function scrollAlong() {
  if (gesture.scrolls) return;
  const { clientX: x, clientY: y } = gesture.last;
  /**
   * @param {number} at
   * @param {number} size
   */
  const towards = (at, size) => (at >= size ? stride : 0) - (at < 0 ? stride : 0);
  const [right, down] = [towards(x, innerWidth), towards(y, innerHeight)];
  if (!right && !down) return;
  const scrolling = gesture;
  scrolling.scrolls = true;
  requestAnimationFrame(() => {
    scrolling.scrolls = false;
    if (gesture !== scrolling) return;
    const before = [scrollX, scrollY].join();
    scrollBy(right, down);
    if ([scrollX, scrollY].join() !== before) drag(gesture.last);
  });
}

// Ends the gesture and what is shown of it; answers it.
function end() {
  const ended = gesture;
  gesture = null;
  ended.preview?.cancel();
  setDragging(null);
  tellShown();
  return ended;
}
const cancel = () => { if (gesture) end(); };

/** @param {MouseEvent} event */
function release(event) {
  if (!gesture) return;
  const { object, change, before, grip } = gesture;
  const shown = objects.measure(object);
  // An object does not become smaller than what it holds, nor larger than its page lets it: what is
  // seen is what is written.
  /** @type {('width' | 'height')[]} */
  const sizes = ['width', 'height'];
  for (const side of sizes) {
    if (change && side in change) change[side] = shown[side];
  }
  const same = ['width', 'height', 'left', 'top', 'right', 'bottom']
    .every((side) => Math.abs(shown[side] - before[side]) < 0.5);
  const { again } = end();
  if (change && same) return;
  if (change) history.step('drag', () => objects.writeChange(object, before, change));
  else if (again && grip === 'move' && objects.isBox(object)) {
    pointAt('');
    objects.enter(object, event);
  }
}

/**
 * @param {HTMLElement} object
 * @param {string} grip
 * @param {boolean} again
 * @param {MouseEvent} event
 */
function begin(object, grip, again, event) {
  gesture = { object, grip, again, from: positionFor(object, event), change: null, preview: null,
    before: objects.measure(object), box: boxes.boxOf(object), lines: null,
    scroll: boxes.scrolled(object) };
}

// True for a picture in the text: the engine begins a drag of it to another place; a click selects
// it.
/** @param {Element} object */
const dragsByEngine = (object) => object.tagName === 'IMG' && !objects.isMovable(object);

/** @param {MouseEvent} event */
function press(event) {
  cancel();
  taken = false;
  if (!dom.isEditable() || event.defaultPrevented) return;
  const selected = objects.selected();
  if (event.button === 1) {
    // The engine is about to paste: beside what is selected, never in its place.
    if (selected) selection.setCaretAtPixel(event.clientX, event.clientY);
    return;
  }
  const grip = selected && gripAt(selected, event);
  const object = grip ? selected : objects.objectAt(event);
  if (!object) return;
  if (!grip && event.button === 0 && dragsByEngine(object)) return;
  selection.selectNode(object);
  taken = true;
  event.preventDefault();
  document.body.focus({ preventScroll: true });
  if (event.button !== 0) return;
  if (grip) begin(object, grip, true, event);
  else if (objects.isMovable(object)) begin(object, 'move', false, event);
  else if (isAtWidth(object, event)) begin(object, 'e', false, event);
}

// True at the right edge of a table, which is dragged without a click that selects it.
/**
 * @param {Element} object
 * @param {Pointer} pointer
 */
const isAtWidth = (object, { clientX }) => object.tagName === 'TABLE' && hasAdditions() &&
  Math.abs(clientX - boxes.boxOf(object).right) <= tableEdge;

/** @param {MouseEvent} event */
function move(event) {
  if (gesture && !(event.buttons & 1)) cancel();
  if (gesture) {
    drag(event);
    return;
  }
  const selected = objects.selected();
  pointAt((selected && gripAt(selected, event)) ?? '');
}

/** @param {MouseEvent} event */
function click(event) {
  const object = taken ? null : objects.objectAt(event);
  if (object) selection.selectNode(object);
  else if (!taken) enterCell(event.target);
}

// The engine puts the caret elsewhere where the cell that is clicked holds nothing.
/** @param {AnyNode} target */
function enterCell(target) {
  const cell = target.closest?.('TD, TH');
  const { anchorNode } = document.getSelection();
  if (cell && dom.isEditable() && !dom.hasContent(cell) && !cell.contains(anchorNode)) {
    selection.setCaret(cell, 0);
  }
}

/** @param {KeyboardEvent} event */
function keyDown(event) {
  const { key, altKey, metaKey } = event;
  if (gesture && !/^(Shift|Control|Alt)$/.test(key)) {
    cancel();
    if (key === 'Escape') event.preventDefault();
    return;
  }
  if (!dom.isEditable() || event.isComposing || altKey || metaKey) return;
  if (key === 'Escape' && !leaveCells()) objects.stepOut(objects.selected());
  arrow(event);
}

/**
 * Begins to listen on a document that was loaded.
 * @param {() => void} whenShown is called when a drag shows an object elsewhere, or in another size
 */
export const listenToGestures = (whenShown) => {
  gesture = null;
  tellShown = whenShown;
  /**
   * @param {string} name
   * @param {EventListener} handler
   */
  const listen = (name, handler) => document.addEventListener(name, handler, true);
  listen('mousedown', press);
  listen('mousemove', move);
  listen('mouseup', release);
  listen('click', click);
  listen('keydown', keyDown);
  listen('input', objects.noteTyped);
  addEventListener('blur', cancel);
};
