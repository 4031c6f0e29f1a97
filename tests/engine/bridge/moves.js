// SPDX-License-Identifier: GPL-3.0-or-later
// @ts-check
// What is cut, or copied and then deleted or replaced, and pasted in the same place: the page has
// its words, blanks, lines and names again.
(() => {
  'use strict';

  const { Command } = inside;
  const { chance, oneOf } = pages;
  const { look, same, select, shownLines } = walk;

  const shown = () => document.body.innerText.replace(/[\s\u00a0]+/g, ' ').trim();
  // What is pasted takes an empty paragraph's place: a class that marks no words goes with it.
  const names = () => [...document.body.querySelectorAll('[id], [class], a[href]')]
    .filter((element) => element.id || element.textContent.trim() || element.matches('a, img'))
    .map((element) => `${element.id}.${element.className} ${element.getAttribute('href') ?? ''}`)
    .filter((name, index, all) => all.indexOf(name) === index).sort().join(', ');

  // In one paragraph, or from within one to another of the same list, cell or division, or all of
  // an element: a paragraph that is deleted as a whole leaves an empty line, and what follows it is
  // not joined.
  const isOnePlace = ({ startContainer, startOffset, endContainer, endOffset }) => {
    const first = inside.extent.unitAt(startContainer, startOffset);
    const last = inside.extent.unitAt(endContainer, endOffset);
    if (!first || !last) return false;
    if (startContainer === endContainer || inside.extent.sameUnit(first, last)) return true;
    const [from, to] = [first.home, last.home];
    const isBare = (node) => node === document.body || inside.dom.isCell(node);
    return !isBare(from) && !isBare(to) && from.parentNode === to.parentNode &&
      inside.isWithin(startContainer, startOffset, 'start');
  };

  // A word, with the blank before or behind it or without; words across elements; a paragraph, an
  // item or a cell from its first to its last place.
  function selectWords() {
    const texts = inside.dom.textsUnder(document.body).filter(({ data }) => data.trim());
    const text = oneOf(texts);
    if (!text) return;
    const words = [...text.data.matchAll(/\S+/g)];
    const word = oneOf(words);
    const from = word.index - (chance(0.3) && word.index > 0 ? 1 : 0);
    const end = word.index + word[0].length;
    const to = end + (chance(0.3) && end < text.length ? 1 : 0);
    const next = texts[texts.indexOf(text) + 1];
    const isAcross = next && chance(0.3) &&
      inside.dom.blockOf(next) === inside.dom.blockOf(text);
    const last = isAcross ? oneOf([...next.data.matchAll(/\S+/g)]) : null;
    getSelection().setBaseAndExtent(text, from, last ? next : text,
      last ? last.index + last[0].length : to);
  }
  function selectAllOf(selector) {
    const found = [...document.body.querySelectorAll(selector)].filter((element) =>
      element.textContent.trim() && !element.closest('[contenteditable]'));
    if (found.length) getSelection().selectAllChildren(oneOf(found));
  }
  const selections = [select, select, selectWords, selectWords, selectWords,
    () => selectAllOf('p, h1, h2, h3, h4, address, dt, dd'), () => selectAllOf('li'),
    () => selectAllOf('td, th')];

  // Ways to take the selection up and put it back; each answers the page in between.
  const rest = () => {
    inside.history.settle();
    return look();
  };
  const ways = {
    cut() {
      const given = markup.cut();
      const between = rest();
      markup.paste('text/html', given);
      return between;
    },
    delete() {
      const given = markup.copy();
      velor.exec(Command.Delete);
      const between = rest();
      markup.paste('text/html', given);
      return between;
    },
    replace() {
      const between = rest();
      markup.paste('text/html', markup.copy());
      return between;
    },
  };

  function movedAndBack() {
    const before = { ...look(), shown: shown(), lines: shownLines(), names: names() };
    // Text as it stands takes no markup, of what joins it neither.
    const isRaw = inside.dom.rawAt(inside.selection.range().startContainer) !== null;
    const way = oneOf(Object.keys(ways));
    const between = ways[way]();
    const now = rest();
    const faults = [];
    if (shown() !== before.shown) faults.push('words or blanks are other ones');
    if (shownLines().join('\n') !== before.lines.join('\n')) faults.push('lines are other ones');
    if (!isRaw && names() !== before.names) faults.push(`names were ${before.names}: ${names()}`);
    while (inside.history.canUndo()) velor.exec(Command.Undo);
    if (!same(look(), before)) faults.push('undo does not lead back');
    if (!faults.length) return '';
    return [`${way}: ${faults}`, before.selected, between.selected, now.selected].join('\n  ');
  }

  globalThis.moves = {
    // Does that many; answers the first fault.
    run(count) {
      for (let left = count; left > 0; left--) {
        oneOf(selections)();
        const range = inside.selection.range();
        if (!range || !range.toString().trim() || !isOnePlace(range)) continue;
        const fault = movedAndBack();
        if (fault) return fault;
      }
      return '';
    },
  };
})();
