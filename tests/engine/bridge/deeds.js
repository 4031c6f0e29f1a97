// SPDX-License-Identifier: GPL-3.0-or-later
// @ts-check
// A walk at random with what is done to tables, cells, positions, elements of the path and
// properties: every step leads back and on again, keeps the words that it does not delete, and
// leaves each table's grid whole. Needs pages.js, tables.js.
(() => {
  'use strict';

  const { Command, Status } = inside;
  const { below, chance, oneOf } = pages;

  const numbersOf = (names) => names.map((name) => Command[name]);
  const selects = numbersOf(['SelectCell', 'SelectRow', 'SelectColumn', 'SelectTable']);
  const deletes = numbersOf(['DeleteRow', 'DeleteColumn', 'DeleteTable', 'Delete']);
  const keeps = numbersOf([
    'InsertRowBelow', 'InsertRowAbove', 'InsertColumnRight', 'InsertColumnLeft', 'MergeCells',
    'SplitCell', 'MoveRowUp', 'MoveRowDown', 'MoveColumnLeft', 'MoveColumnRight',
    'DistributeColumns', 'AbsolutePosition', 'BringToFront', 'BringForward', 'BringAboveText',
    'SendToBack', 'SendBackward', 'SendBelowText', 'Bold', 'Italic', 'JustifyCenter',
    'JustifyLeft']);
  const values = {
    page: [['title', 'One'], ['title', ''], ['language', 'de'], ['direction', 'rtl'],
      ['description', 'all'], ['viewport', ''], ['text', '#112233'], ['background', '#EEEEEE'],
      ['picture', 'b.png'], ['link', '#0000FF'], ['link', ''], ['sheets', 'a.css\nb.css'],
      ['icon', 'i.ico']],
    table: [['width', '50%'], ['width', ''], ['align', 'center'], ['border', '1'], ['border', ''],
      ['background', '#FF0000'], ['class', 'c1'], ['headRow', 'true'], ['headRow', ''],
      ['headColumn', 'true'], ['cellpadding', '3'], ['cellpadding', ''], ['cellspacing', '0']],
    cell: [['width', '80'], ['align', 'right'], ['valign', 'top'], ['heading', 'true'],
      ['heading', ''], ['noWrap', 'true'], ['background', ''], ['color', '#0000FF']],
    link: [['href', 'other.htm'], ['title', 'a title'], ['target', '_blank'], ['rel', '']],
    image: [['alt', ''], ['width', '20'], ['border', '0'], ['decorative', 'true']],
    element: [['id', 'n1'], ['class', 'c1 c2'], ['language', 'de'], ['direction', 'rtl'],
      ['style', '']],
    fonts: [['bold', 'true'], ['italic', ''], ['fontName', 'Arial']],
  };

  const html = () => velor.serialize();
  const words = () => [...document.body.textContent.replace(/[\s\u00a0]/g, '')].sort().join('');
  const elements = () => [...document.querySelectorAll('table')];
  const wholeTables = () =>
    elements().filter((table) => table.rows.length && !tables.faultOf(table));

  function select() {
    const cells = [...document.querySelectorAll('td, th')];
    const kind = below(6);
    if (kind < 3 && cells.length) {
      const from = oneOf(cells);
      const table = from.closest('table');
      const to = oneOf(cells.filter((cell) => cell.closest('table') === table));
      if (kind < 2) inside.tables.selectCells(from, to);
      else inside.selection.setCaret(from, 0);
      return;
    }
    // No person's selection is among a table's columns, or a row in which no cell begins.
    const all = [...document.body.querySelectorAll('*')]
      .filter((each) => !each.closest('head, colgroup, tr:empty'));
    const element = all.length ? oneOf(all) : document.body;
    if (kind === 3) inside.selection.selectNode(element);
    else if (kind === 4) document.getSelection().selectAllChildren(element);
    // No caret stands between the parts of a table.
    else if (!/^(COL|COLGROUP|TABLE|TBODY|TFOOT|THEAD|TR)$/.test(element.tagName)) {
      document.getSelection().collapse(element, 0);
    }
  }

  // How often each kind of step changed something.
  /** @type {Map<string, number>} */
  const done = new Map();
  const number = () => oneOf(velor.state().pathNumbers);
  let copied = '';
  let ids = 1;
  // A step: its name, whether words may come or go, and what it does.
  function chosen() {
    const kind = below(12);
    if (kind < 5) {
      const command = oneOf(keeps);
      return { name: `${command}`, keeps: true, run: () => velor.exec(command) };
    }
    if (kind < 6) {
      const command = oneOf(deletes);
      return { name: `${command}`, keeps: false, run: () => velor.exec(command) };
    }
    if (kind < 7) {
      const command = oneOf(selects);
      return { name: `${command}`, keeps: true, travels: true, run: () => velor.exec(command) };
    }
    if (kind < 8) {
      const [element, deed] = [number(), oneOf(['select', 'removeTag', 'removeTag', 'delete'])];
      return { name: `path ${deed}`, keeps: deed !== 'delete', travels: deed === 'select',
        run: () => velor.actOnPath(element, deed) };
    }
    if (kind < 9) {
      const [element, on] = [number(), chance(0.6)];
      return { name: `class ${on}`, keeps: true,
        run: () => velor.setClassOnPath(element, 'c1', on) };
    }
    if (kind < 11) {
      const subject = oneOf(Object.keys(values));
      const [element, [key, value]] = [number(), oneOf(values[subject])];
      // Two elements with one id are a person's own doing.
      const pair = [key, key === 'id' ? `own${ids++}` : value];
      return { name: `${subject} ${pair.join('=')}`, keeps: true, run() {
        velor.properties(subject, element);
        velor.setProperties(subject, Object.fromEntries([pair]), element);
      } };
    }
    if (!copied || chance(0.4)) {
      return { name: 'cut', keeps: false, run() { copied = markup.cut() || copied; } };
    }
    const given = copied;
    return { name: `paste ${given}`, keeps: false, run: () => markup.paste('text/html', given) };
  }

  function judged({ name, keeps: isKept, travels = false, run }) {
    const before = html();
    const had = words();
    const whole = wholeTables().length;
    const count = elements().length;
    const shown = markup.read();
    run();
    inside.history.settle();
    const now = html();
    const faults = [];
    if (travels && now !== before) faults.push('a selection changed the page');
    if (isKept && words() !== had) faults.push('words are lost or added');
    // Tables that go or come with their words are others.
    if (elements().length === count && wholeTables().length < whole) {
      faults.push('a table has a hole or an overlap');
    }
    const range = inside.selection.range();
    if (now !== before && document.body.firstChild && !range) faults.push('no selection is left');
    const own = markup.faults();
    if (own) faults.push(own);
    const left = markup.read();
    if (now !== before) {
      const kind = name.replace(/[ =].*/, '');
      done.set(kind, (done.get(kind) ?? 0) + 1);
      velor.exec(Command.Undo);
      if (html() !== before) faults.push(`undo gives ${html()}`);
      velor.exec(Command.Redo);
      if (html() !== now) faults.push(`redo gives ${html()}`);
    }
    return faults.length ? [faults.join(', '), shown, name, left].join('\n  ') : '';
  }

  globalThis.deeds = {
    done: () => Object.fromEntries(done),
    // Does that many steps; answers the first fault.
    rush(count) {
      copied = '';
      const loaded = html();
      for (let left = count; left > 0; left--) {
        if (chance(0.7)) select();
        if (!inside.selection.range()) inside.selection.setCaret(document.body, 0);
        inside.history.settle();
        const fault = judged(chosen());
        if (fault) return fault;
      }
      const end = html();
      while (inside.statusOf(Command.Undo) !== Status.Disabled) velor.exec(Command.Undo);
      if (html() !== loaded) return `undo ends at ${markup.read()}`;
      while (inside.statusOf(Command.Redo) !== Status.Disabled) velor.exec(Command.Redo);
      return html() === end ? '' : `redo ends at ${markup.read()}`;
    },
  };
})();
