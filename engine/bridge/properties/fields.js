// SPDX-License-Identifier: GPL-3.0-or-later
// @ts-check
// Kinds of fields of the properties dialogs: how each is read from an element, and how a new value
// is written where the page has it, else in the page's dialect. A value is a text; the empty one
// takes what says it off.
import { declarations, isOf, putDeclaration, takeDeclaration } from '../formats/declarations.js';
import { setAttributes } from '../formats/links.js';
import * as dom from '../page/dom.js';

/**
 * `write` answers the element that then stands for the one given, where that is another one.
 * @typedef {{ read(element: AnyNode): string,
 *   write?(element: AnyNode, value: string): AnyNode | void }} Field
 */

/**
 * An attribute that has no style in its place.
 * @param {string} name
 * @returns {Field}
 */
export const attribute = (name) => ({
  read: (element) => element.getAttribute(name) ?? '',
  write: (element, value) => setAttributes(element, [[name, value]]),
});

/**
 * What an inline style says of a property, as the page writes it.
 * @param {Element} element
 * @param {string} property
 */
export const said = (element, property) => {
  const found = declarations(element).findLast(isOf(property));
  return found ? found.slice(found.indexOf(':') + 1).replace(/!important/i, '').trim() : '';
};

/**
 * Gives an element a declaration, or takes that off.
 * @param {Element} element
 * @param {string} property
 * @param {string} value empty to take it off
 */
export function put(element, property, value) {
  if (value) putDeclaration(element, property, value);
  else if (said(element, property)) takeDeclaration(element, property);
}

/**
 * What an attribute says in old pages and styles in others. It is changed where the page has it.
 * @param {string} name
 * @param {(element: AnyNode) => string} readStyle
 * @param {(element: AnyNode, value: string) => void} writeStyle
 * @returns {Field}
 */
export const eitherWay = (name, readStyle, writeStyle) => ({
  read: (element) => readStyle(element) || (element.getAttribute(name) ?? ''),
  write(element, value) {
    const isStyled = readStyle(element) !== '';
    const isSaid = element.hasAttribute(name);
    if (isStyled || (!isSaid && dom.writesStyles())) writeStyle(element, value);
    if (isSaid || (!isStyled && !dom.writesStyles())) setAttributes(element, [[name, value]]);
  },
});

/**
 * The same where the styles are one inline declaration.
 * @param {string} name
 * @param {string} property
 * @param {{ inStyle?(value: string): string, fromStyle?(value: string): string }} [spelling]
 */
export const look = (name, property, spelling = {}) => eitherWay(name,
  (element) => {
    const styled = said(element, property);
    return styled && (spelling.fromStyle?.(styled) ?? styled);
  },
  (element, value) => put(element, property, value && (spelling.inStyle?.(value) ?? value)));

export const inPixels = (/** @type {string} */ value) =>
  (/^\d+(\.\d+)?$/.test(value) ? `${value}px` : value);
export const withoutPixels = (/** @type {string} */ value) =>
  value.replace(/^(\d+(\.\d+)?)px$/i, '$1');

/**
 * A width or height: a number of pixels, or a length with its unit.
 * @param {string} name
 */
export const length = (name) =>
  look(name, name, { inStyle: inPixels, fromStyle: withoutPixels });

/** @param {string} value the style of a line around */
export const widthOfLine = (value) => withoutPixels(value.replace(/ solid$/i, ''));
/** A picture's border: the width of a line around it. */
export const border = look('border', 'border', {
  inStyle: (value) => (value === '0' ? value : `${inPixels(value)} solid`),
  fromStyle: widthOfLine,
});

/**
 * The room beside a picture, the same on two sides.
 * @param {string} name
 * @param {string[]} sides the properties
 * @returns {Field}
 */
export const spacing = (name, sides) => ({
  read(image) {
    const styled = image.style.getPropertyValue(sides[0]);
    return styled ? withoutPixels(styled) : image.getAttribute(name) ?? '';
  },
  write(image, value) {
    const isStyled = sides.some((side) => image.style.getPropertyValue(side));
    const inAttribute = image.hasAttribute(name) || (!isStyled && !dom.writesStyles());
    if (inAttribute) setAttributes(image, [[name, value]]);
    if (inAttribute && !isStyled) return;
    for (const side of sides) {
      if (value) putDeclaration(image, side, inPixels(value));
      else takeDeclaration(image, side);
    }
  },
});

// Where a picture stands in its line or beside the text: the attribute's words and the styles that
// mean the same.
/** @type {Record<string, [property: string, value: string]>} */
const placements = {
  left: ['float', 'left'], right: ['float', 'right'], top: ['vertical-align', 'top'],
  texttop: ['vertical-align', 'text-top'], middle: ['vertical-align', 'middle'],
  bottom: ['vertical-align', 'baseline'], absbottom: ['vertical-align', 'bottom'],
};
/** @type {Field} */
export const places = {
  read(image) {
    const styled = Object.keys(placements).find((word) => {
      const [property, value] = placements[word];
      return said(image, property).toLowerCase() === value;
    });
    return styled ?? (image.getAttribute('align') ?? '').toLowerCase();
  },
  write(image, value) {
    const properties = ['float', 'vertical-align'].filter((property) => said(image, property));
    const inAttribute = image.hasAttribute('align') ||
      (!properties.length && !dom.writesStyles());
    for (const property of properties) {
      if (property !== placements[value]?.[0]) takeDeclaration(image, property);
    }
    if (inAttribute) setAttributes(image, [['align', value]]);
    if (placements[value] && !(inAttribute && !properties.length)) {
      putDeclaration(image, ...placements[value]);
    }
  },
};

/**
 * A style that no attribute stands for.
 * @param {string} property
 * @returns {Field}
 */
export const style = (property) => ({
  read: (element) => said(element, property),
  write: (element, value) => put(element, property, value),
});

/**
 * What is only told.
 * @param {(element: AnyNode) => unknown} read
 * @returns {Field}
 */
export const told = (read) => ({ read: (element) => String(read(element)) });
