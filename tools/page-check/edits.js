// SPDX-License-Identifier: GPL-3.0-or-later
// @ts-check
// The edits of a page check, each at the place with a number (from 0). The answer is the text
// that is selected then, null where the page has no such place. A module: the build joins it with
// the bridge's names of commands.
import { Command } from '../../engine/bridge/talk/vocabulary.js';

const word = /[\p{L}\p{M}\p{N}]{2,}/u;
const closed = 'script, style, title, textarea, select, option, svg, math, iframe, noframes, ' +
  'noembed, xmp, plaintext, template, object, button';

const texts = () => {
  const walker = document.createTreeWalker(document.body, NodeFilter.SHOW_TEXT);
  const found = [];
  while (walker.nextNode()) {
    const text = /** @type {Text} */ (walker.currentNode);
    if (word.test(text.data) && !text.parentElement.closest(closed)) found.push(text);
  }
  return found;
};
const elements = (selector) => [...document.body.querySelectorAll(selector)]
  .filter((element) => !element.closest('svg, math, template'));
const paragraphs = () => elements('p, li, h1, h2, h3, h4, td, dd, blockquote, div')
  .filter((element) => word.test(element.textContent) && !element.querySelector('p, table, div'));

const select = (node, start, end = start) => {
  const range = document.createRange();
  range.setStart(node, start);
  range.setEnd(node, end);
  getSelection().removeAllRanges();
  getSelection().addRange(range);
};
const firstWord = (text) => {
  const { index, 0: { length } } = word.exec(text.data);
  return { start: index, end: index + length };
};
const inParagraph = (paragraph) => {
  const text = texts().find((each) => paragraph.contains(each));
  if (text) select(text, firstWord(text).start);
  return Boolean(text);
};

const inline = 'a, abbr, b, big, code, em, font, i, img, s, small, span, strong, sub, sup, tt, u';
// The words of a text with their ends as offsets.
const wordEnds = (text) => [...text.data.matchAll(/[\p{L}\p{M}\p{N}]{2,}/gu)]
  .map(({ index, 0: { length } }) => index + length);
const isInline = (node) => node?.nodeType === Node.ELEMENT_NODE && node.matches(inline);
const isLastIn = (cell, text) => cell && !texts().some((each) => cell.contains(each) &&
  text.compareDocumentPosition(each) & Node.DOCUMENT_POSITION_FOLLOWING);

// Where a person may put the caret, by what makes such a place hard to save: each a list of
// [text, offset].
const kindsOfPlace = {
  wordEnd: (text) => wordEnds(text).slice(0, 1),
  lineEnd: (text) => [...text.data.matchAll(/[^\s](?=[ \t]*\n)/g)].map(({ index }) => index + 1),
  indented: (text) => [...text.data.matchAll(/\n[ \t]+[\p{L}\p{M}\p{N}]{2,}/gu)]
    .map(({ index, 0: { length } }) => index + length),
  textEnd: (text) => {
    const end = text.data.trimEnd().length;
    return text.nextSibling === null || isInline(text.nextSibling) ? [end] : [];
  },
  behindInline: (text) => (isInline(text.previousSibling) && /^\S/.test(text.data) ? [0] : []),
  cellEnd: (text) => (isLastIn(text.parentElement.closest('td, th'), text)
    ? [text.data.trimEnd().length] : []),
};

// Numbers below `count`, each once, so that any first few of them lie evenly.
const evenly = (count) => {
  const bits = Math.max(1, Math.ceil(Math.log2(count)));
  const reversed = (number) => {
    let result = 0;
    for (let bit = 0; bit < bits; ++bit) result = result * 2 + ((number >> bit) & 1);
    return result;
  };
  return Array.from({ length: 2 ** bits }, (_, number) => reversed(number))
    .filter((number) => number < count);
};

// All caret places: the kinds take turns, the places of a kind lie evenly over the page.
const caretPlaces = () => {
  const shown = texts().filter((text) => text.parentElement.getClientRects().length > 0);
  const lists = Object.values(kindsOfPlace).map((offsets) => {
    const all = shown.flatMap((text) => offsets(text).map((offset) => [text, offset]));
    return evenly(all.length).map((number) => all[number]);
  });
  const places = [];
  for (let turn = 0; lists.some((list) => turn < list.length); ++turn) {
    for (const list of lists) {
      if (turn < list.length) places.push(list[turn]);
    }
  }
  return places;
};
// The words that are shown, each [text, start, end]; the first few lie evenly over the page.
const wordPlaces = () => {
  const shown = texts().filter((text) => text.parentElement.getClientRects().length > 0);
  const all = shown.flatMap((text) => [...text.data.matchAll(/[\p{L}\p{M}\p{N}]{2,}/gu)]
    .map(({ index, 0: { length } }) => [text, index, index + length]));
  return evenly(all.length).map((number) => all[number]);
};
// The keys come from the program, as a person's do.
const atCaret = [caretPlaces, ([text, offset]) => {
  select(text, offset);
  return true;
}];

// Replaces the word at a place by another one, or "A,B": the first A from there on by B.
const replaceBy = (replace) => [wordPlaces, ([text, start, end], argument) => {
  select(text, start, end);
  const [words, other] = argument ? argument.split(',') : [text.data.slice(start, end), 'replaced'];
  const query = { words, matchCase: true };
  return velor.find(query, 'here').count > 0 && replace(query, other);
}];

// Corrects the word at a place to another one, or "A,B": the first A from there on to B.
const correct = [wordPlaces, ([text, start, end], argument) => {
  select(text, start, end);
  const { lines, from: [first, index], to: [last, behind] } = velor.spelledText();
  const [wrong, right] = argument ? argument.split(',') : [text.data.slice(start, end), 'right'];
  if (!argument) {
    return first === last && velor.correctWord([[first, index, behind]], wrong, right) > 0;
  }
  for (let line = first; line < lines.length; ++line) {
    const at = lines[line][0].indexOf(wrong, line === first ? index : 0);
    if (at >= 0) return velor.correctWord([[line, at, at + wrong.length]], wrong, right) > 0;
  }
  return false;
}];

// Two cells beside each other, selected as such.
const pairs = () => elements('td + td, td + th, th + td, th + th');
const selectPair = (cell) => {
  select(cell.previousElementSibling, 0);
  getSelection().extend(cell, cell.childNodes.length);
  return true;
};
// A command with the caret in a cell.
const onCell = (command) => (cell) => {
  select(cell, 0);
  return velor.exec(command);
};

const edits = {
  'replace': replaceBy((query, other) => velor.replaceFound(query, other)),
  'replace-all': replaceBy((query, other) => velor.replaceAll(query, other)),
  correct,
  'type': atCaret,
  'enter': atCaret,
  'backspace': atCaret,
  'delete': atCaret,
  'paste': atCaret,
  'delete-word': [wordPlaces, ([text, start, end]) => {
    select(text, start, end);
    return true;
  }],
  'insert-word': [texts, (text) => {
    select(text, firstWord(text).end);
    return document.execCommand('insertText', false, ' inserted');
  }],
  'bold': [texts, (text) => {
    const { start, end } = firstWord(text);
    select(text, start, end);
    return velor.exec(Command.Bold);
  }],
  'image': [paragraphs, (paragraph) => {
    // Between two cells no picture can stand.
    const { parentNode } = paragraph;
    if (paragraph.matches('td')) select(paragraph, 0);
    else select(parentNode, [...parentNode.childNodes].indexOf(paragraph));
    velor.pasteHTML('<img src="new.gif" alt="new">');
    return true;
  }],
  'delete-paragraph': [paragraphs, (paragraph) => {
    paragraph.remove();
    return true;
  }],
  'table-row': [() => elements('tr'), (row) => {
    const fresh = row.cloneNode(false);
    fresh.removeAttribute('id');
    for (const cell of row.cells) fresh.insertCell().textContent = `cell ${cell.cellIndex}`;
    row.after(fresh);
    return true;
  }],
  'row': [() => elements('td, th'), onCell(Command.InsertRowBelow)],
  'column': [() => elements('td, th'), onCell(Command.InsertColumnRight)],
  'merge': [pairs, (cell) => selectPair(cell) && velor.exec(Command.MergeCells)],
  'paste-cells': [pairs, selectPair],
  'class': [() => elements('td, th'), (cell) => {
    select(cell, 0);
    velor.setProperties('cell', { class: 'new' });
    return true;
  }],
  'page-title': [() => [document.body], () => {
    velor.setProperties('page', { title: 'new title' });
    return true;
  }],
  'link': [() => elements('a[href]').filter((link) => link.firstChild), (link) => {
    select(link.firstChild, 0);
    velor.setProperties('link', { title: 'new' });
    return true;
  }],
  'split': [texts, (text) => {
    select(text, firstWord(text).end);
    return document.execCommand('insertParagraph');
  }],
  'center': [paragraphs,
    (paragraph) => inParagraph(paragraph) && velor.exec(Command.JustifyCenter)],
  'attribute': [() => elements('p, a, img, td, div, table, h1, h2, h3, li, span, font'),
    (element) => {
      element.setAttribute('title', 'a "new" title');
      return true;
    }],
};

globalThis.velorPageCheck = (kind, number, argument) => {
  if (document.body?.tagName !== 'BODY') return null;
  const [places, edit] = edits[kind];
  const place = places()[number];
  if (place === undefined || edit(place, argument) === false) return null;
  return getSelection().rangeCount ? getSelection().getRangeAt(0).toString() : '';
};
