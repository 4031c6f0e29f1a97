// SPDX-License-Identifier: GPL-3.0-or-later
// @ts-check
// Where things of the page lie in the viewport, in its pixels. The engine gives boxes in pixels of
// the element; where the page sets `zoom`, one of those is several of the viewport's.

// Engines that have this property give boxes in pixels of the viewport.
const givesViewportPixels = 'currentCSSZoom' in Element.prototype;

/**
 * What a length of the engine's is multiplied by to be one of the viewport.
 * @param {Element} element
 */
export function zoomOf(element) {
  let zoom = 1;
  if (givesViewportPixels) return zoom;
  for (let at = element; at; at = at.parentElement) zoom *= Number(getComputedStyle(at).zoom) || 1;
  return zoom;
}

/**
 * @param {{ left: number, top: number, width: number, height: number }} box
 * @param {number} zoom
 */
const scaled = ({ left, top, width, height }, zoom) => ({
  left: left * zoom, top: top * zoom, right: (left + width) * zoom, bottom: (top + height) * zoom,
  width: width * zoom, height: height * zoom,
});
/**
 * An element's box in the viewport.
 * @param {Element} element
 */
export const boxOf = (element) => scaled(element.getBoundingClientRect(), zoomOf(element));

/**
 * A node's first box in the viewport, of a text its first line; null where it has none.
 * @param {Node} node
 */
export function firstBoxOf(node) {
  const range = document.createRange();
  range.selectNode(node);
  const [rect] = range.getClientRects();
  return rect ? scaled(rect, zoomOf(node.parentElement)) : null;
}

/**
 * The boxes of a range in the viewport, a line each.
 * @param {Range} range
 * @param {Element} element around its start
 * @returns {{ left: number, top: number, width: number, height: number }[]}
 */
export function boxesOf(range, element) {
  const zoom = zoomOf(element);
  return [...range.getClientRects()].map((rect) => scaled(rect, zoom));
}

/** The first and the last node in sight, by what is at the viewport's upper and lower edge. */
export function nodesInSight() {
  const { clientWidth, clientHeight } = document.documentElement;
  const columns = [2, clientWidth / 2, clientWidth - 2];
  /** @param {number} y */
  const nodesAt = (y) => columns.map((x) => document.caretRangeFromPoint(x, y))
    .filter(Boolean).map(({ startContainer, startOffset }) =>
      startContainer.childNodes[startOffset] ?? startContainer);
  /**
   * @param {Node} one
   * @param {Node} other
   */
  const precedes = (one, other) =>
    (one.compareDocumentPosition(other) & Node.DOCUMENT_POSITION_FOLLOWING ? -1 : 1);
  return {
    first: nodesAt(1).sort(precedes)[0] ?? document.body,
    last: nodesAt(clientHeight - 1).sort(precedes).at(-1) ?? null,
  };
}

/**
 * How many pixels of the viewport one pixel of an element's own sizes is, across and down: its zoom
 * times the scale (`transform`) of the elements around it.
 * @param {HTMLElement} element
 */
export function scaleOf(element) {
  const zoom = zoomOf(element);
  const box = boxOf(element);
  /**
   * @param {number} shown
   * @param {number} own
   */
  const along = (shown, own) =>
    (own && Math.abs(shown - own * zoom) > zoom ? shown / own : zoom);
  return { x: along(box.width, element.offsetWidth), y: along(box.height, element.offsetHeight) };
}

/**
 * True where a mouse event is in a box.
 * @param {Box} box
 * @param {Pointer} event
 */
export const holds = ({ left, top, right, bottom }, { clientX: x, clientY: y }) =>
  x >= left && x < right && y >= top && y < bottom;

/**
 * How far the elements around an element are scrolled, in all; for a fixed one nothing is counted.
 * @param {Element} element
 */
export function scrolled(element) {
  let [x, y] = [0, 0];
  for (let at = element; at; at = at.parentElement) {
    if (at !== element) [x, y] = [x + at.scrollLeft, y + at.scrollTop];
    if (getComputedStyle(at).position === 'fixed') break;
  }
  return { x, y };
}

