// SPDX-License-Identifier: GPL-3.0-or-later
// @ts-check
// The character formats. The table at the end has one entry for each (FormatEntry in types.d.ts
// says what its fields mean): how it is read at an element, which elements carry it, how it is
// written. B, I and U are written in all pages; sizes, fonts and colours as styles in HTML5 pages,
// else as FONT.
import * as dom from '../page/dom.js';
import { create, isBlock, isHeading, isInline } from '../page/dom.js';
import * as history from '../page/history.js';
import { declarations, isOf, putDeclaration, takeDeclaration } from './declarations.js';

/** @param {Element} element */
const style = (element) => getComputedStyle(element);

/**
 * A computed colour: `light` is red, green and blue (0 to 255), `cover` its alpha (0 to 1).
 * @typedef {{ light: number[], cover: number }} Colour
 */
/** @param {string} colour */
function colourOf(colour) {
  const [red, green, blue, cover = 1] = colour.match(/[\d.]+/g).map(Number);
  return { light: [red, green, blue], cover };
}
// The light that is seen where a colour lies on another.
/**
 * @param {number[]} below
 * @param {Colour} colour
 */
const laidOn = (below, { light, cover }) =>
  light.map((part, index) => part * cover + below[index] * (1 - cover));
/** @param {number[]} light */
const hex = (light) => '#' +
  light.map((part) => Math.round(part).toString(16).padStart(2, '0').toUpperCase()).join('');

// CSS pixels are 96 an inch, points 72.
/** @param {number} pixels */
const points = (pixels) => (pixels * 72) / 96;
// The points of FONT's sizes 1 to 7.
const sizePoints = [8, 10, 12, 14, 18, 24, 36];
// FONT's size (1 to 7) that comes nearest to a size as `sizeText` writes it.
/** @param {string} text */
function sizeNumber(text) {
  const number = parseFloat(text);
  const wanted = text.endsWith('px') ? points(number) : number;
  let best = 0;
  sizePoints.forEach((size, index) => {
    if (Math.abs(size - wanted) < Math.abs(sizePoints[best] - wanted)) best = index;
  });
  return best + 1;
}

// The element and those around it, outwards.
/** @param {AnyNode} element */
const ancestors = function* (element) {
  for (let at = element; at && at !== document; at = at.parentNode) yield at;
};

// A heading, a table's header cell, a link and inserted text have their look by nature: that alone
// is no format, so that bold in a heading and underline in a link can be told apart and toggled.
/** @param {HTMLElement} element */
const boldByNature = (element) => isHeading(element) || element.tagName === 'TH';
/** @param {HTMLElement} element */
const isBoldType = (element) => Number(style(element).fontWeight) >= 600;
/** @param {HTMLElement} element */
function bold(element) {
  for (const at of ancestors(element)) {
    if (!isBoldType(at)) return false;
    if (formats.bold.carries(at) || at.style.fontWeight) return true;
    if (!at.parentElement || !isBoldType(at.parentElement)) return !boldByNature(at);
  }
  return false;
}
// A function that reads a value from the nearest element outwards for which `readAt` answers
// something else than undefined; `otherwise` where none does. Results are kept in `known` for all
// elements on the way: many texts have ancestors in common.
/**
 * @template T
 * @param {(at: AnyNode) => T | undefined} readAt
 * @param {T} otherwise
 * @returns {(element: Element, known?: Map<Node, T>) => T}
 */
const readOutwards = (readAt, otherwise) => (element, known = new Map()) => {
  const passed = [];
  let answer = undefined;
  for (const at of ancestors(element)) {
    answer = known.get(at);
    if (answer !== undefined) break;
    passed.push(at);
    answer = readAt(at);
    if (answer !== undefined) break;
  }
  answer ??= otherwise;
  for (const at of passed) known.set(at, answer);
  return answer;
};
// A line that an element draws through or under its text; deleted text is struck by nature.
/**
 * @param {string} line
 * @param {RegExp} nature
 */
const lineBy = (line, nature) => readOutwards((at) => {
  const byNature = nature.test(at.tagName) && !at.style.textDecorationLine;
  const { textDecorationLine, display } = style(at);
  if (!byNature && textDecorationLine.includes(line)) return true;
  return /^(inline-block|inline-table)$/.test(display) ? false : undefined;
}, false);
const underline = lineBy('underline', /^(A|INS)$/);
const struck = lineBy('line-through', /^DEL$/);
// The light that is seen behind text in an element: the backgrounds of the elements around it, as
// far as the inner ones let the outer ones through.
/**
 * @param {Element} element
 * @param {Map<Node, number[]>} [known]
 */
function lightBehind(element, known = new Map()) {
  const layers = [];
  let light = [255, 255, 255];
  for (const at of ancestors(element)) {
    if (known.has(at)) {
      light = known.get(at);
      break;
    }
    const layer = colourOf(style(at).backgroundColor);
    layers.push({ at, layer });
    if (layer.cover === 1) break;
  }
  for (const { at, layer } of layers.reverse()) {
    light = laidOn(light, layer);
    known.set(at, light);
  }
  return light;
}
// The light of text in an element.
/**
 * @param {Element} element
 * @param {Map<Node, number[]>} [known]
 */
function textColour(element, known) {
  const own = colourOf(style(element).color);
  return own.cover === 1 ? own.light : laidOn(lightBehind(element, known), own);
}

// The size that FONT's attribute comes to (1 to 7) as the engine reads it; 0 for none.
/** @param {Element} font */
function fontNumber(font) {
  const [, sign, digits] = /^\s*([+-]?)(\d+)/.exec(font.getAttribute('size') ?? '') ?? [];
  if (!digits) return 0;
  const number = sign ? 3 + Number(sign + digits) : Number(digits);
  return Math.min(Math.max(number, 1), sizePoints.length);
}
// The engine's own sizes, as those of headings, are this close to the points that they stand for.
const slack = 0.2;
// True where the nearest element that says a size in its style says it in pixels.
const isInPixels = readOutwards((at) => {
  const said = at.style?.fontSize;
  return said ? /px$/i.test(said) : undefined;
}, false);
// The computed size in an element: one of the seven sizes as a bare number of points; any other
// with its unit: the one that the page says, else that in which it is a whole number.
/** @param {HTMLElement} element */
function sizeText(element) {
  const pixels = parseFloat(style(element).fontSize);
  const size = points(pixels);
  const listed = sizePoints.find((each) => Math.abs(each - size) < slack);
  if (listed) return String(listed);
  const isOddPoints = !Number.isInteger(size) && Number.isInteger(pixels);
  const [number, unit] = isInPixels(element) || isOddPoints ? [pixels, 'px'] : [size, 'pt'];
  return `${Math.round(number * 10) / 10} ${unit}`;
}

// The size of text in an element. In a FONT it is that of its attribute: what the engine shows that
// with differs by typeface.
/** @param {HTMLElement} element */
function fontSize(element) {
  for (const at of ancestors(element)) {
    if (dom.isBlock(at) || (at.tagName === 'FONT' && at.style.fontSize)) break;
    const size = at.tagName === 'FONT' ? fontNumber(at) : 0;
    if (size) return String(sizePoints[size - 1]);
    if (formats.fontSize.carries(at)) break;
  }
  return sizeText(element);
}

// True for a block that holds no other ones: its style is its text's alone.
/** @param {HTMLElement} element */
const holdsText = (element) => ![...element.children].some(isBlock);

/**
 * The format that an entry describes.
 * @param {FormatEntry} entry
 * @returns {Format}
 */
function defineFormat(entry) {
  const tags = new Set(entry.tags);
  /** @param {FormatValue} value */
  const spelled = (value) => value;
  const { property, attribute, part, inAttribute = spelled, inStyle = spelled } = entry;
  // The property's value in an element's inline style, '' for none.
  /** @param {HTMLElement} element */
  const written = ({ style: own }) =>
    (part ? own?.textDecorationLine : own?.getPropertyValue(property)) ?? '';
  /** @param {HTMLElement} element */
  const isStyled = (element) =>
    (part ? written(element).split(' ').includes(part) : written(element) !== '');
  // True for an element that gives the format by its tag, or by FONT's attribute.
  /** @param {HTMLElement} element */
  const isMarkup = (element) => tags.has(element.tagName) ||
    (element.tagName === 'FONT' && element.hasAttribute(attribute));
  // Takes the format out of an inline style; other words of the same declaration stay.
  /** @param {HTMLElement} element */
  function unstyle(element) {
    const shared = part && written(element) !== part &&
      declarations(element).find((each) => /^\s*text-decoration(-line)?\s*:/i.test(each));
    if (!shared && part && /^(DEL|S|STRIKE)$/.test(element.tagName)) {
      return putDeclaration(element, property, 'none');
    }
    if (!shared) return takeDeclaration(element, property);
    const [name, value] = shared.split(':');
    const others = value.split(/\s+/).filter((word) => word && word.toLowerCase() !== part);
    return putDeclaration(element, name.trim().toLowerCase(), others.join(' '));
  }
  return {
    write: (value) => (attribute && !dom.writesStyles()
      ? create('FONT', { [attribute]: inAttribute(value) }) : css(property)(inStyle(value))),
    parse: (value) => value,
    ...entry,
    inAttribute,
    same: (one, other) => String(one).toUpperCase() === String(other).toUpperCase(),
    carries(element) {
      if (isInline(element)) return isMarkup(element) || isStyled(element);
      return isBlock(element) && element !== document.body && isStyled(element) &&
        (entry.acrossBlocks || holdsText(element));
    },
    shell(element) {
      if (tags.has(element.tagName)) return create(element.tagName);
      if (isBlock(element) && this.read(element) === true) return this.write(true);
      if (element.tagName === 'FONT' && element.hasAttribute(attribute)) {
        return create('FONT', { [attribute]: element.getAttribute(attribute) });
      }
      if (part) return this.write(true);
      const own = declarations(element).find(isOf(property))?.trim();
      return create('SPAN', { style: own ?? `${property}: ${written(element)}` });
    },
    strip(element) {
      history.attributesOf(element);
      if (isStyled(element)) unstyle(element);
      if (element.tagName === 'FONT') element.removeAttribute(attribute);
      if (tags.has(element.tagName)) {
        if (element.attributes.length) dom.rename(element, 'SPAN');
        else dom.unwrap(element);
      } else if (/^(FONT|SPAN)$/.test(element.tagName) && !element.attributes.length) {
        dom.unwrap(element);
      }
    },
  };
}

// Makes a SPAN with a style.
/**
 * @param {string} property
 * @returns {(value: FormatValue) => HTMLElement}
 */
const css = (property) => (value) => create('SPAN', { style: `${property}: ${value}` });

// A list of fonts as CSS has it: names of several words in quotes.
/** @param {string} names */
const fontFamily = (names) => names.split(',')
  .map((name) => name.replace(/['"\\;]/g, '').trim())
  .map((name) => (/^[a-z][a-z0-9-]*$/i.test(name) ? name : `'${name}'`)).join(', ');

// A format that its element alone gives: text in it has it, whatever its looks are.
/** @param {string} tag */
const tagged = (tag) => defineFormat({
  read: (element) => element.closest(tag) !== null,
  tags: [tag], property: '',
  write: (on) => (on ? create(tag) : null),
});

/**
 * The character formats by the name that the other modules have for them.
 * @type {Record<string, Format>}
 */
export const formats = {
  bold: defineFormat({
    read: bold, tags: ['B', 'STRONG'], property: 'font-weight', acrossBlocks: true,
    write: (on) => (on ? create('B') : css('font-weight')('normal')),
    inLike: () => css('font-weight')('bold'),
  }),
  italic: defineFormat({
    read: (element) => style(element).fontStyle !== 'normal',
    tags: ['I', 'EM'], property: 'font-style', acrossBlocks: true,
    write: (on) => (on ? create('I') : css('font-style')('normal')),
    inLike: () => css('font-style')('italic'),
  }),
  underline: defineFormat({
    read: underline, tags: ['U'], property: 'text-decoration', part: 'underline',
    acrossBlocks: true,
    // An underline that an element around draws cannot be taken off from inside.
    write: (on) => (on ? create('U') : null),
  }),
  strike: defineFormat({
    read: struck, tags: ['S', 'STRIKE'], property: 'text-decoration', part: 'line-through',
    acrossBlocks: true,
    write: (on) => (on ? create('S') : null),
  }),
  sub: tagged('SUB'),
  sup: tagged('SUP'),
  code: tagged('CODE'),
  fontName: defineFormat({
    read: (element) => style(element).fontFamily.split(',')[0].trim().replace(/^["']|["']$/g, ''),
    tags: [], attribute: 'face', property: 'font-family', inStyle: fontFamily,
  }),
  fontSize: defineFormat({
    read: fontSize,
    parse: (value) => String(sizePoints[sizeNumber(value) - 1]),
    tags: ['BIG', 'SMALL'], attribute: 'size', inAttribute: sizeNumber,
    property: 'font-size',
    inStyle: (/** @type {string} */ value) =>
      (/\d$/.test(value) ? `${value}pt` : value.replace(' ', '')),
  }),
  foreColor: defineFormat({
    read: (element, known) => hex(textColour(element, /** @type {Map<Node, number[]>} */ (known))),
    tags: [], attribute: 'color', property: 'color', insideLinks: true,
  }),
  backColor: defineFormat({
    read: (element, known) => hex(lightBehind(element, /** @type {Map<Node, number[]>} */ (known))),
    tags: [], property: 'background-color',
  }),
};
