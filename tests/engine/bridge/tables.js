// SPDX-License-Identifier: GPL-3.0-or-later
// @ts-check
// Tables at random, with spans and sections, and every change of their grid: afterwards no cells
// overlap, no slot is empty, and what was not touched is as it was.
(() => {
  'use strict';

  const { tables } = inside;
  const { below, chance, oneOf } = pages;

  let words = 0;
  // The rows of a section as markup, its slots filled with cells of random spans.
  function section(width, height) {
    const taken = Array.from({ length: height }, () => Array(width).fill(false));
    const isFree = (y, x, down, across) => taken.slice(y, y + down)
      .every((row) => row.slice(x, x + across).every((slot) => !slot));
    let html = '';
    for (let y = 0; y < height; y++) {
      html += '<tr>';
      for (let x = 0; x < width; x++) {
        if (taken[y][x]) continue;
        let down = chance(0.25) ? 1 + below(height - y) : 1;
        let across = chance(0.25) ? 1 + below(width - x) : 1;
        while (!isFree(y, x, down, across)) {
          if (across > 1) across--;
          else down--;
        }
        for (let row = y; row < y + down; row++) taken[row].fill(true, x, x + across);
        const tag = chance(0.2) ? 'th' : 'td';
        const spans = (down > 1 ? ` rowspan="${down}"` : '') +
          (across > 1 ? ` colspan="${across}"` : '');
        html += `<${tag}${spans}>${chance(0.1) ? '<br>' : `w${++words}`}</${tag}>`;
      }
      html += '</tr>';
    }
    return html;
  }
  function tableAtRandom() {
    const width = 1 + below(5);
    const part = (tag) => `<${tag}>${section(width, 1 + below(4))}</${tag}>`;
    const cols = chance(0.3) ? `<colgroup>${'<col>'.repeat(width)}</colgroup>` : '';
    const holder = document.createElement('div');
    holder.innerHTML = `<table>${cols}${chance(0.3) ? part('thead') : ''}${part('tbody')}` +
      `${chance(0.3) ? part('tbody') : ''}${chance(0.2) ? part('tfoot') : ''}</table>`;
    return holder.querySelector('table');
  }

  // What is wrong with a table, by the rules of HTML alone.
  function faultOf(table) {
    const counts = [];
    for (const group of new Set([...table.rows].map((row) => row.parentNode))) {
      const rows = [...table.rows].filter((row) => row.parentNode === group);
      const slots = rows.map(() => []);
      for (const [y, row] of rows.entries()) {
        let x = 0;
        for (const cell of row.cells) {
          while (slots[y][x]) x++;
          if (y + cell.rowSpan > rows.length) return 'a cell reaches out of its section';
          for (let down = y; down < y + cell.rowSpan; down++) {
            for (let across = x; across < x + cell.colSpan; across++) {
              slots[down][across] = (slots[down][across] ?? 0) + 1;
            }
          }
        }
      }
      counts.push(...slots);
    }
    const width = Math.max(...counts.map((row) => row.length));
    for (const row of counts) {
      for (let x = 0; x < width; x++) {
        if (!row[x]) return 'a slot is empty';
        if (row[x] > 1) return 'cells overlap';
      }
    }
    const cols = table.querySelectorAll('col').length;
    return cols && cols !== width ? `${cols} COL of ${width} columns` : '';
  }

  globalThis.tables = { faultOf, markup: () => tableAtRandom().outerHTML };

  const textOf = (table) => [...table.querySelectorAll('td, th')]
    .map((cell) => cell.textContent).join('').replace(/w/g, ' w').trim();
  const sorted = (text) => text.split(' ').sort().join(' ');

  // What was put into a table last: its words, and the rectangle that they went to.
  let filled = { words: [], area: { top: 0, left: 0, bottom: 0, right: 0 } };
  function fill(grid, rectangle) {
    const source = tables.gridOf(tableAtRandom());
    const { top, left } = rectangle;
    filled = {
      words: textOf(source.table).split(' ').filter(Boolean),
      area: source.places.length === 1 ? rectangle
        : { top, left, bottom: top + source.height - 1, right: left + source.width - 1 },
    };
    tables.fillCells(grid, rectangle, source);
  }
  const isFilled = ({ row, column }) => row >= filled.area.top && row <= filled.area.bottom &&
    column >= filled.area.left && column <= filled.area.right;

  // Each change with whether the words stay as they are (1), stay in another order (0), go (-1), or
  // some go and others come (2).
  const changes = {
    rowBehind: [1, (grid, { bottom }) => tables.insertRow(grid, bottom, 'behind')],
    rowBefore: [1, (grid, { top }) => tables.insertRow(grid, top, 'before')],
    columnBehind: [1, (grid, { right }) => tables.insertColumn(grid, right, 'behind')],
    columnBefore: [1, (grid, { left }) => tables.insertColumn(grid, left, 'before')],
    deleteRows: [-1, (grid, rectangle) => {
      if (rectangle.bottom - rectangle.top + 1 < grid.height) tables.deleteRows(grid, rectangle);
    }],
    deleteColumns: [-1, (grid, rectangle) => {
      if (rectangle.right - rectangle.left + 1 < grid.width) {
        tables.deleteColumns(grid, rectangle);
      }
    }],
    merge: [0, (grid, rectangle) => {
      if (tables.canMerge(grid, rectangle)) tables.mergeCells(grid, rectangle);
    }],
    mergeAndSplit: [0, (grid, rectangle) => {
      if (!tables.canMerge(grid, rectangle)) return;
      const cell = tables.mergeCells(grid, rectangle);
      tables.splitCell(tables.gridOf(grid.table), cell);
    }],
    split: [1, (grid, rectangle) =>
      tables.splitCell(grid, tables.placesIn(grid, rectangle)[0].cell)],
    rowUp: [0, (grid, rectangle) => tables.moveRows(grid, rectangle, -1)],
    rowDown: [0, (grid, rectangle) => tables.moveRows(grid, rectangle, 1)],
    columnLeft: [0, (grid, rectangle) => tables.moveColumns(grid, rectangle, -1)],
    columnRight: [0, (grid, rectangle) => tables.moveColumns(grid, rectangle, 1)],
    fill: [2, fill],
    distribute: [1, (grid) => tables.distributeColumns(grid)],
  };
  const done = new Map();

  function tryOne(table, [name, [keeps, change]]) {
    const grid = tables.gridOf(table);
    const ends = [oneOf(grid.places), oneOf(grid.places)];
    const rectangle = tables.rectangleOf(grid, chance(0.5) ? ends : ends.slice(0, 1));
    const before = table.outerHTML;
    const text = textOf(table);
    const chosen = tables.placesIn(grid, rectangle).map(({ cell }) => cell);
    const all = grid.places.map((place) => ({ ...place, content: place.cell.innerHTML }));
    change(grid, rectangle);
    const outside = all.filter((place) =>
      !(keeps === 2 ? isFilled(place) : chosen.includes(place.cell)))
      .map(({ cell, content }) => /** @type {const} */ ([cell, content]));
    if (table.outerHTML !== before) done.set(name, (done.get(name) ?? 0) + 1);
    const now = textOf(table);
    const faults = [faultOf(table)];
    if (keeps === 1 && now !== text) faults.push('words are other ones');
    if (keeps === 0 && sorted(now) !== sorted(text)) faults.push('words are gone or added');
    if (keeps === 2 && !filled.words.every((word) => now.split(' ').includes(word))) {
      faults.push('a word that was put in is not there');
    }
    if (keeps === 2 && outside.some(([cell]) => !table.contains(cell))) {
      faults.push('a cell outside is gone');
    }
    const isWithin = ({ cell, row, column, height, width }) => cell.isConnected ||
      (name === 'deleteRows' && row >= rectangle.top && row + height - 1 <= rectangle.bottom) ||
      (name === 'deleteColumns' && column >= rectangle.left &&
        column + width - 1 <= rectangle.right);
    const holder = table.parentNode;
    if (keeps === -1 && !grid.places.every((place) =>
      holder.contains(place.cell) || isWithin(place))) faults.push('a cell is gone');
    if (outside.some(([cell, content]) => holder.contains(cell) && cell.innerHTML !== content)) {
      faults.push('a cell outside has changed');
    }
    const told = faults.filter(Boolean).join(', ');
    return told && `${name} ${JSON.stringify(rectangle)} of\n${before}\ngives\n` +
      `${table.outerHTML}\n${told}`;
  }

  // Tries so many tables; answers the first fault, and how often each change did something.
  globalThis.tryTables = (count) => {
    for (let left = count; left > 0; left--) {
      const table = tableAtRandom();
      const own = faultOf(table);
      if (own) return { fault: `made badly: ${own} ${table.outerHTML}`, done: {} };
      for (let steps = 3; steps > 0; steps--) {
        const fault = tryOne(table, oneOf(Object.entries(changes)));
        if (fault) return { fault, done: {} };
      }
    }
    return { fault: '', done: Object.fromEntries(done), kinds: Object.keys(changes) };
  };
})();
