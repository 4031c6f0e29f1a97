// SPDX-License-Identifier: GPL-3.0-or-later
// The edits of a page check, each at the place with a number (from 0). An edit answers false where
// the page has no such place.
(() => {
  'use strict';
  const word = /[\p{L}\p{N}]{2,}/u;
  const closed = 'script, style, title, textarea, select, option, svg, math, iframe, noframes, ' +
    'noembed, xmp, plaintext, template, object, button';

  const texts = () => {
    const walker = document.createTreeWalker(document.body, NodeFilter.SHOW_TEXT);
    const found = [];
    while (walker.nextNode()) {
      const text = walker.currentNode;
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

  const edits = {
    'insert-word': [texts, (text) => {
      select(text, firstWord(text).end);
      return document.execCommand('insertText', false, ' inserted');
    }],
    'bold': [texts, (text) => {
      const { start, end } = firstWord(text);
      select(text, start, end);
      return velor.exec(5000);
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
    'enter': [texts, (text) => {
      select(text, firstWord(text).end);
      return document.execCommand('insertParagraph');
    }],
    'center': [paragraphs, (paragraph) => inParagraph(paragraph) && velor.exec(5024)],
    'attribute': [() => elements('p, a, img, td, div, table, h1, h2, h3, li, span, font'),
      (element) => {
        element.setAttribute('title', 'a "new" title');
        return true;
      }],
  };

  globalThis.velorPageCheck = (kind, number) => {
    if (document.body?.tagName !== 'BODY') return false;
    const [places, edit] = edits[kind];
    const place = places()[number];
    return place !== undefined && edit(place) !== false;
  };
})();
