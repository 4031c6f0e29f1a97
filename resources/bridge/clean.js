// SPDX-License-Identifier: GPL-3.0-or-later
// Markup of other programs (office documents, mail, browsers) on its way in: its structure, links,
// pictures, tables and emphasis stay, its private markup and its looks do not. A new tree is built
// of what is known; so nothing unknown gets through.
(() => {
  'use strict';
  const { velor } = globalThis;
  const dom = velor.dom;

  const set = (names) => new Set(names.split(' '));
  const dropped = set(
    'APPLET AUDIO BASE BUTTON CANVAS COL COLGROUP EMBED FRAME FRAMESET HEAD IFRAME INPUT LINK ' +
    'META NOSCRIPT OBJECT SCRIPT SELECT STYLE svg TEMPLATE TEXTAREA TITLE VIDEO XML');
  const structure = set(
    'ADDRESS BLOCKQUOTE CAPTION DD DL DT H1 H2 H3 H4 H5 H6 HR LI OL P PRE TABLE TBODY TD TFOOT ' +
    'TH THEAD TR UL');
  const emphasis = set(
    'ABBR B BIG CITE CODE DEL DFN EM I INS KBD MARK Q S SAMP SMALL STRIKE STRONG SUB SUP TT U VAR');
  const attributes = {
    A: ['href', 'name', 'title', 'target'],
    IMG: ['src', 'alt', 'title', 'width', 'height', 'border'],
    TABLE: ['border', 'cellpadding', 'cellspacing', 'width'], OL: ['start', 'type'], UL: ['type'],
    TD: ['colspan', 'rowspan', 'align', 'valign'], TH: ['colspan', 'rowspan', 'align', 'valign'],
  };
  const wholes = set('BR HR IMG');

  // What a style says that is emphasis: the tag for it.
  const styled = [
    ['B', ({ fontWeight }) => /bold/.test(fontWeight) || Number(fontWeight) >= 600],
    ['I', ({ fontStyle }) => /italic|oblique/.test(fontStyle)],
    ['U', (style) => /underline/.test(style.textDecoration + style.textDecorationLine)],
    ['S', (style) => /line-through/.test(style.textDecoration + style.textDecorationLine)],
    ['SUP', ({ verticalAlign }) => verticalAlign === 'super'],
    ['SUB', ({ verticalAlign }) => verticalAlign === 'sub'],
  ];
  // A way to write "no emphasis" that some programs put around everything.
  const undone = (tag, { fontWeight, fontStyle }) =>
    (/^(B|STRONG)$/.test(tag) && /^(normal|400)$/.test(fontWeight)) ||
    (/^(I|EM)$/.test(tag) && fontStyle === 'normal');

  const isBlock = (node) => dom.isElement(node) && dom.isBlock(node);
  const hasText = (nodes) => nodes.some((node) => {
    if (dom.isText(node)) return /[^ \n]/.test(node.data);
    return wholes.has(node.tagName) || hasText([...node.childNodes]);
  });

  // Runs of inline nodes between blocks become paragraphs; those that show nothing go.
  function paragraphs(nodes) {
    const result = [];
    let run = [];
    const flush = () => {
      if (hasText(run.filter((node) => !dom.isBreak(node)))) result.push(put('P', run));
      run = [];
    };
    for (const node of nodes) {
      if (isBlock(node)) {
        flush();
        result.push(node);
      } else {
        run.push(node);
      }
    }
    flush();
    return result;
  }
  function put(tag, nodes) {
    const element = dom.create(tag);
    element.append(...nodes);
    return element;
  }

  function safeAddress(name, value) {
    const address = value.trim().replace(/[\u0000-\u0020]/g, '');
    if (name === 'href') return !/^(javascript|vbscript|data):/i.test(address);
    return name !== 'src' || !/^(javascript|cid|blob|about):|msohtml/i.test(address);
  }
  function copyAttributes(from, to) {
    for (const name of attributes[from.tagName] ?? []) {
      const value = from.getAttribute(name);
      const own = name === 'name' && value?.startsWith('_');
      if (value !== null && !own && safeAddress(name, value)) to.setAttribute(name, value);
    }
    return to;
  }

  function emphasised(nodes, element, inside) {
    if (!nodes.length || nodes.some(isBlock)) return nodes;
    const names = styled.filter(([, says]) => says(element.style)).map(([tag]) => tag)
      .filter((tag) => !inside.has(tag) && !(tag === 'U' && inside.has('A')));
    return hasText(nodes) ? names.reduce((content, tag) => [put(tag, content)], nodes) : nodes;
  }

  const same = { STRONG: 'B', EM: 'I', INS: 'U' };
  // What one node becomes: a list of nodes. `inside` are the tags around it.
  function clean(node, inside) {
    if (dom.isText(node)) return [cleanText(node, inside)].filter(({ length }) => length);
    if (!dom.isElement(node) || dropped.has(node.tagName)) return [];
    const tag = node.tagName;
    const kind = same[tag] ?? tag;
    const plain = undone(tag, node.style) || inside.has(kind) && emphasis.has(tag);
    const around = new Set([...inside, ...(plain ? [] : [kind])]);
    if (/^(H[1-6]|TH)$/.test(tag)) around.add('B');
    if (wholes.has(tag)) return whole(node);
    const all = [...node.childNodes].flatMap((child) => clean(child, around));
    const content = emphasised(all, node, around);
    if (tag === 'A') return link(node, content);
    if (emphasis.has(tag) && !plain && !content.some(isBlock)) {
      return hasText(content) ? [put(tag, content)] : content;
    }
    if (structure.has(tag)) return structured(node, content);
    return dom.isBlock(node) ? paragraphs(content) : content;
  }
  function cleanText({ data }, inside) {
    if (inside.has('PRE')) return document.createTextNode(data);
    return document.createTextNode(data.replace(/[ \t\r\n\u00a0]+/g, ' '));
  }
  function whole(node) {
    const copy = copyAttributes(node, dom.create(node.tagName));
    return node.tagName === 'IMG' && !copy.hasAttribute('src') ? [] : [copy];
  }
  function link(node, content) {
    const copy = copyAttributes(node, dom.create('A'));
    if (!copy.hasAttribute('href') && !copy.hasAttribute('name')) return content;
    if (content.some(isBlock)) return content;
    copy.append(...content);
    return [copy];
  }

  function structured(node, content) {
    const tag = node.tagName;
    if (/^(UL|OL|DL)$/.test(tag)) return list(node, content);
    if (/^(TABLE|TBODY|THEAD|TFOOT|TR)$/.test(tag)) {
      const parts = content.filter(isBlock);
      const copy = copyAttributes(node, put(tag, parts));
      return parts.length ? [copy] : [];
    }
    const blocks = content.some(isBlock);
    if (/^(LI|TD|TH|DD|CAPTION)$/.test(tag)) {
      const inner = blocks ? single(content) : content;
      return [copyAttributes(node, put(tag, trim(inner)))];
    }
    if (tag === 'BLOCKQUOTE') {
      return blocks || hasText(content) ? [put(tag, paragraphs(content))] : [];
    }
    // A paragraph or heading around blocks is none; an empty one is a gap.
    if (blocks) return paragraphs(content);
    return hasText(content.filter((each) => !dom.isBreak(each))) ? [put(tag, trim(content))] : [];
  }
  // A paragraph that is all of an item is its text.
  function single(content) {
    const shown = content.filter((node) => !dom.isText(node) || hasText([node]));
    if (shown[0]?.tagName === 'P' && shown.slice(1).every(dom.isList)) {
      return [...shown[0].childNodes, ...shown.slice(1)];
    }
    return shown;
  }
  function trim(nodes) {
    const result = [...nodes];
    if (dom.isText(result[0])) result[0].data = result[0].data.replace(/^ /, '');
    const last = result.at(-1);
    if (dom.isText(last)) last.data = last.data.replace(/ $/, '');
    return result.filter((node) => !dom.isText(node) || node.length);
  }
  // Items only; a list directly in a list belongs to the item before it.
  function list(node, content) {
    const copy = copyAttributes(node, dom.create(node.tagName));
    for (const each of content) {
      if (/^(LI|DT|DD)$/.test(each.tagName ?? '')) copy.append(each);
      else if (copy.lastChild && dom.isList(each)) copy.lastChild.append(each);
      else if (hasText([each])) copy.append(put('LI', [each]));
    }
    return copy.firstChild ? [copy] : [];
  }

  // Office documents write the items of lists as paragraphs, with the sign typed before them.
  const levelOf = (paragraph) =>
    Number((paragraph.getAttribute('style') ?? '').match(/mso-list:[^;"]*level(\d)/)?.[1] ?? 0);
  function listParagraphs(root) {
    let lists = [];
    let last = null;
    for (const paragraph of [...root.querySelectorAll('p, h1, h2, h3, h4, h5, h6')]) {
      const level = levelOf(paragraph);
      if (!level) continue;
      const sign = [...paragraph.querySelectorAll('span')]
        .find((span) => /mso-list:\s*ignore/i.test(span.getAttribute('style') ?? ''));
      const tag = /^\s*\(?[0-9a-z]{1,4}[.)]/i.test(sign?.textContent ?? '') ? 'OL' : 'UL';
      sign?.remove();
      if (!last || paragraph.previousElementSibling !== last) lists = [];
      lists.length = Math.min(lists.length, level);
      if (lists[level - 1]?.tagName !== tag) lists.length = Math.min(lists.length, level - 1);
      const item = root.ownerDocument.createElement('LI');
      item.append(...paragraph.childNodes);
      while (lists.length < level) {
        const made = root.ownerDocument.createElement(tag);
        if (lists.length) (lists.at(-1).lastChild ?? lists.at(-1)).append(made);
        else paragraph.before(made);
        lists.push(made);
      }
      lists.at(-1).append(item);
      last = lists[0];
      paragraph.remove();
    }
  }

  // The inside of a fragment's marks where a program has set such.
  function partOf(html) {
    const start = html.search(/<!--StartFragment-->/i);
    const end = html.search(/<!--EndFragment-->/i);
    return start >= 0 && end > start ? html.slice(start, end) : html;
  }

  // A fragment of what the markup says, ready to be put in.
  velor.cleaned = (html) => {
    const { body } = new DOMParser().parseFromString(partOf(html), 'text/html');
    listParagraphs(body);
    const content = [...body.childNodes].flatMap((node) => clean(node, new Set()));
    const fragment = document.createDocumentFragment();
    fragment.append(...(content.some(isBlock) ? paragraphs(content) : content));
    fragment.normalize();
    return fragment;
  };
})();
