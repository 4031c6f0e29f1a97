// SPDX-License-Identifier: GPL-3.0-or-later
// @ts-check
// The part of other programs' markup that was copied, made ready to be cleaned.
import * as dom from '../page/dom.js';

/**
 * What is between the comments that a program has put around its fragment, with the table or list
 * that it is a part of; all of the markup where there are none.
 * @param {Document} from
 */
export function partOf({ body }) {
  const comments = document.createNodeIterator(body, NodeFilter.SHOW_COMMENT);
  /** @type {{ Start?: Node, End?: Node }} */
  const marks = {};
  for (let node = comments.nextNode(); node; node = comments.nextNode()) {
    const [, name] = /^\s*(Start|End)Fragment\s*$/.exec(node.nodeValue) ?? [];
    if (name) marks[/** @type {'Start' | 'End'} */ (name)] ??= node;
  }
  if (!marks.Start || !marks.End) return body;
  const range = document.createRange();
  range.setStartAfter(marks.Start);
  range.setEndBefore(marks.End);
  /** @type {Node} */
  let part = range.collapsed ? body : range.cloneContents();
  let at = range.commonAncestorContainer;
  for (; /^(TABLE|TBODY|THEAD|TFOOT|TR|OL|UL|PRE)$/.test(at.nodeName); at = at.parentNode) {
    const shell = at.cloneNode(false);
    shell.appendChild(part);
    part = shell;
  }
  const holder = body.ownerDocument.createElement('DIV');
  holder.append(part);
  return holder;
}

/**
 * Makes PRE of source code, which comes as a division with kept blanks for each line.
 * @param {HTMLElement} root
 */
export function makePreformatted(root) {
  /** @param {AnyNode} element */
  const isCode = ({ style }) => /^pre/.test(style.whiteSpace) &&
    /mono|courier|consolas|menlo/i.test(style.fontFamily);
  for (const code of [...root.querySelectorAll('div[style*="white-space"]')].filter(isCode)) {
    const pre = root.ownerDocument.createElement('PRE');
    code.before(pre);
    for (const node of [...code.childNodes]) {
      const line = node.nodeName === 'DIV';
      pre.append(...(line ? node.childNodes : [node]), ...(line ? ['\n'] : []));
    }
    code.remove();
  }
  for (const gap of root.querySelectorAll('pre br')) gap.replaceWith('\n');
  for (const pre of root.querySelectorAll('pre')) {
    /** @type {AnyNode} */
    let last = pre;
    while (last.lastChild) last = last.lastChild;
    if (dom.isText(last)) last.data = last.data.replace(/\n$/, '');
  }
}
