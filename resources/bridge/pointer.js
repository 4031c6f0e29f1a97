// SPDX-License-Identifier: GPL-3.0-or-later
// The pointer: its place goes to the program, and a click on an object selects it.
(() => {
  'use strict';
  const { velor } = globalThis;

  let place = null;
  let waiting = false;

  function tell() {
    waiting = false;
    velor.host?.pushMouse(Math.round(place.x), Math.round(place.y));
  }

  const at = ({ clientX, clientY }) => ({ x: clientX, y: clientY });

  function moved(event) {
    place = at(event);
    if (waiting) return;
    waiting = true;
    requestAnimationFrame(tell);
  }

  function pressed(event) {
    place = at(event);
    tell();
  }

  const objects = 'IMG, HR, OBJECT, EMBED, APPLET, IFRAME, VIDEO, AUDIO, ' +
    'INPUT, BUTTON, SELECT, TEXTAREA';
  function clicked({ target }) {
    if (!velor.editable() || !(target instanceof Element)) return;
    // A table itself is hit only on its border, outside its cells.
    const object = target.tagName === 'TABLE' ? target : target.closest(objects);
    if (object) velor.selection.selectNode(object);
  }

  velor.listenToPointer = () => {
    document.addEventListener('mousemove', moved, true);
    document.addEventListener('mousedown', pressed, true);
    document.addEventListener('click', clicked, true);
  };
})();
