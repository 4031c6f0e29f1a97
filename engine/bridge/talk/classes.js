// SPDX-License-Identifier: GPL-3.0-or-later
// @ts-check
// The classes that the page's style sheets define for an element.
import { allRules } from '../page/sheets.js';

// What an element is in at times, or what is drawn at it.
const passing =
  /^(::|:(active|after|before|first-l(etter|ine)|focus|hover|link|target|visited))/;

// One part of a selector: attribute, pseudo-class or -element, class, comma, combinator; else a
// stretch of a name.
const parts = new RegExp([
  String.raw`\[(?:"(?:[^"\\]|\\.)*"|[^\]"])*\]`,
  String.raw`::?[\w-]+(?:\((?:[^()]|\((?:[^()]|\([^()]*\))*\))*\))?`,
  String.raw`\.(?<name>(?:\\[0-9a-f]{1,6}\s?|\\.|[\w\u0080-\uffff-])+)`,
  String.raw`(?<comma>\s*,\s*)`,
  String.raw`(?<combinator>\s*[>+~]\s*|\s+)`,
  String.raw`(?:\\.|[^.:[\s,>+~])+`,
].join('|'), 'giu');

/** @param {string} name as a selector has it */
const unescaped = (name) => name.replace(/\\(?:([0-9a-f]{1,6})\s?|(.))/gi,
  (whole, code, sign) => (code ? String.fromCodePoint(parseInt(code, 16)) : sign));

/**
 * What each selector of a list says of the element that it is about: the classes that it asks for,
 * and the selector of the elements that only lack these. What an element is in at times
 * does not count.
 * @param {string} list
 * @returns {{ names: string[], others: string }[]}
 */
function read(list) {
  /** @type {{ names: string[], others: string }[]} */
  const found = [];
  /** @type {string[]} */
  let names = [];
  let around = '';
  let own = '';
  let classes = '';
  const end = () => {
    found.push({ names, others: around + (own || '*') });
    [names, around, own, classes] = [[], '', '', ''];
  };
  for (const { 0: part, groups } of list.matchAll(parts)) {
    if (groups.comma) end();
    else if (groups.combinator) {
      around += (own + classes || '*') + part;
      [names, own, classes] = [[], '', ''];
    } else if (groups.name) {
      names.push(unescaped(groups.name));
      classes += part;
    } else if (!passing.test(part)) own += part;
  }
  end();
  return found;
}

/**
 * The classes that the style sheets define for an element of this kind in this place, sorted.
 * @param {Element} element
 */
export function classesFor(element) {
  const lists = [...allRules()].map(({ selectorText }) => selectorText ?? '');
  /** @type {Set<string>} */
  const found = new Set();
  for (const { names, others } of lists.filter((list) => list.includes('.')).flatMap(read)) {
    const isNew = names.some((name) => !found.has(name));
    if (isNew && element.matches(others)) names.forEach((name) => found.add(name));
  }
  return [...found].sort();
}
