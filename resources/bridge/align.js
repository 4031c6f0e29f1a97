// SPDX-License-Identifier: GPL-3.0-or-later
// Alignment: in the align attribute of the old dialect, in styles in HTML5 pages.
(() => {
  'use strict';
  const { velor } = globalThis;
  const dom = velor.dom;

  const objects = new Set(['HR', 'TABLE']);
  const bearer = ({ block }) =>
    block && (/^(P|DIV|H[1-6]|ADDRESS|HR|TABLE)$/.test(block.tagName) || dom.isPreformatted(block))
      ? block : null;

  function sideOf(element) {
    const { textAlign, direction } = getComputedStyle(element);
    const side = textAlign.replace('-webkit-', '');
    if (side === 'start') return direction === 'rtl' ? 'right' : 'left';
    if (side === 'end') return direction === 'rtl' ? 'left' : 'right';
    return side;
  }

  // A table or rule is placed by its margins.
  const margins = { left: [], center: ['margin-left', 'margin-right'], right: ['margin-left'] };
  function placeOf(object) {
    const written = object.getAttribute('align');
    if (written) return written.toLowerCase();
    const isAuto = (side) => object.style.getPropertyValue(`margin-${side}`) === 'auto';
    if (!isAuto('left')) return 'left';
    return isAuto('right') ? 'center' : 'right';
  }

  function read(unit) {
    const { block, container } = unit;
    if (block && objects.has(block.tagName)) return placeOf(block);
    return sideOf(block || container);
  }

  function addStyle(element, declarations) {
    const before = (element.getAttribute('style') ?? '').replace(/;?\s*$/, '');
    element.setAttribute('style', (before ? [before] : []).concat(declarations).join('; '));
  }
  function write(element, side, hadAttribute) {
    if (hadAttribute || !velor.dom.writesStyles()) element.setAttribute('align', side);
    else if (!objects.has(element.tagName)) addStyle(element, `text-align: ${side}`);
    else addStyle(element, margins[side].map((margin) => `${margin}: auto`));
  }

  function clear(element) {
    velor.history.attributesOf(element);
    element.removeAttribute('align');
    if (element.style.textAlign) velor.takeDeclaration(element, 'text-align');
    if (!objects.has(element.tagName)) return;
    for (const margin of margins.center) {
      if (element.style.getPropertyValue(margin) === 'auto') velor.takeDeclaration(element, margin);
    }
  }

  // Bare text in the body becomes a paragraph; in a cell or an item, where a paragraph would bring
  // its margins, a division.
  function apply(unit, side) {
    if (read(unit) === side) return;
    let element = bearer(unit);
    if (element) {
      const hadAttribute = element.hasAttribute('align');
      clear(element);
      const plain = objects.has(element.tagName) ? side === 'left' : sideOf(element) === side;
      if (!plain) write(element, side, hadAttribute);
      else dissolve(element);
      return;
    }
    const tag = /^(LI|DD|DT|TD|TH|CAPTION)$/.test(unit.container.tagName) ? 'DIV' : 'P';
    element = velor.units.enclose(unit, dom.create(tag));
    write(element, side, false);
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
