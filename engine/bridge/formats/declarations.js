// SPDX-License-Identifier: GPL-3.0-or-later
// @ts-check
// Inline styles, changed as texts: CSSOM would write all of their declarations anew.
import * as history from '../page/history.js';

/**
 * The declarations of an element's style as the page writes them, with the white space around them.
 * @param {Element} element
 * @returns {string[]}
 */
export const declarations = (element) =>
  (element.getAttribute('style') ?? '').match(/(?:[^;"'(]|"[^"]*"|'[^']*'|\([^)]*\))+/g) ?? [];
/**
 * A test of a declaration: whether it is one of this property.
 * @param {string} property
 * @returns {(declaration: string) => boolean}
 */
export const isOf = (property) => (declaration) =>
  declaration.slice(0, declaration.indexOf(':')).trim().toLowerCase() === property;


// Writes the declarations that are left, and the last semicolon where the style has it.
/**
 * @param {Element} element
 * @param {string[]} all
 */
function write(element, all) {
  const end = /;\s*$/.test(element.getAttribute('style') ?? '') ? ';' : '';
  const left = all.filter((each) => each.trim());
  if (left.length) {
    element.setAttribute('style', left.join(';').trim() + end);
    return;
  }
  history.attributesOf(element);
  element.removeAttribute('style');
}

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
  if (left.length === all.length) takeFromShorthand(element, property);
  else write(element, left);
}

/**
 * Sets one property in an element's style, where it stands or else at the end.
 * @param {Element} element
 * @param {string} property
 * @param {string} value
 */
export function putDeclaration(element, property, value) {
  const all = declarations(element);
  const last = all.findLastIndex(isOf(property));
  const written = `${property}: ${value}`;
  if (last >= 0) all[last] = /^\s*/.exec(all[last])[0] + written;
  else all.push((all.length ? ' ' : '') + written);
  write(element, all);
}
