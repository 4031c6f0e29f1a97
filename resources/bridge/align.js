// SPDX-License-Identifier: GPL-3.0-or-later
// Alignment, in the align attribute of the old dialect.
(() => {
  'use strict';
  const { velor } = globalThis;
  const dom = velor.dom;

  const objects = new Set(['HR', 'TABLE']);
  const bearer = ({ block }) =>
    block && /^(P|DIV|H[1-6]|PRE|ADDRESS|HR|TABLE)$/.test(block.tagName) ? block : null;

  function sideOf(element) {
    const { textAlign, direction } = getComputedStyle(element);
    const side = textAlign.replace('-webkit-', '');
    if (side === 'start') return direction === 'rtl' ? 'right' : 'left';
    if (side === 'end') return direction === 'rtl' ? 'left' : 'right';
    return side;
  }

  function read(unit) {
    const { block, container } = unit;
    if (block && objects.has(block.tagName)) {
      return block.getAttribute('align')?.toLowerCase() || 'left';
    }
    return sideOf(block || container);
  }

  function clear(element) {
    velor.history.attributesOf(element);
    element.removeAttribute('align');
    if (element.style.textAlign) velor.takeDeclaration(element, 'text-align');
  }

  // Bare text in the body becomes a paragraph; in a cell or an item, where a paragraph would bring
  // its margins, a division.
  function apply(unit, side) {
    if (read(unit) === side) return;
    let element = bearer(unit);
    if (element) {
      clear(element);
      const plain = objects.has(element.tagName) ? side === 'left' : sideOf(element) === side;
      if (!plain) element.setAttribute('align', side);
      else dissolve(element);
      return;
    }
    const tag = /^(LI|DD|DT|TD|TH|CAPTION)$/.test(unit.container.tagName) ? 'DIV' : 'P';
    element = velor.units.enclose(unit, dom.create(tag));
    element.setAttribute('align', side);
  }

  // A division that only carried the alignment of an item goes with it.
  function dissolve(element) {
    const item = element.parentNode;
    const carried = element.tagName === 'DIV' && !element.attributes.length &&
      /^(LI|DD|DT|TD|TH|CAPTION)$/.test(item.tagName);
    if (carried && ![...item.childNodes].some((node) => node !== element && dom.isShown(node))) {
      dom.unwrap(element);
    }
  }

  velor.align = { read, apply };
})();
