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

  function outer(node) {
    switch (node.nodeType) {
      case Node.DOCUMENT_TYPE_NODE: return doctype(node);
      case Node.COMMENT_NODE: return `<!--${node.data}-->`;
      case Node.PROCESSING_INSTRUCTION_NODE: return `<?${node.target} ${node.data}>`;
      default: return node.outerHTML;
    }
  }

  velor.serialize = () => [...document.childNodes].map(outer).join('\n');
})();
