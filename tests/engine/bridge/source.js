// SPDX-License-Identifier: GPL-3.0-or-later
// @ts-check
// What a step of the walk may not do away from where it was: change the source's white space, or
// take away what marks words (INS, DEL, links, names, classes).
(() => {
  'use strict';

  // A page's text cut at its characters that are no white space. `gaps[n]` is what stands before
  // character n: tags and white space.
  function cut(html) {
    const body = html.slice(html.indexOf('<body'), html.lastIndexOf('</body'));
    const chars = [];
    const gaps = [''];
    for (const [token] of body.matchAll(/<!--[^]*?-->|<[^>]*>|&nbsp;|\s+|&\w+;|[^]/g)) {
      if (/^(<.*>|&nbsp;|\s+)$/s.test(token) && token !== '<') {
        gaps[chars.length] += token;
      } else {
        chars.push(token);
        gaps.push('');
      }
    }
    return { chars, gaps };
  }
  // The gap's tags by their names, and the white space before, between and behind them.
  function parts(gap) {
    const tags = [...gap.matchAll(/<!--[^]*?-->|<[^>]*>/g)].map(([tag]) => tag.split(/[\s>]/)[0]);
    return { tags: tags.join(' '), blanks: gap.split(/<!--[^]*?-->|<[^>]*>/) };
  }
  // Where the tags are other ones lines may have come or gone with them. A block that was made may
  // have got a line of its own.
  function sameBlanks(one, other) {
    if (one === other) return true;
    const [was, is] = [parts(one), parts(other)];
    return was.tags !== is.tags || was.blanks.every((blanks, at) =>
      blanks === is.blanks[at] || (!blanks && is.tags && /^\n[ \t]*$/.test(is.blanks[at])));
  }

  const wordsOf = (text) => text.replace(/[\s\u00a0]/g, '');
  // The elements that mark words, with the places of these among the page's characters.
  function marks() {
    const range = document.createRange();
    range.selectNodeContents(document.body);
    /** @type {NodeListOf<HTMLElement>} */
    const found = document.body.querySelectorAll('ins, del, a[href], [id], [class]');
    return [...found].flatMap((element) => {
      range.setEnd(element, 0);
      const from = wordsOf(range.toString()).length;
      const words = wordsOf(element.textContent);
      const signs = [element.id && `#${element.id}`,
        element.className && `.${element.className}`,
        /^(INS|DEL|A)$/.test(element.tagName) &&
          `${element.tagName} ${element.getAttribute('href') ?? ''}`];
      return signs.filter(Boolean).map((sign) => ({ sign, words, from, to: from + words.length }));
    });
  }

  globalThis.source = {
    look: () => ({ ...cut(velor.serialize()), marks: marks(),
      preformatted: document.querySelectorAll('pre, listing, xmp').length }),
    // The faults of a step that found the look `was`, with so many characters before and behind its
    // selection, and in the rest of the block that it ends in. What is within `near` characters of
    // the selection may be its own; that block's end goes where it joins another.
    faults(was, { before, behind, rest, near, deletes, joinsRaw, joinsLines }) {
      const now = source.look();
      const faults = [];
      const [count, after] = [was.chars.length, now.chars.length];
      // Preformatted lines are made of such white space, and the other way round.
      const isLaidOut = was.preformatted !== now.preformatted;
      const kept = (from, to, shift) => {
        for (let at = from; at < to; at++) {
          const [old, fresh] = [was.gaps[at], now.gaps[at + shift]];
          if (was.chars[at] !== now.chars[at + shift]) return;
          if (isLaidOut || at === count - behind + rest || sameBlanks(old, fresh)) continue;
          faults.push(`white space is ${JSON.stringify(fresh)} and was ${JSON.stringify(old)}`);
          return;
        }
      };
      kept(1, before - near, 0);
      // What joins preformatted text has the lines that were seen of it.
      kept(count - behind + (joinsLines ? rest : 0) + 1 + near, count, after - count);
      const wordsUnder = (sign) =>
        now.marks.filter((mark) => mark.sign === sign).map(({ words }) => words).join('');
      // What joins text without markup is such text too.
      const end = count - behind + (joinsRaw ? rest : 0);
      for (const { sign, words, from, to } of was.marks) {
        const isAway = to < before - near || from > end + near;
        // No command but a deletion takes the mark of a change or a link from its words.
        const stays = words && (isAway || (!deletes && /^[A-Z]/.test(sign)));
        if (stays && !wordsUnder(sign).includes(words)) faults.push(`${sign} is lost`);
      }
      return faults;
    },
  };
})();
