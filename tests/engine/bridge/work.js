// SPDX-License-Identifier: GPL-3.0-or-later
// @ts-check
// Counts what the bridge does with the page's nodes: every step from node to node, every node of a
// list that it goes through, every computed style. Strings that are made of nodes count by length.
(() => {
  'use strict';

  let count = 0;
  const lengthOf = (text) => 1 + (text?.length ?? 0) / 10;
  const nodesIn = (root) => 1 + (root.getElementsByTagName?.('*').length ?? 0);

  function counted(prototype, name, weigh) {
    const property = Object.getOwnPropertyDescriptor(prototype, name);
    const wrap = (inner) => function counting(...rest) {
      const result = inner.apply(this, rest);
      count += weigh(result, this);
      return result;
    };
    const key = property.get ? 'get' : 'value';
    Object.defineProperty(prototype, name, { ...property, [key]: wrap(property[key]) });
  }

  const one = () => 1;
  for (const name of ['parentNode', 'parentElement', 'firstChild', 'lastChild', 'nextSibling',
    'previousSibling', 'contains', 'compareDocumentPosition']) counted(Node.prototype, name, one);
  counted(Element.prototype, 'closest', one);
  counted(TreeWalker.prototype, 'nextNode', one);
  counted(TreeWalker.prototype, 'previousNode', one);
  for (const { prototype } of [NodeList, HTMLCollection]) {
    counted(prototype, Symbol.iterator, (result, list) => list.length);
  }
  counted(NodeList.prototype, 'forEach', (result, list) => list.length);
  for (const { prototype } of [Document, DocumentFragment, Element]) {
    counted(prototype, 'querySelectorAll', (result, root) => nodesIn(root));
  }
  counted(Node.prototype, 'cloneNode', nodesIn);
  counted(Node.prototype, 'textContent', lengthOf);
  counted(Element.prototype, 'innerHTML', lengthOf);
  counted(Element.prototype, 'outerHTML', lengthOf);
  counted(Range.prototype, 'toString', lengthOf);
  counted(globalThis, 'getComputedStyle', one);

  // The program is told of the text between what is counted, as in idle time after a rest: told
  // while keys come it would count for the one that it happens at.
  let idle = null;
  function tell() {
    const now = () => Performance.prototype.now.call(performance);
    performance.now = () => now() + 10000;
    idle?.({ didTimeout: false, timeRemaining: () => 50 });
    performance.now = now;
  }

  globalThis.work = {
    begin() {
      globalThis.requestIdleCallback = (callback) => {
        idle = callback;
        return 0;
      };
      velor.host = /** @type {any} */ ({ pushState() {}, pushMirror() {}, inputArrived() {} });
      velor.start({});
    },
    reset() {
      tell();
      count = 0;
    },
    count: () => count,
    // The text in the middle of the page, the caret in its middle.
    place() {
      const walker = document.createTreeWalker(document.body, NodeFilter.SHOW_TEXT);
      const texts = [];
      while (walker.nextNode()) {
        const text = /** @type {Text} */ (walker.currentNode);
        if (text.data.trim()) texts.push(text);
      }
      const middle = texts[texts.length >> 1];
      getSelection().collapse(middle, middle.length >> 1);
      work.text = middle;
    },
    selectWord() {
      const { text } = work;
      getSelection().setBaseAndExtent(text, 0, text, Math.min(4, text.length));
    },
    // Sets `rested` when no animation frame of the bridge is pending.
    rest() {
      work.rested = false;
      requestAnimationFrame(() => requestAnimationFrame(() => { work.rested = true; }));
    },
  };
})();
