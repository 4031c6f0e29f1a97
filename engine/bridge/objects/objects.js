// SPDX-License-Identifier: GPL-3.0-or-later
// @ts-check
// Objects: what is selected, sized and moved as a whole. Which one the pointer is on, how large it
// is and where, and how a new size and position are written, in the spelling that the page has. A
// *box* is an object outside the flow that text is typed in: a click selects it, a second one puts
// the caret into it; the person has *entered* it then.
import { putDeclaration } from '../formats/declarations.js';
import * as boxes from './boxes.js';
import * as glyphs from './glyphs.js';
import * as dom from '../page/dom.js';
import { openParagraph } from '../page/lines.js';
import * as selection from '../page/selection.js';

/** The selected object; null where text or nothing is selected. */
export const selected = () => selection.control(selection.range());

/**
 * True for an object that can be moved: one with a position of its own, outside the flow.
 * @param {AnyNode} node
 */
export const isMovable = (node) => dom.isElement(node) && node !== document.body &&
  /^(absolute|fixed)$/.test(getComputedStyle(node).position);
/**
 * True for a movable object that text is typed in.
 * @param {AnyNode} node
 */
export const isBox = (node) => isMovable(node) && !dom.isAtom(node);

const edge = 2;      // pixels within a box's border that still count as its border
const outerEdge = 4; // and around a table, whose border may have no width at all
// True where a mouse event is on an object's border.
/**
 * @param {Element} node
 * @param {Pointer} event
 */
function isAtEdge(node, { clientX: x, clientY: y }) {
  const { left, top, right, bottom } = boxes.boxOf(node);
  const distance = Math.min(x - left, right - x, y - top, bottom - y);
  const border = Math.max(node.clientLeft, node.clientTop) * boxes.zoomOf(node);
  return distance >= -outerEdge && distance <= edge + border;
}

// The box that the person has entered: clicks in it place the caret.
/** @type {Node | null} */
let entered = null;
/** @param {Node} node */
const isEntered = (node) => node === entered && node.contains(document.getSelection().anchorNode);

// True for a node in a cell or the caption of the table: a click there is not one on the table.
/**
 * @param {Element} node
 * @param {Element} table
 */
const isInCell = (node, table) => table.contains(node.closest('CAPTION, TD, TH'));

// The object among a node and the elements around it that a click selects; null where it places the
// caret.
/**
 * @param {AnyNode} node
 * @param {Pointer} pointer
 */
function clickedAmong(node, pointer) {
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
/**
 * The object that a click at a mouse event's position selects; null where it places the caret. An
 * object that shows nothing is found by its sign, a table also right outside its border.
 * @param {MouseEvent} event
 */
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
  const found = clickedAmong(target, event);
  if (found) return found;
  for (const [dx, dy] of [[outerEdge, 0], [-outerEdge, 0], [0, outerEdge], [0, -outerEdge]]) {
    const table = document.elementFromPoint(x + dx, y + dy)?.closest('TABLE');
    if (table && !table.contains(target) && isAtEdge(table, event)) return table;
  }
  return null;
}

/**
 * Enters a box: puts the caret where it was clicked, else at its start.
 * @param {Element} box
 * @param {Pointer} event
 */
export function enter(box, { clientX, clientY }) {
  const clicked = document.caretRangeFromPoint(clientX, clientY);
  const inside = clicked && box.contains(clicked.startContainer);
  entered = box;
  if (inside) selection.setCaret(clicked.startContainer, clicked.startOffset);
  else selection.setCaret(box, 0);
}
// True for a block that has paragraphs in it, not text right away.
/** @param {AnyNode} node */
const holdsParagraphs = (node) => dom.isBlock(node) && !dom.isParagraph(node) &&
  !/^(CAPTION|DD|LI|TD|TH)$/.test(node.tagName);

/**
 * Puts an empty line with the caret in the place of a block that is selected as a whole: a
 * paragraph where its parent holds such, else a break. False where nothing was done, since the
 * object or its parent is no block: it is replaced as text is.
 * @param {Element} object
 * @returns {boolean}
 */
export function replaceByLine(object) {
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

/**
 * What Enter does where an object is selected, as a function to call: it enters a box, and begins a
 * paragraph behind any other block. null where the object is replaced as text is.
 * @param {Element} object
 * @returns {(() => void) | null}
 */
export function enterActionOf(object) {
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

/**
 * What Escape does. With the caret in a box or a table that is selected; from a selected object the
 * caret goes behind it.
 * @param {any} object the selected one; null for none
 */
export function stepOut(object) {
  const { anchorNode } = document.getSelection();
  const box = object ??
    dom.ancestor(anchorNode, (node) => node.tagName === 'TABLE' || isBox(node));
  entered = null;
  if (object) selection.setCaret(object.parentNode, selection.indexOf(object) + 1);
  else if (box) selection.selectNode(box);
}

/** Notes that the box at the caret is entered: text was typed in it. */
export function noteTyped() {
  entered = dom.ancestor(document.getSelection().anchorNode, isBox);
}

/** @param {string} text */
const number = (text) => parseFloat(text) || 0;

/**
 * An object's measures, to be taken before a change. Lengths are pixels of the object; `scale` is
 * how many of the viewport's one of those is. `fromRight` and `fromBottom`: the page positions the
 * object by that side. `around...` is what padding and borders add to the size that the page
 * writes.
 * @param {any} object
 */
export function measure(object) {
  const style = getComputedStyle(object);
  const given = object.computedStyleMap();
  /** @param {string} property */
  const isAuto = (property) => String(given.get(property)) === 'auto';
  /** @param {...string} names */
  const sum = (...names) =>
    (style.boxSizing === 'border-box' ? 0
      : names.reduce((all, each) => all + number(style.getPropertyValue(each)), 0));
  const rect = boxes.boxOf(object);
  const scale = boxes.scaleOf(object);
  const sides = ['left', 'top', 'right', 'bottom']
    .map((side) => [side, number(style.getPropertyValue(side))]);
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

/**
 * The values of `width`, `height` and the sides that a change comes to, in pixels; those alone that
 * change.
 * @param {ReturnType<measure>} before
 * @param {Resizing} change
 * @returns {Record<string, number>}
 */
export function changedProperties(before, { dx = 0, dy = 0, width, height }) {
  /** @type {Record<string, number>} */
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

// A size in the unit of the old one, which has grown by the factor `growth`; else `pixels`, a text.
/**
 * @param {string} old
 * @param {string} pixels
 * @param {number} growth
 */
function spelledLike(old, pixels, growth) {
  const [, value, unit] = /^\s*(-?[\d.]+)([a-z]+|%)\s*$/i.exec(old) ?? [];
  if (unit === '%') return `${Math.max(1, Math.round(Number(value) * growth))}%`;
  return lengthIn(unit, value, growth) ?? pixels;
}
// A length in the unit it had; null where that is pixels, or the growth is not known.
/**
 * @param {string} unit
 * @param {string} value
 * @param {number} growth
 */
function lengthIn(unit, value, growth) {
  if (!unit || /^px$/i.test(unit) || !Number(value) || !Number.isFinite(growth)) return null;
  return `${Math.round(Number(value) * growth * 100) / 100}${unit}`;
}

// Writes a size to where the page has it: the style, the attribute, or both. Where it has neither,
// to the attribute, if the object's element has such a one, else to the style.
/**
 * @param {HTMLElement} object
 * @param {'width' | 'height'} property
 * @param {number} pixels
 * @param {number} growth the factor by which it has grown
 */
export function writeSize(object, property, pixels, growth) {
  const rule = object.tagName === 'HR' && property === 'height';
  const attribute = rule ? 'size' : property;
  const styled = object.style.getPropertyValue(property);
  const hasAttribute = object.hasAttribute(attribute);
  const size = Math.max(0, Math.round(pixels));
  if (styled) putDeclaration(object, property, spelledLike(styled, `${size}px`, growth));
  if (hasAttribute || (!styled && withAttributes.has(object.tagName))) {
    // A rule's size counts its border in.
    const counted = rule ? size + 2 : size;
    object.setAttribute(attribute,
      spelledLike(object.getAttribute(attribute), `${counted}`, growth));
  } else if (!styled) {
    putDeclaration(object, property, `${size}px`);
  }
}

/**
 * Writes a change of size and position to an object.
 * @param {any} object
 * @param {ReturnType<measure>} before
 * @param {Resizing} change
 */
export function writeChange(object, before, change) {
  const changed = changedProperties(before, change);
  for (const [property, pixels] of Object.entries(changed)) {
    if (property === 'width' || property === 'height') {
      writeSize(object, property, pixels, change[property] / before[property]);
    } else {
      writePlace(object, property, pixels, before[property]);
    }
  }
}
/**
 * @param {HTMLElement} object
 * @param {string} side
 * @param {number} pixels
 * @param {number} before
 */
function writePlace(object, side, pixels, before) {
  const old = object.style.getPropertyValue(side);
  const [, value, unit] = /^(-?[\d.]+)([a-z]+|%)$/i.exec(old) ?? [];
  putDeclaration(object, side,
    lengthIn(unit, value, pixels / before) ?? `${Math.round(pixels)}px`);
}

