// SPDX-License-Identifier: GPL-3.0-or-later
// @ts-check
// What this program does under each name of the suite.
(() => {
  'use strict';
  const suite = globalThis.velorSuite;

  const sizePoints = ['8', '10', '12', '14', '18', '24', '36'];
  const blockNames = new Map(/** @type {[tag: string, name: string][]} */ ([
    ['p', 'Paragraph'], ['pre', 'Formatted'], ['address', 'Address'],
    ...[1, 2, 3, 4, 5, 6].map((level) => [`h${level}`, `Heading ${level}`]),
  ]));
  const known = (value) => (value === undefined ? null : value);

  // `value(text)`: a row's value in the program's vocabulary, null for one that it does not have.
  // `run(value, name)`: carries the command out.
  // `answers()`: what the program shows of the selection, as far as the suite asks for it:
  // {indeterm, state} or {indeterm, value}; `means(value)`: the suite's value in the same spelling.
  const status = (number) => () => {
    const shown = velor.state().commands[number];
    return { indeterm: shown === 11, state: shown === 7 };
  };
  const reading = (number) => () => {
    const value = velor.exec(number);
    return { indeterm: value === '', value };
  };
  const number = (command, more = {}) =>
    ({ value: () => '', run: (value) => velor.exec(command, value), ...more });
  const toggle = (command) => number(command, { answers: status(command) });
  const colour = (command, query) => number(command, {
    value: (text) => known(text.match(/^#[0-9a-f]{6}$/i)?.[0]),
    answers: reading(query),
    means: (value) => suite.colour(value).toUpperCase(),
  });
  // Keys: what the bridge does not take for itself the engine carries out.
  const input = (type) => ({
    value: (text) => text,
    run(data, name) {
      const event = new InputEvent('beforeinput',
        { inputType: type, data: data || null, bubbles: true, cancelable: true });
      if (document.body.dispatchEvent(event)) document.execCommand(name, false, data);
    },
  });
  const picture = {
    value: (text) => text || null,
    run(source) {
      const image = document.createElement('img');
      image.setAttribute('src', source);
      velor.pasteHTML(image.outerHTML);
    },
  };

  suite.commands = new Map(Object.entries({
    backcolor: colour(5042, 5010), hilitecolor: colour(5042, 5010), forecolor: colour(5046, 5015),
    bold: toggle(5000), italic: toggle(5023), underline: toggle(5048),
    fontname: number(5044, {
      value: (text) => text || null,
      answers: reading(5013),
      means: (value) => value.split(',')[0].trim().replace(/^["']|["']$/g, ''),
    }),
    fontsize: number(5045, {
      value: (text) => (/^[1-7]$/.test(text) ? sizePoints[text - 1] : null),
      answers: reading(5014),
      means: (value) => sizePoints[value - 1] ?? value,
    }),
    formatblock: number(5043, {
      value: (text) => known(blockNames.get(text.replace(/^<|>$/g, '').toLowerCase())),
      answers: reading(5011),
      means: (value) => (value === 'p' ? 'Normal' : blockNames.get(value) ?? 'Normal'),
    }),
    indent: number(5018), outdent: number(5031),
    insertorderedlist: toggle(5030), insertunorderedlist: toggle(5051),
    justifycenter: toggle(5024), justifyleft: toggle(5025), justifyright: toggle(5026),
    selectall: number(5035), undo: number(5049), redo: number(5033),
    delete: input('deleteContentBackward'), forwarddelete: input('deleteContentForward'),
    insertparagraph: input('insertParagraph'), insertlinebreak: input('insertLineBreak'),
    inserttext: input('insertText'),
    inserthtml: { value: (text) => text, run: (html) => velor.pasteHTML(html) },
    insertimage: picture,
  }));
  // How this program writes is the page's matter: rows go to a page of the dialect they ask for.
  suite.settings = new Map(Object.entries({
    stylewithcss: () => true,
    defaultparagraphseparator: (value) => value === 'p',
  }));

  // True for a row that this program can be asked for.
  suite.isOurs = ([, todo]) =>
    todo.some(([name]) => suite.commands.has(name)) &&
    todo.every(([name, value = '']) => suite.settings.get(name)?.(value) ??
      (suite.commands.has(name) && suite.commands.get(name).value(value) !== null));
})();
