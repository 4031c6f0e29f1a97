// SPDX-License-Identifier: GPL-3.0-or-later
// @ts-check
// Fields of a page's head: its title, META and LINK elements, and the rules of its own style
// sheets.
import { setAttributes } from '../formats/links.js';
import * as dom from '../page/dom.js';
import { dropLine } from '../page/sourceLines.js';

/** @typedef {import('./fields.js').Field} Field */

/**
 * @param {string} selector
 * @returns {AnyNode[]}
 */
const inHead = (selector) => [...document.head?.querySelectorAll(selector) ?? []];

// Takes an element of the head out, with the line that it had to itself.
/** @param {AnyNode} element */
function takeOut(element) {
  dropLine(element);
  element.remove();
}

// Puts an element behind one of the head, on a line of its own where that is on one; at the head's
// end where there is none.
/**
 * @param {AnyNode} made
 * @param {AnyNode | undefined} behind
 */
function putBehind(made, behind) {
  if (!behind) {
    document.head.append(made);
    return;
  }
  const before = behind.previousSibling;
  const [line] = (dom.isText(before) && /\n[ \t]*$/.exec(before.data)) || [''];
  behind.after(line, made);
}
/** @param {RegExp} tags */
const lastOf = (tags) => [...document.head.children].findLast(({ tagName }) => tags.test(tagName));

/**
 * A META element, by its name.
 * @param {string} name
 * @returns {Field}
 */
export const meta = (name) => {
  const find = () => inHead('meta[name]')
    .find((each) => each.getAttribute('name').toLowerCase() === name);
  return {
    read: () => find()?.getAttribute('content') ?? '',
    write(body, value) {
      const found = find();
      if (found && value) found.setAttribute('content', value);
      else if (found) takeOut(found);
      else if (value) {
        putBehind(dom.create('META', { name, content: value }), lastOf(/^(META|TITLE)$/));
      }
    },
  };
};

/** @type {Field} */
export const title = {
  read: () => document.title,
  write(body, value) {
    const found = document.head.querySelector('title');
    if (found) {
      found.textContent = value;
    } else if (value) {
      const made = dom.create('TITLE');
      made.append(value);
      document.head.append(made);
    }
  },
};

/** @param {string} relation */
const links = (relation) => inHead('link[rel][href]')
  .filter(({ relList }) => relList.contains(relation) && !relList.contains('alternate'));
/**
 * @param {string} rel
 * @param {string} href
 */
const makeLink = (rel, href) => dom.create('LINK', { rel, href });

/**
 * The page's icon.
 * @type {Field}
 */
export const icon = {
  read: () => links('icon')[0]?.getAttribute('href') ?? '',
  write(body, value) {
    const [found] = links('icon');
    if (found && value) found.setAttribute('href', value);
    else if (found) takeOut(found);
    else if (value) putBehind(makeLink('icon', value), lastOf(/^(META|TITLE|LINK)$/));
  },
};

/**
 * The addresses of the style sheets that the page links, one a line, in their order.
 * @type {Field}
 */
export const sheets = {
  read: () => links('stylesheet').map((each) => each.getAttribute('href')).join('\n'),
  write(body, value) {
    const left = links('stylesheet');
    const wanted = value.split('\n').map((each) => each.trim()).filter(Boolean).map((href) => {
      const index = left.findIndex((each) => each.getAttribute('href') === href);
      return index < 0 ? makeLink('stylesheet', href) : left.splice(index, 1)[0];
    });
    let last = lastOf(/^(META|TITLE)$/);
    left.forEach(takeOut);
    for (const link of wanted) {
      const isBehind = link.isConnected && (last === undefined || last.tagName !== 'LINK' ||
        last.compareDocumentPosition(link) & Node.DOCUMENT_POSITION_FOLLOWING);
      if (!isBehind) {
        if (link.isConnected) takeOut(link);
        putBehind(link, last);
      }
      last = link;
    }
  },
};

// The style sheets' text with blanks for what is no rule: comments, strings, and what hides a sheet
// from the oldest browsers. Offsets stay.
/** @param {string} sheet */
const rulesAlone = (sheet) => sheet.replace(
  /\/\*[^]*?(\*\/|$)|"[^"\n]*"|'[^'\n]*'|<!--|-->/g, (found) => ' '.repeat(found.length));

/**
 * The last rule of a style sheet for exactly this selector, outside of @media and the like: where
 * it begins and ends, and where its declarations do.
 * @param {string} sheet
 * @param {string} selector
 */
function ruleIn(sheet, selector) {
  const text = rulesAlone(sheet);
  let found = null;
  let depth = 0;
  let start = 0;
  let open = 0;
  for (const { 0: sign, index } of text.matchAll(/[{};]/g)) {
    if (sign === '{') {
      if (depth === 0) open = index;
      depth += 1;
    } else if (sign === '}' && depth > 0) {
      depth -= 1;
      const isIt = depth === 0 && text.slice(start, open).trim().toLowerCase() === selector;
      if (isIt) {
        const [space] = /^\s*/.exec(text.slice(start));
        found = { start: start + space.length, open: open + 1, close: index, end: index + 1 };
      }
    }
    if (depth === 0) start = index + 1;
  }
  return found;
}

const colour = /((?:^|;)\s*color\s*:\s*)([^;]*?)(\s*(?:;|$))/i;
/** @param {string} selector */
function styledBy(selector) {
  for (const element of inHead('style').reverse()) {
    const sheet = element.textContent;
    const rule = ruleIn(sheet, selector);
    const said = rule && colour.exec(sheet.slice(rule.open, rule.close));
    if (rule && said) return { element, sheet, rule, value: said[2] };
  }
  return null;
}

/**
 * A colour that an attribute of the body says in old pages, and a rule of the page's own style
 * sheet in others.
 * @param {string} name the attribute
 * @param {string} selector
 * @returns {Field}
 */
export const ruled = (name, selector) => ({
  read: (body) => styledBy(selector)?.value ?? body.getAttribute(name) ?? '',
  write(body, value) {
    const found = styledBy(selector);
    const isSaid = body.hasAttribute(name);
    if (isSaid || (!found && !dom.writesStyles())) setAttributes(body, [[name, value]]);
    if (found) {
      const { element, sheet, rule } = found;
      const declared = sheet.slice(rule.open, rule.close);
      const left = declared.replace(colour, value ? `$1${value}$3` : '');
      element.textContent = left.trim()
        ? sheet.slice(0, rule.open) + left + sheet.slice(rule.close)
        : sheet.slice(0, rule.start).replace(/\n[ \t]*$/, '') + sheet.slice(rule.end);
    } else if (value && !isSaid && dom.writesStyles()) {
      addRule(`${selector} { color: ${value} }`);
    }
  },
});

/** @param {string} rule */
function addRule(rule) {
  const last = inHead('style:not([media])').at(-1);
  if (last) {
    const [end] = /\s*$/.exec(last.textContent);
    last.textContent = last.textContent.trimEnd() + `\n${rule}` + (end || '\n');
    return;
  }
  const made = dom.create('STYLE');
  made.append(`\n${rule}\n`);
  putBehind(made, lastOf(/^(META|TITLE|LINK)$/));
}
