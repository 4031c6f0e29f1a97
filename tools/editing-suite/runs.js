// SPDX-License-Identifier: GPL-3.0-or-later
// @ts-check
// Runs rows, by the bridge's commands or by the engine's own, and compares what is then there, and
// what was shown before and after, with what the row expects.
(() => {
  'use strict';
  const suite = globalThis.velorSuite;
  let rows = [];

  const asksForStyles = ([, todo]) =>
    todo.some(([name, value]) => name === 'stylewithcss' && value === 'true');

  // Keeps the rows that belong to pages of this dialect and that the program can be asked for.
  suite.open = (data, styled) => {
    try {
      const all = suite.read(data).filter((row) => asksForStyles(row) === styled);
      rows = all.filter(suite.isOurs);
      return { total: rows.length, foreign: all.length - rows.length };
    } catch (error) {
      return { error: String(error) };
    }
  };

  function clear(html) {
    for (const { name } of [...document.body.attributes]) document.body.removeAttribute(name);
    document.body.innerHTML = html;
  }

  // What the program shows otherwise than the row expects: mixed, on, the value.
  /**
   * @param {any[]} question
   * @param {number} from
   */
  function differs([name, command, expected], from) {
    const [indeterm, state, value] = expected.slice(from);
    const shown = command.answers();
    const told = (answer) => `${name} ${from ? 'after' : 'before'}: ${answer}`;
    if (shown.indeterm !== indeterm) return told(shown.indeterm ? 'mixed' : 'not mixed');
    if (shown.state !== undefined) return shown.state === state ? null : told(shown.state);
    const wanted = command.means(value);
    const same = indeterm || shown.value.toUpperCase() === wanted.toUpperCase();
    return same ? null : told(`${shown.value}, not ${wanted}`);
  }
  const asked = (row) => Object.entries(row[4] ?? {})
    .filter(([name]) => suite.commands.get(name)?.answers)
    .map(([name, expected]) => [name, suite.commands.get(name), expected]);

  function byBridge(row) {
    clear(row[0]);
    suite.select(document.body);
    velor.start();
    const questions = asked(row);
    const before = questions.map((each) => differs(each, 0));
    for (const [name, value = ''] of row[1]) {
      const command = suite.commands.get(name);
      command?.run(command.value(value), name);
    }
    const html = document.body.innerHTML;
    const after = questions.map((each) => differs(each, 3));
    const states = [...before, ...after].filter(Boolean).join('; ');
    return { html, states: questions.length ? states : undefined };
  }

  // The bridge listens at the document, behind the window.
  const inputs = ['beforeinput', 'input'];
  const keepFromBridge = (event) => event.stopImmediatePropagation();

  function byEngine([html, todo]) {
    document.designMode = 'off';
    clear('<div contenteditable></div>');
    const host = /** @type {HTMLElement} */ (document.body.firstChild);
    host.innerHTML = html;
    host.focus();
    suite.select(host);
    inputs.forEach((type) => addEventListener(type, keepFromBridge, true));
    for (const [name, value] of todo) document.execCommand(name, false, value);
    inputs.forEach((type) => removeEventListener(type, keepFromBridge, true));
    const result = host.innerHTML;
    document.designMode = 'on';
    document.execCommand('styleWithCSS', false, 'false');
    document.execCommand('defaultParagraphSeparator', false, 'p');
    return { html: result };
  }

  const normals = (expected) => [expected].flat().map((each) => suite.normal(String(each)));

  const ways = { bridge: byBridge, engine: byEngine };
  suite.run = (way, from, count) => rows.slice(from, from + count).map((row) => {
    const { html, states } = ways[way](row);
    const found = suite.normal(html);
    return { holds: normals(row[2]).includes(found), found, states };
  });
  suite.row = (index) => {
    const [input, todo, expected] = rows[index];
    return { input, todo: JSON.stringify(todo), expected: normals(expected).join('  or  ') };
  };
})();
