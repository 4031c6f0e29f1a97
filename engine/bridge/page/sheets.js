// SPDX-License-Identifier: GPL-3.0-or-later
// @ts-check
// What the page's style sheets say.

/**
 * @param {CSSRuleList} rules
 * @returns {Generator<any>}
 */
function* rulesIn(rules) {
  for (const rule of rules) {
    yield rule;
    if (rule.styleSheet) yield* rulesOf(rule.styleSheet);
    else if (rule.cssRules) yield* rulesIn(rule.cssRules);
  }
}

/**
 * @param {CSSStyleSheet} sheet
 * @returns {Generator<any>}
 */
function* rulesOf(sheet) {
  let rules = null;
  try {
    rules = sheet.cssRules;
  } catch {
    // A sheet of another origin shows its rules to nobody.
  }
  if (rules) yield* rulesIn(rules);
}

/**
 * The rules of all sheets in their order, those of imported sheets and those within others too.
 * @returns {Generator<any>}
 */
export function* allRules() {
  for (const sheet of document.styleSheets) yield* rulesOf(sheet);
}

// A width in a serialised media query, in either spelling.
const length = String.raw`([\d.]+)(px|r?em)\b`;
const queried = new RegExp([
  String.raw`\((?:min-|max-)?width: ${length}`,
  String.raw`\bwidth [<>]=? ${length}`,
  String.raw`${length} [<>]=? width`,
].join('|'), 'g');
// Lengths in media queries count from the first font size, whatever the page's is.
const fontSize = 16;

/**
 * The widths at which the page's style sheets begin or cease to say something else, in CSS pixels,
 * each once, the smallest first.
 */
export function breakpoints() {
  const conditions = [...document.styleSheets, ...allRules()]
    .map(({ media }) => media?.mediaText ?? '');
  /** @param {string[]} match */
  const widthOf = ([, ...groups]) => {
    const [number, unit] = groups.filter(Boolean);
    return Math.round(Number(number) * (unit === 'px' ? 1 : fontSize));
  };
  const widths = conditions.flatMap((text) => [...text.matchAll(queried)].map(widthOf));
  return [...new Set(widths)].filter((width) => width > 0).sort((one, other) => one - other);
}
