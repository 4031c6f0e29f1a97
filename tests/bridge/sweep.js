// SPDX-License-Identifier: GPL-3.0-or-later
// Carries out every command on a page and tells which of them broke a rule that holds for all.
(() => {
  'use strict';

  const table = '<table><tbody><tr><td>x</td></tr></tbody></table>';
  const changes = [
    ['exec', 5000], ['exec', 5023], ['exec', 5048], ['exec', 5024], ['exec', 5030], ['exec', 5051],
    ['exec', 5018], ['exec', 5031], ['exec', 5004], ['exec', 5043, 'Heading 2'],
    ['exec', 5043, 'Normal'], ['exec', 5043, 'Definition'], ['exec', 5045, '18'],
    ['exec', 5042, '#00FF00'], ['pasteHTML', '<b>x</b>'], ['pasteHTML', '<p>x</p>'],
    ['pasteHTML', table], ['pasteHTML', ''],
  ];

  const look = () => ({ html: velor.serialize(), selected: markup.read() });
  const same = (one, other) => one.html === other.html && one.selected === other.selected;

  function tryOne(body, [name, ...values]) {
    document.body.innerHTML = body;
    markup.select();
    velor.start();
    const faultsBefore = markup.faults();
    const before = look();
    velor[name](...values);
    velor.state();
    const after = look();
    const faults = markup.faults();
    if (faults && faults !== faultsBefore) return `${faults}: ${after.selected}`;
    const changed = velor.history.canUndo();
    if (changed !== (after.html !== before.html)) return `step without change: ${after.selected}`;
    if (!changed) return '';
    velor.exec(5049);
    if (velor.history.canUndo() || !same(look(), before)) return `undo: ${look().selected}`;
    velor.exec(5033);
    return same(look(), after) ? '' : `redo: ${look().selected}`;
  }

  globalThis.sweep = (body) => changes
    .map((change) => [change.join(' '), tryOne(body, change)])
    .filter(([, broken]) => broken)
    .map((pair) => pair.join(' gives ')).join('\n');
})();
