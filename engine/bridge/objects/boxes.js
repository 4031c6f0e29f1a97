// SPDX-License-Identifier: GPL-3.0-or-later
// @ts-check
// Where things of the page lie in the viewport, in its pixels. The engine tells boxes in the pixels
// of the element, which a `zoom` of the page's own makes larger ones.

// Engines that have this property tell boxes in pixels of the viewport.
const tellsViewport = 'currentCSSZoom' in Element.prototype;

export function zoomOf(element) {
  let zoom = 1;
  if (tellsViewport) return zoom;
  for (let at = element; at; at = at.parentElement) zoom *= Number(getComputedStyle(at).zoom) || 1;
  return zoom;
}

const scaled = ({ left, top, width, height }, zoom) => ({
  left: left * zoom, top: top * zoom, right: (left + width) * zoom, bottom: (top + height) * zoom,
  width: width * zoom, height: height * zoom,
});
export const boxOf = (element) => scaled(element.getBoundingClientRect(), zoomOf(element));

// The first box that the node has, of a text its first line; null where it has none.
export function firstBoxOf(node) {
  const range = document.createRange();
  range.selectNode(node);
  const [rect] = range.getClientRects();
  return rect ? scaled(rect, zoomOf(node.parentElement)) : null;
}

// How many pixels of the viewport one pixel of an element's own sizes is, across and down: its
// zoom, and the scale of the elements that it lies in.
export function scaleOf(element) {
  const zoom = zoomOf(element);
  const box = boxOf(element);
  const along = (shown, own) =>
    (own && Math.abs(shown - own * zoom) > zoom ? shown / own : zoom);
  return { x: along(box.width, element.offsetWidth), y: along(box.height, element.offsetHeight) };
}

export const holds = ({ left, top, right, bottom }, { clientX: x, clientY: y }) =>
  x >= left && x < right && y >= top && y < bottom;

// How far everything that an element lies in is scrolled; what is fixed stays where it is.
export function scrolled(element) {
  let [x, y] = [0, 0];
  for (let at = element; at; at = at.parentElement) {
    if (at !== element) [x, y] = [x + at.scrollLeft, y + at.scrollTop];
    if (getComputedStyle(at).position === 'fixed') break;
  }
  return { x, y };
}

