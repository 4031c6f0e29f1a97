// SPDX-License-Identifier: GPL-3.0-or-later
// The object that the bridge's scripts share, its line to the program and the pace of its messages.
(() => {
  'use strict';

  const velor = { host: null, version: 0 };
  globalThis.velor = velor;

  // The document is told of in idle time, when no change came for a while; during steady work after
  // the longer time, so that little is lost with the page's process. Milliseconds.
  const mirrorPause = 200;
  const mirrorLag = 700;

  let dirty = true;
  let waiting = false;
  let mirrorWaits = false;
  let changedFirst = 0;  // since the mirror was given
  let changedLast = 0;
  const frame = 16;  // milliseconds
  let lastPush = -Infinity;
  let pushedPoints = null;

  // True where there is a body to edit; a frameset and a document without root have none.
  velor.editable = () => document.body !== null && document.body.tagName === 'BODY';

  velor.connect = () => {
    if (velor.host || !globalThis.QWebChannel || !globalThis.qt?.webChannelTransport) return;
    new QWebChannel(qt.webChannelTransport, (channel) => {
      velor.host = channel.objects.velorHost;
      velor.schedulePush();
    });
  };

  const hidden = () => document.visibilityState === 'hidden';
  const whenIdle = () => requestIdleCallback(giveMirror, { timeout: mirrorPause });

  function wantMirror() {
    changedLast = performance.now();
    if (hidden()) {
      writeMirror(true);
    } else if (!mirrorWaits) {
      changedFirst = changedLast;
      mirrorWaits = true;
      whenIdle();
    }
  }
  function giveMirror(deadline) {
    if (!mirrorWaits) return;
    const now = performance.now();
    const busy = now - changedLast < mirrorPause && now - changedFirst < mirrorLag;
    if (busy && !hidden()) whenIdle();
    else writeMirror(!deadline.didTimeout);
  }
  // `idle` says that there was time left, so that all that was done is on the screen.
  function writeMirror(idle) {
    mirrorWaits = false;
    velor.host.pushMirror(JSON.stringify({ idle, ...velor.changes() }));
  }

  velor.push = () => {
    waiting = false;
    if (!velor.host) return;
    velor.history.settle();
    velor.host.pushState(JSON.stringify({
      version: ++velor.version, dirty, generation: velor.generation(), ...velor.state(),
    }));
    if (dirty) wantMirror();
    dirty = false;
    pushedPoints = velor.selection.points();
    lastPush = performance.now();
  };

  // After a rest the push follows as soon as the work at hand is done, so that the toolbar does not
  // lag a frame behind the key; then one an animation frame at most. A hidden page has no frames.
  velor.schedulePush = () => {
    velor.overlay.follow();
    if (waiting) return;
    waiting = true;
    const rested = performance.now() - lastPush > frame;
    if (rested || hidden()) Promise.resolve().then(velor.push);
    else requestAnimationFrame(velor.push);
  };

  // The selection moved; nothing new where the last push told of it already.
  velor.selectionMoved = () => {
    const known = pushedPoints && velor.selection.samePoints(pushedPoints, velor.selection.points());
    if (dirty || !known) velor.schedulePush();
  };

  const pushWhenHidden = () => {
    if (waiting && hidden()) velor.push();
    if (mirrorWaits && hidden()) writeMirror(true);
  };

  velor.contentChanged = () => {
    dirty = true;
    velor.schedulePush();
  };

  velor.start = (options = {}) => {
    velor.connect();
    document.designMode = 'on';
    document.execCommand('styleWithCSS', false, 'false');
    document.execCommand('defaultParagraphSeparator', false, 'p');
    document.execCommand('enableObjectResizing', false, 'false');
    document.addEventListener('visibilitychange', pushWhenHidden);
    velor.selection.ensure();
    // Without a focused element the engine drops typed characters until the first click.
    if (velor.editable()) document.body.focus({ preventScroll: true });
    velor.history.start(options);
    velor.pending.clear();
    velor.blanks.reinstate([]);
    velor.listenToKeys();
    velor.listenToClipboard();
    velor.listenToPointer();
    velor.overlay.start();
    velor.listenToGestures();
    velor.setDetails(Boolean(options.showDetails));
    velor.setSnap(Boolean(options.snapToGrid));
    velor.contentChanged();
  };
})();
