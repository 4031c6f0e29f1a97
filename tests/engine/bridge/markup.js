// SPDX-License-Identifier: GPL-3.0-or-later
// @ts-check
// Reads and writes a selection in markup: "^" is the anchor, "|" the focus, a "|" alone the caret.
(() => {
  'use strict';

  const locate = (sign) => {
    const walker = document.createTreeWalker(document.documentElement, NodeFilter.SHOW_TEXT);
    while (walker.nextNode()) {
      const node = /** @type {Text} */ (walker.currentNode);
      const offset = node.data.indexOf(sign);
      if (offset >= 0) return { node, offset };
    }
    return null;
  };

  // Takes the sign out. A text that held nothing else goes too.
  const take = (sign) => {
    const found = locate(sign);
    if (!found) return null;
    const { node, offset } = found;
    node.deleteData(offset, 1);
    return found;
  };
  const settle = (found, other) => {
    const { node } = found;
    if (node.length || !node.parentNode) return;
    const parent = node.parentNode;
    const index = [...parent.childNodes].indexOf(node);
    node.remove();
    for (const place of [found, other]) {
      if (place?.node === node) Object.assign(place, { node: parent, offset: index });
      else if (place?.node === parent && place.offset > index) place.offset--;
    }
  };

  // "^<img>|" means the element, not the ends of the texts around it.
  const tighten = (anchor, focus) => {
    const { node, offset } = anchor;
    const element = node.nodeType === Node.TEXT_NODE && offset === node.length && node.nextSibling;
    if (element?.nodeType !== Node.ELEMENT_NODE) return;
    if (focus.node !== element.nextSibling || focus.offset) return;
    const index = [...element.parentNode.childNodes].indexOf(element);
    Object.assign(anchor, { node: element.parentNode, offset: index });
    Object.assign(focus, { node: element.parentNode, offset: index + 1 });
  };

  const marked = (root) => {
    const { anchorNode, anchorOffset, focusNode, focusOffset, isCollapsed } = getSelection();
    const copy = root.cloneNode(true);
    const trail = (node) => {
      const indices = [];
      for (; node !== root; node = node.parentNode) {
        if (!node) return null;
        indices.unshift([...node.parentNode.childNodes].indexOf(node));
      }
      return indices;
    };
    const find = (indices) => indices.reduce((node, index) => node.childNodes[index], copy);
    const put = (place, sign) => {
      const { node, offset } = place;
      if (node.nodeType === Node.TEXT_NODE) node.insertData(offset, sign);
      else node.insertBefore(document.createTextNode(sign), node.childNodes[offset] ?? null);
    };
    const at = (node, offset) => {
      const indices = node && trail(node);
      return indices ? { node: find(indices), offset } : null;
    };
    const anchor = at(anchorNode, anchorOffset);
    const focus = at(focusNode, focusOffset);
    if (!anchor || !focus) return copy;
    if (isCollapsed) {
      put(focus, '|');
      return copy;
    }
    const order = document.createRange();
    order.setStart(anchorNode, anchorOffset);
    order.setEnd(focusNode, focusOffset);
    const forward = !order.collapsed;
    if (forward) {
      put(focus, '|');
      put(anchor, '^');
    } else {
      put(anchor, '^');
      put(focus, '|');
    }
    return copy;
  };

  /** @param {string} type */
  function takenUp(type) {
    const clipboardData = new DataTransfer();
    document.body.dispatchEvent(
      new ClipboardEvent(type, { clipboardData, bubbles: true, cancelable: true }));
    return clipboardData.getData('text/html');
  }

  let following = { revision: 0, text: '', tellings: 0 };
  let keysUp = 0;
  let composed = 0;

  globalThis.markup = {
    select() {
      const anchor = take('^');
      const focus = take('|');
      if (!focus) return;
      if (anchor) settle(anchor, focus);
      settle(focus, anchor);
      if (anchor) tighten(anchor, focus);
      const from = anchor ?? focus;
      document.getSelection().setBaseAndExtent(from.node, from.offset, focus.node, focus.offset);
    },
    read: () => marked(document.body).innerHTML,
    countKeys() {
      keysUp = 0;
      addEventListener('keyup', () => { keysUp++; }, true);
      composed = 0;
      for (const type of ['compositionupdate', 'compositionend', 'beforeinput', 'input']) {
        addEventListener(type, () => { composed++; }, true);
      }
    },
    place: (selector) => document.querySelector(selector).getBoundingClientRect(),
    keysUp: () => keysUp,
    composed: () => composed,
    // Drops data of another program.
    drop(data, clientX, clientY) {
      const dataTransfer = new DataTransfer();
      dataTransfer.setData('text/html', data);
      document.body.dispatchEvent(new DragEvent('drop',
        { dataTransfer, clientX, clientY, bubbles: true, cancelable: true }));
    },
    // The selection, or the picture at `selector`, dragged to a place of the page.
    drag(selector, clientX, clientY, ctrlKey = false) {
      const dataTransfer = new DataTransfer();
      const from = document.querySelector(selector);
      const send = (name, target) => target.dispatchEvent(new DragEvent(name,
        { dataTransfer, clientX, clientY, ctrlKey, bubbles: true, cancelable: true }));
      send('dragstart', from);
      const given = dataTransfer.getData('text/html');
      send('drop', document.body);
      send('dragend', document.body);
      return given;
    },
    // A paste of what another program has put on the clipboard.
    paste(type, data) {
      const clipboardData = new DataTransfer();
      clipboardData.setData(type, data);
      document.body.dispatchEvent(
        new ClipboardEvent('paste', { clipboardData, bubbles: true, cancelable: true }));
    },
    // A cut and a copy; each answers what it has put on the clipboard.
    cut: () => takenUp('cut'),
    copy: () => takenUp('copy'),
    // The document's text as a program has it that applies the changes it gets.
    told() {
      const { revision, html, steps } = velor.changes(following.revision);
      let text = html ?? following.text;
      for (const edits of steps ?? []) {
        let done = 0;
        const parts = [];
        for (const [offset, length, fresh] of edits) {
          parts.push(text.slice(done, offset), fresh);
          done = offset + length;
        }
        text = parts.join('') + text.slice(done);
      }
      following = { revision, text, tellings: following.tellings + (html ? 0 : 1) };
      return text;
    },
    // Begins to apply changes; every element with two elements in it is a branch.
    follow() {
      inside.dividePiecesOver(1);
      this.told();
      following.tellings = 0;
      return this.told();
    },
    // How often changes came since, in place of the whole text.
    tellings: () => following.tellings,
    // Faults in the document that no command may leave.
    faults() {
      const faults = [];
      const ids = [...document.querySelectorAll('[id]')].map((element) => element.id);
      if (new Set(ids).size < ids.length) faults.push('an id is doubled');
      const empty = [...document.querySelectorAll('b, i, u, font, span, em, strong')]
        .filter((element) => !element.firstChild);
      if (empty.length) faults.push('an inline element is empty');
      const there = (selector, what) => {
        if (document.querySelector(selector)) faults.push(what);
      };
      there('ul > ul, ul > ol, ol > ol, ol > ul', 'a list stands directly in a list');
      there('p ul, p ol, p dl, p table, p p', 'a block stands in a paragraph');
      there('dl > :not(dt, dd, script)', 'a list of definitions holds more than items');
      there('a[href] a[href]', 'a link is in a link');
      there('b b, i i, u u, strong strong, em em, b strong, strong b', 'an element is in its like');
      there('ul > p, ol > p, ul > blockquote, ol > blockquote', 'a list holds more than items');
      there(':is(h1, h2, h3, h4, h5, h6) span[style*="font-weight: normal"]',
        'a span weighs in a heading');
      const doubled = [...document.querySelectorAll('span[style] span[style], font font')]
        .filter((element) => element.parentElement.childNodes.length === 1 &&
          element.parentElement.tagName === element.tagName &&
          ['style', 'color', 'size', 'face'].some((name) => element.hasAttribute(name) &&
            element.getAttribute(name) === element.parentElement.getAttribute(name)));
      if (doubled.length) faults.push('a look is given twice');
      const text = velor.serialize();
      const parsed = new DOMParser().parseFromString(text, 'text/html');
      const root = text.slice(text.indexOf('<html'))
        .replace(/(<(?:pre|listing|textarea)\b[^>]*>)\n\n/g, '$1\n');
      if (!root.startsWith(parsed.documentElement.outerHTML)) {
        faults.push('it reads differently when loaded again');
      }
      if (this.told() !== text) faults.push('the program is told otherwise');
      return faults.join(', ');
    },
  };
})();
