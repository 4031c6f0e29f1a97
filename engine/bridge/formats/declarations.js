// SPDX-License-Identifier: GPL-3.0-or-later
// @ts-check
// Inline styles, changed as texts: CSSOM would write all of their declarations anew.
import * as history from '../page/history.js';

/**
 * @param {string} style
 * @returns {string[]}
 */
const declarationsIn = (style) => style.match(/(?:[^;"'(]|"[^"]*"|'[^']*'|\([^)]*\))+/g) ?? [];
/**
 * The declarations of an element's style as the page writes them, with the white space around them.
 * @param {Element} element
 */
export const declarations = (element) => declarationsIn(element.getAttribute('style') ?? '');
/**
 * A test of a declaration: whether it is one of this property.
 * @param {string} property
 * @returns {(declaration: string) => boolean}
 */
export const isOf = (property) => (declaration) =>
  declaration.slice(0, declaration.indexOf(':')).trim().toLowerCase() === property;

// A style's text for declarations of it: what stood before the first one and behind the last one
// stays, its last semicolon too.
/**
 * @param {string} style
 * @param {string[]} all
 */
function joined(style, all) {
  const left = all.filter((each) => each.trim());
  const [lead] = /^\s*/.exec(style);
  const [end = ''] = /(?:;|(?<!\s)\s)\s*$/.exec(style) ?? [];
  return left.length ? lead + left.join(';').trim() + end : '';
}
/**
 * @param {Element} element
 * @param {string[]} all
 * @param {string} [style] whose declarations they are
 */
function write(element, all, style = element.getAttribute('style') ?? '') {
  const text = joined(style, all);
  if (text) {
    element.setAttribute('style', text);
    return;
  }
  history.attributesOf(element);
  element.removeAttribute('style');
}

// A declaration with another value, written as it is.
/**
 * @param {string} declaration
 * @param {string} value
 */
function withValue(declaration, value) {
  const [, head, important = '', end] =
    /^([^:]*:\s*)[^]*?(\s*!\s*important)?(\s*)$/i.exec(declaration);
  return head + value + important + end;
}
// A new declaration, written as the last one of the style.
/**
 * @param {string[]} all
 * @param {string} property
 * @param {string} value
 */
function writtenLike(all, property, value) {
  if (!all.length) return `${property}: ${value}`;
  const last = all.at(-1);
  const [, name, colon] = /^\s*([^:]*)(:?\s*)/.exec(last);
  const lead = all.length > 1 ? /^\s*/.exec(last)[0] : colon.slice(1);
  const isUpper = /[A-Z]/.test(name) && !/[a-z]/.test(name);
  return lead + (isUpper ? property.toUpperCase() : property) + (colon || ': ') + value;
}

// What was taken out of an element's style, so that it gets a new value in its place: the style
// before that, the properties that have gone since, and the style that is left.
/** @type {WeakMap<Element, { before: string, gone: Set<string>, left: string | null }>} */
const taken = new WeakMap();
/** @param {Element} element */
const takenFrom = (element) => {
  const found = taken.get(element);
  return found?.left === element.getAttribute('style') ? found : null;
};

// The words of these properties in the shorthand `font`, which stands for less without them.
/** @type {Record<string, RegExp>} */
const fontWords = {
  'font-weight': /(:|\s)(bold|bolder|lighter|[1-9]00)(?=\s)/i,
  'font-style': /(:|\s)(italic|oblique)(?=\s)/i,
};
// A declaration without one of several properties that it sets, as the engine spells what is left;
// nothing where that says nothing.
/**
 * @param {string} declaration
 * @param {string} property
 */
function withoutPart(declaration, property) {
  const scratch = document.createElement('span');
  scratch.setAttribute('style', declaration);
  if (!scratch.style.getPropertyValue(property)) return declaration;
  scratch.style.removeProperty(property);
  if ([...scratch.style].every((name) => scratch.style.getPropertyValue(name) === 'initial')) {
    return '';
  }
  const [space] = /^\s*/.exec(declaration);
  return space + scratch.style.cssText.replace(/;$/, '');
}
/**
 * @param {Element} element
 * @param {string} property
 */
function takeFromShorthand(element, property) {
  const all = declarations(element);
  const word = fontWords[property];
  const index = word ? all.findIndex(isOf('font')) : -1;
  if (index < 0) {
    write(element, all.map((each) => withoutPart(each, property)));
  } else if (word.test(all[index])) {
    all[index] = all[index].replace(word, '$1').replace(/:\s+/, ': ').replace(/ {2,}/g, ' ');
    write(element, all);
  }
}

/**
 * Takes a property out of an element's style, out of a shorthand too; without any left the
 * attribute goes.
 * @param {any} element
 * @param {string} property
 */
export function takeDeclaration(element, property) {
  const all = declarations(element);
  const left = all.filter((declaration) => !isOf(property)(declaration));
  if (left.length === all.length) {
    takeFromShorthand(element, property);
    return;
  }
  const { before, gone } =
    takenFrom(element) ?? { before: element.getAttribute('style'), gone: new Set() };
  write(element, left);
  gone.add(property);
  taken.set(element, { before, gone, left: element.getAttribute('style') });
}

/**
 * Sets one property in an element's style: where it stands or stood before it was taken off, else
 * at the end, in the style's own way of writing.
 * @param {Element} element
 * @param {string} property
 * @param {string} value
 */
export function putDeclaration(element, property, value) {
  const found = takenFrom(element);
  const style = (found?.gone.has(property) ? found.before : element.getAttribute('style')) ?? '';
  const all = declarationsIn(style);
  const last = all.findLastIndex(isOf(property));
  if (last >= 0) all[last] = withValue(all[last], value);
  else all.push(writtenLike(all.filter((each) => each.trim()), property, value));
  if (style !== found?.before) {
    write(element, all);
    return;
  }
  found.gone.delete(property);
  const isLeft = (/** @type {string} */ each) => ![...found.gone].some((name) => isOf(name)(each));
  write(element, all.filter(isLeft), style);
  taken.set(element, { before: joined(style, all), gone: found.gone,
    left: element.getAttribute('style') });
}
