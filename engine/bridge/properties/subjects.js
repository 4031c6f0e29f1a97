// SPDX-License-Identifier: GPL-3.0-or-later
// @ts-check
// What each properties dialog is about, and its fields.
import { attribute, border, length, look, places, spacing, style, told } from './fields.js';
import { icon, meta, ruled, sheets, title } from './head.js';
import * as tableLooks from './tableLooks.js';
import { formats } from '../formats/formats.js';
import { apply as applyFormat } from '../formats/inline.js';
import { linkObject, linkOf, setAttributes, takeOff } from '../formats/links.js';
import * as align from '../formats/align.js';
import * as pending from '../formats/pending.js';
import * as dom from '../page/dom.js';
import * as selection from '../page/selection.js';
import { breakpoints } from '../page/sheets.js';
import { unitsIn } from '../page/units.js';
import { rectangleChosen } from '../tables/chosen.js';
import { gridOf, placesIn } from '../tables/grid.js';
import { takeAttribute } from '../tables/making.js';
import { elementOf, namesTo } from '../talk/path.js';
import { Command } from '../talk/vocabulary.js';
import { formatStatus, queryValue } from '../talk/commands.js';

/**
 * `find` answers the elements that the dialog is about, none where it does not apply; `number`
 * is that of an element of a path.
 * @typedef {import('./fields.js').Field} Field
 * @typedef {{ find(view: View, number: number): AnyNode[], fields: Record<string, Field> }} Subject
 */

const common = { id: attribute('id'), class: attribute('class'), title: attribute('title') };
const background = look('bgcolor', 'background-color');
const picture = look('background', 'background-image', {
  inStyle: (value) => `url('${value.replace(/'/g, '%27').replace(/\\/g, '%5C')}')`,
  fromStyle: (value) => value.replace(/^url\(\s*(["']?)(.*?)\1\s*\)$/i, '$2'),
});

// The alignment of a table, a unit of its own.
/** @type {Field} */
const tableAlign = {
  read(table) {
    const unit = { object: table, home: table, block: table, container: table.parentNode,
      nodes: [table] };
    const isSaid = table.hasAttribute('align') || table.style.marginLeft === 'auto';
    return isSaid ? align.read(unit) : '';
  },
  write(table, value) {
    selection.selectNode(table);
    align.applyAll(unitsIn(selection.range()),
      /** @type {align.AlignSide} */ (value || 'left'));
  },
};

/** @type {Field} */
const caption = {
  read: (table) => table.caption?.textContent ?? '',
  write(table, value) {
    const { caption: old } = table;
    if (!value) old?.remove();
    else if (old) old.textContent = value;
    else {
      const made = dom.create('CAPTION');
      made.append(value);
      table.prepend(made);
    }
  },
};

// Whether all cells of a table's first row, or first column, are headings.
/**
 * @param {'row' | 'column'} part
 * @returns {Field}
 */
const headings = (part) => {
  /** @param {AnyNode} table */
  const cellsOf = (table) => {
    const grid = gridOf(table);
    const { width, height } = grid;
    if (!height) return [];
    return placesIn(grid, part === 'row' ? { top: 0, left: 0, bottom: 0, right: width - 1 }
      : { top: 0, left: 0, bottom: height - 1, right: 0 }).map(({ cell }) => cell);
  };
  const scope = part === 'row' ? 'col' : 'row';
  return {
    read(table) {
      const cells = cellsOf(table);
      return cells.length && cells.every(({ tagName }) => tagName === 'TH') ? 'true' : '';
    },
    write(table, value) {
      for (const cell of cellsOf(table)) {
        const made = dom.rename(cell, value ? 'TH' : 'TD');
        if (value) made.setAttribute('scope', scope);
        else takeAttribute(made, 'scope');
      }
    },
  };
};

/** @type {Field} */
const isHeading = {
  read: (cell) => (cell.tagName === 'TH' ? 'true' : ''),
  write(cell, value) {
    const made = dom.rename(cell, value ? 'TH' : 'TD');
    if (!value) takeAttribute(made, 'scope');
    return made;
  },
};
/** @type {Field} */
const noWrap = {
  read: (cell) => (cell.hasAttribute('nowrap') || cell.style.whiteSpace === 'nowrap' ? 'true' : ''),
  write(cell, value) {
    if (value && dom.writesStyles()) style('white-space').write(cell, 'nowrap');
    else if (value) cell.setAttribute('nowrap', '');
    else {
      takeAttribute(cell, 'nowrap');
      if (cell.style.whiteSpace) style('white-space').write(cell, '');
    }
  },
};

// A picture that only adorns has an empty description, which is not the same as none.
/** @type {Field} */
const decorative = {
  read: (image) => (image.getAttribute('alt') === '' ? 'true' : ''),
  write(image, value) {
    if (value) image.setAttribute('alt', '');
    else if (image.getAttribute('alt') === '') takeAttribute(image, 'alt');
  },
};

/**
 * An attribute of the root element.
 * @param {string} name
 * @returns {Field}
 */
const ofRoot = (name) => ({
  read: () => document.documentElement.getAttribute(name) ?? '',
  write: (body, value) => setAttributes(document.documentElement, [[name, value]]),
});

/**
 * A character format of the selected text, or at the caret.
 * @param {string} name
 * @param {number} command
 * @returns {Field}
 */
const format = (name, command) => ({
  read: () => queryValue(command),
  write(element, value) {
    const wanted = formats[name].parse(value);
    if (wanted !== '') putFormat(name, wanted);
  },
});
/**
 * @param {string} name
 * @param {string} [other] a format that the text cannot have along with it
 * @returns {Field}
 */
const toggled = (name, other) => ({
  read: () => ({ 3: '', 7: 'true', 11: 'mixed' })[formatStatus(name)] ?? '',
  write(element, value) {
    if (value && other) putFormat(other, false);
    putFormat(name, value === 'true');
  },
});
/**
 * @param {string} name
 * @param {FormatValue} value
 */
function putFormat(name, value) {
  const range = selection.range();
  if (selection.textsIn(range, 1).length) applyFormat(name, value, range);
  else pending.set(name, value);
}

// How the engine shows the page, and why.
function mode() {
  if (document.compatMode === 'CSS1Compat') return 'standards';
  return document.doctype ? 'quirks' : 'no doctype';
}

// The link around a picture; the words beside it in the same link stay one when it goes.
/** @type {Field} */
const linkAround = {
  read: (image) => image.closest('a[href]')?.getAttribute('href') ?? '',
  write(image, value) {
    const link = image.closest('a[href]');
    if (link && value) setAttributes(link, [['href', value]]);
    else if (link) takeOff(link);
    else if (value) linkObject(image, [['href', value]]);
  },
};
// Without an address a link is none.
/** @type {Field} */
const address = {
  read: (link) => link.getAttribute('href'),
  write(link, value) {
    if (value) setAttributes(link, [['href', value]]);
    else takeOff(link);
  },
};

/** @type {Record<string, Subject>} */
const subjects = {
  page: {
    find: () => [document.body],
    fields: {
      title, language: ofRoot('lang'), direction: ofRoot('dir'), viewport: meta('viewport'),
      description: meta('description'), author: meta('author'), icon, sheets,
      text: look('text', 'color'), background, picture,
      link: ruled('link', 'a:link'), vlink: ruled('vlink', 'a:visited'),
      alink: ruled('alink', 'a:active'),
      charset: told(() => document.characterSet), mode: told(mode),
      breakpoints: told(() => breakpoints().join(' ')),
    },
  },
  image: {
    find: ({ object }) => (object?.tagName === 'IMG' ? [object] : []),
    fields: { src: attribute('src'), lowsrc: attribute('lowsrc'), alt: attribute('alt'), decorative,
      link: linkAround, width: length('width'), height: length('height'), border,
      align: places, hspace: spacing('hspace', ['margin-left', 'margin-right']),
      vspace: spacing('vspace', ['margin-top', 'margin-bottom']), loading: attribute('loading'),
      ...common },
  },
  table: {
    find: ({ chosen }) => [chosen()?.table].filter(Boolean),
    fields: {
      rows: told((table) => gridOf(table).height), columns: told((table) => gridOf(table).width),
      caption, headRow: headings('row'), headColumn: headings('column'), width: length('width'),
      align: tableAlign, border: tableLooks.border, cellpadding: tableLooks.padding,
      cellspacing: tableLooks.gaps, background,
      bordercolor: look('bordercolor', 'border-color'), ...common,
    },
  },
  cell: {
    find({ chosen, range }) {
      const found = chosen() && rectangleChosen(chosen(), range);
      return found ? placesIn(found.grid, found.rectangle).map(({ cell }) => cell) : [];
    },
    fields: {
      rows: told((cell) => cell.rowSpan), columns: told((cell) => cell.colSpan),
      heading: isHeading, width: length('width'), height: length('height'),
      align: look('align', 'text-align'), valign: look('valign', 'vertical-align'), noWrap,
      background, color: style('color'), ...common,
    },
  },
  link: {
    find: (view) => [linkOf(view)].filter(Boolean),
    fields: { target: attribute('target'), rel: attribute('rel'), name: attribute('name'),
      ...common, href: address },
  },
  element: {
    find: (view, number) => [elementOf(number)].filter(Boolean),
    fields: {
      tag: told((element) => element.tagName.toLowerCase()),
      path: told((element) => namesTo(element).join(' › ')),
      ...common,
      language: attribute('lang'), direction: attribute('dir'), style: attribute('style'),
    },
  },
  fonts: {
    find: ({ range }) => (range ? [document.body] : []),
    fields: {
      fontName: format('fontName', Command.GetFontName),
      fontSize: format('fontSize', Command.GetFontSize),
      color: format('foreColor', Command.GetForeColor),
      background: format('backColor', Command.GetBackColor),
      bold: toggled('bold'), italic: toggled('italic'), underline: toggled('underline'),
      strike: toggled('strike'), sub: toggled('sub', 'sup'), sup: toggled('sup', 'sub'),
      code: toggled('code'),
    },
  },
};

/**
 * @param {string} name
 * @returns {Subject | undefined}
 */
export const subjectOf = (name) => subjects[name];
