// SPDX-License-Identifier: GPL-3.0-or-later
// @ts-check
// The frame with eight handles around the selected object, and the grid while a box is moved.
import * as boxes from './boxes.js';
import * as glyphs from './glyphs.js';
import { gridStep } from './grid.js';
import * as objects from './objects.js';
import * as overlay from './overlay.js';
import { clearTint } from './tint.js';

const colour = '#1a5fb4';
const guideColour = '#c64600';
/** @param {string} paint */
const solid = (paint) => `linear-gradient(${paint}, ${paint})`;
const handle = 7;    // pixels: the side of a handle
const reach = 2;     // pixels around a handle where a press is on it too
const least = 24;    // pixels: a smaller object has a frame of this size around it

// The handles by compass point: where each lies, as parts of the frame's width and height.
const grips = new Map([
  ['nw', [0, 0]], ['n', [0.5, 0]], ['ne', [1, 0]], ['w', [0, 0.5]], ['e', [1, 0.5]],
  ['sw', [0, 1]], ['s', [0.5, 1]], ['se', [1, 1]],
]);

// The frame's box in the viewport: around an object that shows nothing, around the sign for it.
// null where that is not seen either.
/** @param {Element} object */
function frameOf(object) {
  const own = boxes.boxOf(object);
  const seen = own.width || own.height ? own : glyphs.boxOf(object);
  if (!seen) return null;
  const { left, top, right, bottom } = seen;
  /** @param {number} size */
  const more = (size) => Math.max(0, least - size) / 2;
  const [x, y] = [more(right - left), more(bottom - top)];
  return { left: Math.round(left - x), top: Math.round(top - y),
    right: Math.round(right + x), bottom: Math.round(bottom + y) };
}
// The pixels of the frame's line that the handles have in their middle.
/**
 * @param {Box} box
 * @returns {[grip: string, x: number, y: number][]}
 */
const handleCentres = ({ left, top, right, bottom }) =>
  [...grips].map(([name, [x, y]]) =>
    [name, Math.round(left + x * (right - left - 1)), Math.round(top + y * (bottom - top - 1))]);

/**
 * @param {string} paint
 * @param {number} size
 * @returns {(handle: [grip: string, x: number, y: number]) => Layer}
 */
const square = (paint, size) => ([, x, y]) => ({ image: solid(paint), x: x - (size - 1) / 2,
  y: y - (size - 1) / 2, width: size, height: size });

/** @param {Box} frame */
function frameLayers(frame) {
  const { left, top, right, bottom } = frame;
  const centres = handleCentres(frame);
  /**
   * @param {number} x
   * @param {number} y
   * @param {number} width
   * @param {number} height
   */
  const line = (x, y, width, height) => ({ image: solid(colour), x, y, width, height });
  return [
    ...centres.map(square('#ffffff', handle - 2)), ...centres.map(square(colour, handle)),
    line(left, top, right - left, 1), line(left, bottom - 1, right - left, 1),
    line(left, top, 1, bottom - top), line(right - 1, top, 1, bottom - top),
  ];
}
/**
 * @param {{ origin: Position, scale: Position }} grid
 * @returns {Layer[]}
 */
function gridLayers({ origin: { x, y }, scale }) {
  /** @param {string} way */
  const line = (way) =>
    `linear-gradient(${way}, rgba(26, 95, 180, 0.25) 1px, transparent 1px)`;
  const size = {
    width: gridStep * scale.x, height: gridStep * scale.y, repeat: 'repeat' };
  return ['to right', 'to bottom'].map((way) => ({ image: line(way), x, y, ...size }));
}

const sign = { height: 18, letter: 7.5, gap: 6 };  // pixels; of the sign that tells a size
// A text as a sign below a box: what is behind the text, and the text with its place.
/**
 * @param {{ left: number, bottom: number }} box
 * @param {string} text
 */
function signBelow({ left, bottom }, text) {
  const x = Math.max(0, left);
  const y = Math.min(bottom + sign.gap, innerHeight - sign.height);
  const back = { image: solid(colour), x, y, width: (text.length + 1) * sign.letter,
    height: sign.height };
  return { back, style: { content: `"${text}"`, 'box-sizing': 'border-box',
    padding: `${y}px 0 0 ${x + sign.letter / 2}px`, color: '#ffffff',
    font: `12px/${sign.height}px monospace` } };
}

/**
 * What a press at a mouse event takes hold of: a handle of the selected object ('nw' ... 'se'),
 * 'move' for the inside of a movable one, '' for nothing.
 * @param {any} object the selected one
 * @param {Pointer} event
 */
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
/**
 * Gives the pointer the shape for what it is over; the page below is not reached then.
 * @param {string} grip as gripAt answers it
 */
export const pointAt = (grip) => {
  if (grip === pointing) return;
  pointing = grip;
  redraw();
};

/** @param {{ width: number, height: number }} size */
const sizeText = ({ width, height }) => `${Math.round(width)} × ${Math.round(height)}`;

// The edge between two columns that is being dragged, with what is told of their widths.
/** @type {{ x: number, top: number, bottom: number, text: string } | null} */
let edge = null;
/**
 * Draws an edge between columns as it is dragged; null ends that.
 * @param {{ x: number, top: number, bottom: number, text: string } | null} dragged
 */
export const setEdge = (dragged) => {
  edge = dragged;
  redraw();
};
function drawEdge() {
  const { x, top, bottom, text } = edge;
  const { back, style } = signBelow({ left: x, bottom }, text);
  const line = { image: solid(colour), x: Math.round(x), y: top, width: 1, height: bottom - top };
  overlay.draw('frame', 'view', [back, line], style);
}

// Lines over all of the viewport.
/**
 * @param {import('./guides.js').Lines} lines
 * @returns {Layer[]}
 */
const guideLayers = ({ x, y }) => [
  ...x.map((at) => ({ image: solid(guideColour), x: Math.round(at), y: 0, width: 1,
    height: innerHeight })),
  ...y.map((at) => ({ image: solid(guideColour), x: 0, y: Math.round(at), width: innerWidth,
    height: 1 })),
];

// While an object is being dragged: its measures if the grid is shown, and if its size is; the
// lines that it is in line with.
/**
 * @typedef {{ grid: any, size: { width: number, height: number } | null,
 *   guides: import('./guides.js').Lines }} Dragging
 */
/** @type {Dragging | null} */
let dragging = null;
/**
 * Draws the frame as that of an object which is being dragged, with the grid where `grid` has its
 * measures, and with its size where `size` has it; null ends that.
 * @param {Dragging | null} state
 */
export const setDragging = (state) => {
  dragging = state;
  redraw();
};

const watched = new ResizeObserver(() => overlay.scheduleRedraw());
/** @type {Element | null} */
let subject = null;
// Has the frame drawn anew when the object's size changes.
/** @param {Element | null} object */
function watch(object) {
  if (object === subject) return;
  clearTint('frame', object);
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
    if (edge) drawEdge();
    else overlay.clear('frame');
    return;
  }
  const around = Math.ceil(handle / 2);
  const area = { left: frame.left - around, top: frame.top - around,
    right: frame.right + around, bottom: frame.bottom + around };
  const cursor = pointing === 'move' ? 'move' : `${pointing}-resize`;
  const grid = dragging?.grid ? gridLayers(dragging.grid) : [];
  const told = dragging?.size ? signBelow(frame, sizeText(dragging.size)) : null;
  const guides = dragging ? guideLayers(dragging.guides) : [];
  overlay.draw('frame', dragging ? 'view' : area,
    [...(told ? [told.back] : []), ...guides, ...frameLayers(frame), ...grid],
    { ...(pointing ? { 'pointer-events': 'auto', cursor } : {}), ...told?.style });
}

overlay.addRedraw(redraw);
