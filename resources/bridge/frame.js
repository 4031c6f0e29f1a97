// SPDX-License-Identifier: GPL-3.0-or-later
// The frame with eight handles around the selected object, and the grid while a box is moved.
(() => {
  'use strict';
  const { velor } = globalThis;

  const colour = '#1a5fb4';
  const solid = (paint) => `linear-gradient(${paint}, ${paint})`;
  const handle = 7;    // pixels
  const reach = 2;     // pixels around a handle that take hold of it too
  const least = 24;    // pixels: a smaller object's handles stand apart from it
  velor.gridStep = 50; // pixels

  // Grips by compass point: which edges they move, as parts of the width and height.
  const grips = new Map([
    ['nw', [0, 0]], ['n', [0.5, 0]], ['ne', [1, 0]], ['w', [0, 0.5]], ['e', [1, 0.5]],
    ['sw', [0, 1]], ['s', [0.5, 1]], ['se', [1, 1]],
  ]);

  // The frame's box in the viewport.
  function frameOf(object) {
    const { left, top, right, bottom } = object.getBoundingClientRect();
    const more = (size) => Math.max(0, least - size) / 2;
    const [x, y] = [more(right - left), more(bottom - top)];
    return { left: left - x, top: top - y, right: right + x, bottom: bottom + y };
  }
  const handlePlaces = ({ left, top, right, bottom }) =>
    [...grips].map(([name, [x, y]]) =>
      [name, left + x * (right - left), top + y * (bottom - top)]);

  const square = (paint, size) => ([, x, y]) =>
    ({ image: solid(paint), x: x - size / 2, y: y - size / 2, width: size, height: size });

  function frameLayers(frame) {
    const { left, top, right, bottom } = frame;
    const places = handlePlaces(frame);
    const line = (x, y, width, height) => ({ image: solid(colour), x, y, width, height });
    return [
      ...places.map(square('#ffffff', handle - 2)), ...places.map(square(colour, handle)),
      line(left, top, right - left, 1), line(left, bottom - 1, right - left, 1),
      line(left, top, 1, bottom - top), line(right - 1, top, 1, bottom - top),
    ];
  }
  function gridLayers({ x, y }) {
    const line = (way) =>
      `linear-gradient(${way}, rgba(26, 95, 180, 0.25) 1px, transparent 1px)`;
    const size = { width: velor.gridStep, height: velor.gridStep, repeat: 'repeat' };
    return ['to right', 'to bottom'].map((way) => ({ image: line(way), x, y, ...size }));
  }

  // The handle at a place ('nw' ... 'se'), 'move' inside a box that can be moved, or ''.
  velor.gripAt = (object, { clientX, clientY }) => {
    const { left, top, right, bottom } = object.getBoundingClientRect();
    if (left === right || top === bottom) return '';
    const near = handle / 2 + reach;
    const hit = handlePlaces(frameOf(object)).find(([, x, y]) =>
      Math.abs(clientX - x) <= near && Math.abs(clientY - y) <= near);
    if (hit) return hit[0];
    const inside = clientX >= left && clientX < right && clientY >= top && clientY < bottom;
    return inside && velor.objects.isMovable(object) ? 'move' : '';
  };

  let pointing = '';
  // What the pointer is over: it looks like that and does not reach what lies below.
  velor.pointAt = (grip) => {
    if (grip === pointing) return;
    pointing = grip;
    redraw();
  };

  // While an object is being dragged: its grid, where it has one.
  let dragging = null;
  velor.setDragging = (state) => {
    dragging = state;
    redraw();
  };

  // The tint of a selected picture would hide it, and its frame tells enough. A rule for pictures
  // alone: one for all elements would have a large page styled anew.
  const tintless = new CSSStyleSheet();
  tintless.replaceSync('img::selection { background: transparent !important }');

  const watched = new ResizeObserver(() => velor.overlay.follow());
  let subject = null;
  function watch(object) {
    if (object === subject) return;
    watched.disconnect();
    subject = object;
    if (object) watched.observe(object);
  }

  function redraw() {
    const object = velor.objects.selected();
    watch(object);
    velor.adopt(tintless, object?.tagName === 'IMG');
    if (!object) {
      pointing = '';
      velor.overlay.clear('frame');
      return;
    }
    const frame = frameOf(object);
    const around = Math.ceil(handle / 2);
    const area = { left: frame.left - around, top: frame.top - around,
      right: frame.right + around, bottom: frame.bottom + around };
    const cursor = pointing === 'move' ? 'move' : `${pointing}-resize`;
    const grid = dragging?.grid ? gridLayers(dragging.grid) : [];
    velor.overlay.draw('frame', dragging ? 'view' : area, [...frameLayers(frame), ...grid],
      pointing ? { 'pointer-events': 'auto', cursor } : {});
  }

  velor.overlay.add(redraw);
})();
