// SPDX-License-Identifier: GPL-3.0-or-later
// @ts-check
// The elements that give text its format: one that is there and is changed, or a new one.
import { declarations, isOf, putDeclaration } from './declarations.js';
import * as dom from '../page/dom.js';

// The first element that fits, of those that hold all of a run each, from outside inwards; null for
// none.
/**
 * @param {AnyNode[]} run
 * @param {Test} fits
 */
function within(run, fits) {
  let only = run.length === 1 ? run[0] : null;
  while (dom.isInline(only) && !dom.isAtom(only) && !(only.tagName === 'A') && !fits(only)) {
    only = only.childNodes.length === 1 ? only.firstChild : null;
  }
  return dom.isElement(only) && fits(only) ? only : null;
}

// Joins a FONT with the FONT that is all it holds; answers the one that is left.
/**
 * @param {AnyNode} font
 * @returns {AnyNode}
 */
function joinFonts(font) {
  const [inner] = font.childNodes;
  const isBare = font.childNodes.length === 1 && inner.tagName === 'FONT' &&
    [...inner.attributes].every(({ name }) => /^(color|face|size)$/.test(name));
  if (!isBare) return font;
  for (const { name, value } of inner.attributes) font.setAttribute(name, value);
  dom.unwrap(inner);
  return joinFonts(font);
}

// The element to put around a run. Where the run is in one of that tag already, which the page's
// rules have taken the look off, another one would not help.
/**
 * @param {Format} format
 * @param {FormatValue} value
 * @param {AnyNode[]} run
 */
function wrapperFor(format, value, run) {
  const element = format.write(value);
  const inLike = format.inLike && element.tagName !== 'SPAN' &&
    run[0].parentNode.closest(element.tagName);
  return inLike ? format.inLike() : element;
}

// Gives an element the one declaration of a new span.
/**
 * @param {Element} element
 * @param {Element} span
 */
function putStyle(element, span) {
  const [, property, value] = /^(.*?): (.*)$/.exec(span.getAttribute('style'));
  putDeclaration(element, property, value);
}
/**
 * Changes a value where a span says it; false where that does not.
 * @param {Format} format
 * @param {HTMLElement} carrier
 * @param {FormatValue} value
 */
export function changeSpan(format, carrier, value) {
  const isSpan = typeof value === 'string' && carrier.tagName === 'SPAN' &&
    declarations(carrier).some(isOf(format.property));
  const wrapper = isSpan && format.write(value);
  if (!wrapper || wrapper.tagName !== 'SPAN') return false;
  putStyle(carrier, wrapper);
  return true;
}

/**
 * Gives a run the format, by an element that is there or a new one; answers that, null for none.
 * @param {Format} format
 * @param {AnyNode[]} run
 * @param {FormatValue} value
 */
export function putOnRun(format, run, value) {
  const wrapper = wrapperFor(format, value, run);
  if (!wrapper) return null;
  // A FONT that is there is used in any dialect.
  const font = format.attribute && within(run, ({ tagName }) => tagName === 'FONT');
  if (font) {
    font.setAttribute(format.attribute, String(format.inAttribute(value)));
    return joinFonts(font);
  }
  const span = wrapper.tagName === 'SPAN' && within(run, ({ tagName }) => tagName === 'SPAN');
  if (span) {
    putStyle(span, wrapper);
    return span;
  }
  dom.wrap(run, wrapper);
  // What went along without text may have been in its like.
  if (format.tags.includes(wrapper.tagName)) {
    const likes = [...wrapper.querySelectorAll(format.tags.join())];
    likes.filter((like) => !like.attributes.length).forEach(dom.unwrap);
  }
  return wrapper;
}
