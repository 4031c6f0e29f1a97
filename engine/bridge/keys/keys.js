// SPDX-License-Identifier: GPL-3.0-or-later
// Keys and input. The engine types; here its input becomes steps of the history, and what it does
// badly or behind the history's back is done by the bridge.
(() => {
  'use strict';
  const { velor } = globalThis;
  const dom = velor.dom;

  // Input that is a command of the bridge.
  const commands = new Map([
    ['historyUndo', 5049], ['historyRedo', 5033],
    ['formatBold', 5000], ['formatItalic', 5023], ['formatUnderline', 5048],
    ['formatJustifyCenter', 5024], ['formatJustifyLeft', 5025], ['formatJustifyRight', 5026],
    ['formatIndent', 5018], ['formatOutdent', 5031],
    ['insertOrderedList', 5030], ['insertUnorderedList', 5051],
  ]);
  const shortcuts = new Map([
    ['z', 5049], ['y', 5033], ['b', 5000], ['i', 5023], ['u', 5048], ['a', 5035],
    ['shift+z', 5033],
  ]);

  const typing = new Set(['insertText', 'insertCompositionText', 'deleteCompositionText']);
  const backward = /^delete.*Backward$/;

  function kindOf({ inputType }) {
    if (typing.has(inputType)) return 'typing';
    if (inputType === 'deleteByDrag' || inputType === 'insertFromDrop') return 'drag';
    if (/^deleteBy/.test(inputType)) return inputType;
    return inputType.startsWith('delete') ? 'delete' : inputType;
  }

  // Typing is undone word by word: the first letter after a blank begins a step.
  function joins({ inputType, data }, kind) {
    if (kind === 'drag') return true;
    if (kind !== 'typing') return kind === 'delete';
    if (inputType !== 'insertText') return true;
    const { anchorNode, anchorOffset } = velor.selection.points();
    const before = dom.isText(anchorNode) ? anchorNode.data[anchorOffset - 1] : '';
    return !(/^\S/.test(data ?? '') && /\s/.test(before ?? ''));
  }

  // True when the deletion was carried out here.
  function deleted(event) {
    const range = velor.selection.range();
    if (!range) return false;
    const own = range.collapsed
      ? velor.deletion.joining(range, backward.test(event.inputType) ? 'start' : 'end')
      : () => velor.deletion.remove(range);
    if (!own) return false;
    velor.history.step('delete', own);
    return true;
  }

  function work(change) {
    velor.working = true;
    try {
      return change();
    } finally {
      velor.working = false;
    }
  }

  // Enter in preformatted text is a line end, but on an empty last line leaves it.
  const preAt = (range) =>
    dom.ancestor(range.startContainer, dom.isPreformatted);
  function breaksLine() {
    const range = velor.selection.range();
    return Boolean(range && preAt(range) && !velor.deletion.spansUnits(range));
  }
  function breakLine() {
    if (!velor.selection.range().collapsed) velor.deletion.remove(velor.selection.range());
    const range = velor.selection.range();
    const pre = preAt(range);
    const before = document.createRange();
    before.setStart(pre, 0);
    before.setEnd(range.startContainer, range.startOffset);
    const after = document.createRange();
    after.setStart(range.startContainer, range.startOffset);
    after.setEnd(pre, pre.childNodes.length);
    const [above, below] = [before.toString(), after.toString()];
    const atEnd = /^\n?$/.test(below);
    if (atEnd && above.endsWith('\n') && above + below !== '\n') {
      leavePre(pre);
      return;
    }
    const end = document.createTextNode(below === '' ? '\n\n' : '\n');
    range.insertNode(end);
    const place = { node: end, offset: 1 };
    velor.inline.joinTexts([end], [place]);
    velor.selection.setCaret(place.node, place.offset);
  }
  function leavePre(pre) {
    const last = dom.lastLeaf(pre);
    if (dom.isText(last)) last.data = last.data.replace(/\n{1,2}$/, '');
    const paragraph = dom.create('P');
    paragraph.append(dom.create('BR'));
    pre.after(paragraph);
    velor.selection.setCaret(paragraph, 0);
  }

  // What is done by the engine after all, with an eye on the blanks beside it as at typing.
  function byEngine(inputType) {
    velor.blanks.watch();
    document.execCommand(inputType);
    velor.blanks.watched({ inputType });
  }

  // The lines of an address are one address; Enter on its empty last line leaves it.
  function breakAddress(address) {
    const { startContainer, startOffset } = velor.selection.range();
    const at = dom.isText(startContainer) ? null : startContainer.childNodes[startOffset];
    const isLast = dom.isBreak(at) && dom.lastLeaf(address) === at;
    if (!isLast || !dom.isBreak(at.previousSibling)) {
      byEngine('insertLineBreak');
      return;
    }
    at.previousSibling.remove();
    at.remove();
    const paragraph = dom.create('P');
    paragraph.append(dom.create('BR'));
    address.after(paragraph);
    velor.selection.setCaret(paragraph, 0);
  }

  // Over selected text Enter first deletes that.
  function replaceByEnter() {
    velor.deletion.empty(velor.selection.range());
    const own = ownEnter();
    if (own) {
      own();
      return;
    }
    velor.typing.prepare({ inputType: 'insertParagraph' });
    byEngine('insertParagraph');
    tidySplit();
  }

  // What Enter does here where the engine would do it badly, else null.
  function ownEnter() {
    if (breaksLine()) return breakLine;
    const range = velor.selection.range();
    if (!range) return null;
    const object = velor.selection.control(range);
    const entering = object && velor.objects.entering(object);
    if (entering) return entering;
    if (!range.collapsed) return replaceByEnter;
    const gap = velor.units.gapAt(range);
    if (gap) return () => velor.typing.makeLine(gap);
    const [unit] = velor.units.unitsIn(range);
    if (!unit) return null;
    // A table has one caption.
    if (unit.container.tagName === 'CAPTION') return () => byEngine('insertLineBreak');
    if (unit.block?.tagName === 'ADDRESS' && !dom.isHollow(unit.block)) {
      return () => breakAddress(unit.block);
    }
    const item = velor.lists.itemOf(unit);
    if (!item) return null;
    const alone = unit.block && [...item.childNodes].filter(dom.isShown).length === 1;
    if (dom.isHollow(item) || alone && dom.isHollow(unit.block)) return () => velor.lists.leave(unit);
    // With other blocks in the item the engine would put the new one among those.
    const others = [...item.children].filter((child) => child !== unit.block && dom.isBlock(child));
    const goesOn = unit.block
      ? /^(P|DIV)$/.test(unit.block.tagName) && unit.block.parentNode === item &&
        dom.neighbour(unit.block, 'nextSibling')
      : unit.container === item && others.some((child) => !dom.isList(child));
    return goesOn ? () => velor.lists.split(item) : null;
  }

  // What the engine was left to carry out: it tells of Enter behind typed text as of more typing.
  let announced = null;
  let composing = false;  // an input method has written something that is not final yet

  function beforeInput(event) {
    if (velor.working || !velor.editable()) return;
    const { inputType } = event;
    announced = inputType;
    if (commands.has(inputType) || inputType.startsWith('format')) {
      event.preventDefault();
      velor.exec(commands.get(inputType));
      return;
    }
    if (inputType.startsWith('delete') && inputType !== 'deleteByDrag' &&
        inputType !== 'deleteCompositionText' && !composing && work(() => deleted(event))) {
      event.preventDefault();
      velor.schedulePush();
      return;
    }
    const entered = inputType === 'insertParagraph' ? ownEnter() : null;
    if (entered) {
      event.preventDefault();
      velor.history.step(inputType, () => work(entered));
      velor.schedulePush();
      return;
    }
    // An input method replaces what it has written before: all of that is one input.
    if (/Composition/.test(inputType)) {
      if (composing) return;
      composing = true;
    }
    const kind = kindOf(event);
    velor.history.expect(kind, joins(event, kind));
    if (inputType === 'insertText' && work(() => velor.typing.over(event.data))) {
      event.preventDefault();
      input(event);
      return;
    }
    if (inputType.startsWith('insert') && kind !== 'drag') work(() => velor.typing.prepare(event));
    work(() => velor.blanks.watch(inputType));
  }

  // A split paragraph leaves its id with the first half only.
  function dropDoubledId() {
    const element = velor.selection.element();
    for (let at = element; at && at !== document.body; at = at.parentElement) {
      if (!at.id || document.getElementById(at.id) === at) continue;
      velor.history.attributesOf(at);
      at.removeAttribute('id');
    }
  }

  // A new paragraph that is empty is outside of the link that the one before it ended with.
  function leaveLink(block) {
    const link = dom.lastLeaf(block).parentNode.closest('a[href]');
    if (!link || !block.contains(link)) return;
    const kept = velor.selection.keep();
    dom.unwrap(link);
    velor.selection.restore(kept);
  }

  // A definition follows a term, and a term a definition.
  function alternate(block) {
    const item = block.closest('DT, DD');
    const others = item && [...item.childNodes].some((node) => node !== block && dom.isShown(node));
    if (!item || item !== block && others) return;
    const before = dom.neighbour(item, 'previousSibling');
    if (before?.tagName !== item.tagName) return;
    const kept = velor.selection.keep();
    dom.rename(item, item.tagName === 'DT' ? 'DD' : 'DT');
    velor.selection.restore(kept);
  }

  // The break that held a line open is not needed where text stands before it.
  function tidySplit() {
    dropDoubledId();
    const split = dom.blockOf(velor.selection.points().anchorNode);
    if (dom.isHollow(split)) {
      leaveLink(split);
      alternate(split);
    }
    const block = dom.successor(split);
    const first = dom.neighbour(block, 'previousSibling');
    if (!dom.isElement(first) || !dom.isBlock(first) || dom.isHollow(first)) return;
    const last = dom.lastLeaf(first);
    const before = last.previousSibling;
    if (dom.isBreak(last) && before && !dom.isBreak(before)) last.remove();
  }

  function input(event) {
    if (velor.working) return;
    const { data } = event;
    const inputType = announced ?? event.inputType;
    announced = null;
    if (inputType === 'insertParagraph') work(tidySplit);
    if (inputType === 'insertText') work(() => velor.pending.typed(data));
    velor.typing.done();
    work(() => velor.blanks.watched({ inputType, data }));
    velor.pending.moved();
    velor.history.arrive();
    // What the engine changed was mostly told of before it says so.
    velor.selectionMoved();
  }

  function compositionEnd({ data }) {
    composing = false;
    work(() => velor.pending.typed(data));
    velor.history.arrive();
    // An abandoned one leaves nothing behind.
    if (!data) velor.history.finish();
  }

  const cellAt = () => {
    const range = velor.selection.range();
    return range && dom.ancestor(range.startContainer, (node) => /^(TD|TH)$/.test(node.tagName));
  };

  function intoCell(cell) {
    const leaf = dom.firstLeaf(cell);
    if (dom.isText(leaf)) velor.selection.setCaret(leaf, 0);
    else if (leaf === cell) velor.selection.setCaret(cell, 0);
    else velor.selection.setCaret(leaf.parentNode, [...leaf.parentNode.childNodes].indexOf(leaf));
  }

  function addRow(row) {
    const added = dom.twin(row);
    for (const cell of row.cells) {
      const copy = dom.twin(cell);
      copy.removeAttribute('rowspan');
      copy.append(dom.create('BR'));
      added.append(copy);
    }
    row.after(added);
    return added.cells[0];
  }

  // In a table from cell to cell, in a list one level in or out.
  function tab(backwards) {
    const cell = cellAt();
    if (!cell) {
      const [unit] = velor.units.unitsIn(velor.selection.range());
      if (unit && velor.lists.tagOf(unit)) velor.exec(backwards ? 5031 : 5018);
      return;
    }
    const step = backwards ? -1 : 1;
    const { rows } = cell.closest('TABLE');
    let next = cell.parentNode.cells[cell.cellIndex + step];
    for (let at = cell.parentNode.rowIndex + step; !next && rows[at]; at += step) {
      next = [...rows[at].cells].at(backwards ? -1 : 0);
    }
    if (next) intoCell(next);
    else if (!backwards) velor.history.step('addRow', () => intoCell(addRow(cell.parentNode)));
  }

  // The engine tells of no input where the selection begins or ends with a closed block, or where
  // there is one in place of a line.
  function besideIsland(range) {
    if (!range) return false;
    if (!range.collapsed) {
      const last = range.endContainer.childNodes[range.endOffset - 1];
      const [first] = velor.selection.leavesIn(range);
      return dom.isIsland(first) || Boolean(last) && dom.isIsland(dom.lastLeaf(last));
    }
    const [node, offset] = velor.units.gapAt(range) ?? [];
    return Boolean(node) &&
      [node.childNodes[offset - 1], node.childNodes[offset]].some(dom.isIsland);
  }
  // Deletes what is selected there and makes the line that the key is for.
  function makeWay(event) {
    const { key } = event;
    const range = velor.selection.range();
    const types = key.length === 1 || key === 'Enter';
    const deletes = /^(Delete|Backspace)$/.test(key) && !range.collapsed;
    if (!types && !deletes) return;
    if (deletes || key === 'Enter') event.preventDefault();
    if (deletes) {
      velor.exec(5004);
      return;
    }
    velor.history.expect('typing', false);
    work(() => {
      if (!range.collapsed) velor.deletion.empty(range);
      const gap = velor.units.gapAt(velor.selection.range());
      if (gap) velor.typing.makeLine(gap);
    });
    velor.history.arrive();
    velor.schedulePush();
  }

  function keyDown(event) {
    if (!velor.editable() || event.isComposing) return;
    const { key, ctrlKey, altKey, metaKey, shiftKey } = event;
    if (key === 'Tab' && !ctrlKey && !altKey && !metaKey) {
      event.preventDefault();
      tab(shiftKey);
      return;
    }
    if (!ctrlKey && !altKey && !metaKey && besideIsland(velor.selection.range())) {
      makeWay(event);
      return;
    }
    if (!ctrlKey || altKey || metaKey) return;
    const number = shortcuts.get((shiftKey ? 'shift+' : '') + key.toLowerCase());
    if (!number) return;
    event.preventDefault();
    velor.exec(number);
  }

  function selectionChange() {
    velor.pending.selectionMoved();
    velor.blanks.selectionMoved();
    velor.history.selectionMoved();
    velor.selectionMoved();
  }

  velor.listenToKeys = () => {
    document.addEventListener('beforeinput', beforeInput, true);
    document.addEventListener('input', input, true);
    document.addEventListener('compositionend', compositionEnd, true);
    document.addEventListener('keydown', keyDown, true);
    document.addEventListener('selectionchange', selectionChange);
  };
})();
