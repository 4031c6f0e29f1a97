// SPDX-License-Identifier: GPL-3.0-or-later
// @ts-check
// Addresses in what is copied and pasted. What leaves the page has the full addresses of files
// (file:); in what comes in they become relative to the page again. The scheme that the program
// shows pages with (velor-page:) is not to be seen in either.

const scheme = 'velor-page:';
const attributes = [
  'action', 'background', 'cite', 'codebase', 'data', 'dynsrc', 'href', 'longdesc', 'lowsrc',
  'poster', 'src',
];
// Attributes that hold addresses among other things.
const mixed = ['srcset', 'style', 'usemap'];
const locals = [scheme, 'file:'];
/**
 * @param {string[]} names
 * @param {string[]} marks
 */
const selectorOf = (names, marks) =>
  names.flatMap((name) => marks.map((mark) => `[${name}*="${mark}"]`)).join();
const addresses = new RegExp(`(?:${scheme}|file:)[^\\s"'()<>,]*`, 'g');

/**
 * False for an address that runs a script, or that means something in the other program only.
 * @param {string} name
 * @param {string} value
 */
export function isSafeAddress(name, value) {
  const address = value.trim().replace(/[\u0000-\u0020]/g, '');
  if (name === 'href') return !/^(javascript|vbscript|data):|^(file:.*)?#_/i.test(address);
  return name !== 'src' || !/^(javascript|cid|blob|about):|msohtml/i.test(address);
}
// True for a page that the program shows from a file.
const isShownFromFile = () => new URL(document.baseURI).protocol === scheme;

// An address as it is written in this page.
/** @param {string} address */
function relative(address) {
  const target = new URL(address);
  const base = new URL(document.baseURI);
  if (base.protocol !== scheme) {
    return target.protocol === scheme ? target.pathname + target.search + target.hash : address;
  }
  if (target.pathname === base.pathname && (target.hash || target.search === base.search)) {
    return target.hash || target.pathname.split('/').at(-1);
  }
  const from = base.pathname.split('/').slice(0, -1);
  const to = target.pathname.split('/');
  let common = 0;
  while (common < from.length && common < to.length - 1 && from[common] === to[common]) common++;
  const up = '../'.repeat(from.length - common);
  return (up + to.slice(common).join('/') || './') + target.search + target.hash;
}

/**
 * Makes addresses of local files relative to the page, in what has come in.
 * @param {ParentNode} root
 * @param {string[]} [marks] the schemes of addresses that are changed
 */
export function makeRelative(root, marks = locals) {
  const names = [...attributes, ...mixed];
  for (const element of root.querySelectorAll(selectorOf(names, marks))) {
    for (const name of names) {
      const value = element.getAttribute(name);
      if (value && marks.some((mark) => value.includes(mark))) {
        element.setAttribute(name, value.replace(addresses, relative));
      }
    }
  }
}

/**
 * Makes the addresses in copied markup full ones of files; links within the page stay as they are.
 * @param {ParentNode} root
 */
export function makeFull(root) {
  if (!isShownFromFile()) return;
  for (const element of root.querySelectorAll(attributes.map((name) => `[${name}]`).join())) {
    for (const name of attributes) {
      const value = element.getAttribute(name);
      const full = value && !value.startsWith('#') ? resolved(value) : null;
      if (full?.protocol !== scheme) continue;
      element.setAttribute(name, `file://${full.pathname}${full.search}${full.hash}`);
    }
  }
}
// An attribute's value as a full address; null for what is none.
/** @param {string} value */
function resolved(value) {
  try {
    return new URL(value, document.baseURI);
  } catch {
    return null;
  }
}

// After what the engine itself has put in.
/** @param {InputEvent} event */
function onInput({ inputType }) {
  if (inputType === 'insertFromPaste' || inputType === 'insertFromDrop') {
    makeRelative(document, [scheme]);
  }
}

// At the window, which gets the event before the document, where the history makes a step of it.
addEventListener('input', (event) => onInput(/** @type {InputEvent} */ (event)), true);
