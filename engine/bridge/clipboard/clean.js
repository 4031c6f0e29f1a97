// SPDX-License-Identifier: GPL-3.0-or-later
// @ts-check
// Cleans markup of other programs (office documents, mail, browsers): its structure, links,
// pictures, tables and emphasis stay, its private markup and its looks do not. A new tree is built
// of what is known, so that nothing unknown comes in. Functions here answer lists of new nodes.
import * as dom from '../page/dom.js';

/** @param {string} names */
const set = (names) => new Set(names.split(' '));
const dropped = set(
  'APPLET AUDIO BASE BUTTON CANVAS COL COLGROUP EMBED FRAME FRAMESET HEAD IFRAME INPUT LINK ' +
  'META NOSCRIPT OBJECT SCRIPT SELECT STYLE svg TEMPLATE TEXTAREA TITLE VIDEO XML');
const structure = set(
  'ADDRESS BLOCKQUOTE CAPTION DD DL DT H1 H2 H3 H4 H5 H6 HR LI OL P PRE TABLE TBODY TD TFOOT ' +
  'TH THEAD TR UL');
const emphasis = set(
  'ABBR B BIG CITE CODE DEL DFN EM I INS KBD MARK Q S SAMP SMALL STRIKE STRONG SUB SUP TT U VAR');
/** @type {Record<string, string[]>} */
const attributes = {
  A: ['href', 'name', 'title', 'target'],
  IMG: ['src', 'alt', 'title', 'width', 'height', 'border'],
  TABLE: ['border', 'cellpadding', 'cellspacing', 'width'], OL: ['start', 'type'], UL: ['type'],
  TD: ['colspan', 'rowspan', 'align', 'valign'], TH: ['colspan', 'rowspan', 'align', 'valign'],
};
// Elements without content.
const empties = set('BR HR IMG');

// The tags for what is emphasis in a style.
/** @type {[tag: string, says: (style: CSSStyleDeclaration) => boolean][]} */
const styled = [
  ['B', ({ fontWeight }) => /bold/.test(fontWeight) || Number(fontWeight) >= 600],
  ['I', ({ fontStyle }) => /italic|oblique/.test(fontStyle)],
  ['U', (style) => /underline/.test(style.textDecoration + style.textDecorationLine)],
  ['S', (style) => /line-through/.test(style.textDecoration + style.textDecorationLine)],
  ['SUP', ({ verticalAlign }) => verticalAlign === 'super'],
  ['SUB', ({ verticalAlign }) => verticalAlign === 'sub'],
];
// True for an element that its own style makes none: some programs put such a B around everything.
/** @param {HTMLElement} element */
const isUndone = ({ tagName, style }) =>
  (/^(B|STRONG)$/.test(tagName) && /^(normal|400)$/.test(style.fontWeight)) ||
  (/^(I|EM)$/.test(tagName) && style.fontStyle === 'normal');

/** @param {AnyNode} node */
const isBlock = (node) => dom.isElement(node) && dom.isBlock(node);
/**
 * @param {AnyNode[]} nodes
 * @returns {boolean}
 */
const hasText = (nodes) => nodes.some((node) => {
  if (dom.isText(node)) return /[^ \n]/.test(node.data);
  return empties.has(node.tagName) || hasText([...node.childNodes]);
});

// The nodes of a line less the breaks at its ends, which are there as a gap or to hold it open.
/** @param {AnyNode[]} nodes */
function withoutGaps(nodes) {
  /** @param {AnyNode} node */
  const isGap = (node) => dom.isBreak(node) || (dom.isText(node) && !hasText([node]));
  const shown = nodes.filter((node) => !isGap(node));
  const [first, last] = [nodes.indexOf(shown[0]), nodes.indexOf(shown.at(-1))];
  /** @param {AnyNode[]} part */
  const breaks = (part) => part.some(dom.isBreak);
  return shown.length ? nodes.slice(breaks(nodes.slice(0, first)) ? first : 0,
    breaks(nodes.slice(last)) ? last + 1 : nodes.length) : [];
}
// Runs of inline nodes between blocks become paragraphs; those that show nothing go.
/** @param {AnyNode[]} nodes */
function paragraphs(nodes) {
  const result = [];
  /** @type {AnyNode[]} */
  let run = [];
  const flush = () => {
    const shown = withoutGaps(run);
    if (hasText(shown)) result.push(elementAround('P', shown));
    run = [];
  };
  for (const node of nodes) {
    if (isBlock(node)) {
      flush();
      result.push(node);
    } else {
      run.push(node);
    }
  }
  flush();
  return result;
}
/**
 * @param {string} tag
 * @param {AnyNode[]} nodes
 */
function elementAround(tag, nodes) {
  const element = dom.create(tag);
  element.append(...nodes);
  return element;
}

// False for an address that runs a script, or that means something in the other program only.
/**
 * @param {string} name
 * @param {string} value
 */
function isSafeAddress(name, value) {
  const address = value.trim().replace(/[\u0000-\u0020]/g, '');
  if (name === 'href') return !/^(javascript|vbscript|data):/i.test(address);
  return name !== 'src' || !/^(javascript|cid|blob|about):|msohtml/i.test(address);
}
/**
 * @param {Element} from
 * @param {Element} to
 */
function copyAttributes(from, to) {
  // Programs say "from left to right" of everything.
  if (from.getAttribute('dir')?.toLowerCase() === 'rtl') to.setAttribute('dir', 'rtl');
  for (const name of attributes[from.tagName] ?? []) {
    const value = from.getAttribute(name);
    const own = name === 'name' && value?.startsWith('_');
    if (value !== null && !own && isSafeAddress(name, value)) to.setAttribute(name, value);
  }
  return to;
}

// Wraps nodes by `make`, which is given a line's nodes: within each line where there are blocks.
/**
 * @param {AnyNode[]} nodes
 * @param {(line: AnyNode[]) => Node} make
 * @returns {AnyNode[]}
 */
function wrapLines(nodes, make) {
  if (!hasText(nodes)) return nodes;
  if (!nodes.some(isBlock)) return [make(nodes)];
  return nodes.flatMap((node) => {
    if (!isBlock(node) || empties.has(node.tagName)) return wrapLines([node], make);
    const lines = wrapLines([...node.childNodes], make);
    node.append(...lines);
    return [node];
  });
}

// The content with the emphasis that an element's style has.
/**
 * @param {AnyNode[]} nodes
 * @param {HTMLElement} element
 * @param {Set<string>} inside
 */
function emphasised(nodes, element, inside) {
  if (!nodes.length || !element.hasAttribute('style')) return nodes;
  const names = styled.filter(([, says]) => says(element.style)).map(([tag]) => tag)
    .filter((tag) => !inside.has(tag) && !(tag === 'U' && inside.has('A')));
  return names.reduce((content, tag) => inEmphasis(content, tag), nodes);
}

// The nodes in an element of emphasis; headings are bold without one.
/**
 * @param {AnyNode[]} nodes
 * @param {string} tag
 */
function inEmphasis(nodes, tag) {
  const bold = /^(B|STRONG)$/.test(tag);
  return nodes.some(isBlock)
    ? nodes.flatMap((node) =>
      (bold && isBlock(node) && /^(H[1-6]|TH)$/.test(node.tagName)
        ? [node] : wrapLines([node], (content) => elementAround(tag, content))))
    : wrapLines(nodes, (content) => elementAround(tag, content));
}

// Tags that mean the same for `inside`.
/** @type {Record<string, string>} */
const same = { STRONG: 'B', EM: 'I', INS: 'U' };
// What one node becomes. `inside`: the tags around it.
/**
 * @param {AnyNode} node
 * @param {Set<string>} inside
 * @returns {AnyNode[]}
 */
function clean(node, inside) {
  if (dom.isText(node)) return [cleanText(node, inside)].filter(({ length }) => length);
  if (!dom.isElement(node) || dropped.has(node.tagName)) return [];
  const tag = node.tagName;
  const kind = same[tag] ?? tag;
  const plain = isUndone(node) || (inside.has(kind) && emphasis.has(tag));
  const within = new Set([...inside, ...(plain ? [] : [kind])]);
  if (/^(H[1-6]|TH)$/.test(tag)) within.add('B');
  if (empties.has(tag)) return copyOfEmpty(node);
  const all = [...node.childNodes].flatMap((child) => clean(child, within));
  const content = emphasised(all, node, within);
  if (tag === 'A') return link(node, content);
  if (emphasis.has(tag) && !plain) return inEmphasis(content, tag);
  if (structure.has(tag)) return structured(node, content);
  return dom.isBlock(node) ? paragraphs(content) : content;
}
/**
 * @param {Text} text
 * @param {Set<string>} inside
 */
function cleanText({ data }, inside) {
  if (inside.has('PRE')) return document.createTextNode(data);
  return document.createTextNode(data.replace(/[ \t\r\n\u00a0]+/g, ' '));
}
/** @param {Element} node */
function copyOfEmpty(node) {
  const copy = copyAttributes(node, dom.create(node.tagName));
  return node.tagName === 'IMG' && !copy.hasAttribute('src') ? [] : [copy];
}
/**
 * @param {Element} node
 * @param {AnyNode[]} content
 */
function link(node, content) {
  const copy = copyAttributes(node, dom.create('A'));
  if (!copy.hasAttribute('href') && !copy.hasAttribute('name')) return content;
  if (content.some(isBlock)) {
    return wrapLines(content, (line) => {
      const part = /** @type {Element} */ (copy.cloneNode(false));
      copy.removeAttribute('name');
      part.append(...line);
      return part;
    });
  }
  copy.append(...content);
  return [copy];
}

// What an element of the structure becomes, given what its content became.
/**
 * @param {Element} node
 * @param {AnyNode[]} content
 */
function structured(node, content) {
  const tag = node.tagName;
  if (/^(UL|OL|DL)$/.test(tag)) return list(node, content);
  if (/^(TABLE|TBODY|THEAD|TFOOT|TR)$/.test(tag)) {
    const parts = content.filter(isBlock);
    const copy = copyAttributes(node, elementAround(tag, parts));
    return parts.length ? [copy] : [];
  }
  const blocks = content.some(isBlock);
  if (/^(LI|TD|TH|DD|CAPTION)$/.test(tag)) {
    const inner = blocks ? unwrapSingle(content) : content;
    const lines = tag === 'LI' && !blocks ? withoutGaps(inner) : inner;
    return [copyAttributes(node, elementAround(tag, trim(lines)))];
  }
  if (tag === 'BLOCKQUOTE') {
    return blocks || hasText(content) ? [elementAround(tag, paragraphs(content))] : [];
  }
  // A paragraph or heading around blocks is none; an empty one is a gap.
  if (blocks) return paragraphs(content);
  const line = tag === 'PRE' ? content : trim(withoutGaps(content));
  return hasText(line) ? [copyAttributes(node, elementAround(tag, line))] : [];
}
// The content of an item or cell; a paragraph that is all of it, but for lists behind, is
// unwrapped.
/** @param {AnyNode[]} content */
function unwrapSingle(content) {
  const shown = content.filter((node) => !dom.isText(node) || hasText([node]));
  if (shown[0]?.tagName === 'P' && shown.slice(1).every(dom.isList)) {
    return [...shown[0].childNodes, ...shown.slice(1)];
  }
  return shown;
}
/** @param {AnyNode[]} nodes */
function trim(nodes) {
  const result = [...nodes];
  if (dom.isText(result[0])) result[0].data = result[0].data.replace(/^ /, '');
  const last = result.at(-1);
  if (dom.isText(last)) last.data = last.data.replace(/ $/, '');
  return result.filter((node) => !dom.isText(node) || node.length);
}
// What a list becomes: one with items only; a list directly in it goes into the item before.
/**
 * @param {Element} node
 * @param {AnyNode[]} content
 */
function list(node, content) {
  const copy = copyAttributes(node, dom.create(node.tagName));
  for (const each of content) {
    if (/^(LI|DT|DD)$/.test(each.tagName ?? '')) copy.append(each);
    else if (copy.lastChild && dom.isList(each)) copy.lastElementChild.append(each);
    else if (hasText([each])) copy.append(elementAround('LI', [each]));
  }
  return copy.firstChild ? [copy] : [];
}

// Office documents write list items as paragraphs, with the bullet or number as text. Takes that
// out, and answers which list (`name`) the paragraph belongs to and its level in it, 0 for no item.
/** @param {Element} paragraph */
function readItem(paragraph) {
  const style = paragraph.getAttribute('style') ?? '';
  const [, name, level = '0'] = /mso-list:\s*(\S+)[^;"]*level(\d)/.exec(style) ?? [];
  if (!Number(level)) return { name, level: 0, tag: '', start: 0 };
  const sign = [...paragraph.querySelectorAll('span')]
    .find((span) => /mso-list:\s*ignore/i.test(span.getAttribute('style') ?? ''));
  const [, number] = /^\s*\(?([0-9a-z]{1,4})[.)]/i.exec(sign?.textContent ?? '') ?? [];
  sign?.remove();
  return { name, level: Number(level), tag: number ? 'OL' : 'UL', start: Number(number) };
}

// Opens lists until there is one of the item's level. `lists` are the open ones, the outermost
// first.
/**
 * @param {AnyNode[]} lists
 * @param {{ level: number, tag: string, start: number }} item
 * @param {Element} paragraph
 */
function openLists(lists, { level, tag, start }, paragraph) {
  while (lists.length < level) {
    const made = paragraph.ownerDocument.createElement(tag);
    if (lists.length === level - 1 && start > 1) made.setAttribute('start', String(start));
    if (lists.length) (lists.at(-1).lastChild ?? lists.at(-1)).append(made);
    else paragraph.before(made);
    lists.push(made);
  }
}

// Makes lists of such paragraphs.
/** @param {HTMLElement} root */
function makeLists(root) {
  /** @type {AnyNode[]} */
  let lists = [];
  let last = null;  // the outermost list
  let of = '';
  for (const paragraph of [...root.querySelectorAll('p, h1, h2, h3, h4, h5, h6')]) {
    const found = readItem(paragraph);
    if (!found.level) continue;
    const { name, level, tag } = found;
    const isBeside = last && paragraph.previousElementSibling === last;
    if (!isBeside || (level === 1 && name !== of)) lists = [];
    of = name;
    lists.length = Math.min(lists.length, level);
    if (lists[level - 1]?.tagName !== tag) lists.length = Math.min(lists.length, level - 1);
    const item = root.ownerDocument.createElement('LI');
    item.append(...paragraph.childNodes);
    openLists(lists, found, paragraph);
    lists.at(-1).append(item);
    last = lists[0];
    paragraph.remove();
  }
}

// What is between the comments that a program has put around its fragment, with the table or list
// that it is a part of; all of the markup where there are none.
/** @param {string} html */
function partOf(html) {
  const { body } = new DOMParser().parseFromString(html, 'text/html');
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

// Makes PRE of source code, which comes as a division with kept blanks for each line.
/** @param {HTMLElement} root */
function makePreformatted(root) {
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
    const last = pre.lastChild;
    if (dom.isText(last)) last.data = last.data.replace(/\n$/, '');
  }
}

/**
 * The clean form of another program's markup, ready to be put in.
 * @param {string} html
 * @returns {DocumentFragment}
 */
export const cleaned = (html) => {
  const body = partOf(html);
  makePreformatted(body);
  makeLists(body);
  const content = [...body.childNodes].flatMap((node) => clean(node, new Set()));
  const fragment = document.createDocumentFragment();
  fragment.append(...(content.some(isBlock) ? paragraphs(content) : content));
  fragment.normalize();
  return fragment;
};
