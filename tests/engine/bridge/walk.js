// SPDX-License-Identifier: GPL-3.0-or-later
// @ts-check
// A walk at random over a page: a selection, a step, and what must be true after it, whatever the
// step was; and all of it back to the loaded page and on again.
(() => {
  'use strict';

  const { Command, Status } = inside;
  const { Undo: undo, Redo: redo } = Command;
  const { below, chance, oneOf } = pages;
  const switches = [Command.Bold, Command.Italic, Command.Underline];
  const alignments = [Command.JustifyCenter, Command.JustifyLeft, Command.JustifyRight];
  const values = [
    Command.SetBackColor, Command.SetFontName, Command.SetFontSize, Command.SetForeColor];

  const points = ['8', '14', '24'];
  const colours = ['#FF0000', '#0000FF'];
  const fonts = ['Arial', 'Courier New'];
  const blockNames = ['Normal', 'Heading 1', 'Heading 3', 'Formatted', 'Address', 'Numbered List',
    'Bulleted List', 'Directory List', 'Definition Term', 'Definition', 'Paragraph'];

  // Commands that change formats and structure; the words must stay.
  const formats = [
    ...[...switches, ...alignments, Command.OrderList, Command.UnorderList, Command.Indent,
      Command.Outdent].map((number) => () => [number]),
    () => [Command.SetBlockFormat, oneOf(blockNames)], () => [Command.SetFontSize, oneOf(points)],
    () => [Command.SetFontName, oneOf(fonts)], () => [Command.SetForeColor, oneOf(colours)],
    () => [Command.SetBackColor, oneOf(colours)],
  ];
  const keys = [
    'Return', 'Return', 'Return', 'Shift+Return', 'Backspace', 'Backspace', 'Backspace', 'Del',
    'Del', 'Ctrl+Backspace', 'Ctrl+Del', 'Tab', 'Shift+Tab', 'Left', 'Right', 'Up', 'Down', 'Home',
    'End', 'Shift+Right', 'Shift+Left', 'Shift+Down', 'Ctrl+A', 'Ctrl+B', 'Ctrl+I', 'Ctrl+Z',
    'Ctrl+Y',
  ];

  const wordsOf = (text) => text.replace(/[\s\u00a0]/g, '');
  const shownLines = () => document.body.innerText.split(/[\n\t]+/)
    .map((text) => text.replace(/[\s\u00a0]+/g, ' ').trim()).filter(Boolean);

  const look = () => ({ html: velor.serialize(), selected: markup.read() });
  // Without blanks: one at a line's edge is a no-break space while the caret is beside it.
  const unblanked = (text) => text.replace(/&nbsp;|\s/g, '');
  const same = (one, other) =>
    one.html === other.html && unblanked(one.selected) === unblanked(other.selected);

  // White space and marks away from where the step was. A command that deletes nothing leaves them
  // everywhere but at the selection's ends.
  const isTravel = ([verb, value]) => verb === 'travel' || /Ctrl\+[ZY]/.test(value);
  function sourceJudged() {
    const { parts: { before, behind, rest }, action: [verb, value], source: was } = step;
    return isTravel(step.action) ? [] : source.faults(was, {
      before: before.length, behind: behind.length, rest: rest.length,
      near: /^Ctrl\+(Backspace|Del)$/.test(value) ? 12 : 1,
      deletes: verb !== 'exec' || value === Command.Delete, joinsRaw: step.raw,
      joinsLines: step.lined });
  }

  // The block that the selection ends in; where no words follow in it, the one of the next words,
  // which a deletion may join to it.
  function lastBlock({ endContainer, endOffset }) {
    const block = inside.dom.blockOf(endContainer);
    const rest = document.createRange();
    rest.selectNodeContents(block);
    rest.setStart(endContainer, endOffset);
    if (wordsOf(rest.toString())) return block;
    const behind = document.createRange();
    behind.selectNodeContents(document.body);
    behind.setStart(endContainer, endOffset);
    const [next] = inside.selection.textsIn(behind)
      .filter((text) => wordsOf(text.data));
    return next ? inside.dom.blockOf(next) : block;
  }
  // The words before, in and behind the selection, and `rest`, those up to the end of that block.
  function parts() {
    const range = inside.selection.range();
    if (!range) return null;
    const part = (set) => {
      const other = document.createRange();
      other.selectNodeContents(document.body);
      set(other);
      return wordsOf(other.toString());
    };
    return {
      all: wordsOf(document.body.textContent),
      // Of cells the words that are not in them, before and behind the first.
      cells: cellsSelected(range),
      before: part((other) => other.setEnd(range.startContainer, range.startOffset)),
      inside: wordsOf(range.toString()),
      behind: part((other) => other.setStart(range.endContainer, range.endOffset)),
      rest: part((other) => {
        other.setEnd(lastBlock(range), lastBlock(range).childNodes.length);
        other.setStart(range.endContainer, range.endOffset);
      }),
    };
  }
  function cellsSelected(range) {
    const cells = inside.selection.cellsIn(range);
    if (!cells) return null;
    const within = (text) => cells.some((cell) => cell.contains(text));
    const words = (fits) => wordsOf(inside.dom.textsUnder(document.body).filter(fits)
      .map(({ data }) => data).join(''));
    const follows = (text) => Boolean(
      cells[0].compareDocumentPosition(text) & Node.DOCUMENT_POSITION_FOLLOWING);
    return { before: words((text) => !within(text) && !follows(text)), inside: words(within),
      behind: words((text) => !within(text) && follows(text)) };
  }
  const control = () => inside.selection.control(inside.selection.range());
  // What typing over the selection means.
  const typedOver = () =>
    inside.selection.control(inside.extent.narrowed(inside.selection.range()));
  const objects = () => document.querySelectorAll('img, hr, table, [contenteditable]').length;

  // Places where a person can put the caret.
  function places() {
    const found = [];
    const range = document.createRange();
    range.selectNodeContents(document.body);
    for (const leaf of inside.selection.leavesIn(range)) {
      if (!inside.dom.isShown(leaf)) continue;
      if (inside.dom.isText(leaf)) {
        const lead = /^[ \n]*/.exec(leaf.data)[0].length;
        for (let offset = 0; offset <= leaf.length; offset++) {
          const edge = offset === 0 || offset === leaf.length;
          if ((edge && lead < leaf.length) || leaf.data[offset] === ' ' || chance(0.3)) {
            found.push([leaf, offset]);
          }
        }
      } else if (inside.dom.isBlock(leaf) && !inside.dom.isAtom(leaf)) {
        found.push([leaf, 0]);
      } else {
        const index = inside.selection.indexOf(leaf);
        found.push([leaf.parentNode, index]);
        if (!inside.dom.isBreak(leaf)) found.push([leaf.parentNode, index + 1]);
      }
    }
    return found;
  }

  /** @type {(anchor: any[], focus: any[]) => void} */
  const put = ([anchor, from], [focus, to]) =>
    document.getSelection().setBaseAndExtent(anchor, from, focus, to);

  function select() {
    const found = places();
    if (!found.length) return;
    const kind = below(8);
    const first = below(found.length);
    if (kind < 3) {
      put(found[first], found[first]);
    } else if (kind < 5) {
      const near = Math.min(found.length - 1, first + 1 + below(4));
      put(found[first], found[near]);
    } else if (kind === 5) {
      put(found[first], oneOf(found));
    } else if (kind === 6) {
      const element = oneOf([...document.body.querySelectorAll('img, hr, table, p, h1, li, b, a')]);
      if (element) inside.selection.selectNode(element);
      else document.getSelection().selectAllChildren(document.body);
    } else {
      const block = inside.dom.blockOf(found[first][0]);
      const next = found.find(([node]) =>
        block.compareDocumentPosition(node) === Node.DOCUMENT_POSITION_FOLLOWING);
      const start = found.find(([node]) => block.contains(node));
      if (next) put(start ?? found[first], next);
    }
  }

  let trail = [];
  let step = null;
  let done = [];  // the steps, as told
  let withKeys = true;

  // A no-break space between two words.
  function needlessNoBreak() {
    const written = inside.standIns.blanksAsWritten();
    const walker = document.createTreeWalker(document.body, NodeFilter.SHOW_TEXT);
    while (walker.nextNode()) {
      const node = /** @type {Text} */ (walker.currentNode);
      const next = (from) => node.data.indexOf('\u00a0', from);
      for (let at = next(0); at >= 0; at = next(at + 1)) {
        if (written.some((each) => each.node === node && each.index === at)) continue;
        const sides = [inside.beside.beside(node, at, 'previousSibling'),
          inside.beside.beside(node, at + 1, 'nextSibling')];
        if (sides.every((side) => side && !/[\s\u00a0]/.test(side.node?.data[side.index] ?? ''))) {
          return true;
        }
      }
    }
    return false;
  }

  function newFaults() {
    const faults = markup.faults().split(', ').filter(Boolean);
    // Pages of the old dialect write these as styles too: they have no elements for them.
    const allowed = /^background-color|^font-weight|^font-style/;
    /** @type {NodeListOf<HTMLElement>} */
    const elements = document.querySelectorAll('body [style]');
    const styled = [...elements].filter((element) =>
      [...element.style].some((property) => !allowed.test(property)));
    if (inside.dom.writesStyles()) {
      if (document.querySelector('font, [align]')) faults.push('a FONT or align in an HTML5 page');
    } else if (styled.length) {
      faults.push('a style in an old page');
    }
    if (document.querySelector('span:not([style], [class], [id], [contenteditable])')) {
      faults.push('a span says nothing');
    }
    if (needlessNoBreak()) faults.push('a no-break space stands where a blank was meant');
    return faults;
  }

  // What a step did with the words.
  function wordsJudged() {
    const { parts: { all, cells, ...text }, lines, count, action, before } = step;
    const old = cells ?? text;
    const [verb, value] = action;
    const now = parts();
    if (!now) return ['the selection is lost'];
    const words = wordsOf(document.body.textContent);
    if (verb === 'exec') {
      if (value === Command.Delete) {
        const atCaret = !old.inside && (all.length - words.length <= 1 || objects() < count);
        const isWanted = words === old.before + old.behind || atCaret;
        return isWanted ? [] : ['a deletion took other words'];
      }
      const faults = [];
      if (words !== all) faults.push('words are lost or moved');
      if (objects() !== count) faults.push('an object is lost');
      const sameLines = JSON.stringify(shownLines()) === JSON.stringify(lines);
      if (!sameLines) faults.push('lines are other ones');
      if (text.inside !== now.inside) faults.push('another text is selected');
      return faults;
    }
    if (verb === 'pasteHTML' || verb === 'paste') {
      const pasted = wordsOf(new DOMParser().parseFromString(value, 'text/html').body.textContent);
      return words === old.before + pasted + old.behind ? [] : ['a paste took or moved words'];
    }
    if (verb === 'type') {
      if (step.table && words.length === all.length + wordsOf(value).length) return [];
      return words === old.before + wordsOf(value) + old.behind
        ? [] : ['typing took or moved words'];
    }
    if (verb !== 'key') return [];
    if (/Return$/.test(value)) {
      return step.table || words === old.before + old.behind ? [] : ['Enter took words'];
    }
    if (/^(Ctrl\+)?(Backspace|Del)$/.test(value)) {
      const most = value.startsWith('Ctrl') ? 12 : 1;
      if (old.inside) {
        return words === old.before + old.behind ? [] : ['a deletion took other words'];
      }
      return all.length - words.length <= most || objects() < count
        ? [] : ['a deletion at a caret took much'];
    }
    if (/Ctrl\+[ZY]/.test(value)) return [];
    if (words !== all) return ['a key took words'];
    return look().html === before.html || /Tab$/.test(value) || /Ctrl\+[BI]/.test(value)
      ? [] : ['a key changed the page'];
  }

  // A toggle does what its state promised, and a second call restores the document.
  function toggleJudged() {
    const [verb, number] = step.action;
    if (verb !== 'exec') return [];
    const changed = look().html !== step.before.html;
    const faults = [];
    if (step.status === Status.Disabled && changed) faults.push('disabled and done');
    const isIndent = [Command.Indent, Command.Outdent].includes(number);
    const isEnabled = step.status !== Status.Disabled;
    if (isIndent && isEnabled && !changed) faults.push('enabled and nothing done');
    const toggles = [...switches, Command.OrderList, Command.UnorderList];
    if (changed && toggles.includes(number)) {
      const now = inside.statusOf(number);
      const expected = step.status === Status.Latched ? Status.Enabled : Status.Latched;
      if (now !== expected) faults.push(`status ${step.status} became ${now}`);
    }
    // What lay between two ends may be one object then.
    const judges = changed && control() === step.control && alignments.includes(number);
    if (judges && inside.statusOf(number) !== Status.Latched) {
      faults.push(`aligned, and the status is ${inside.statusOf(number)}`);
    }
    return faults;
  }

  // A second call of these changes nothing.
  const settled = new Set([...alignments, ...values, Command.SetBlockFormat]);
  function repeated(now) {
    const [verb, number, value] = step.action;
    if (verb !== 'exec' || !settled.has(number) || chance(0.7)) return [];
    velor.exec(number, value);
    return look().html === now.html ? [] : [`done twice it gives ${look().selected}`];
  }

  function travelled(now) {
    if (now.html === step.before.html || chance(0.5)) return [];
    const [verb, value] = step.action;
    if ((verb === 'key' && /Ctrl\+[ZY]/.test(value)) || verb === 'travel') return [];
    velor.exec(undo);
    const back = look();
    velor.exec(redo);
    const on = look();
    const faults = [];
    // Typing goes back by words.
    if (verb !== 'type' && verb !== 'key' && !same(back, step.before)) {
      faults.push(`undo gives ${back.selected}`);
    }
    if (!same(on, now)) faults.push(`redo gives ${on.selected}`);
    return faults;
  }

  globalThis.walk = {
    look, same, select, shownLines,
    begin(keysToo) {
      withKeys = keysToo;
      trail = [look()];
      step = null;
      done = [];
    },
    body: () => velor.serialize(),
    // Chooses a selection and a step and carries that out, or answers the key that is to be
    // pressed.
    next() {
      if (!step || chance(0.6)) select();
      if (!inside.selection.range()) inside.selection.setCaret(document.body, 0);
      inside.history.settle();
      const before = look();
      const choice = pages.below(withKeys ? 20 : 12);
      let action;
      if (choice < 8) action = ['exec', ...oneOf(formats)()];
      else if (choice === 8) action = ['exec', Command.Delete];
      else if (choice === 9) action = ['pasteHTML', pages.snippet()];
      else if (choice === 10) action = ['paste', pages.snippet()];
      else if (choice === 11) action = ['travel', oneOf([undo, undo, redo])];
      else if (choice < 15) action = ['type', oneOf(['x', 'y', ' ', ' ', '.'])];
      else action = ['key', oneOf(keys)];
      const [verb, first, second] = action;
      step = {
        before, action, source: source.look(), parts: parts(), lines: shownLines(),
        count: objects(), control: control(),
        raw: inside.dom.rawAt(inside.selection.range().startContainer) !== null,
        lined: inside.dom.isPreformatted(
          inside.dom.blockOf(inside.selection.range().startContainer)),
        table: typedOver()?.tagName === 'TABLE',
        status: verb === 'exec' ? inside.statusOf(first) : 0,
      };
      done.push(`${before.selected}\n  ${action.join(' ')}`);
      if (verb === 'exec' || verb === 'travel') velor.exec(first, second);
      else if (verb === 'pasteHTML') velor.pasteHTML(first);
      else if (verb === 'paste') markup.paste('text/html', first);
      else return action.join(' ');
      return '';
    },
    // What is wrong after the step, in words; nothing when all is well.
    judge() {
      inside.history.settle();
      const now = look();
      const inOrder = step.parts ? [...wordsJudged(), ...sourceJudged()] : [];
      const faults = [...newFaults(), ...inOrder, ...toggleJudged(), ...travelled(now)];
      trail.push(step.before, now);
      faults.push(...repeated(now));
      trail.push(look());
      if (!faults.length) return '';
      const { before, action } = step;
      return [faults.join(', '), ...done.slice(-4, -1), before.selected, action.join(' '),
        now.selected].join('\n  ');
    },
    // Undoes everything, which must give the loaded page, and redoes everything.
    wayBack() {
      const end = look();
      const on = [];
      let at = trail.length - 1;
      while (inside.history.canUndo()) {
        on.push(look());
        velor.exec(undo);
        const here = look();
        while (at >= 0 && !same(trail[at], here)) at--;
        if (at < 0) return `undo comes to what never was: ${here.selected}`;
      }
      if (look().html !== trail[0].html) return `undo ends at ${look().selected}`;
      while (on.length) {
        velor.exec(redo);
        const wanted = on.pop();
        if (look().html !== wanted.html) return `redo comes to ${look().selected}`;
      }
      return look().html === end.html ? '' : `redo ends at ${look().selected}`;
    },
    // Does that many steps without keys; answers the first fault.
    rush(count) {
      for (let left = count; left > 0; left--) {
        this.next();
        const fault = this.judge();
        if (fault) return fault;
      }
      return this.wayBack();
    },
  };
})();
