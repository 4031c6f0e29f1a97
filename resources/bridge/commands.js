// SPDX-License-Identifier: GPL-3.0-or-later
// The one table of commands: a published number, the answer whether it applies and what it does.
// Both look at the same view of the selection, so that enabling and doing cannot drift apart.
(() => {
  'use strict';
  const { velor } = globalThis;

  // The published numbers of a command's status.
  const Disabled = 1;
  const Enabled = 3;
  const Latched = 7;
  const Ninched = 11;

  const spread = (answers) =>
    answers.length && answers.every(Boolean) ? Latched : answers.some(Boolean) ? Ninched : Enabled;
  // The one value of all, or the empty text.
  const common = (values, same = (one, other) => one === other) =>
    values.length && values.every((value) => same(value, values[0])) ? values[0] : '';

  // What a command may want to know of the selection, each read once and only when asked for.
  velor.view = () => {
    const range = velor.selection.range();
    const once = (read) => {
      let known;
      return () => (known ??= read());
    };
    return {
      range,
      object: velor.selection.control(range),
      texts: once(() => velor.selection.textsIn(range, velor.selection.textLimit)),
      units: once(() => velor.units.unitsIn(range, velor.selection.textLimit)),
    };
  };

  // The values of a character format in the selection, or at the caret.
  function readings({ range, texts }, name) {
    const { read } = velor.formats[name];
    if (texts().length) {
      const parents = new Set(texts().map((text) => text.parentElement));
      return [...parents].map(read);
    }
    return [velor.pending.has(name) ? velor.pending.get(name) : read(velor.selection.caretElement(range))];
  }

  function put(name, value, { range, texts }) {
    const kept = range.collapsed || !texts().length;
    if (kept) velor.pending.set(name, value);
    else velor.inline.apply(name, value, range);
  }

  const whereText = (status) => (view) => (view.object ? Disabled : status(view));
  const onUnits = (change) => (value, view) => {
    const kept = velor.selection.keep();
    change(view.units(), value);
    velor.selection.restore(kept);
  };

  const toggle = (name) => ({
    status: whereText((view) => spread(readings(view, name))),
    run: (value, view) => put(name, spread(readings(view, name)) !== Latched, view),
  });

  const character = (name) => ({
    status: whereText(() => Enabled),
    run(value, view) {
      const format = velor.formats[name];
      const wanted = format.parse(value);
      if (wanted === '') return;
      if (readings(view, name).every((each) => format.same(each, wanted))) return;
      put(name, wanted, view);
    },
  });

  const justify = (side) => ({
    status: (view) => spread(view.units().map((unit) => velor.align.read(unit) === side)),
    run: onUnits((units) => units.forEach((unit) => velor.align.apply(unit, side))),
  });

  const list = (tag) => {
    const status = (view) => spread(view.units().map((unit) => velor.lists.tagOf(unit) === tag));
    return {
      status: (view) => (view.units().length ? status(view) : Disabled),
      run(value, view) {
        if (status(view) === Latched) velor.lists.unlist();
        else onUnits((units) => velor.lists.make(units, tag, 'LI'))(value, view);
      },
    };
  };

  const query = (value) => ({ status: () => Enabled, value });
  const reading = (name) => query((view) => {
    const { same } = velor.formats[name];
    return common(readings(view, name), same);
  });

  // Carried out by the engine itself at the program's call; only its status is answered here.
  const byEngine = (status) => ({ status });
  const selected = (view) => (view.range.collapsed ? Disabled : Enabled);
  const always = () => Enabled;

  velor.commands = new Map([
    [5000, toggle('bold')],
    [5002, byEngine(selected)],  // Copy
    [5003, byEngine(selected)],  // Cut
    [5004, {  // Delete
      status: always,
      run(value, { range }) {
        if (!range.collapsed) {
          velor.deletion.remove(range);
          return;
        }
        const join = velor.deletion.joining(range, 'end');
        if (join) join();
        else document.execCommand('forwardDelete');
      },
    }],
    [5010, reading('backColor')],
    [5011, query((view) => common(view.units().map(velor.blocks.read)))],
    [5013, reading('fontName')],
    [5014, reading('fontSize')],
    [5015, reading('foreColor')],
    [5018, {  // Indent
      status: (view) => (view.units().length ? Enabled : Disabled),
      run: onUnits(velor.indent.indent),
    }],
    [5023, toggle('italic')],
    [5024, justify('center')],
    [5025, justify('left')],
    [5026, justify('right')],
    [5030, list('OL')],
    [5031, {  // Outdent
      status: (view) => (view.units().some(velor.indent.canOutdent) ? Enabled : Disabled),
      run: onUnits(velor.indent.outdent),
    }],
    [5032, byEngine(always)],  // Paste
    [5033, {  // Redo
      status: () => (velor.history.canRedo() ? Enabled : Disabled),
      travel: () => velor.history.redo(),
    }],
    [5035, {  // SelectAll
      status: always,
      travel: () => document.getSelection().selectAllChildren(document.body),
    }],
    [5042, character('backColor')],
    [5043, {  // SetBlockFormat
      status: (view) => (view.units().length ? Enabled : Disabled),
      run: (value, view) => velor.blocks.apply(value, view.range),
    }],
    [5044, character('fontName')],
    [5045, character('fontSize')],
    [5046, character('foreColor')],
    [5048, toggle('underline')],
    [5049, {  // Undo
      status: () => (velor.history.canUndo() ? Enabled : Disabled),
      travel: () => velor.history.undo(),
    }],
    [5051, list('UL')],
  ]);

  // Status, and the value of a query, by number; without a caret nothing applies.
  velor.status = (number, view = velor.view()) =>
    (view.range ? velor.commands.get(number).status(view) : Disabled);
  velor.value = (number, view = velor.view()) =>
    (view.range ? velor.commands.get(number).value(view) : '');

  // True while a command is at work: what the engine reports then is no input of the person's.
  velor.working = false;

  velor.exec = (number, value = '') => {
    const command = velor.commands.get(number);
    if (!command || velor.working) return false;
    velor.history.settle();
    const view = velor.view();
    if (velor.status(number, view) === Disabled) return false;
    if (command.value) return velor.value(number, view);
    velor.working = true;
    try {
      if (command.travel) command.travel();
      else if (command.run) velor.history.step(number, () => command.run(String(value), view));
    } finally {
      velor.working = false;
    }
    velor.schedulePush();
    return true;
  };
})();
