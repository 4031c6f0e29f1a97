// SPDX-License-Identifier: GPL-3.0-or-later
// @ts-check
// The frame with eight handles around the selected object, and the grid while a box is moved.
import * as boxes from './boxes.js';
import * as glyphs from './glyphs.js';
import { gridStep } from './grid.js';
import * as objects from './objects.js';
import * as overlay from './overlay.js';
import { adoptSheet } from './overlay.js';

const colour = '#1a5fb4';
const solid = (paint) => `linear-gradient(${paint}, ${paint})`;
const handle = 7;    // pixels
const reach = 2;     // pixels around a handle that take hold of it too
const least = 24;    // pixels: a smaller object's handles stand apart from it

// Grips by compass point: which edges they move, as parts of the width and height.
const grips = new Map([
  ['nw', [0, 0]], ['n', [0.5, 0]], ['ne', [1, 0]], ['w', [0, 0.5]], ['e', [1, 0.5]],
  ['sw', [0, 1]], ['s', [0.5, 1]], ['se', [1, 1]],
]);

// The frame's box in the viewport: around an object that shows nothing, around the sign for it.
// null where that is not seen either.
function frameOf(object) {
  const own = boxes.boxOf(object);
  const seen = own.width || own.height ? own : glyphs.boxOf(object);
  if (!seen) return null;
  const { left, top, right, bottom } = seen;
  const more = (size) => Math.max(0, least - size) / 2;
  const [x, y] = [more(right - left), more(bottom - top)];
  return { left: Math.round(left - x), top: Math.round(top - y),
    right: Math.round(right + x), bottom: Math.round(bottom + y) };
}
// The pixels of the frame's line that the handles have in their middle.
/** @returns {[grip: string, x: number, y: number][]} */
const handleCentres = ({ left, top, right, bottom }) =>
  [...grips].map(([name, [x, y]]) =>
    [name, Math.round(left + x * (right - left - 1)), Math.round(top + y * (bottom - top - 1))]);

const square = (paint, size) => ([, x, y]) => ({ image: solid(paint), x: x - (size - 1) / 2,
  y: y - (size - 1) / 2, width: size, height: size });

function frameLayers(frame) {
  const { left, top, right, bottom } = frame;
  const centres = handleCentres(frame);
  const line = (x, y, width, height) => ({ image: solid(colour), x, y, width, height });
  return [
    ...centres.map(square('#ffffff', handle - 2)), ...centres.map(square(colour, handle)),
    line(left, top, right - left, 1), line(left, bottom - 1, right - left, 1),
    line(left, top, 1, bottom - top), line(right - 1, top, 1, bottom - top),
  ];
}
function gridLayers({ origin: { x, y }, scale }) {
  const line = (way) =>
    `linear-gradient(${way}, rgba(26, 95, 180, 0.25) 1px, transparent 1px)`;
  const size = {
    width: gridStep * scale.x, height: gridStep * scale.y, repeat: 'repeat' };
  return ['to right', 'to bottom'].map((way) => ({ image: line(way), x, y, ...size }));
}

// The handle under the pointer ('nw' ... 'se'), 'move' inside a box that can be moved, or ''.
export const gripAt = (object, { clientX, clientY }) => {
  const box = boxes.boxOf(object);
  if (!box.width || !box.height) return '';
  const near = handle / 2 + reach;
  const hit = handleCentres(frameOf(object)).find(([, x, y]) =>
    Math.abs(clientX - x) <= near && Math.abs(clientY - y) <= near);
  if (hit) return hit[0];
  const inside = boxes.holds(box, { clientX, clientY });
  return inside && objects.isMovable(object) ? 'move' : '';
};

let pointing = '';
// What the pointer is over: it looks like that and does not reach what lies below.
export const pointAt = (grip) => {
  if (grip === pointing) return;
  pointing = grip;
  redraw();
};

// While an object is being dragged: its grid, where it has one.
let dragging = null;
export const setDragging = (state) => {
  dragging = state;
  redraw();
};

// A selected object's frame tells enough: it is not tinted like selected text. The rules name the
// tags that are in it, since the engine styles all elements of a rule's tag anew; where these are
// more than so many, the tint stays.
const most = 4000;
const tintless = new CSSStyleSheet();
let untinted = '';
let repaint = null;
function stillAnimation(object) {
  const shadow = '0 0 transparent';
  const animation =
    object.animate({ textShadow: [shadow, shadow] }, { duration: 1, fill: 'both' });
  animation.pause();
  return animation;
}
function clearTint(object) {
  const tags = object
    ? new Set([object, ...object.querySelectorAll('*')].map(({ localName }) => localName)) : [];
  const known = [...tags].filter((tag) => /^[a-z][a-z0-9]*$/.test(tag));
  const count = known.reduce((sum, tag) => sum + document.getElementsByTagName(tag).length, 0);
  const selectors = count > most ? '' : known.map((tag) => `${tag}::selection`).join();
  // The engine does not paint anew for such a rule, but does for a shadow, even if none is seen.
  repaint?.cancel();
  repaint = selectors ? stillAnimation(object) : null;
  if (selectors === untinted) return;
  untinted = selectors;
  adoptSheet(tintless, selectors !== '');
  tintless.replaceSync(
    selectors && `${selectors} { background: transparent !important; color: inherit !important }`);
}

const watched = new ResizeObserver(() => overlay.follow());
let subject = null;
function watch(object) {
  if (object === subject) return;
  clearTint(object);
  watched.disconnect();
  subject = object;
  if (object) watched.observe(object);
}

function redraw() {
  const object = objects.selected();
  watch(object);
  const frame = object && frameOf(object);
  if (!frame) {
    pointing = '';
    overlay.clear('frame');
    return;
  }
  const around = Math.ceil(handle / 2);
  const area = { left: frame.left - around, top: frame.top - around,
    right: frame.right + around, bottom: frame.bottom + around };
  const cursor = pointing === 'move' ? 'move' : `${pointing}-resize`;
  const grid = dragging?.grid ? gridLayers(dragging.grid) : [];
  overlay.draw('frame', dragging ? 'view' : area, [...frameLayers(frame), ...grid],
    pointing ? { 'pointer-events': 'auto', cursor } : {});
}

overlay.add(redraw);
