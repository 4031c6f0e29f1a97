// SPDX-License-Identifier: GPL-3.0-or-later
// @ts-check
// The rows of a suite of editing tests: how they are read, how the selection in their markup is
// set, and in which one spelling markup is compared.
(() => {
  'use strict';
  const suite = {};
  globalThis.velorSuite = suite;

  // Evaluates a data file. What it defines besides its rows (elements of its own) has no meaning
  // in this world. Entries that are no rows are passed over.
  suite.read = (data) => {
    const script = new Function('customElements',
      `${data}\nreturn typeof browserTests === 'undefined' ? [] : browserTests;`);
    const rows = script({ define() {}, get() {}, whenDefined: () => Promise.resolve() });
    return rows.filter((row) =>
      Array.isArray(row) && typeof row[0] === 'string' && Array.isArray(row[1]));
  };

  // A point in the markup, as a range: brackets stand in texts, braces between nodes.
  function pointOf(root, signs, attribute) {
    const point = document.createRange();
    const bearer = root.querySelector(`[${attribute}]`);
    if (bearer) {
      point.setStart(bearer, Number(bearer.getAttribute(attribute)));
      bearer.removeAttribute(attribute);
      return point;
    }
    const walker = document.createTreeWalker(root, NodeFilter.SHOW_TEXT);
    while (walker.nextNode()) {
      const text = /** @type {Text} */ (walker.currentNode);
      const at = text.data.search(signs);
      if (at < 0) continue;
      const between = /[{}]/.test(text.data[at]);
      text.deleteData(at, 1);
      if (!between) point.setStart(text, at);
      else if (!text.length) {
        point.setStartBefore(text);
        text.remove();
      } else if (at === 0) point.setStartBefore(text);
      else if (at === text.length) point.setStartAfter(text);
      else point.setStartBefore(text.splitText(at));
      point.collapse(true);
      return point;
    }
    return null;
  }
  suite.select = (root) => {
    const start = pointOf(root, /[[{]/, 'data-start');
    const end = pointOf(root, /[\]}]/, 'data-end');
    if (!start || !end) return;
    getSelection().setBaseAndExtent(
      start.startContainer, start.startOffset, end.startContainer, end.startOffset);
  };

  // A colour by its parts, however it is spelled.
  const pen = document.createElement('canvas').getContext('2d');
  /** @type {(spelled: string) => string} */
  suite.colour = (spelled) => {
    pen.fillStyle = '#000000';
    pen.fillStyle = spelled;
    return String(pen.fillStyle);
  };

  // Markup in one spelling: styles as the engine writes them, neighbouring texts joined.
  suite.normal = (html) => {
    const parsed = document.createElement('div');
    parsed.innerHTML = html;
    pointOf(parsed, /[[{]/, 'data-start');
    pointOf(parsed, /[\]}]/, 'data-end');
    /** @type {NodeListOf<HTMLElement>} */
    const styled = parsed.querySelectorAll('[style]');
    for (const element of styled) {
      const { style } = element;
      if (style.color) style.color = suite.colour(style.color);
      if (style.backgroundColor) style.backgroundColor = suite.colour(style.backgroundColor);
      const { cssText } = style;
      if (cssText) element.setAttribute('style', cssText);
      else element.removeAttribute('style');
    }
    for (const element of parsed.querySelectorAll('[color]')) {
      element.setAttribute('color', element.getAttribute('color').toLowerCase());
    }
    parsed.normalize();
    return parsed.innerHTML;
  };
})();
