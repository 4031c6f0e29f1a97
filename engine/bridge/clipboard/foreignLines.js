// SPDX-License-Identifier: GPL-3.0-or-later
// @ts-check
// Lines and paragraphs of new nodes, made of other programs' markup.
import { setSide } from './looks.js';
import * as dom from '../page/dom.js';

// Elements without content.
export const empties = new Set(['BR', 'HR', 'IMG']);
// Elements of one look that make one where they stand side by side.
const joining = new Set(['B', 'EM', 'FONT', 'I', 'S', 'SPAN', 'STRONG', 'SUB', 'SUP', 'U']);

/** @param {AnyNode} node */
export const isBlock = (node) => dom.isElement(node) && dom.isBlock(node);
/**
 * @param {AnyNode[]} nodes
 * @returns {boolean}
 */
export const hasText = (nodes) => nodes.some((node) => {
  if (dom.isText(node)) return /[^ \n]/.test(node.data);
  return empties.has(node.tagName) || hasText([...node.childNodes]);
});

/**
 * The nodes of a line less the breaks at its ends, which are there as a gap or to hold it open.
 * @param {AnyNode[]} nodes
 */
export function withoutGaps(nodes) {
  /** @param {AnyNode} node */
  const isGap = (node) => dom.isBreak(node) || (dom.isText(node) && !hasText([node]));
  const shown = nodes.filter((node) => !isGap(node));
  const [first, last] = [nodes.indexOf(shown[0]), nodes.indexOf(shown.at(-1))];
  /** @param {AnyNode[]} part */
  const breaks = (part) => part.some(dom.isBreak);
  return shown.length ? nodes.slice(breaks(nodes.slice(0, first)) ? first : 0,
    breaks(nodes.slice(last)) ? last + 1 : nodes.length) : [];
}

/**
 * Neighbours of one look are one element: office documents cut words anywhere.
 * @param {AnyNode[]} nodes
 */
export function joined(nodes) {
  /** @type {AnyNode[]} */
  const result = [];
  for (const node of nodes) {
    const last = result.at(-1);
    const isSame = last?.tagName === node.tagName && joining.has(node.tagName) &&
      dom.sameAttributes(last, node);
    if (isSame) last.append(...joined([...node.childNodes]));
    else result.push(node);
  }
  return result;
}
/**
 * A line's nodes less the white space at its ends and beside breaks.
 * @param {AnyNode[]} nodes
 */
export function trim(nodes) {
  const result = joined(nodes);
  result.forEach((node, index) => {
    if (!dom.isText(node)) return;
    const [before, after] = [result[index - 1], result[index + 1]];
    if (!before || dom.isBreak(before)) node.data = node.data.replace(/^ /, '');
    if (!after || dom.isBreak(after)) node.data = node.data.replace(/ $/, '');
  });
  return result.filter((node) => !dom.isText(node) || node.length);
}
/**
 * Runs of inline nodes between blocks become paragraphs; those that show nothing go.
 * @param {AnyNode[]} nodes
 * @param {string} [side] where their lines stand
 */
export function paragraphs(nodes, side = '') {
  /** @type {AnyNode[]} */
  const result = [];
  /** @type {AnyNode[]} */
  let run = [];
  const flush = () => {
    const shown = withoutGaps(run);
    if (hasText(shown)) {
      const paragraph = elementAround('P', trim(shown));
      if (side && side !== 'left') setSide(paragraph, side);
      result.push(paragraph);
    }
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
export function elementAround(tag, nodes) {
  const element = dom.create(tag);
  for (const node of nodes) element.append(node);
  return element;
}

/**
 * Wraps nodes by `make`, which is given a line's nodes: within each line where there are blocks.
 * @param {AnyNode[]} nodes
 * @param {(line: AnyNode[]) => Node} make
 * @returns {AnyNode[]}
 */
export function wrapLines(nodes, make) {
  if (!hasText(nodes)) return nodes;
  if (!nodes.some(isBlock)) return [make(nodes)];
  return nodes.flatMap((node) => {
    if (!isBlock(node) || empties.has(node.tagName)) return wrapLines([node], make);
    const lines = wrapLines([...node.childNodes], make);
    node.append(...lines);
    return [node];
  });
}
