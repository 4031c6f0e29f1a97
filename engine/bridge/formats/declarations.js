// SPDX-License-Identifier: GPL-3.0-or-later
// @ts-check
// The declarations of an inline style as they were written; CSSOM would write all of them anew.
export const declarations = (element) =>
  (element.getAttribute('style') ?? '').match(/(?:[^;"'(]|"[^"]*"|'[^']*'|\([^)]*\))+/g) ?? [];
export const isOf = (property) => (declaration) =>
  declaration.slice(0, declaration.indexOf(':')).trim().toLowerCase() === property;

// The words of these properties in the shorthand `font`, which stands for less without them.
const fontWords = {
  'font-weight': /(:|\s)(bold|bolder|lighter|[1-9]00)(?=\s)/i,
  'font-style': /(:|\s)(italic|oblique)(?=\s)/i,
};
function takeFromShorthand(element, property) {
  const all = declarations(element);
  const word = fontWords[property];
  const index = word ? all.findIndex(isOf('font')) : -1;
  if (index < 0) {
    element.style.removeProperty(property);
  } else if (word.test(all[index])) {
    all[index] = all[index].replace(word, '$1').replace(/:\s+/, ': ').replace(/ {2,}/g, ' ');
    element.setAttribute('style', all.join(';'));
  }
}

export function takeDeclaration(element, property) {
  const all = declarations(element);
  const left = all.filter((declaration) => !isOf(property)(declaration));
  if (left.length === all.length) takeFromShorthand(element, property);
  else if (left.length) element.setAttribute('style', left.join(';').trim());
  else element.removeAttribute('style');
  if (!element.getAttribute('style')) element.removeAttribute('style');
}

// Sets one declaration and leaves the others as they are written.
export function putDeclaration(element, property, value) {
  const all = declarations(element);
  const last = all.findLastIndex(isOf(property));
  const written = `${property}: ${value}`;
  const end = /;\s*$/.test(element.getAttribute('style') ?? '') ? ';' : '';
  if (last >= 0) all[last] = /^\s*/.exec(all[last])[0] + written;
  else all.push((all.length ? ' ' : '') + written);
  element.setAttribute('style', all.filter((each) => each.trim()).join(';') + end);
}
