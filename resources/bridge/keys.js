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

  // Input that fills an empty paragraph, so that nothing need keep it open any more.
  const fills = new Set(['insertText', 'insertFromPaste', 'insertReplacementText']);

  // What may hold text without a paragraph around it; one of these that has a name is there once.
  const bare = /^(BODY|TD|TH|BLOCKQUOTE|FORM|CENTER|DIV|SECTION|ARTICLE|MAIN|HEADER|FOOTER|ASIDE|NAV)$/;

  // Bare text becomes a paragraph before it is split; so does the first text of an empty page.
  function needsParagraph(unit, { inputType }) {
    if (!unit || !bare.test(unit.container.tagName)) return false;
    const empty = () => unit.container === document.body && dom.isHollow(document.body);
    if (inputType !== 'insertParagraph' && (inputType !== 'insertText' || !empty())) return false;
    return !unit.block || unit.block.id !== '';
  }
  function makeParagraph(unit) {
    const kept = velor.selection.keep();
    const paragraph = velor.units.enclose(unit, dom.create('P'));
    if (!dom.hasContent(paragraph)) {
      paragraph.append(dom.create('BR'));
      velor.selection.setCaret(paragraph, 0);
    } else {
      velor.selection.restore(kept);
    }
  }

  // Texts that the person typed in: a no-break space there is one of theirs.
  const typedIn = new WeakSet();

  // The no-break space that is all a paragraph or cell holds, which keeps an empty one open.
  const isHolder = (text) => /^[ \t\n]*\u00a0[ \t\n]*$/.test(text.data);
  function holderOf(unit, { startContainer }) {
    if (dom.isText(startContainer) && !isHolder(startContainer)) return null;
    if (unit?.nodes.length !== 1) return null;
    let [at] = unit.nodes;
    while (!dom.isText(at)) {
      if (dom.isAtom(at) || at.childNodes.length !== 1) return null;
      at = at.firstChild;
    }
    return isHolder(at) && !typedIn.has(at) ? at : null;
  }

  function prepareInsertion(event) {
    const range = velor.selection.range();
    if (!range) return;
    if (velor.deletion.spansUnits(range)) velor.deletion.remove(range);
    else velor.deletion.tighten(range);
    const caret = velor.selection.range();
    const [unit] = velor.units.unitsIn(caret);
    if (needsParagraph(unit, event)) makeParagraph(unit);
    const holder = fills.has(event.inputType) ? holderOf(unit, caret) : null;
    if (holder) document.getSelection().setBaseAndExtent(holder, 0, holder, holder.length);
  }

  // True when the deletion was carried out here.
  function deleted(event) {
    const range = velor.selection.range();
    if (!range) return false;
    const own = velor.selection.control(range) || velor.deletion.spansUnits(range)
      ? () => velor.deletion.remove(range)
      : velor.deletion.joining(range, backward.test(event.inputType) ? 'start' : 'end');
    if (!own) {
      velor.deletion.tighten(range);
      return false;
    }
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
    dom.ancestor(range.startContainer, (node) => /^(PRE|LISTING|XMP)$/.test(node.tagName ?? ''));
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

  // What Enter does here where the engine would do it badly, else null.
  function ownEnter() {
    if (breaksLine()) return breakLine;
    const range = velor.selection.range();
    const [unit] = range?.collapsed ? velor.units.unitsIn(range) : [];
    if (!unit) return null;
    // A table has one caption.
    if (unit.container.tagName === 'CAPTION') return () => document.execCommand('insertLineBreak');
    const item = velor.lists.itemOf(unit);
    return item && dom.isHollow(item) ? () => velor.lists.leave(unit) : null;
  }

  let composing = false;  // an input method has written something that is not final yet

  function beforeInput(event) {
    if (velor.working || !velor.editable()) return;
    const { inputType } = event;
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
    if (inputType.startsWith('insert') && kind !== 'drag') work(() => prepareInsertion(event));
    velor.blanks.watch();
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

  // The break that held a line open is not needed where text stands before it.
  function tidySplit() {
    dropDoubledId();
    const block = dom.blockOf(velor.selection.points().anchorNode);
    const first = dom.neighbour(block, 'previousSibling');
    if (!dom.isElement(first) || !dom.isBlock(first) || dom.isHollow(first)) return;
    const last = dom.lastLeaf(first);
    const before = last.previousSibling;
    if (dom.isBreak(last) && before && !dom.isBreak(before)) last.remove();
  }

  function input(event) {
    if (velor.working) return;
    if (event.inputType === 'insertParagraph') work(tidySplit);
    if (event.inputType === 'insertText') work(() => velor.pending.typed(event.data));
    const { anchorNode } = velor.selection.points();
    if (anchorNode) typedIn.add(anchorNode);
    work(() => velor.blanks.watched(event));
    velor.pending.moved();
    velor.history.arrive();
    // What the engine changed was mostly told of before it says so.
    velor.selectionMoved();
  }

  function compositionEnd({ data }) {
    composing = false;
    work(() => velor.pending.typed(data));
    velor.history.arrive();
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

  function tab(backwards) {
    const cell = cellAt();
    if (!cell) return;
    const step = backwards ? -1 : 1;
    const { rows } = cell.closest('TABLE');
    let next = cell.parentNode.cells[cell.cellIndex + step];
    for (let at = cell.parentNode.rowIndex + step; !next && rows[at]; at += step) {
      next = [...rows[at].cells].at(backwards ? -1 : 0);
    }
    if (next) intoCell(next);
    else if (!backwards) velor.history.step('addRow', () => intoCell(addRow(cell.parentNode)));
  }

  function keyDown(event) {
    if (!velor.editable() || event.isComposing) return;
    const { key, ctrlKey, altKey, metaKey, shiftKey } = event;
    if (key === 'Tab' && !ctrlKey && !altKey && !metaKey) {
      event.preventDefault();
      tab(shiftKey);
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
