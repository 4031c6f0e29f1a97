// SPDX-License-Identifier: GPL-3.0-or-later
// Another document in the place of this one, as one step of the history: the old nodes wait there
// to be brought back.
(() => {
  'use strict';
  const { velor } = globalThis;

  // Which original a document came from, by its root: undo brings the old root back and with it the
  // original that its bytes are owed to.
  const generations = new WeakMap();
  velor.generation = () => generations.get(document.documentElement) ?? 0;

  // A policy that a page states holds for as long as the page is there.
  const policy = 'meta[http-equiv="content-security-policy" i]';

  const exchangeable = (fresh) =>
    velor.editable() && fresh.body?.tagName === 'BODY' && fresh.compatMode === document.compatMode &&
    ![document, fresh].some((page) => page.querySelector(policy));

  function exchange(fresh) {
    const { start, end } = velor.places();
    const { scrollX, scrollY } = globalThis;
    for (const node of [...document.childNodes]) node.remove();
    for (const node of [...fresh.childNodes]) document.append(node);
    document.body.focus({ preventScroll: true });
    velor.restore(start, end);
    velor.selection.ensure();
    scrollTo(scrollX, scrollY);
  }

  // Answers the new document's text, or '' where only a load can put it here. A document that is
  // this one already leaves no step.
  velor.replaceDocument = (text, generation) => {
    const fresh = new DOMParser().parseFromString(text, 'text/html');
    if (!exchangeable(fresh)) return '';
    velor.history.finish();
    const html = velor.serialize(fresh);
    if (html !== velor.serialize()) {
      velor.working = true;
      try {
        velor.history.step('replace', () => exchange(fresh));
      } finally {
        velor.working = false;
      }
      velor.pending.clear();
    }
    generations.set(document.documentElement, generation);
    velor.schedulePush();
    return html;
  };
})();
