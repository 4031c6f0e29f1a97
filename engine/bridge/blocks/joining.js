// SPDX-License-Identifier: GPL-3.0-or-later
// @ts-check
// Joining: the content of a paragraph goes to the end of the one before it and takes on that one's
// looks; the blocks that this leaves empty go. The engine would keep the looks by styled spans.
import { breakLines, collapseText } from './blocks.js';
import { isContinuation, itemOf } from './items.js';
import { keepsBlanks } from '../page/beside.js';
import * as dom from '../page/dom.js';
import { holdOpen, plainText } from '../page/lines.js';
import * as selection from '../page/selection.js';
import { dropLine, joinLists } from '../page/sourceLines.js';

/**
 * Drops a block that is empty, and then the lists and quotes that held nothing else.
 * @param {AnyNode} block
 */
export function dropEmptyBlocks(block) {
  while (dom.isElement(block) && !dom.isCell(block) && !dom.hasContent(block)) {
    const parent = block.parentNode;
    dropBlock(block);
    block = parent;
  }
}

/**
 * Drops a block, or the break that is an empty line. Lines of bare text that it kept apart stay
 * apart; lists of a kind become one.
 * @param {AnyNode} block
 */
export function dropBlock(block) {
  const before = dom.neighbour(block, 'previousSibling');
  const after = dom.neighbour(block, 'nextSibling');
  /** @param {AnyNode} node */
  const isLine = (node) => node && !dom.isBlock(node) && !dom.isBreak(node);
  if (dom.isBlock(block) && isLine(before) && isLine(after)) {
    block.replaceWith(dom.create('BR'));
  } else {
    dropLine(block);
    block.replaceWith(...commentsIn(block));
  }
  if (dom.isList(before) && isContinuation(before, after)) joinLists(before, after);
}

// A paragraph's nodes with the comments at its edges: server code stands as such.
/** @param {Unit} unit */
function withComments({ block, nodes }) {
  if (!block) return nodes;
  const own = new Set(nodes);
  return [...block.childNodes].filter((node) => own.has(node) || dom.isComment(node));
}
// The comments in a node, in document order.
/** @type {(node: AnyNode) => ChildNode[]} */
const commentsIn = (node) =>
  [...node.childNodes].flatMap((child) => (dom.isComment(child) ? [child] : commentsIn(child)));

// The nodes less the break at their end, which goes, unless it is the one that `line` is behind.
/**
 * @param {ChildNode[]} nodes
 * @param {ChildNode | null} line
 */
const dropTrailingBreak = (nodes, line) => {
  const last = nodes.at(-1);
  if (dom.isBreak(last) && last !== line) {
    last.remove();
    return nodes.slice(0, -1);
  }
  return nodes;
};

// Leaves of white space what is seen of it in a paragraph whose nodes go where all of it shows.
/**
 * @param {ChildNode[]} nodes
 * @param {boolean} follow they will follow other text, so that a blank at their start is seen
 */
function writeAsShown(nodes, follow) {
  const texts = nodes.filter((node) => node.isConnected)
    .flatMap((node) => (dom.isText(node) ? [node] : dom.textsUnder(node)))
    .filter((text) => !keepsBlanks(text));
  const isParted = follow && /^[ \t\n]/.test(texts[0]?.data ?? '');
  for (const text of texts) collapseText(text);
  if (isParted) texts.find((text) => text.isConnected)?.insertData(0, ' ');
}

// A break alone that holds an empty line open shows nothing behind text: it goes.
/**
 * @param {ChildNode[]} nodes
 * @param {ChildNode | undefined} last what they are to stand behind
 */
function dropHeldLine(nodes, last) {
  if (last && !dom.isBreak(last) && nodes.length === 1 && dom.isBreak(nodes[0])) {
    nodes.pop().remove();
  }
}

// What the nodes show, as one text that is not in the document yet: for where no markup may stand.
/** @param {ChildNode[]} nodes */
function asText(nodes) {
  const text = document.createTextNode(nodes.map(plainText).join(''));
  nodes.forEach((node) => node.remove());
  return text.length ? [text] : [];
}

// The last of the comments right behind a node, else the node: what joins a paragraph goes behind
// server code.
/** @param {ChildNode} node */
function endWithComments(node) {
  let end = node;
  while (dom.isComment(end.nextSibling)) end = end.nextSibling;
  return end;
}

// The lists that are all that is left of an item go along into the other one, before the list of
// its own that the item stood in; so do the source's lines before and behind them. Where the text
// that has gone there ends in a line end the lists have one: what is left is the item's own.
/**
 * @param {AnyNode} home
 * @param {AnyNode} item
 * @param {AnyNode} last of what has gone there
 */
function moveSublists(home, item, last) {
  const rest = [...home.childNodes].filter(dom.isShown);
  const onlyLists = rest.length > 0 && rest.every(dom.isList);
  if (home.tagName !== 'LI' || !item || home.contains(item) || !onlyLists) return;
  const own = [...item.children].find((child) => child.contains(home));
  const end = [...item.childNodes].reverse().find(dom.isShown);
  const hasLine = dom.isText(last) && /\n[ \t]*$/.test(last.data);
  const before = rest[0].previousSibling;
  const line = dom.isBlank(before) && !hasLine ? before : rest[0];
  const moved = [...home.childNodes].slice(selection.indexOf(line));
  if (own) own.before(...moved);
  else if (end) end.after(...moved);
  else item.append(...moved);
  if (own && isContinuation(rest.at(-1), own)) joinLists(rest.at(-1), own);
}

/**
 * Moves the content of one paragraph to the end of the one before it. Answers the point between the
 * two.
 * @param {Unit} first
 * @param {Unit} second
 * @param {ChildNode | null} [mark] where the content goes when nothing is left of `first`
 * @param {ChildNode | null} [line] a break at the end of `first` that stays before the content
 * @returns {Anchor}
 */
export function join(first, second, mark = null, line = null) {
  const left = dropTrailingBreak(first.nodes.filter((node) => node.isConnected), line);
  const home = second.container;
  const leavesPre = dom.isPreformatted(second.block) && !dom.isPreformatted(first.container);
  if (leavesPre) breakLines(home);
  if (dom.isPreformatted(first.container) && !dom.isPreformatted(second.block)) {
    writeAsShown(second.nodes, left.length > 0);
  }
  const isRaw = dom.rawAt(first.container);
  const all = leavesPre ? [...home.childNodes]
    : (isRaw ? second.nodes : withComments(second)).filter((node) => node.isConnected);
  const last = left.at(-1);
  dropHeldLine(all, last);
  const moved = isRaw ? asText(all) : all;
  const between = last ? selection.endOf(last) : selection.startOf(moved[0] ?? first.container);
  if (last) endWithComments(last).after(...moved);
  else if (mark) mark.after(...moved);
  else if (first.container.firstChild) first.container.prepend(...moved);
  else first.container.append(...moved);
  moveSublists(home, itemOf(first), moved.at(-1));
  // Before what is around it is looked at: a list of which all is deleted has one empty item.
  holdOpen(first.container);
  dropEmptyBlocks(home);
  return between;
}
