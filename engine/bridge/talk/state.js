// SPDX-License-Identifier: GPL-3.0-or-later
// What the program shows of the selection: the status of every command, the five values, the kind
// of selection and the element that holds it.
(() => {
  'use strict';
  const { velor } = globalThis;

  const values = {
    backColor: 5010, blockFormat: 5011, fontName: 5013, fontSize: 5014, foreColor: 5015,
  };

  function element() {
    const found = velor.selection.element();
    if (!found) return { tag: '', attributes: [] };
    const attributes = [...found.attributes].map(({ name, value }) => [name, value]);
    return { tag: found.tagName.toUpperCase(), attributes };
  }

  function kind({ range, object }) {
    if (object) return 'Control';
    return !range || range.collapsed ? 'None' : 'Text';
  }

  velor.state = () => {
    const view = velor.view();
    const commands = {};
    for (const number of velor.commands.keys()) commands[number] = velor.status(number, view);
    const read = Object.entries(values).map(([name, number]) => [name, velor.value(number, view)]);
    return { commands, ...Object.fromEntries(read), selection: kind(view), element: element() };
  };
})();
