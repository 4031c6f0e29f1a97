// SPDX-License-Identifier: GPL-3.0-or-later
// @ts-check
// Carries out every command on a page and tells which of them broke a rule that holds for all.
(() => {
  'use strict';

  const { Command, Status } = inside;
  const table = '<table><tbody><tr><td>x</td></tr></tbody></table>';
  /** @type {[call: string, ...values: any[]][]} */
  const changes = [
    ['exec', Command.Bold], ['exec', Command.Italic], ['exec', Command.Underline],
    ['exec', Command.JustifyCenter], ['exec', Command.OrderList], ['exec', Command.UnorderList],
    ['exec', Command.Indent], ['exec', Command.Outdent], ['exec', Command.Delete],
    ['exec', Command.SetBlockFormat, 'Heading 2'], ['exec', Command.SetBlockFormat, 'Normal'],
    ['exec', Command.SetBlockFormat, 'Definition'], ['exec', Command.SetFontSize, '18'],
    ['exec', Command.SetBackColor, '#00FF00'], ['exec', Command.SetForeColor, '#FF0000'],
    ['exec', Command.SetFontName, 'Courier New'], ['exec', Command.JustifyLeft],
    ['exec', Command.JustifyRight], ['exec', Command.SetBlockFormat, 'Formatted'],
    ['exec', Command.SetBlockFormat, 'Address'], ['exec', Command.SetBlockFormat, 'Paragraph'],
    ['exec', Command.SetBlockFormat, 'Bulleted List'],
    ['exec', Command.SetBlockFormat, 'Numbered List'],
    ['exec', Command.InsertRowBelow], ['exec', Command.InsertRowAbove],
    ['exec', Command.InsertColumnRight], ['exec', Command.InsertColumnLeft],
    ['exec', Command.DeleteRow], ['exec', Command.DeleteColumn], ['exec', Command.DeleteTable],
    ['exec', Command.MergeCells], ['exec', Command.SplitCell], ['exec', Command.MoveRowUp],
    ['exec', Command.MoveRowDown], ['exec', Command.MoveColumnLeft],
    ['exec', Command.MoveColumnRight], ['exec', Command.DistributeColumns],
    ['exec', Command.AbsolutePosition], ['exec', Command.BringToFront],
    ['exec', Command.BringForward], ['exec', Command.SendToBack], ['exec', Command.SendBackward],
    ['exec', Command.SendBelowText], ['exec', Command.BringAboveText],
    ['pasteHTML', '<code>x</code>'], ['pasteHTML', '<p>x</p>'],
    ['pasteHTML', table], ['pasteHTML', ''],
  ];

  const look = () => ({ html: velor.serialize(), selected: markup.read() });
  // A second call takes back the first of these; a second call of the others changes nothing.
  const toggles = new Set([Command.Bold, Command.Italic, Command.Underline]);
  // Commands whose markup depends on the page's dialect.
  const written = new Set([
    Command.JustifyCenter, Command.JustifyLeft, Command.JustifyRight, Command.SetBackColor,
    Command.SetFontName, Command.SetFontSize, Command.SetForeColor,
  ]);
  const settled = new Set([...written, Command.SetBlockFormat]);
  // Commands that apply to tables and to objects alone.
  const onlyThere =
    new Set(Object.values(Command).filter((number) => number > Command.UnorderList));
  // Commands that must change something wherever they are enabled.
  const honest = new Set([Command.Indent, Command.Outdent]);

  // A run that was joined with its neighbour has the neighbour's tag: both tags count as one.
  const spelled = { STRONG: 'B', EM: 'I' };
  function formatsOf(text) {
    const names = [];
    for (let at = text.parentNode; at !== document; at = at.parentNode) {
      names.push(spelled[at.tagName] ?? at.tagName);
    }
    return names.sort().join();
  }
  function runs() {
    const walker = document.createTreeWalker(document.body, NodeFilter.SHOW_TEXT);
    const found = [];
    while (walker.nextNode()) {
      const text = /** @type {Text} */ (walker.currentNode);
      const formats = formatsOf(text);
      if (found.at(-1)?.formats === formats) found.at(-1).text += text.data;
      else found.push({ formats, text: text.data });
    }
    return JSON.stringify(found);
  }

  const same = (one, other) => one.html === other.html && one.selected === other.selected;

  function tryOne(body, [name, ...values]) {
    document.body.innerHTML = body;
    markup.select();
    velor.start();
    markup.follow();
    const faultsBefore = markup.faults();
    const before = look();
    const runsBefore = runs();
    const [number] = values;
    const status = name === 'exec' ? inside.statusOf(number) : Status.Enabled;
    velor[name](...values);
    velor.state();
    const after = look();
    const faults = markup.faults();
    if (faults && faults !== faultsBefore) return `${faults}: ${after.selected}`;
    const changed = inside.history.canUndo();
    if (changed !== (after.html !== before.html)) return `step without change: ${after.selected}`;
    if (honest.has(number) && (status !== Status.Disabled) !== changed) {
      return `status ${status}: ${after.selected}`;
    }
    if (!changed) return '';
    const settles = settled.has(number) && values[1] !== 'Definition';
    if (settles || (toggles.has(number) && status === Status.Enabled)) {
      velor[name](...values);
      const twice = look().html;
      const back = toggles.has(number) ? runs() === runsBefore : twice === after.html;
      if (!back) return `twice: ${after.selected} then ${look().selected}`;
      if (inside.history.canUndo() && twice !== after.html) velor.exec(Command.Undo);
    }
    velor.exec(Command.Undo);
    if (inside.history.canUndo() || !same(look(), before)) return `undo: ${look().selected}`;
    if (markup.told() !== before.html) return `told otherwise: ${markup.told()}`;
    velor.exec(Command.Redo);
    if (!same(look(), after)) return `redo: ${look().selected}`;
    return markup.told() === after.html ? '' : `told otherwise: ${markup.told()}`;
  }

  const within = (node, selector) =>
    (node.nodeType === Node.ELEMENT_NODE ? node : node.parentElement).closest(selector);
  const inlinesOver = (node) => {
    let count = 0;
    for (let at = node.parentNode; inside.dom.isInline(at); at = at.parentNode) count++;
    return count;
  };
  // The kinds of selections, each with its test of a range.
  const kinds = {
    caret: ({ collapsed }) => collapsed,
    word: ({ collapsed, startContainer: start, endContainer: end }) =>
      !collapsed && start === end && start.nodeType === Node.TEXT_NODE,
    'across blocks': ({ startContainer: start, endContainer: end }) =>
      inside.dom.blockOf(start) !== inside.dom.blockOf(end),
    'across items': ({ startContainer: start, endContainer: end }) => {
      const [first, last] = [within(start, 'li'), within(end, 'li')];
      return Boolean(first && last) && first !== last;
    },
    'in a cell': ({ collapsed, startContainer: start, endContainer: end }) => {
      const [first, last] = [within(start, 'td, th'), within(end, 'td, th')];
      return !collapsed && first !== null && first === last;
    },
    'across cells': ({ startContainer: start, endContainer: end }) => {
      const [first, last] = [within(start, 'td, th'), within(end, 'td, th')];
      return Boolean(first && last) && first !== last;
    },
    'bare text': ({ collapsed, startContainer: start }) =>
      !collapsed && inside.dom.blockOf(start) === document.body,
    heading: ({ collapsed, startContainer: start }) =>
      !collapsed && within(start, 'h1, h2, h3, h4, h5, h6') !== null,
    'around a picture': (range) => !inside.selection.control(range) &&
      [...inside.selection.leavesIn(range)].some(({ tagName }) => tagName === 'IMG'),
    'nested inline elements': ({ collapsed, startContainer: start, endContainer: end }) =>
      !collapsed && inlinesOver(start) + inlinesOver(end) >= 3,
    control: (range) => inside.selection.control(range) !== null,
  };
  function kindsOf(body) {
    document.body.innerHTML = body;
    markup.select();
    velor.start();
    const range = inside.selection.range();
    return Object.keys(kinds).filter((kind) => range && kinds[kind](range));
  }

  const told = (change) => change.join(' ');
  globalThis.sweptKinds = Object.keys(kinds);
  globalThis.sweptChanges = changes.map(told);

  // Carries out every command on the page, or (`all` unset) those that the dialect matters for.
  // Tells which broke a rule and, for the page's kinds of selections, which changed something.
  globalThis.sweep = (body, all) => {
    const found = kindsOf(body);
    const cells = [];
    const broken = changes
      .filter(([, number]) => all || !inside.dom.writesStyles() || written.has(number))
      .filter(([, number]) => all || !onlyThere.has(number) || /<table|position:/.test(body))
      .map((change) => {
        const fault = tryOne(body, change);
        cells.push(...found.map((kind) => `${kind}/${told(change)}`));
        return fault && `${told(change)} gives ${fault}`;
      }).filter(Boolean).join('\n');
    return { broken, cells };
  };
})();
