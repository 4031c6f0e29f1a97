// SPDX-License-Identifier: GPL-3.0-or-later
// @ts-check
// What this program does under each name of the suite. A module: the build joins it with the
// bridge's names of commands.
import { Command, Status } from '../../engine/bridge/talk/vocabulary.js';

const suite = globalThis.velorSuite;

const sizePoints = ['8', '10', '12', '14', '18', '24', '36'];
const blockNames = new Map(/** @type {[tag: string, name: string][]} */ ([
  ['p', 'Paragraph'], ['pre', 'Formatted'], ['address', 'Address'],
  ...[1, 2, 3, 4, 5, 6].map((level) => [`h${level}`, `Heading ${level}`]),
]));
const known = (value) => (value === undefined ? null : value);
// The one of the seven sizes that is nearest to a size as the program shows it ("9 px", "14.4 pt",
// "12"): the suite asks for that one. 96 pixels are 72 points.
const nearestSize = (shown) => {
  const points = parseFloat(shown) * (shown.endsWith('px') ? 72 / 96 : 1);
  const distance = (size) => Math.abs(Number(size) - points);
  return sizePoints.reduce((best, each) => (distance(each) < distance(best) ? each : best));
};

// `value(text)`: a row's value in the program's vocabulary, null for one that it does not have.
// `run(value, name)`: carries the command out.
// `answers()`: what the program shows of the selection, as far as the suite asks for it:
// {indeterm, state} or {indeterm, value}; `means(value)`: the suite's value in the same spelling.
const status = (number) => () => {
  const shown = velor.state().commands[number];
  return { indeterm: shown === Status.Ninched, state: shown === Status.Latched };
};
const reading = (number, inSuite = (value) => value) => () => {
  const value = velor.exec(number);
  return { indeterm: value === '', value: value && inSuite(value) };
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
  backcolor: colour(Command.SetBackColor, Command.GetBackColor),
  hilitecolor: colour(Command.SetBackColor, Command.GetBackColor),
  forecolor: colour(Command.SetForeColor, Command.GetForeColor),
  bold: toggle(Command.Bold), italic: toggle(Command.Italic), underline: toggle(Command.Underline),
  fontname: number(Command.SetFontName, {
    value: (text) => text || null,
    answers: reading(Command.GetFontName),
    means: (value) => value.split(',')[0].trim().replace(/^["']|["']$/g, ''),
  }),
  fontsize: number(Command.SetFontSize, {
    value: (text) => (/^[1-7]$/.test(text) ? sizePoints[text - 1] : null),
    answers: reading(Command.GetFontSize, nearestSize),
    means: (value) => sizePoints[value - 1] ?? value,
  }),
  formatblock: number(Command.SetBlockFormat, {
    value: (text) => known(blockNames.get(text.replace(/^<|>$/g, '').toLowerCase())),
    answers: reading(Command.GetBlockFormat),
    means: (value) => (value === 'p' ? 'Normal' : blockNames.get(value) ?? 'Normal'),
  }),
  indent: number(Command.Indent), outdent: number(Command.Outdent),
  insertorderedlist: toggle(Command.OrderList),
  insertunorderedlist: toggle(Command.UnorderList),
  justifycenter: toggle(Command.JustifyCenter),
  justifyleft: toggle(Command.JustifyLeft),
  justifyright: toggle(Command.JustifyRight),
  selectall: number(Command.SelectAll), undo: number(Command.Undo), redo: number(Command.Redo),
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
