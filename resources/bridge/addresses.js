// SPDX-License-Identifier: GPL-3.0-or-later
// What the engine copies or drags carries full addresses, under the scheme that the program shows
// pages with. Nothing of that may get into a page: where it comes in, it becomes relative again.
(() => {
  'use strict';

  const scheme = 'velor-page:';
  const attributes = [
    'action', 'background', 'cite', 'codebase', 'data', 'dynsrc', 'href', 'longdesc', 'lowsrc',
    'poster', 'src', 'srcset', 'style', 'usemap',
  ];
  const carriers = attributes.map((name) => `[${name}*="${scheme}"]`).join();
  const addresses = new RegExp(`${scheme}[^\\s"'()<>,]*`, 'g');

  function relative(address) {
    const target = new URL(address);
    const base = new URL(document.baseURI);
    if (base.protocol !== scheme) return target.pathname + target.search + target.hash;
    if (target.pathname === base.pathname && target.search === base.search) {
      return target.hash || target.pathname.split('/').at(-1);
    }
    const from = base.pathname.split('/').slice(0, -1);
    const to = target.pathname.split('/');
    let common = 0;
    while (common < from.length && common < to.length - 1 && from[common] === to[common]) common++;
    const up = '../'.repeat(from.length - common);
    return (up + to.slice(common).join('/') || './') + target.search + target.hash;
  }

  function arrived({ inputType }) {
    if (inputType !== 'insertFromPaste' && inputType !== 'insertFromDrop') return;
    for (const element of document.querySelectorAll(carriers)) {
      for (const name of attributes) {
        const value = element.getAttribute(name);
        if (value?.includes(scheme)) element.setAttribute(name, value.replace(addresses, relative));
      }
    }
  }

  // At the window, so that it comes before the history looks at what arrived.
  addEventListener('input', arrived, true);
})();
