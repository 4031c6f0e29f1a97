// SPDX-License-Identifier: GPL-3.0-or-later
// @ts-check
// Markdown text as markup: headings, paragraphs, lists, quotes, code, tables, rules, emphasis,
// links and pictures. Markup in it stays text, so that nothing unseen comes in.
import { isSafeAddress } from './addresses.js';
import { tableOf, withLinks } from './plainText.js';
import { setSide } from './looks.js';
import * as dom from '../page/dom.js';

/** @typedef {(Node | string)[]} Nodes */
/** @typedef {Map<string, { href: string, tip: string }>} References */

/**
 * @param {string} tag
 * @param {Nodes} nodes
 */
function elementAround(tag, nodes) {
  const element = dom.create(tag);
  element.append(...nodes);
  return element;
}

// The character that a reference stands for, or its own text.
/** @param {string} reference */
function characterOf(reference) {
  const template = document.createElement('template');
  template.innerHTML = reference;
  return template.content.textContent;
}

/**
 * @param {string} href
 * @param {string} tip
 * @param {Nodes} content
 * @returns {Nodes}
 */
function linkTo(href, tip, content) {
  if (!isSafeAddress('href', href)) return content;
  const link = dom.create('A', { href, ...(tip ? { title: tip } : {}) });
  link.append(...content);
  return [link];
}
/**
 * @param {string} src
 * @param {string} tip
 * @param {string} alt
 * @returns {Nodes}
 */
const pictureAt = (src, tip, alt) => (isSafeAddress('src', src)
  ? [dom.create('IMG', { src, alt, ...(tip ? { title: tip } : {}) })] : [alt]);

const title = String.raw`(?:\s+["'(]([^"')]*)["')])?`;
const target = String.raw`\(\s*<?([^\s<>()]*(?:\([^\s()]*\)[^\s<>()]*)*)>?${title}\s*\)`;
const label = String.raw`\[((?:\\.|\x60[^\x60]*\x60|!\[[^\]]*\]\([^)]*\)|[^\[\]\\])*)\]`;
/**
 * What may begin at a place in a line, in the order in which it is tried.
 * @type {[form: RegExp, write: (found: string[], known: References) => Nodes | null][]}
 */
const spans = [
  [/\\([!-/:-@[-`{-~])/y, ([, sign]) => [sign]],
  [/(?: {2,}|\\)\n/y, () => [dom.create('BR')]],
  [/(`+)([^`]|[^`][^]*?[^`])\1(?!`)/y,
    ([, , code]) => [elementAround('CODE', [code.replace(/\n/g, ' ').replace(/^ (.*) $/, '$1')])]],
  [/<((?:https?|ftp|mailto):[^\s<>]+)>/yi, ([, href]) => linkTo(href, '', [href])],
  [/<([\w.+-]+@[\w-]+(?:\.[\w-]+)+)>/y, ([, mail]) => linkTo(`mailto:${mail}`, '', [mail])],
  [new RegExp(`!${label}${target}`, 'y'), ([, alt, src, tip]) => pictureAt(src, tip, alt)],
  [new RegExp(`${label}${target}`, 'y'),
    ([, text, href, tip], known) => linkTo(href, tip, inline(text, known))],
  [new RegExp(`${label}(?:\\[([^\\]]*)\\])?`, 'y'), ([, text, name], known) => {
    const found = known.get((name || text).toLowerCase());
    return found ? linkTo(found.href, found.tip, inline(text, known)) : null;
  }],
  [/(\*\*|__)(?=\S)([^]*?[^\s\\])\1(?![*_])/y,
    ([, , text], known) => [elementAround('STRONG', inline(text, known))]],
  [/\*(?=[^\s*])([^]*?[^\s*\\])\*(?!\*)/y,
    ([, text], known) => [elementAround('EM', inline(text, known))]],
  [/(?<!\w)_(?=[^\s_])([^]*?[^\s_\\])_(?!\w)/y,
    ([, text], known) => [elementAround('EM', inline(text, known))]],
  [/~~(?=\S)([^]*?\S)~~/y, ([, text], known) => [elementAround('S', inline(text, known))]],
  [/&(?:#\d+|#x[\da-f]+|\w+);/yi, ([reference]) => [characterOf(reference)]],
  [/\n/y, () => [' ']],
];
/**
 * @param {string} text
 * @param {References} known
 * @returns {Nodes}
 */
function inline(text, known) {
  /** @type {Nodes} */
  const nodes = [];
  let plain = '';
  for (let at = 0; at < text.length;) {
    const found = spanAt(text, at, known);
    if (!found) {
      plain += text[at];
      at += 1;
      continue;
    }
    nodes.push(...withLinks(plain), ...found.nodes);
    plain = '';
    at += found.length;
  }
  return [...nodes, ...withLinks(plain)];
}
/**
 * @param {string} text
 * @param {number} at
 * @param {References} known
 */
function spanAt(text, at, known) {
  if (!/[\\ `<![*_~&\n]/.test(text[at])) return null;
  for (const [form, write] of spans) {
    form.lastIndex = at;
    const found = form.exec(text);
    const nodes = found && write(found, known);
    if (nodes) return { nodes, length: found[0].length };
  }
  return null;
}

const heading = /^ {0,3}(#{1,6})(?:[ \t]+(.*?))?(?:[ \t]+#+)?[ \t]*$/;
const fence = /^ {0,3}(`{3,}|~{3,})[^`]*$/;
const rule = /^ {0,3}([-*_])(?:[ \t]*\1){2,}[ \t]*$/;
const quote = /^ {0,3}> ?/;
const item = /^( {0,3})([-*+]|(\d{1,9})[.)])( +|\t|$)/;
const divider = /^ {0,3}\|?[ \t]*:?-+:?[ \t]*(?:\|[ \t]*:?-+:?[ \t]*)*\|?[ \t]*$/;
const reference = /^ {0,3}\[([^\]]+)\]:[ \t]*<?([^\s<>]+)>?(?:[ \t]+["'(](.*)["')])?[ \t]*$/;
/** @param {string} line */
const isEmpty = (line) => line.trim() === '';
/** @param {string} line */
const beginsBlock = (line) => isEmpty(line) ||
  [heading, fence, rule, quote].some((form) => form.test(line)) || /^ {0,3}[-*+] +\S/.test(line) ||
  /^ {0,3}1[.)] +\S/.test(line);

/**
 * What begins at a line, and how many lines that takes; null where nothing of its kind does.
 * @typedef {{ nodes: Nodes, count: number } | null} Block
 * @typedef {(lines: string[], at: number, known: References) => Block} Reader
 */
/** @type {Reader} */
function readFence(lines, at) {
  const [, sign] = fence.exec(lines[at]) ?? [];
  if (!sign) return null;
  const closing = new RegExp(`^ {0,3}${sign[0]}{${sign.length},}[ \\t]*$`);
  let end = at + 1;
  while (end < lines.length && !closing.test(lines[end])) end++;
  const code = elementAround('CODE', [lines.slice(at + 1, end).join('\n')]);
  return { nodes: [elementAround('PRE', [code])], count: end + 1 - at };
}
/** @type {Reader} */
function readHeading(lines, at, known) {
  const [, signs, text = ''] = heading.exec(lines[at]) ?? [];
  return signs
    ? { nodes: [elementAround(`H${signs.length}`, inline(text, known))], count: 1 } : null;
}
/** @type {Reader} */
const readRule = (lines, at) => (rule.test(lines[at])
  ? { nodes: [dom.create('HR')], count: 1 } : null);
/** @type {Reader} */
function readQuote(lines, at, known) {
  let end = at;
  while (end < lines.length && (quote.test(lines[end]) || (end > at && !beginsBlock(lines[end])))) {
    end++;
  }
  const inner = lines.slice(at, end).map((line) => line.replace(quote, ''));
  return end === at ? null
    : { nodes: [elementAround('BLOCKQUOTE', blocksOf(inner, known))], count: end - at };
}
/** @type {Reader} */
function readCode(lines, at) {
  let end = at;
  while (end < lines.length && (/^(?: {4}|\t)/.test(lines[end]) || isEmpty(lines[end]))) end++;
  while (end > at && isEmpty(lines[end - 1])) end--;
  const code = lines.slice(at, end).map((line) => line.replace(/^(?: {4}|\t)/, '')).join('\n');
  return end === at ? null
    : { nodes: [elementAround('PRE', [elementAround('CODE', [code])])], count: end - at };
}

// The lines of an item, less its indentation.
/**
 * @param {string[]} lines
 * @param {number} at
 */
function itemLines(lines, at) {
  const [sign] = item.exec(lines[at]);
  const width = sign.endsWith('\t') ? sign.length + 1
    : Math.min(sign.length, sign.trimEnd().length + 4);
  const inner = [lines[at].slice(sign.length)];
  let end = at + 1;
  for (; end < lines.length; end++) {
    const line = lines[end].replace(/^\t/, '    ');
    const isWithin = /^ */.exec(line)[0].length >= Math.min(width, 4);
    const goesOn = !isEmpty(lines[end - 1]) && !beginsBlock(line) && !item.test(line);
    if (!isEmpty(line) && !isWithin && !goesOn) break;
    inner.push(line.slice(Math.min(width, /^ */.exec(line)[0].length)));
  }
  while (isEmpty(lines[end - 1]) && end > at + 1) {
    end--;
    inner.pop();
  }
  return { inner, end };
}
/** @type {Reader} */
function readList(lines, at, known) {
  const first = item.exec(lines[at]);
  if (!first || rule.test(lines[at])) return null;
  const isOrdered = first[3] !== undefined;
  const start = Number(first[3] ?? 1);
  const list = dom.create(isOrdered ? 'OL' : 'UL', start > 1 ? { start } : {});
  const all = [];
  let end = at;
  let isLoose = false;
  for (let next = at; next < lines.length;) {
    const found = item.exec(lines[next]);
    if (!found || (found[3] !== undefined) !== isOrdered || rule.test(lines[next])) break;
    isLoose ||= next > at && isEmpty(lines[next - 1]);
    const { inner, end: last } = itemLines(lines, next);
    isLoose ||= inner.some((line, index) => isEmpty(line) && index < inner.length - 1 &&
      !item.test(inner[index + 1]));
    all.push(inner);
    end = last;
    next = last;
    while (next < lines.length && isEmpty(lines[next])) next++;
  }
  for (const inner of all) {
    const content = blocksOf(inner, known).flatMap((node) =>
      (!isLoose && dom.isElement(node) && node.tagName === 'P' ? [...node.childNodes] : [node]));
    list.append(elementAround('LI', content));
  }
  return { nodes: [list], count: end - at };
}

/** @param {string} line */
const cellsOf = (line) => line.trim().replace(/^\||\|$/g, '')
  .match(/(?:\\.|`[^`]*`|[^|\\`]|`)*(?:\||$)/g).map((cell) => cell.replace(/\|$/, ''))
  .slice(0, -1).map((cell) => cell.trim().replace(/\\\|/g, '|'));
/** @type {Reader} */
function readTable(lines, at, known) {
  if (!lines[at].includes('|') || !divider.test(lines[at + 1] ?? '')) return null;
  let end = at + 2;
  while (end < lines.length && !isEmpty(lines[end]) && lines[end].includes('|')) end++;
  const head = cellsOf(lines[at]);
  const rows = [head, ...lines.slice(at + 2, end).map(cellsOf)]
    .map((row) => head.map((_, index) => inline(row[index] ?? '', known)));
  const table = tableOf(rows);
  for (const cell of [...table.rows[0].cells]) dom.rename(cell, 'TH');
  const sides = cellsOf(lines[at + 1]).map((sign) => {
    if (/^:.*:$/.test(sign)) return 'center';
    if (sign.endsWith(':')) return 'right';
    return sign.startsWith(':') ? 'left' : '';
  });
  for (const row of table.rows) {
    sides.forEach((side, index) => {
      const isUsual = side === 'left' && row.rowIndex > 0;
      if (side && !isUsual && row.cells[index]) setSide(row.cells[index], side);
    });
  }
  return { nodes: [table], count: end - at };
}
/** @type {Reader} */
function readParagraph(lines, at, known) {
  let end = at + 1;
  const isUnder = (/** @type {string} */ line) => /^ {0,3}=+[ \t]*$/.test(line);
  while (end < lines.length && !beginsBlock(lines[end]) && !isUnder(lines[end])) end++;
  const text = lines.slice(at, end).map((line) => line.replace(/^[ \t]+/, '')).join('\n').trimEnd();
  const [, under] = /^ {0,3}(=+|-+)[ \t]*$/.exec(lines[end] ?? '') ?? [];
  const tag = under ? { '=': 'H1', '-': 'H2' }[under[0]] : 'P';
  return { nodes: [elementAround(tag, inline(text, known))], count: end - at + (under ? 1 : 0) };
}
/** @type {Reader[]} */
const readers =
  [readFence, readHeading, readRule, readQuote, readCode, readList, readTable, readParagraph];

/**
 * @param {string[]} lines
 * @param {References} known
 * @returns {Nodes}
 */
function blocksOf(lines, known) {
  /** @type {Nodes} */
  const nodes = [];
  for (let at = 0; at < lines.length;) {
    if (isEmpty(lines[at])) {
      at += 1;
      continue;
    }
    for (const read of readers) {
      const block = read(lines, at, known);
      if (!block) continue;
      nodes.push(...block.nodes);
      at += block.count;
      break;
    }
  }
  return nodes;
}

/**
 * @param {string} text
 * @returns {DocumentFragment}
 */
export function asMarkdown(text) {
  /** @type {References} */
  const known = new Map();
  let isCode = false;
  const lines = text.replace(/\r\n?/g, '\n').split('\n').filter((line) => {
    if (fence.test(line)) isCode = !isCode;
    const [, name, href, tip = ''] = (isCode ? null : reference.exec(line)) ?? [];
    if (name && !known.has(name.toLowerCase())) known.set(name.toLowerCase(), { href, tip });
    return !name;
  });
  const fragment = document.createDocumentFragment();
  for (const node of blocksOf(lines, known)) fragment.append(node);
  return fragment;
}
