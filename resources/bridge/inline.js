// SPDX-License-Identifier: GPL-3.0-or-later
// Character formats put on selected text. First the elements that carry the format are taken off
// the text and given back to their other content, then what still looks different is wrapped in as
// few elements as possible.
(() => {
  'use strict';
  const { velor } = globalThis;
  const dom = velor.dom;

  // Cuts the texts at the ends of the range out of their longer nodes.
  function isolate(range) {
    const { startContainer, startOffset, endContainer, endOffset } = range;
    const texts = velor.selection.textsIn(range);
    if (!texts.length) return texts;
    const last = texts.at(-1);
    if (last === endContainer && endOffset < last.length) last.splitText(endOffset);
    if (texts[0] === startContainer && startOffset > 0) texts[0] = texts[0].splitText(startOffset);
    return texts;
  }

  const textsUnder = function* (node) {
    if (dom.isText(node)) {
      if (!dom.isIgnorable(node)) yield node;
    } else if (!dom.isNeutral(node) && !dom.isAtom(node)) {
      for (const child of node.childNodes) yield* textsUnder(child);
    }
  };

  // How much of a node's text is in the set: 'all', 'some' or 'none' of it; 'empty' without text.
  function coverage(node, chosen) {
    let inside = false;
    let outside = false;
    for (const text of textsUnder(node)) {
      if (chosen.has(text)) inside = true;
      else outside = true;
      if (inside && outside) return 'some';
    }
    if (inside) return 'all';
    return outside ? 'none' : 'empty';
  }

  // Gives the format that `carrier` loses back to the part of its content that is not chosen.
  function pushDown(format, carrier, chosen) {
    const give = (parent) => {
      let group = [];
      const flush = () => {
        while (group.length && coverage(group.at(-1), chosen) === 'empty') group.pop();
        while (group.length && coverage(group[0], chosen) === 'empty') group.shift();
        if (group.length) dom.wrap(group, format.shell(carrier));
        group = [];
      };
      for (const child of [...parent.childNodes]) {
        const cover = coverage(child, chosen);
        const plain = !dom.isBlock(child) && !format.carries(child) && !holdsBlock(child);
        if (plain && (cover === 'none' || cover === 'empty')) {
          group.push(child);
          continue;
        }
        flush();
        if (cover !== 'all' && cover !== 'empty' && !format.carries(child)) give(child);
      }
      flush();
    };
    give(carrier);
    format.strip(carrier);
  }
  const holdsBlock = (node) =>
    dom.isInline(node) && !dom.isAtom(node) &&
    [...node.children].some((child) => dom.isBlock(child) || holdsBlock(child));

  // What gives the texts another look than the wanted one and is to be taken off them, the outermost
  // first: what holds nothing but them, and what stands before an ancestor with the wanted look.
  // Another one stays around the new format, as a person would write it.
  function carriersOf(format, texts, chosen, reads) {
    const carriers = new Set();
    const whole = remembered((carrier) => coverage(carrier, chosen) === 'all');
    for (const text of texts) {
      const chain = [];
      let at = text.parentNode;
      for (; !reads(at) && at !== document.body; at = at.parentNode) {
        if (format.carries(at)) chain.unshift(at);
      }
      for (const carrier of chain) if (reads(at) || whole(carrier)) carriers.add(carrier);
    }
    return carriers;
  }
  function remembered(judge) {
    const known = new Map();
    return (node) => {
      if (!known.has(node)) known.set(node, judge(node));
      return known.get(node);
    };
  }

  // The highest node whose text is the given one only, or only such.
  function highest(text, chosen, format, covers) {
    let node = text;
    for (let parent = node.parentNode; dom.isInline(parent); parent = parent.parentNode) {
      if (format.insideLinks && parent.tagName === 'A') break;
      if (!covers.has(parent)) {
        const holdsLink = format.insideLinks && parent.querySelector('a[href]');
        covers.set(parent, !holdsLink && !holdsBlock(parent) && coverage(parent, chosen) === 'all');
      }
      if (!covers.get(parent)) break;
      node = parent;
    }
    return node;
  }

  const nothing = new Set();

  // Runs of neighbouring nodes; breaks and objects between two of them go along.
  function runsOf(tops) {
    const runs = [];
    for (const top of tops) {
      const run = runs.at(-1);
      const between = [];
      let at = run?.at(-1).nextSibling;
      while (at && at !== top && !dom.isBlock(at) && !dom.isIsland(at) &&
             (!dom.isText(at) || dom.isBlank(at)) && coverage(at, nothing) === 'empty') {
        between.push(at);
        at = at.nextSibling;
      }
      if (run && at === top) run.push(...between, top);
      else runs.push([top]);
    }
    return runs;
  }

  function put(format, run, value) {
    const [only] = run;
    const wrapper = format.write(value);
    if (!wrapper) return null;
    if (run.length === 1 && dom.isElement(only)) {
      // A FONT that is there is used in any dialect.
      if (only.tagName === 'FONT' && format.attribute) {
        only.setAttribute(format.attribute, format.inAttribute(value));
        return only;
      }
      if (only.tagName === 'SPAN' && wrapper.tagName === 'SPAN') {
        const before = (only.getAttribute('style') ?? '').replace(/;?\s*$/, '');
        const added = wrapper.getAttribute('style');
        only.setAttribute('style', before ? `${before}; ${added}` : added);
        return only;
      }
    }
    dom.wrap(run, wrapper);
    // What went along without text may have been in its like.
    if (format.tags.includes(wrapper.tagName)) {
      const likes = [...wrapper.querySelectorAll(format.tags.join())];
      likes.filter((like) => !like.attributes.length).forEach(dom.unwrap);
    }
    return wrapper;
  }

  const mergeable = new Set(['B', 'EM', 'FONT', 'I', 'SPAN', 'STRONG', 'U', 'BIG', 'SMALL']);
  // True when both look the same: by the same markup, or each by markup of the format alone.
  function alike(format, element, other) {
    if (!dom.isElement(other)) return false;
    const bare = (each) => format.carries(each) && !dom.isBlock(each) &&
      format.shell(each).tagName === each.tagName && dom.sameLooks(format.shell(each), each);
    if (bare(element) && bare(other)) return format.same(format.read(element), format.read(other));
    return other.tagName === element.tagName && mergeable.has(element.tagName) && !element.id &&
      dom.sameLooks(element, other);
  }

  // Elements whose order makes no difference to what they look like together.
  const turns = (format, outer) => !format.carries(outer) && (
    /^(B|EM|I|STRONG)$/.test(outer.tagName) && !outer.attributes.length ||
    /^(FONT|SPAN)$/.test(outer.tagName) && !outer.id && /^font-(weight|style)$/.test(format.property));
  // The neighbour; where all of it has the format inside other elements, with the format outside.
  function turned(format, element, neighbour) {
    for (let at = neighbour; dom.isElement(at) && turns(format, at); at = at.firstChild) {
      const inner = at.firstChild;
      if (at.childNodes.length !== 1) break;
      if (!alike(format, element, inner)) continue;
      inner.replaceWith(...inner.childNodes);
      return dom.wrap([neighbour], inner);
    }
    return neighbour;
  }

  // Joins the element with that neighbour where both are alike; what was there already is kept.
  function mergeWith(format, element, side, isNew) {
    if (!dom.isElement(element[side])) return element;
    const other = turned(format, element, element[side]);
    if (!alike(format, element, other)) return element;
    const [kept, gone] = isNew ? [other, element] : [element, other];
    const before = (side === 'previousSibling') === isNew;
    if (before) kept.append(...gone.childNodes);
    else kept.prepend(...gone.childNodes);
    gone.remove();
    return kept;
  }

  // Joins texts that were cut, keeping the given places ({node, offset}) where they are.
  function joinTexts(parent, places) {
    for (let at = parent.firstChild; at; at = at.nextSibling) {
      while (dom.isText(at) && dom.isText(at.nextSibling)) {
        const next = at.nextSibling;
        for (const place of places) {
          if (place.node !== next) continue;
          Object.assign(place, { node: at, offset: at.length + place.offset });
        }
        at.appendData(next.data);
        next.remove();
      }
    }
  }

  // An element around the text that gives a look which is there without it by now.
  function dropNeedless(entry, text, chosen, reads) {
    const { parentNode } = text;
    if (!dom.isInline(parentNode) || !entry.carries(parentNode) || !reads(parentNode)) return;
    const needless = reads(parentNode.parentNode) && coverage(parentNode, chosen) === 'all';
    if (needless) entry.strip(parentNode);
  }

  // The page's own rules may give text in the element another look: such text is formatted by itself.
  // Answers the element, null where it had to go.
  function insist(entry, element, value) {
    const wanted = entry.read(element);
    const stubborn = new Set([...textsUnder(element)]
      .filter((text) => !entry.same(entry.read(text.parentNode), wanted)));
    if (!stubborn.size) return element;
    pushDown(entry, element, stubborn);
    for (const text of stubborn) put(entry, [text], value);
    return null;
  }

  // Puts the format with that value on the texts, which are whole nodes.
  function format(name, value, texts) {
    const entry = velor.formats[name];
    const touched = new Set();
    const around = (node) => {
      for (const near of [node.previousSibling, node, node.nextSibling]) {
        if (near) touched.add(near);
      }
    };
    texts.forEach(around);
    const all = new Set(texts);
    const reads = (element) => entry.same(entry.read(element), value);
    for (const carrier of carriersOf(entry, texts, all, remembered(reads))) {
      pushDown(entry, carrier, all);
    }
    texts.forEach((text) => dropNeedless(entry, text, all, reads));
    const left = texts.filter((text) => !reads(text.parentNode));
    const chosen = new Set(left);
    const covers = new Map();
    const tops = new Set(left.map((text) => highest(text, chosen, entry, covers)));
    for (const run of runsOf(tops)) {
      const made = put(entry, run, value);
      const element = made && insist(entry, made, value);
      if (!element) continue;
      const joined = mergeWith(entry, element, 'previousSibling', true);
      mergeWith(entry, joined, 'nextSibling', joined === element);
    }
    return touched;
  }

  function isThere(name, value, range) {
    const { read, same } = velor.formats[name];
    const elements = new Set(velor.selection.textsIn(range).map((text) => text.parentNode));
    return [...elements].every((element) => same(read(element), value));
  }

  // Where the selection is to begin or end again: at its outermost text, or beside the picture,
  // island or break that it takes in there.
  function placesOf(texts, range) {
    const last = texts.at(-1);
    const places = [{ node: texts[0], offset: 0 }, { node: last, offset: last.length }];
    const { startContainer, startOffset, endContainer, endOffset } = range;
    const leaves = [...velor.selection.leavesIn(range)].filter((leaf) => dom.isShown(leaf) &&
      (leaf !== startContainer || startOffset < leaf.length) &&
      (leaf !== endContainer || endOffset > 0));
    if (!leaves.length) return places;
    const isThing = (leaf) => dom.isAtom(leaf) || dom.isBreak(leaf);
    const beside = (leaf, side) => isThing(leaf) && { beside: leaf, side };
    const [first, end] = [leaves[0], leaves.at(-1)];
    const from = { node: first, offset: first === startContainer ? startOffset : 0 };
    const to = { node: end, offset: end === endContainer ? endOffset : end.length };
    return [
      beside(first, 0) || (dom.rawAt(first) ? from : places[0]),
      beside(end, 1) || (dom.rawAt(end) ? to : places[1]),
    ];
  }

  // Puts a format on the text of the range and selects that text again.
  function apply(name, value, range) {
    if (isThere(name, value, range)) return;
    const backward = document.getSelection().focusNode === range.startContainer &&
      document.getSelection().focusOffset === range.startOffset && !range.collapsed;
    const texts = isolate(range);
    if (!texts.length) return;
    const places = placesOf(texts, range);
    const touched = format(name, value, texts);
    const parents = new Set([...touched].map((node) => node.parentNode).filter(Boolean));
    parents.forEach((parent) => joinTexts(parent, places));
    const [anchor, focus] = backward ? places.reverse() : places;
    velor.selection.restore({ anchor, focus });
  }

  velor.inline = { apply, joinTexts };
})();
