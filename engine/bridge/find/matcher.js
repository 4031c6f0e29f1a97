// SPDX-License-Identifier: GPL-3.0-or-later
// @ts-check
// What is searched for, as a regular expression, and where it is in a text.

/** @param {string} text */
const escaped = (text) => text.replace(/[\\^$.*+?()[\]{}|/]/g, '\\$&');
// Blanks of the words stand for any white space, no-break spaces too.
/** @param {string} words */
const plain = (words) => words.split(/\s+/).map(escaped).join('\\s+');

/** @param {string} text */
const isAscii = (text) => /^[\x00-\x7f]*$/.test(text);
/** @param {string} text */
const unaccented = (text) => text.normalize('NFD').replace(/\p{M}+/gu, '');

// A text without accents, and for each of its characters the one of the text that it comes from;
// null for characters that are the same in both.
/**
 * @param {string} text
 * @returns {{ text: string, origins: number[] | null }}
 */
function fold(text) {
  if (isAscii(text)) return { text, origins: null };
  let folded = '';
  const origins = [];
  let at = 0;
  for (const character of text) {
    const bare = isAscii(character) ? character : unaccented(character);
    for (let each = 0; each < bare.length; each++) origins.push(at);
    folded += bare;
    at += character.length;
  }
  origins.push(text.length);
  return { text: folded, origins };
}

/** @type {Intl.Segmenter | null} */
let segmenter = null;
/** @param {string} character */
const isLetter = (character) => /[A-Za-z0-9_]/.test(character);
// Tells of a text whether a word begins or ends at an index.
/** @param {string} text */
function wordEdgesOf(text) {
  /** @type {Intl.Segments | null} */
  let segments = null;
  /** @param {number} index */
  return (index) => {
    if (index <= 0 || index >= text.length) return true;
    if (isLetter(text[index - 1]) && isLetter(text[index])) return false;
    segmenter ??= new Intl.Segmenter(undefined, { granularity: 'word' });
    segments ??= segmenter.segment(text);
    return segments.containing(index).index === index;
  };
}

/**
 * @param {string} source
 * @param {string} flags
 * @returns {RegExp | null}
 */
function compile(source, flags) {
  try {
    return new RegExp(source, flags);
  } catch {
    return null;
  }
}

/**
 * The expression for a query; null where its words are none.
 * @param {SearchQuery} query
 */
export function expressionOf({ words, matchCase, ignoreAccents, expression }) {
  const wanted = ignoreAccents ? unaccented(words) : words;
  const flags = matchCase ? 'gm' : 'gmi';
  const source = expression ? wanted : plain(wanted);
  // Without u as well: it refuses escapes that people are used to.
  return compile(source, `${flags}u`) ?? compile(source, flags);
}

/**
 * The matches in a text, empty ones left out.
 * @param {string} text
 * @param {RegExp} regex as expressionOf answers it
 * @param {SearchQuery} query
 * @returns {TextMatch[]}
 */
export function matchesIn(text, regex, { wholeWords, ignoreAccents }) {
  const folded = ignoreAccents ? fold(text) : { text, origins: null };
  const isEdge = wholeWords ? wordEdgesOf(text) : () => true;
  /** @param {number} index */
  const origin = (index) => folded.origins?.[index] ?? index;
  const found = [];
  regex.lastIndex = 0;
  for (const match of folded.text.matchAll(regex)) {
    const [start, end] = [origin(match.index), origin(match.index + match[0].length)];
    if (match[0] && isEdge(start) && isEdge(end)) found.push({ start, end, groups: match });
  }
  return found;
}

/**
 * The text to put in a match's place: for an expression with its groups ($1 to $9), all of it ($&)
 * and "$" ($$) filled in.
 * @param {TextMatch} match
 * @param {string} replacement
 * @param {SearchQuery} query
 */
export const replacementFor = ({ groups }, replacement, { expression }) => (expression
  ? replacement.replace(/\$([$&1-9])/g, (all, name) => {
    if (name === '$') return '$';
    return name === '&' ? groups[0] : groups[Number(name)] ?? '';
  })
  : replacement);
