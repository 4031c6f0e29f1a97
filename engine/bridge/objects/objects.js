// SPDX-License-Identifier: GPL-3.0-or-later
// @ts-check
// Objects: what is selected, sized and moved as a whole. Which one the pointer means, how
// large it is and where, and how a new size and place are written the way the page has them.
import { putDeclaration } from '../formats/declarations.js';
import * as boxes from './boxes.js';
import * as glyphs from './glyphs.js';
import * as dom from '../page/dom.js';
import { openParagraph } from '../page/lines.js';
import * as selection from '../page/selection.js';

export const selected = () => selection.control(selection.range());

// Boxes that are moved about: those with a place of their own, outside the flow.
export const isMovable = (node) => dom.isElement(node) && node !== document.body &&
  /^(absolute|fixed)$/.test(getComputedStyle(node).position);
// Those that text is typed in; they are entered by a second click.
export const isBox = (node) => isMovable(node) && !dom.isAtom(node);

const edge = 2;      // pixels within a box's border that still count as its border
const outerEdge = 4; // and around a table, whose border may have no width at all
function isAtEdge(node, { clientX: x, clientY: y }) {
  const { left, top, right, bottom } = boxes.boxOf(node);
  const distance = Math.min(x - left, right - x, y - top, bottom - y);
  const border = Math.max(node.clientLeft, node.clientTop) * boxes.zoomOf(node);
  return distance >= -outerEdge && distance <= edge + border;
}

// The box that the person went into: clicks there place the caret.
let entered = null;
const isEntered = (node) => node === entered && node.contains(document.getSelection().anchorNode);

// Whether the node lies in a cell of the table: what is clicked there is that cell.
const isInCell = (node, table) => table.contains(node.closest('CAPTION, TD, TH'));

function meant(node, pointer) {
  for (let at = node; at && at !== document.body; at = at.parentElement) {
    if (at.tagName === 'TABLE' || isMovable(at)) {
      const isOutside = at.tagName !== 'TABLE' || isMovable(at) || !isInCell(node, at);
      const isTable = at === node && at.tagName === 'TABLE';
      if (isTable || (isOutside && isAtEdge(at, pointer))) return at;
      if (!isMovable(at)) continue;
      return isEntered(at) ? null : at;
    }
    if (dom.isObject(at) && (dom.isAtom(at) || isAtEdge(at, pointer))) return at;
  }
  return null;
}

const closed = 'IFRAME, OBJECT, EMBED, APPLET, VIDEO, AUDIO';
// The object that a mouse event means; null for text.
export function objectAt(event) {
  const { target, clientX: x, clientY: y } = event;
  if (!dom.isEditable() || !(target instanceof Element)) return null;
  const sign = glyphs.nodeAt(event);
  if (dom.isObject(sign)) return sign;
  const inside = [...document.querySelectorAll(closed)]
    .filter((element) => boxes.holds(boxes.boxOf(element), event)).at(-1);
  if (inside) return inside;
  if (target.tagName === 'AREA') {
    const name = target.closest('map')?.name ?? '';
    const image = document.querySelector(`img[usemap="#${CSS.escape(name)}"]`);
    if (image) return image;
  }
  const found = meant(target, event);
  if (found) return found;
  for (const [dx, dy] of [[outerEdge, 0], [-outerEdge, 0], [0, outerEdge], [0, -outerEdge]]) {
    const table = document.elementFromPoint(x + dx, y + dy)?.closest('TABLE');
    if (table && !table.contains(target) && isAtEdge(table, event)) return table;
  }
  return null;
}

// Puts the caret into a box, to where it was clicked.
export function enter(box, { clientX, clientY }) {
  const clicked = document.caretRangeFromPoint(clientX, clientY);
  const inside = clicked && box.contains(clicked.startContainer);
  entered = box;
  if (inside) selection.setCaret(clicked.startContainer, clicked.startOffset);
  else selection.setCaret(box, 0);
}
const holdsParagraphs = (node) => dom.isBlock(node) && !dom.isParagraph(node) &&
  !/^(CAPTION|DD|LI|TD|TH)$/.test(node.tagName);

// What comes in the place of a selected block is a line of its own: a paragraph where there are
// such. Tells whether it is so; anything else is replaced as text is.
export function giveWay(object) {
  const { parentNode } = object;
  if (!dom.isBlock(object) || !dom.isBlock(parentNode)) return false;
  if (holdsParagraphs(parentNode)) {
    openParagraph((paragraph) => object.replaceWith(paragraph));
    return true;
  }
  const index = selection.indexOf(object);
  object.replaceWith(dom.create('BR'));
  selection.setCaret(parentNode, index);
  return true;
}

// What Enter does to a selected object: it goes into a box, and behind a block it begins a
// paragraph. null where what is selected is replaced as text is.
export function entering(object) {
  if (isBox(object) && object.tagName !== 'TABLE') {
    return () => {
      const range = document.createRange();
      range.selectNodeContents(object);
      entered = object;
      selection.setCaret(range.endContainer, range.endOffset);
    };
  }
  return dom.isBlock(object) && !dom.isParagraph(object.parentNode)
    ? () => openParagraph((paragraph) => object.after(paragraph)) : null;
}

// Escape goes out of a box or a table, which is selected then, and from a selected object behind
// it.
export function leave(object) {
  const { anchorNode } = document.getSelection();
  const box = object ??
    dom.ancestor(anchorNode, (node) => node.tagName === 'TABLE' || isBox(node));
  entered = null;
  if (object) selection.setCaret(object.parentNode, selection.indexOf(object) + 1);
  else if (box) selection.selectNode(box);
}

// Whoever types in a box is in it.
export function typed() {
  entered = dom.ancestor(document.getSelection().anchorNode, isBox);
}

const number = (text) => parseFloat(text) || 0;

// What an object is before it is changed; a change is told against it. In pixels of the object,
// of which `scale` tells how large the viewport shows them; `origin` is a position in the viewport.
export function measure(object) {
  const style = getComputedStyle(object);
  const given = object.computedStyleMap();
  const isAuto = (property) => String(given.get(property)) === 'auto';
  const sum = (...names) =>
    (style.boxSizing === 'border-box' ? 0
      : names.reduce((all, each) => all + number(style.getPropertyValue(each)), 0));
  const rect = boxes.boxOf(object);
  const scale = boxes.scaleOf(object);
  const sides = ['left', 'top', 'right', 'bottom'].map((side) => [side, number(style[side])]);
  return {
    scale, width: rect.width / scale.x, height: rect.height / scale.y, movable: isMovable(object),
    ...Object.fromEntries(sides),
    // Where the grid of its coordinates begins, in the viewport.
    origin: { x: rect.left - (number(style.left) + number(style.marginLeft)) * scale.x,
      y: rect.top - (number(style.top) + number(style.marginTop)) * scale.y },
    fromRight: isAuto('left') && !isAuto('right'),
    fromBottom: isAuto('top') && !isAuto('bottom'),
    autoWidth: isAuto('width'), autoHeight: isAuto('height'),
    keepsShape: /^(IMG|VIDEO|CANVAS)$/.test(object.tagName),
    aroundWidth: sum('padding-left', 'padding-right', 'border-left-width', 'border-right-width'),
    aroundHeight: sum('padding-top', 'padding-bottom', 'border-top-width', 'border-bottom-width'),
  };
}

// The properties that a change comes to. `dx` and `dy` move the left upper corner; `width` and
// `height` are there where they change and count the border in.
export function properties(before, { dx = 0, dy = 0, width, height }) {
  const changed = {};
  if (width !== undefined) changed.width = width - before.aroundWidth;
  if (height !== undefined) changed.height = height - before.aroundHeight;
  if (!before.movable) return changed;
  const farX = dx + (width ?? before.width) - before.width;
  const farY = dy + (height ?? before.height) - before.height;
  if (before.fromRight ? farX : dx) {
    Object.assign(changed, before.fromRight
      ? { right: before.right - farX } : { left: before.left + dx });
  }
  if (before.fromBottom ? farY : dy) {
    Object.assign(changed, before.fromBottom
      ? { bottom: before.bottom - farY } : { top: before.top + dy });
  }
  return changed;
}

const withAttributes = new Set(['APPLET', 'CANVAS', 'EMBED', 'HR', 'IFRAME', 'IMG', 'MARQUEE',
  'OBJECT', 'TABLE', 'VIDEO', 'svg']);

// A size in percent stays one, and other lengths keep their unit.
function spelled(old, pixels, growth) {
  const [, value, unit] = /^\s*(-?[\d.]+)([a-z]+|%)\s*$/i.exec(old) ?? [];
  if (unit === '%') return `${Math.max(1, Math.round(Number(value) * growth))}%`;
  return lengthIn(unit, value, growth) ?? pixels;
}
// null where the unit is pixels, or nothing says how many of them it has.
function lengthIn(unit, value, growth) {
  if (!unit || /^px$/i.test(unit) || !Number(value) || !Number.isFinite(growth)) return null;
  return `${Math.round(Number(value) * growth * 100) / 100}${unit}`;
}

// Where the page has a style for a size, that is changed, and an attribute that is there too;
// where it has neither, the object's attribute is used if there is such a one.
function writeSize(object, property, pixels, growth) {
  const rule = object.tagName === 'HR' && property === 'height';
  const attribute = rule ? 'size' : property;
  const styled = object.style.getPropertyValue(property);
  const hasAttribute = object.hasAttribute(attribute);
  const size = Math.max(0, Math.round(pixels));
  if (styled) putDeclaration(object, property, spelled(styled, `${size}px`, growth));
  if (hasAttribute || (!styled && withAttributes.has(object.tagName))) {
    // A rule's size counts its border in.
    const counted = rule ? size + 2 : size;
    object.setAttribute(attribute, spelled(object.getAttribute(attribute), `${counted}`, growth));
  } else if (!styled) {
    putDeclaration(object, property, `${size}px`);
  }
}

export function write(object, before, change) {
  const changed = properties(before, change);
  for (const [property, pixels] of Object.entries(changed)) {
    if (property === 'width' || property === 'height') {
      writeSize(object, property, pixels, change[property] / before[property]);
    } else {
      writePlace(object, property, pixels, before[property]);
    }
  }
}
function writePlace(object, side, pixels, before) {
  const old = object.style.getPropertyValue(side);
  const [, value, unit] = /^(-?[\d.]+)([a-z]+|%)$/i.exec(old) ?? [];
  putDeclaration(object, side,
    lengthIn(unit, value, pixels / before) ?? `${Math.round(pixels)}px`);
}

