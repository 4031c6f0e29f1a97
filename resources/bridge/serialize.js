// SPDX-License-Identifier: GPL-3.0-or-later
// The document as text: what outerHTML leaves out is put around it.
(() => {
  'use strict';
  const { velor } = globalThis;

  function doctype({ name, publicId, systemId }) {
    let text = `<!DOCTYPE ${name}`;
    if (publicId) text += ` PUBLIC "${publicId}"`;
    else if (systemId) text += ' SYSTEM';
    if (systemId) text += ` "${systemId}"`;
    return `${text}>`;
  }

  // A parser drops a line break that comes first in these, so one that is meant is written twice.
  const dropsFirstBreak = 'pre, listing, textarea';
  const startsWithBreak = (element) => element.firstChild?.nodeType === Node.TEXT_NODE &&
    element.firstChild.data.startsWith('\n');

  function markup(root) {
    const starting = (top) => [...top.querySelectorAll(dropsFirstBreak)].filter(startsWithBreak);
    if (!starting(root).length) return root.outerHTML;
    const copy = root.cloneNode(true);
    starting(copy).forEach((element) => element.prepend('\n'));
    return copy.outerHTML;
  }

  function outer(node) {
    switch (node.nodeType) {
      case Node.DOCUMENT_TYPE_NODE: return doctype(node);
      case Node.COMMENT_NODE: return `<!--${node.data}-->`;
      case Node.PROCESSING_INSTRUCTION_NODE: return `<?${node.target} ${node.data}>`;
      default: return markup(node);
    }
  }

  velor.serialize = (page = document) => [...page.childNodes].map(outer).join('\n');
})();
