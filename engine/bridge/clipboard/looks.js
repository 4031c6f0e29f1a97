// SPDX-License-Identifier: GPL-3.0-or-later
// @ts-check
// The looks of other programs' markup that mean something: emphasis, colours of words, alignment,
// widths. Each is read from tags, attributes, styles and the rules of the markup's own style
// sheets, and written in the page's dialect.
import { putDeclaration } from '../formats/declarations.js';
import * as dom from '../page/dom.js';

// The tags for what is emphasis in a style.
/** @type {[tag: string, says: (style: CSSStyleDeclaration) => boolean][]} */
const styled = [
  ['B', ({ fontWeight }) => /bold/.test(fontWeight) || Number(fontWeight) >= 600],
  ['I', ({ fontStyle }) => /italic|oblique/.test(fontStyle)],
  ['U', (style) => /underline/.test(style.textDecoration + style.textDecorationLine)],
  ['S', (style) => /line-through/.test(style.textDecoration + style.textDecorationLine)],
  ['SUP', ({ verticalAlign }) => verticalAlign === 'super'],
  ['SUB', ({ verticalAlign }) => verticalAlign === 'sub'],
];
/**
 * The tags for what an element's style says.
 * @param {HTMLElement} element
 */
export const emphasisOf = ({ style }) =>
  styled.filter(([, says]) => says(style)).map(([tag]) => tag);

/**
 * True for an element that its own style makes none: some programs put such a B around everything.
 * @param {HTMLElement} element
 */
export const isUndone = ({ tagName, style }) =>
  (/^(B|STRONG)$/.test(tagName) && /^(normal|400)$/.test(style.fontWeight)) ||
  (/^(I|EM)$/.test(tagName) && style.fontStyle === 'normal');

/**
 * True for what nobody saw.
 * @param {HTMLElement} element
 */
export const isHidden = (element) => element.hasAttribute('hidden') ||
  (element.hasAttribute('style') && (element.style.display === 'none' ||
    /mso-hide:\s*all|mso-element:\s*comment/i.test(element.getAttribute('style'))));

// What of a rule counts, and the values that say nothing.
const counting = [
  'background-color', 'color', 'display', 'font-style', 'font-weight', 'text-align',
  'text-decoration-line', 'vertical-align',
];
const saysNothing = /^(400|baseline|initial|none|normal|start|transparent|windowtext|)$/;
/** @param {CSSStyleRule} rule */
const declarationsOf = ({ style }) => counting
  .map((name) => [name, style.getPropertyValue(name)])
  .filter(([name, value]) => name === 'display' ? value === 'none' : !saysNothing.test(value));
// An element's own style goes before a rule.
/**
 * @param {HTMLElement} element
 * @param {string[][]} said
 */
function addStyles({ style }, said) {
  for (const [name, value] of said) {
    if (!style.getPropertyValue(name)) style.setProperty(name, value);
  }
}
/**
 * Gives the elements of a document what the rules of its style sheets say of their classes: office
 * programs have emphasis there.
 * @param {Document} from
 */
export function applyClassRules(from) {
  const sheet = new CSSStyleSheet();
  sheet.replaceSync([...from.querySelectorAll('style')]
    .map(({ textContent }) => textContent.replace(/@import[^;]*;?/g, '')).join('\n'));
  for (const rule of sheet.cssRules) {
    const said = rule instanceof CSSStyleRule ? declarationsOf(rule) : [];
    if (!said.length) continue;
    const names = /** @type {CSSStyleRule} */ (rule).selectorText.split(',')
      .filter((name) => /^\s*[\w-]*\.[\w-]+\s*$/.test(name)).join();
    if (!names) continue;
    for (const element of from.querySelectorAll(names)) {
      addStyles(/** @type {HTMLElement} */ (element), said);
    }
  }
}

/** @type {CanvasRenderingContext2D | null} */
let brush = null;
// A colour as #RRGGBB; empty for none, and for one that is half transparent.
/** @param {string} said */
function hexOf(said) {
  if (!said) return '';
  brush ??= document.createElement('canvas').getContext('2d');
  const unlikely = '#010203';
  brush.fillStyle = unlikely;
  brush.fillStyle = /^[0-9a-f]{6}$/i.test(said) ? `#${said}` : said;
  const { fillStyle } = brush;
  const hex = String(fillStyle);
  return hex === unlikely || !hex.startsWith('#') ? '' : hex.toUpperCase();
}
// Black, white and what is near to grey is the other page's look; a hue is somebody's choice.
const leastHue = 64;
/** @param {string} hex */
function hasHue(hex) {
  const parts = [1, 3, 5].map((at) => parseInt(hex.slice(at, at + 2), 16));
  return Math.max(...parts) - Math.min(...parts) >= leastHue;
}
/** @typedef {{ colour: string, behind: string }} Colours */
/** @type {Colours} */
const noColours = { colour: '', behind: '' };
/**
 * The colours that an element gives its words, empty where it gives none. A paragraph's colour is
 * its page's look, a cell's is the words'. `around` are those that the words have without it.
 * @param {HTMLElement} element
 * @param {Colours} around
 * @returns {Colours}
 */
export function coloursOf(element, around) {
  const { tagName, style } = element;
  const isCell = /^(TD|TH)$/.test(tagName);
  const said = style.color || (tagName === 'FONT' ? element.getAttribute('color') ?? '' : '');
  // The engine of browsers puts a part of a line into such an element, with all of its looks.
  const isWrapper = style.cssFloat === 'none';
  if ((!said && !style.backgroundColor) || isWrapper) return noColours;
  if (!isCell && dom.isBlock(element)) return noColours;
  /**
   * @param {string} own
   * @param {string} outer
   */
  const differing = (own, outer) => {
    const hex = hexOf(own);
    return hex && hex !== outer && (outer || hasHue(hex)) ? hex : '';
  };
  return {
    colour: differing(said, around.colour),
    behind: isCell ? '' : differing(style.backgroundColor, around.behind),
  };
}
/**
 * Elements around nodes that give them colours, the outer ones first; none for no colours.
 * @param {Colours} colours
 */
export function elementsFor({ colour, behind }) {
  const made = [];
  if (colour && !dom.writesStyles()) made.push(dom.create('FONT', { color: colour }));
  const style = [
    ...(colour && dom.writesStyles() ? [`color: ${colour}`] : []),
    ...(behind ? [`background-color: ${behind}`] : []),
  ].join('; ');
  if (style) made.push(dom.create('SPAN', { style }));
  return made;
}

/**
 * The side that an element gives its lines: 'left', 'center', 'right', 'justify', else empty.
 * @param {HTMLElement} element
 */
export function sideOf(element) {
  if (element.tagName === 'CENTER') return 'center';
  const said = (element.style.textAlign || element.getAttribute('align') || '')
    .toLowerCase().replace('-webkit-', '');
  return /^(left|center|right|justify)$/.test(said) ? said : '';
}
/**
 * @param {Element} element
 * @param {string} side
 */
export function setSide(element, side) {
  if (dom.writesStyles()) putDeclaration(element, 'text-align', side);
  else element.setAttribute('align', side);
}

/**
 * A width as the attribute has it ("120", "50%"); empty for none.
 * @param {HTMLElement} element
 */
export function widthOf(element) {
  const said = element.getAttribute('width') ?? element.style.width;
  const [, number, unit] = /^([\d.]+)(%|px|pt|in|cm|)$/.exec(said) ?? [];
  if (!Number(number)) return '';
  if (unit === '%') return said;
  /** @type {Record<string, number>} */
  const pixels = { px: 1, pt: 96 / 72, in: 96, cm: 96 / 2.54 };
  return String(Math.round(Number(number) * (pixels[unit] ?? 1)));
}
/**
 * @param {Element} element
 * @param {string} width
 */
export function setWidth(element, width) {
  if (dom.writesStyles()) putDeclaration(element, 'width', width.replace(/\d$/, '$&px'));
  else element.setAttribute('width', width);
}
