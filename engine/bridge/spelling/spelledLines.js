// SPDX-License-Identifier: GPL-3.0-or-later
// @ts-check
// The page's lines as their spelling is judged: what is no language is masked, and each stretch has
// the language that the page says.
import { readLines } from '../find/pageText.js';
import { signsIn } from '../page/signs.js';

const masked = '\ufffc';
const noLanguage = 'code, pre, kbd, samp, listing, xmp, plaintext, [spellcheck="false" i]';

// Whether an element's text is in a language at all.
/** @param {Element} element */
const isJudged = (element) => !element.closest(noLanguage) &&
  element.closest('[translate]')?.getAttribute('translate').toLowerCase() !== 'no';

// The language of an element's text; '' where the page does not say.
/** @param {Element} element */
function languageOf(element) {
  const said = element.closest('[lang]')?.getAttribute('lang');
  if (said !== undefined && said !== null) return said.trim();
  /** @type {HTMLMetaElement | null} */
  const meta = document.querySelector('meta[http-equiv="content-language" i]');
  return meta?.content.split(',')[0].trim() ?? '';
}

/** @typedef {Map<Element, { isJudged: boolean, language: string }>} Known */

/**
 * @param {Text} node
 * @param {Known} known
 */
function looksOf({ parentElement }, known) {
  let looks = known.get(parentElement);
  if (!looks) {
    looks = { isJudged: isJudged(parentElement), language: languageOf(parentElement) };
    known.set(parentElement, looks);
  }
  return looks;
}

/**
 * @param {TextLine} line
 * @param {Known} known
 * @returns {SpelledLine}
 */
function spelled(line, known) {
  let text = '';
  /** @type {[start: number, language: string][]} */
  const runs = [];
  line.pieces.forEach(({ node, at }, index) => {
    const end = line.pieces[index + 1]?.at ?? line.text.length;
    const looks = looksOf(node, known);
    text += looks.isJudged ? line.text.slice(at, end) : masked.repeat(end - at);
    if (looks.language !== (runs.at(-1)?.[1] ?? '')) runs.push([at, looks.language]);
  });
  for (const { start, end } of signsIn(text)) {
    text = text.slice(0, start) + masked.repeat(end - start) + text.slice(end);
  }
  return { line, text, runs };
}

/**
 * The page's lines, or those in sight.
 * @param {{ first: AnyNode, last: AnyNode }} [sight] as readLines takes it
 */
export function spelledLines(sight) {
  /** @type {Known} */
  const known = new Map();
  return readLines(sight).map((line) => spelled(line, known));
}
