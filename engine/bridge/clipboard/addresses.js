// SPDX-License-Identifier: GPL-3.0-or-later
// @ts-check
// Addresses that leave the page (copied) are full ones of files; those that come in, by the
// clipboard or by the engine's dragging, become relative again. The scheme that the program shows
// pages with is in neither.

const scheme = 'velor-page:';
const attributes = [
  'action', 'background', 'cite', 'codebase', 'data', 'dynsrc', 'href', 'longdesc', 'lowsrc',
  'poster', 'src',
];
// These hold addresses among other things.
const mixed = ['srcset', 'style', 'usemap'];
const locals = [scheme, 'file:'];
const selectorOf = (names, marks) =>
  names.flatMap((name) => marks.map((mark) => `[${name}*="${mark}"]`)).join();
const addresses = new RegExp(`(?:${scheme}|file:)[^\\s"'()<>,]*`, 'g');

const isOurs = () => new URL(document.baseURI).protocol === scheme;

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

export function narrow(root, marks = locals) {
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

// A link within the page stays one.
export function widen(root) {
  if (!isOurs()) return;
  for (const element of root.querySelectorAll(attributes.map((name) => `[${name}]`).join())) {
    for (const name of attributes) {
      const value = element.getAttribute(name);
      const full = value && !value.startsWith('#') ? resolved(value) : null;
      if (full?.protocol !== scheme) continue;
      element.setAttribute(name, `file://${full.pathname}${full.search}${full.hash}`);
    }
  }
}
function resolved(value) {
  try {
    return new URL(value, document.baseURI);
  } catch {
    return null;
  }
}

function arrived({ inputType }) {
  if (inputType === 'insertFromPaste' || inputType === 'insertFromDrop') {
    narrow(document, [scheme]);
  }
}

// At the window, so that it comes before the history looks at what arrived.
addEventListener('input', (event) => arrived(/** @type {InputEvent} */ (event)), true);
