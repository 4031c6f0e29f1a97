// SPDX-License-Identifier: GPL-3.0-or-later
// @ts-check
// Pages at random, from a seed: everything that people's pages are made of, in the dialect of the
// document that asks, each word another one so that a lost one is missed.
(() => {
  'use strict';

  let state = 1;
  let words = 0;

  const random = () => {
    state = (state + 0x6D2B79F5) | 0;
    let mixed = Math.imul(state ^ (state >>> 15), 1 | state);
    mixed = (mixed + Math.imul(mixed ^ (mixed >>> 7), 61 | mixed)) ^ mixed;
    return ((mixed ^ (mixed >>> 14)) >>> 0) / 4294967296;
  };
  const below = (count) => Math.floor(random() * count);
  const chance = (share) => random() < share;
  const oneOf = (list) => list[below(list.length)];
  const some = (most, make) => Array.from({ length: 1 + below(most) }, make).join('');

  const word = () => `w${++words}`;
  const text = () => Array.from({ length: 1 + below(3) }, word).join(' ');
  const picture = () => '<img src="a.png" width="20" height="10">';
  const island = () => `<span contenteditable="false">${word()}</span>`;

  const runs = {
    old: [['b'], ['i'], ['u'], ['strong'], ['em'], ['font', 'color="#FF0000"'],
      ['font', 'face="Arial"'], ['font', 'size="5"'], ['a', 'href="x.htm"'],
      ['ins', 'cite="y.htm"'], ['del', '']],
    html5: [['b'], ['i'], ['u'], ['strong'], ['em'], ['span', 'style="color: #FF0000"'],
      ['span', 'style="font-family: Arial"'], ['span', 'style="font-size: 18pt"'],
      ['a', 'href="x.htm"'], ['ins', 'cite="y.htm"'], ['del', '']],
  };
  const likes = { strong: 'b', em: 'i' };
  /** @type {(element: string[]) => string} */
  const kindOf = ([tag, attribute = '']) => (likes[tag] ?? tag) + attribute.split(/[:=]/)[0];

  /** @type {(element: string[], inside: string) => string} */
  const tagged = ([tag, attributes = ''], inside) =>
    `<${tag}${attributes && ` ${attributes}`}>${inside}</${tag}>`;

  function run(around = []) {
    if (around.length < 3 && chance(0.3)) {
      const free = runs[inside.dom.writesStyles() ? 'html5' : 'old']
        .filter((each) => !around.includes(kindOf(each)));
      const chosen = oneOf(free);
      return tagged(chosen, line([...around, kindOf(chosen)], 2));
    }
    if (chance(0.06)) return picture();
    if (chance(0.04)) return island();
    if (chance(0.06)) return `${word()}<br>${word()}`;
    return text();
  }
  // Runs that touch or that are parted by a blank.
  // Some pages have their lines set in, as people and programs write them.
  let setOut = false;
  const lineEnd = () => `\n${'  '.repeat(1 + below(4))}`;
  const blank = () => (setOut && chance(0.4) ? lineEnd() : ' ');
  function line(around = [], most = 4) {
    let result = run(around);
    for (let left = below(most); left > 0; left--) {
      result += (chance(0.6) ? blank() : '') + run(around);
    }
    return result;
  }
  const inLines = (content) =>
    (setOut && chance(0.5) ? lineEnd() + content + lineEnd() : content);
  const lineOrNone = () => (chance(0.1) ? '<br>' : inLines(line()));

  const align = () => (inside.dom.writesStyles()
    ? `style="text-align: ${oneOf(['center', 'right'])}"`
    : `align="${oneOf(['center', 'right'])}"`);
  const looks = () => {
    if (chance(0.12)) return align();
    if (chance(0.06)) return `id="n${++words}"`;
    if (chance(0.06)) return `class="c${below(3)}"`;
    return chance(0.05) ? 'dir="rtl"' : '';
  };

  const item = (depth) => {
    const nested = depth > 0 && chance(0.25) ? list(depth - 1) : '';
    const inside = chance(0.12) ? some(2, () => tagged(['p'], line())) : lineOrNone();
    return tagged(['li'], inside + nested);
  };
  const list = (depth) => tagged([oneOf(['ul', 'ol'])], some(3, () => item(depth)));
  const definitions = () =>
    tagged(['dl'], some(3, () => tagged([oneOf(['dt', 'dd'])], lineOrNone())));

  const cell = (depth) => tagged([chance(0.15) ? 'th' : 'td'],
    chance(0.3) && depth > 0 ? blocks(depth - 1, 2) : lineOrNone());
  function table(depth) {
    const columns = 1 + below(3);
    const row = () =>
      tagged(['tr'], Array.from({ length: columns }, () => cell(depth)).join(''));
    const caption = chance(0.1) ? tagged(['caption'], word()) : '';
    return tagged(['table', chance(0.5) ? 'border="1"' : ''],
      caption + tagged(['tbody'], some(2, row)));
  }

  /** @type {[weight: number, make: (depth: number) => string][]} */
  const kinds = [
    [8, () => tagged(['p', looks()], lineOrNone())],
    [3, () => tagged([`h${1 + below(4)}`, looks()], lineOrNone())],
    [4, (depth) => list(depth)],
    [2, (depth) => (depth > 0 ? table(depth) : tagged(['p'], line()))],
    [1, () => definitions()],
    [2, (depth) => tagged(['blockquote'], depth > 0 ? blocks(depth - 1, 2) : line())],
    [1, () => tagged([oneOf(['pre', 'pre', 'xmp', 'listing'])], `${text()}\n${text()}`)],
    [1, () => tagged(['address'], line())],
    [2, (depth) => tagged(['div', looks()], depth > 0 ? blocks(depth - 1, 2) : line())],
    [1, (depth) => (inside.dom.writesStyles() ? tagged(['p'], line())
      : tagged(['center'], depth > 0 ? blocks(depth - 1, 2) : line()))],
    [1, () => '<hr>'],
    [1, () => tagged(['div', 'contenteditable="false"'], word())],
  ];
  const weights = kinds.reduce((sum, [weight]) => sum + weight, 0);
  function block(depth) {
    let at = random() * weights;
    for (const [weight, make] of kinds) {
      at -= weight;
      if (at < 0) return make(depth);
    }
    return kinds[0][1](depth);
  }
  function blocks(depth, most) {
    let result = '';
    let bare = false;
    for (let left = 1 + below(most); left > 0; left--) {
      // Bare text stands alone between blocks.
      bare = !bare && chance(0.12);
      result += bare ? line() : block(depth);
      if (chance(setOut ? 0.8 : 0.15)) result += setOut ? lineEnd() : '\n';
    }
    return result;
  }

  const snippets = [
    () => `<b>${word()}</b>`, () => `<p>${word()}</p>`, () => `<p>${word()}</p><p>${word()}</p>`,
    () => `<ul><li>${word()}</li><li>${word()}</li></ul>`,
    () => `<table><tbody><tr><td>${word()}</td></tr></tbody></table>`,
    () => '<img src="b.png">', () => `<a href="y.htm">${word()}</a>`, word,
    () => `<h2>${word()}</h2>`,
  ];

  globalThis.pages = {
    seed(number) {
      state = number;
      words = 0;
      setOut = number % 2 === 0;
    },
    below, chance, oneOf,
    // The inside of a body.
    body: () => blocks(2, 3),
    // Markup to put in at the selection.
    snippet: () => oneOf(snippets)(),
    word,
  };
})();
