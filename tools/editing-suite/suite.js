// SPDX-License-Identifier: GPL-3.0-or-later
// Runs rows of a suite of editing tests, each once by the bridge's commands and once by the
// engine's own, and compares what is then there with what the row expects.
(() => {
  'use strict';

  const sizePoints = ['8', '10', '12', '14', '18', '24', '36'];
  const blockNames = new Map([
    ['p', 'Paragraph'], ['pre', 'Formatted'], ['address', 'Address'],
    ...[1, 2, 3, 4, 5, 6].map((level) => [`h${level}`, `Heading ${level}`]),
  ]);
  const known = (value) => (value === undefined ? null : value);

  // What this program does under a name of the suite: `number` of its command, `value` in its
  // vocabulary (null for one that it does not have), or the engine's input that it works on.
  const number = (command, value = () => '') => ({ command, value });
  const colour = (command) => number(command, (text) => known(text.match(/^#[0-9a-f]{6}$/i)?.[0]));
  const input = (type) => ({ type });
  const commands = new Map(Object.entries({
    backcolor: colour(5042), hilitecolor: colour(5042), forecolor: colour(5046),
    bold: number(5000), italic: number(5023), underline: number(5048),
    fontname: number(5044, (text) => text || null),
    fontsize: number(5045, (text) => (/^[1-7]$/.test(text) ? sizePoints[text - 1] : null)),
    formatblock: number(5043, (text) =>
      known(blockNames.get(text.replace(/^<|>$/g, '').toLowerCase()))),
    indent: number(5018), outdent: number(5031),
    insertorderedlist: number(5030), insertunorderedlist: number(5051),
    justifycenter: number(5024), justifyleft: number(5025), justifyright: number(5026),
    delete: input('deleteContentBackward'), forwarddelete: input('deleteContentForward'),
    insertparagraph: input('insertParagraph'), insertlinebreak: input('insertLineBreak'),
    inserttext: input('insertText'),
    inserthtml: { paste: true },
    // How this program writes is the page's matter: rows go to a page of the dialect they ask for.
    stylewithcss: { setting: () => true },
    defaultparagraphseparator: { setting: (value) => value === 'p' },
  }));

  // A place in the markup: brackets stand in texts, braces between nodes.
  function placeOf(root, signs, attribute) {
    const place = document.createRange();
    const bearer = root.querySelector(`[${attribute}]`);
    if (bearer) {
      place.setStart(bearer, Number(bearer.getAttribute(attribute)));
      bearer.removeAttribute(attribute);
      return place;
    }
    const walker = document.createTreeWalker(root, NodeFilter.SHOW_TEXT);
    while (walker.nextNode()) {
      const text = walker.currentNode;
      const at = text.data.search(signs);
      if (at < 0) continue;
      const between = /[{}]/.test(text.data[at]);
      text.deleteData(at, 1);
      if (!between) place.setStart(text, at);
      else if (!text.length) {
        place.setStartBefore(text);
        text.remove();
      } else if (at === 0) place.setStartBefore(text);
      else if (at === text.length) place.setStartAfter(text);
      else place.setStartBefore(text.splitText(at));
      place.collapse(true);
      return place;
    }
    return null;
  }
  function select(root) {
    const start = placeOf(root, /[[{]/, 'data-start');
    const end = placeOf(root, /[\]}]/, 'data-end');
    if (!start || !end) return;
    getSelection().setBaseAndExtent(
      start.startContainer, start.startOffset, end.startContainer, end.startOffset);
  }

  // A colour by its parts, however it is spelled.
  const pen = document.createElement('canvas').getContext('2d');
  function valueOf(colour) {
    pen.fillStyle = colour;
    return pen.fillStyle;
  }

  // Markup in one spelling: styles as the engine writes them, neighbouring texts joined.
  function normal(html) {
    const parsed = document.createElement('div');
    parsed.innerHTML = html;
    placeOf(parsed, /[[{]/, 'data-start');
    placeOf(parsed, /[\]}]/, 'data-end');
    for (const element of parsed.querySelectorAll('[style]')) {
      if (element.style.color) element.style.color = valueOf(element.style.color);
      const { cssText } = element.style;
      if (cssText) element.setAttribute('style', cssText);
      else element.removeAttribute('style');
    }
    for (const element of parsed.querySelectorAll('[color]')) {
      element.setAttribute('color', element.getAttribute('color').toLowerCase());
    }
    parsed.normalize();
    return parsed.innerHTML;
  }

  function carryOut([name, value]) {
    const { command, value: translate, type, paste, setting } = commands.get(name);
    if (setting) return;
    if (paste) velor.pasteHTML(value);
    else if (command) velor.exec(command, translate(value));
    else {
      const event = new InputEvent('beforeinput',
        { inputType: type, data: value || null, bubbles: true, cancelable: true });
      if (document.body.dispatchEvent(event)) document.execCommand(name, false, value);
    }
  }

  const applies = ([name, value]) => {
    const entry = commands.get(name);
    if (!entry) return false;
    if (entry.setting) return entry.setting(value);
    return !entry.value || entry.value(value) !== null;
  };

  function byUs([html, todo]) {
    document.body.innerHTML = html;
    select(document.body);
    velor.start();
    todo.forEach(carryOut);
    return document.body.innerHTML;
  }

  function byEngine([html, todo]) {
    document.designMode = 'off';
    document.body.innerHTML = '<div contenteditable></div>';
    const host = document.body.firstChild;
    host.innerHTML = html;
    host.focus();
    select(host);
    velor.working = true;  // the bridge does not meddle
    try {
      for (const [name, value] of todo) document.execCommand(name, false, value);
    } finally {
      velor.working = false;
    }
    const result = host.innerHTML;
    document.designMode = 'on';
    document.execCommand('styleWithCSS', false, 'false');
    document.execCommand('defaultParagraphSeparator', false, 'p');
    return result;
  }

  const asksForStyles = ([, todo]) =>
    todo.some(([name, value]) => name === 'stylewithcss' && value === 'true');

  // The rows that belong to pages of this dialect.
  globalThis.runSuite = (rows, styled) => {
    const result = { ours: 0, plain: 0, total: 0, foreign: 0, differences: [] };
    for (const row of rows) {
      if (asksForStyles(row) !== styled) continue;
      if (!row[1].every(applies)) {
        result.foreign++;
        continue;
      }
      result.total++;
      const expected = [row[2]].flat().map(normal);
      const ours = normal(byUs(row));
      const plain = normal(byEngine(row));
      if (expected.includes(plain)) result.plain++;
      if (expected.includes(ours)) result.ours++;
      else {
        result.differences.push({ input: row[0], todo: JSON.stringify(row[1]),
          expected: expected[0], ours, plain: expected.includes(plain) ? 'as expected' : plain });
      }
    }
    return JSON.stringify(result);
  };
})();
