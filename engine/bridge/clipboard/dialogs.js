// SPDX-License-Identifier: GPL-3.0-or-later
// @ts-check
// What the program's dialogs do to what is there: links, named places, a picture's attributes. Each
// call is one step of the history.
import * as align from '../formats/align.js';
import * as links from '../formats/links.js';
import * as dom from '../page/dom.js';
import * as history from '../page/history.js';
import * as selection from '../page/selection.js';
import { resolveAll } from '../page/standIns.js';
import { unitsIn } from '../page/units.js';
import { readView } from '../talk/view.js';
import { put } from './paste.js';

/** @typedef {import('../formats/links.js').Attributes} Attributes */

// One step, where the page can be edited and something is selected in it.
/**
 * @param {string} kind
 * @param {(view: View) => void} change
 */
const step = (kind, change) => history.step(kind, () => {
  if (!dom.isEditable()) return;
  selection.ensure();
  const view = readView();
  if (view.range) change(view);
});

// The pictures and the like of a selection without text.
/** @param {Range} range */
const loneObjects = (range) =>
  [...selection.leavesIn(range)].filter((leaf) => dom.isAtom(leaf) && dom.isInline(leaf));

/**
 * @param {Attributes} attributes
 * @param {string} text
 */
function putLink(attributes, text) {
  const fragment = document.createDocumentFragment();
  const link = dom.create('A', Object.fromEntries(attributes.filter(([, value]) => value)));
  link.append(text);
  fragment.append(link);
  put(fragment);
}

/**
 * Makes, changes or (without an address) takes off the link of the selection, of the word at the
 * caret or of the selected picture. With nothing of that, `text` is put in as a link. An attribute
 * without a value is taken off a link that is there.
 * @param {Attributes} attributes
 * @param {string} text
 */
export const setLink = (attributes, text) => step('setLink', (view) => {
  const { range, object, elements } = view;
  const isTakenOff = !attributes.some(([name, value]) => name === 'href' && value);
  const link = links.linkOf(view);
  if (link && (object || link.contains(range.commonAncestorContainer))) {
    const saved = selection.save();
    if (isTakenOff) links.takeOff(link);
    else links.setAttributes(link, attributes);
    if (isTakenOff) selection.restore(saved);
    return;
  }
  if (object && !dom.isInline(object)) return;
  const wanted = isTakenOff ? [] : attributes;
  if (elements().length) {
    resolveAll();
    links.linkText(wanted);
  } else if (!isTakenOff) {
    linkWhatIsThere(view, attributes, text);
  }
});

// Makes a link where no text is selected.
/**
 * @param {View} view
 * @param {Attributes} attributes
 * @param {string} text
 */
function linkWhatIsThere({ range, object }, attributes, text) {
  if (!range.collapsed) {
    const objects = object ? [object] : loneObjects(range);
    for (const each of objects) links.linkObject(each, attributes);
    return;
  }
  const found = links.wordAt(range);
  if (!found) {
    putLink(attributes, text);
    return;
  }
  const { word, before } = found;
  document.getSelection().setBaseAndExtent(
    word.startContainer, word.startOffset, word.endContainer, word.endOffset);
  links.linkText(attributes);
  links.setCaretWithin(before);
}

/**
 * Names the place of the selection, for links to lead to: the object or the paragraph where that
 * has no name yet, else the caret. A name that the page has is not given twice.
 * @param {string} name
 */
export const setBookmark = (name) => step('setBookmark', ({ range, object }) => {
  if (document.getElementById(name) || document.getElementsByName(name).length) return;
  const block = object ?? dom.blockOf(range.startContainer);
  if (block !== document.body && !block.id) {
    block.id = name;
    return;
  }
  const fragment = document.createDocumentFragment();
  fragment.append(dom.create('A', { id: name }));
  if (object) object.before(fragment);
  else {
    range.collapse(true);
    put(fragment);
  }
});

/**
 * Changes attributes of the selected object; one without a value is taken off. `side` ('left',
 * 'center' or 'right'), where given, aligns the paragraph that it is in.
 * @param {Attributes} attributes
 * @param {'' | 'left' | 'center' | 'right'} side
 */
export const changeObject = (attributes, side) => step('changeObject', ({ object, range }) => {
  if (!object) return;
  links.setAttributes(object, attributes);
  if (!side) return;
  align.applyAll(unitsIn(range), side);
  selection.selectNode(object);
});
