// SPDX-License-Identifier: GPL-3.0-or-later
// @ts-check
// Drawing over the page: pictures that lie on two pseudo-elements of the head, given by a style
// sheet that hangs on the document but is no part of it. Nothing drawn is a node, so there is
// nothing of it in a mutation record or in the page's text, and the engine scrolls and scales it
// with the page. The head is what no page has rules for; it shows nothing and takes no room.
import * as boxes from './boxes.js';
import { isEditable } from '../page/dom.js';

const sheetOf = (rules) => {
  const sheet = new CSSStyleSheet();
  sheet.replaceSync(rules);
  return sheet;
};
// A head without a box of its own has pseudo-elements all the same.
const carrier = sheetOf('head { display: contents !important; white-space: normal !important; }' +
  ' head > * { display: none !important; }');
// What lies inside frames and the like is another page's or program's: the pointer shall meet the
// object. The engine tells its own zoom as the root's, unless a rule gives the root one; this rule
// changes nothing, and gives way to any of the page.
const closed = sheetOf(
  'iframe, object, embed, applet, video, audio { pointer-events: none !important; }' +
  ' @layer velor { html { zoom: 1 }' +
  // An empty cell is one line high, unless the page says how high.
  ' :is(td, th):empty:not([height]) { height: 1.2em } }');
const sheet = sheetOf('head::before {} head::after {}');
const [details, frame] = [...sheet.cssRules]
  .map((rule) => (/** @type {CSSStyleRule} */ (rule)).style);
const styles = { details, frame };
const drawn = {};

const px = (number) => `${Math.round(number * 100) / 100}px`;

// Hangs a sheet on the document, or takes it off.
export const adoptSheet = (added, on) => {
  const has = document.adoptedStyleSheets.includes(added);
  if (on === has) return;
  const others = document.adoptedStyleSheets.filter((each) => each !== added);
  document.adoptedStyleSheets = on ? [...others, added] : others;
};

// Where an absolute child of the root counts from, in pixels of the viewport.
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
function onPage({ left, top, right, bottom }) {
  const { x, y } = origin();
  const { scrollWidth, scrollHeight } = document.scrollingElement ?? document.documentElement;
  return { position: 'absolute', left: px(left - x), top: px(top - y),
    width: px(Math.max(0, Math.min(right + scrollX, scrollWidth) - left - scrollX)),
    height: px(Math.max(0, Math.min(bottom + scrollY, scrollHeight) - top - scrollY)) };
}
const onView = { position: 'fixed', left: '0', top: '0', width: '100%', height: '100%' };

// A layer is an image with its place in the viewport; the first lies on top.
function background(layers, { left, top }) {
  const each = (read) => layers.map(read).join();
  return {
    'background-image': each(({ image }) => image),
    'background-position': each(({ x, y }) => `${px(x - left)} ${px(y - top)}`),
    'background-size': each(({ width, height }) => `${px(width)} ${px(height)}`),
    'background-repeat': each(({ repeat }) => repeat ?? 'no-repeat'),
  };
}

// Draws on one of the two ('details' lies below 'frame'), in place of what was there. `area` is a
// box of the viewport that goes with the page, or 'view' for all of the viewport.
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
export function clear(name) {
  if (!drawn[name]) return;
  drawn[name] = '';
  styles[name].cssText = '';
}

// What follows the page is drawn anew with the next frame, once, however much happens.
const followers = [];
let waiting = false;
export function follow() {
  if (waiting) return;
  waiting = true;
  requestAnimationFrame(() => {
    waiting = false;
    followers.forEach((redraw) => redraw());
  });
}
const sizes = new ResizeObserver(follow);

// Has `redraw` called at each of these drawings.
export const add = (redraw) => followers.push(redraw);

export function start() {
  // A page that shows its head keeps it as it is.
  const { head } = document;
  if (isEditable() && head && getComputedStyle(head).display === 'none') {
    adoptSheet(carrier, true);
  }
  adoptSheet(closed, true);
  adoptSheet(sheet, true);
  document.addEventListener('scroll', follow, true);
  document.addEventListener('load', follow, true);
  addEventListener('resize', follow);
  sizes.disconnect();
  if (document.body) sizes.observe(document.body);
}
