// SPDX-License-Identifier: GPL-3.0-or-later
// @ts-check
// Drawing over the page. The pictures are backgrounds of two pseudo-elements of HEAD, set by an
// adopted style sheet. So nothing drawn is a node: it is in no mutation record and not in the
// page's text, and the engine scrolls and scales it with the page. HEAD is taken since pages have
// no rules for it, and it shows nothing itself.
import * as boxes from './boxes.js';
import { isEditable } from '../page/dom.js';

/** @param {string} rules */
const sheetOf = (rules) => {
  const sheet = new CSSStyleSheet();
  sheet.replaceSync(rules);
  return sheet;
};
// A head without a box of its own has pseudo-elements all the same.
const carrier = sheetOf('head { display: contents !important; white-space: normal !important; }' +
  ' head > * { display: none !important; }');
// What lies inside frames and the like is another page's or program's: the pointer is to meet the
// object itself. The engine gives its own zoom as that of HTML, unless a rule sets one there; the
// rule here sets none, and any rule of the page comes before it.
const closed = sheetOf(
  'iframe, object, embed, applet, video, audio { pointer-events: none !important; }' +
  ' @layer velor { html { zoom: 1 }' +
  // An empty cell is one line high, unless the page says how high.
  ' :is(td, th):empty:not([height]) { height: 1.2em } }');
const sheet = sheetOf('head::before {} head::after {}');
const [details, frame] = [...sheet.cssRules]
  .map((rule) => (/** @type {CSSStyleRule} */ (rule)).style);
const styles = { details, frame };
/** @type {Record<string, string>} */
const drawn = {};

/** @param {number} number */
const px = (number) => `${Math.round(number * 100) / 100}px`;

/**
 * Adds a style sheet to the document's adopted ones, or removes it.
 * @param {CSSStyleSheet} added
 * @param {boolean} on
 */
export const adoptSheet = (added, on) => {
  const has = document.adoptedStyleSheets.includes(added);
  if (on === has) return;
  const others = document.adoptedStyleSheets.filter((each) => each !== added);
  document.adoptedStyleSheets = on ? [...others, added] : others;
};

// The point that positions of an absolute child of the root are counted from, in the viewport.
function origin() {
  const root = document.documentElement;
  const { position, transform, filter, perspective } = getComputedStyle(root);
  const isFree = [transform, filter, perspective].every((value) => value === 'none');
  if (position === 'static' && isFree) return { x: -scrollX, y: -scrollY };
  const { left, top } = boxes.boxOf(root);
  const zoom = boxes.zoomOf(root);
  return { x: left + root.clientLeft * zoom, y: top + root.clientTop * zoom };
}

// A box of the viewport as part of the page. It ends where the page does, or it would make the
// page longer.
/** @param {Box} box */
function onPage({ left, top, right, bottom }) {
  const { x, y } = origin();
  const { scrollWidth, scrollHeight } = document.scrollingElement ?? document.documentElement;
  return { position: 'absolute', left: px(left - x), top: px(top - y),
    width: px(Math.max(0, Math.min(right + scrollX, scrollWidth) - left - scrollX)),
    height: px(Math.max(0, Math.min(bottom + scrollY, scrollHeight) - top - scrollY)) };
}
const onView = { position: 'fixed', left: '0', top: '0', width: '100%', height: '100%' };

// A layer is an image with its place in the viewport; the first lies on top.
/**
 * @param {Layer[]} layers
 * @param {{ left: number, top: number }} area
 */
function background(layers, { left, top }) {
  /** @param {(layer: Layer) => string} read */
  const each = (read) => layers.map(read).join();
  return {
    'background-image': each(({ image }) => image),
    'background-position': each(({ x, y }) => `${px(x - left)} ${px(y - top)}`),
    'background-size': each(({ width, height }) => `${px(width)} ${px(height)}`),
    'background-repeat': each(({ repeat }) => repeat ?? 'no-repeat'),
  };
}

/**
 * Draws on one of the two pseudo-elements, in place of what was there; 'details' lies below
 * 'frame'.
 * @param {'details' | 'frame'} name
 * @param {Box | 'view'} area a box of the viewport, which scrolls with the page; 'view' for all of
 *   the viewport
 * @param {Layer[]} layers the upper ones first
 * @param {object} [more] further declarations
 */
export function draw(name, area, layers, more = {}) {
  const inView = area === 'view';
  const declarations = {
    all: 'initial', content: '""', display: 'block', 'z-index': '2147483647',
    'pointer-events': 'none', zoom: String(1 / boxes.zoomOf(document.documentElement)),
    ...(inView ? onView : onPage(area)),
    ...background(layers, inView ? { left: 0, top: 0 } : area), ...more,
  };
  const text = Object.entries(declarations)
    .map(([property, value]) => `${property}: ${value} !important`).join('; ');
  if (drawn[name] === text) return;
  drawn[name] = text;
  styles[name].cssText = text;
}
/** @param {'details' | 'frame'} name */
export function clear(name) {
  if (!drawn[name]) return;
  drawn[name] = '';
  styles[name].cssText = '';
}

/** @type {Map<string, Layer[]>} what is drawn below 'frame', by who draws it */
const inView = new Map();
/**
 * Draws on all of the viewport, below 'frame', in place of what the same one has drawn before; to
 * be called while everything is drawn anew (addRedraw). The first to draw lies on top.
 * @param {'cells' | 'glyphs' | 'marks' | 'waves'} who
 * @param {Layer[]} layers the upper ones first
 */
export const drawInView = (who, layers) => inView.set(who, layers);
function drawDetails() {
  const layers = [...inView.values()].flat();
  const { clientWidth: right, clientHeight: bottom } = document.documentElement;
  if (layers.length) draw('details', { left: 0, top: 0, right, bottom }, layers);
  else clear('details');
}

/** @type {(() => void)[]} what is called to draw anew */
const redraws = [];
let waiting = false;
/** Has everything drawn anew with the next animation frame: the page looks otherwise now. */
export function scheduleRedraw() {
  if (waiting) return;
  waiting = true;
  requestAnimationFrame(() => {
    waiting = false;
    redraws.forEach((redraw) => redraw());
    drawDetails();
  });
}
const sizes = new ResizeObserver(scheduleRedraw);

/**
 * Has a function called whenever everything is drawn anew.
 * @param {() => void} redraw
 */
export const addRedraw = (redraw) => redraws.push(redraw);

/** Begins to draw on a document that was loaded. */
export function start() {
  // A page that shows its head keeps it as it is.
  const { head } = document;
  if (isEditable() && head && getComputedStyle(head).display === 'none') {
    adoptSheet(carrier, true);
  }
  adoptSheet(closed, true);
  adoptSheet(sheet, true);
  document.addEventListener('scroll', scheduleRedraw, true);
  document.addEventListener('load', scheduleRedraw, true);
  addEventListener('resize', scheduleRedraw);
  sizes.disconnect();
  if (document.body) sizes.observe(document.body);
}
