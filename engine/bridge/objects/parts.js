// SPDX-License-Identifier: GPL-3.0-or-later
// @ts-check
// Style sheets and pictures whose files have changed, shown anew without a change of the document.
// The engine takes what it has read for an address before; so each is asked for under its address
// with a number behind, by rules that hang on the document's sheets and are no part of its text.
import { adoptSheet } from './overlay.js';

const mark = 'velor-shown';
const marked = new RegExp(`[?&]${mark}=\\d+$`);
const pictures = new CSSStyleSheet();
// Style properties that show a picture.
const showing = [
  'background-image', 'border-image-source', 'content', 'cursor', 'list-style-image',
];

let changes = 0;
const numbers = new Map();  // of the files to be shown anew, by keyOf their addresses

// What tells one file from another, as the program writes it.
/** @param {string} address */
function keyOf(address) {
  const { protocol, pathname } = new URL(address);
  try {
    return protocol + decodeURIComponent(pathname);
  } catch {
    return protocol + pathname;
  }
}

// The address to show a file anew by; null where it has not changed.
/**
 * @param {string} link
 * @param {string} [base]
 */
function anew(link, base = document.baseURI) {
  if (!link || !numbers.size) return null;
  try {
    const url = new URL(link, base);
    const number = numbers.get(keyOf(url.href));
    if (!number) return null;
    url.hash = '';
    const address = url.href.replace(marked, '');
    return `${address}${address.includes('?') ? '&' : '?'}${mark}=${number}`;
  } catch {
    return null;
  }
}

/** @param {string} text */
const quoted = (text) =>
  `"${text.replace(/["\\\n\r\f]/g, (sign) => `\\${sign.codePointAt(0).toString(16)} `)}"`;

// [property, value, priority] of what a style shows otherwise now.
/**
 * @param {CSSStyleDeclaration} style
 * @param {string} base
 */
function renewed(style, base) {
  /** @type {[property: string, value: string, priority: string][]} */
  const found = [];
  for (const name of showing) {
    const value = style.getPropertyValue(name);
    const now = value.replace(/url\("((?:[^"\\]|\\.)*)"\)/g, (whole, link) => {
      const address = anew(link.replace(/\\(.)/g, '$1'), base);
      return address ? `url(${quoted(address)})` : whole;
    });
    if (now !== value) found.push([name, now, style.getPropertyPriority(name)]);
  }
  return found;
}

/**
 * @param {CSSRuleList} rules
 * @param {string} base
 */
function renewRules(rules, base) {
  for (const rule of rules) {
    if (rule.styleSheet) renewSheet(rule.styleSheet);
    else if (rule.cssRules?.length) renewRules(rule.cssRules, base);
    if (rule.style) for (const each of renewed(rule.style, base)) rule.style.setProperty(...each);
  }
}

const patience = 10000;  // milliseconds

// What the engine reads for a rule that was put in later it applies with the sheet's next change.
// Timers do not run in pages without scripts.
/**
 * @param {CSSStyleSheet} sheet
 * @param {number} [end]
 */
function applyWhenRead(sheet, end = performance.now() + patience) {
  if (sheet.cssRules[0]?.styleSheet) {
    sheet.insertRule('velor-none {}', sheet.cssRules.length);
    sheet.deleteRule(sheet.cssRules.length - 1);
  } else if (performance.now() < end) {
    requestIdleCallback(() => applyWhenRead(sheet, end), { timeout: 100 });
  }
}

/** @param {CSSStyleSheet} sheet */
function renewSheet(sheet) {
  try {
    const address = sheet.href && anew(sheet.href);
    const rules = sheet.cssRules;
    if (!address || sheet.href === address) {
      renewRules(rules, sheet.href ?? document.baseURI);
    } else if (rules[0]?.styleSheet?.href !== address) {
      while (rules.length) sheet.deleteRule(0);
      sheet.insertRule(`@import url(${quoted(address)})`);
      applyWhenRead(sheet);
    } else {
      renewSheet(rules[0].styleSheet);
    }
  } catch {
    // A sheet of another origin shows its rules to nobody.
  }
}
const renewSheets = () => [...document.styleSheets].forEach(renewSheet);

// Rules for what names its picture itself.
function pictureRules() {
  const rules = new Set();
  for (const image of document.querySelectorAll('img, input[type="image" i]')) {
    const address = anew((/** @type {HTMLImageElement} */ (image)).currentSrc ||
      image.getAttribute('src'));
    if (!address) continue;
    const names = ['src', 'srcset'].filter((name) => image.hasAttribute(name));
    const given = names.map((name) => `[${name}=${quoted(image.getAttribute(name))}]`).join('');
    rules.add(`${image.localName}${given} { content: url(${quoted(address)}) }`);
  }
  for (const element of document.querySelectorAll('[background]')) {
    const link = element.getAttribute('background');
    const address = anew(link);
    if (!address) continue;
    rules.add(`[background=${quoted(link)}] { background-image: url(${quoted(address)}) }`);
  }
  for (const element of document.querySelectorAll('[style*="url(" i]')) {
    const { style } = /** @type {HTMLElement} */ (element);
    for (const [name, value] of renewed(style, document.baseURI)) {
      const given = quoted(element.getAttribute('style'));
      rules.add(`[style=${given}] { ${name}: ${value} !important }`);
    }
  }
  return [...rules].join('\n');
}

function renewAll() {
  renewSheets();
  pictures.replaceSync(pictureRules());
  adoptSheet(pictures, true);
}

// A sheet that comes later, with another document for one, comes as it was read first.
/** @param {Event} event */
function arrived({ target }) {
  if (numbers.size && /** @type {AnyNode} */ (target).sheet) renewSheets();
}

/**
 * Shows files anew that have changed on the disk: style sheets, and pictures wherever they are
 * named.
 * @param {string[]} keys as keyOf makes them
 */
export function showAnew(keys) {
  if (!numbers.size) document.addEventListener('load', arrived, true);
  changes += 1;
  for (const key of keys) numbers.set(key, changes);
  renewAll();
}
