// SPDX-License-Identifier: GPL-3.0-or-later
// @ts-check
// Plain text as markup.
import * as dom from '../page/dom.js';

// Makes no-break spaces of blanks that a page would not show: of all but the last of a run, and in
// `keepBlanks` of one that a line begins with. The first line joins text that is there: a blank
// before it is shown.
/** @param {string} line */
const keepRuns = (line) => line.replace(/\t/g, '    ').replace(/ (?= )/g, '\u00a0');
/** @param {string} line */
const keepBlanks = (line) => keepRuns(line).replace(/^ /, '\u00a0');

/**
 * @param {string} tag
 * @param {(Node | string)[]} nodes
 */
function elementAround(tag, nodes) {
  const element = dom.create(tag);
  element.append(...nodes);
  return element;
}
/** @param {(Node | string)[]} nodes */
function fragmentOf(nodes) {
  const fragment = document.createDocumentFragment();
  for (const node of nodes) fragment.append(node);
  return fragment;
}
/** @param {string} text */
const withLineEnds = (text) => text.replace(/\r\n?/g, '\n').replace(/^\n+|\n+$/g, '');

// A full address, without what ends the sentence that it stands in.
const addresses =
  /\b(?:(?:https?|ftp):\/\/|mailto:)[^\s<>"\u00a0]*[^\s<>"\u00a0.,;:!?'()\]}*_]\/?/gi;
/**
 * A text whose addresses are links.
 * @param {string} text
 * @returns {(Node | string)[]}
 */
export function withLinks(text) {
  const nodes = [];
  let done = 0;
  for (const { 0: address, index } of text.matchAll(addresses)) {
    const link = dom.create('A', { href: address });
    link.append(address);
    if (index > done) nodes.push(text.slice(done, index));
    nodes.push(link);
    done = index + address.length;
  }
  return done < text.length ? [...nodes, text.slice(done)] : nodes;
}

/**
 * Lines with breaks between them.
 * @param {string[]} lines
 * @param {(text: string) => (Node | string)[]} write
 */
const broken = (lines, write) => lines.flatMap((line, index) =>
  (index ? [dom.create('BR'), ...write(keepBlanks(line))] : write(keepRuns(line))));

/**
 * Plain text as it stands: a paragraph for what stands between empty lines, with breaks in it; in a
 * list one for each line.
 * @param {string} text
 * @param {boolean} inList
 */
export function asItStands(text, inList) {
  const blocks = withLineEnds(text).split(inList ? /\n+/ : /\n(?:[ \t]*\n)+/);
  /** @param {string} block */
  const lines = (block) => broken(block.split('\n'), (line) => [line]);
  if (blocks.length < 2) return fragmentOf(lines(blocks[0]));
  return fragmentOf(blocks.map((block) => elementAround('P', lines(block))));
}

/**
 * A line that is an item: how far its sign and its text are indented, and its number, 0 for none.
 * @typedef {{ indent: number, text: string, number: number, within: number }} ItemLine
 */
const itemForm = /^([ \t]*)([-*\u2022\u00b7\u25aa\u2023]|(\d{1,3})[.)])([ \t]+)(?=\S)(.*)$/;
/**
 * @param {string} line
 * @returns {ItemLine | null}
 */
function itemOf(line) {
  const [found, before, sign, digits, gap, text] = itemForm.exec(line) ?? [];
  if (found === undefined) return null;
  /** @param {string} blanks */
  const width = (blanks) => blanks.replace(/\t/g, '    ').length;
  const indent = width(before);
  return { indent, text, number: Number(digits ?? 0), within: indent + sign.length + width(gap) };
}
// The items that begin with a line: at least two signs, or numbers one after the other.
/** @param {string[]} lines */
function itemsAt(lines) {
  const items = [];
  for (const line of lines) {
    const item = itemOf(line);
    if (!item) break;
    const before = items.filter(({ indent }) => indent <= item.indent).at(-1);
    const goesOn = !before || before.indent < item.indent || !item.number === !before.number;
    const counts = before?.indent !== item.indent || !item.number ||
      item.number === before.number + 1;
    if (!goesOn || !counts) break;
    items.push(item);
  }
  return items.length > 1 ? items : [];
}
// A list of such items; those that are indented further are in the item before.
/** @param {ItemLine[]} items */
function listOf(items) {
  /** @type {{ indent: number, list: HTMLElement }[]} */
  const open = [];
  for (const { indent, text, number } of items) {
    while (open.length > 1 && indent < open.at(-1).indent) open.pop();
    if (!open.length || indent > open.at(-1).indent + 1) {
      const list = dom.create(number ? 'OL' : 'UL', number > 1 ? { start: number } : {});
      open.at(-1)?.list.lastElementChild.append(list);
      open.push({ indent, list });
    }
    open.at(-1).list.append(elementAround('LI', withLinks(keepRuns(text))));
  }
  return open[0].list;
}

/**
 * Plain text of a person: paragraphs, its lines with signs lists, its addresses links.
 * @param {string} text
 * @param {boolean} inList
 */
export function withListsAndLinks(text, inList) {
  const nodes = [];
  const all = withLineEnds(text).split('\n');
  /** @type {string[]} */
  let run = [];
  const flush = () => {
    if (run.length) nodes.push(elementAround('P', broken(run, withLinks)));
    run = [];
  };
  for (let at = 0; at < all.length; at++) {
    const items = itemOf(all[at]) ? itemsAt(all.slice(at)) : [];
    if (items.length || inList || all[at].trim() === '') flush();
    if (items.length) {
      nodes.push(listOf(items));
      at += items.length - 1;
    } else if (all[at].trim() !== '') {
      run.push(all[at]);
    }
  }
  flush();
  const [only] = nodes;
  return nodes.length === 1 && only.tagName === 'P' ? fragmentOf([...only.childNodes])
    : fragmentOf(nodes);
}

// Cells between tabs; one in quotes may have line ends and doubled quotes in it.
/** @param {string} text */
function rowsOf(text) {
  /** @type {string[][]} */
  const rows = [[]];
  const cells = /(?:"((?:[^"]|"")*)"(?=[\t\n]|$)|([^\t\n]*))([\t\n]|$)/gy;
  for (const [found, quoted, plain, end] of text.matchAll(cells)) {
    if (found === '') break;
    rows.at(-1).push(quoted?.replace(/""/g, '"') ?? plain);
    if (end === '\n') rows.push([]);
  }
  return rows.filter((row) => row.some((cell) => cell !== ''));
}
/**
 * A table with lines around its cells.
 * @param {(Node | string)[][][]} rows what the cells hold
 * @returns {any}
 */
export function tableOf(rows) {
  const width = Math.max(...rows.map(({ length }) => length));
  const body = elementAround('TBODY', rows.map((row) => elementAround('TR',
    Array.from({ length: width }, (_, index) => elementAround('TD', row[index] ?? [])))));
  const table = dom.create('TABLE', { border: '1' });
  table.append(body);
  return table;
}
/**
 * Text with tabs as a table.
 * @param {string} text
 */
export function asTable(text) {
  const rows = rowsOf(withLineEnds(text));
  if (!rows.length) return fragmentOf([]);
  return fragmentOf([tableOf(rows.map((row) =>
    row.map((cell) => broken(cell.split('\n'), withLinks))))]);
}
