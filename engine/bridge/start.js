// SPDX-License-Identifier: GPL-3.0-or-later
// @ts-check
// What is done once after each load: the document becomes editable, and the modules begin to
// listen.
import { listenToClipboard } from './clipboard/clipboard.js';
import * as pending from './formats/pending.js';
import { listenToKeys } from './keys/keys.js';
import { keepCaretHeight } from './objects/caretHeight.js';
import { setDetails } from './objects/details.js';
import { listenToCells } from './objects/cellGestures.js';
import './objects/cells.js';
import { listenToEdges } from './objects/edges.js';
import { listenToGestures } from './objects/gestures.js';
import { setSnap } from './objects/grid.js';
import * as overlay from './objects/overlay.js';
import { setAdditions } from './page/additions.js';
import { isEditable } from './page/dom.js';
import * as history from './page/history.js';
import * as selection from './page/selection.js';
import { setWholeSigns } from './page/signs.js';
import './page/sourceLines.js';
import { forgetStandIns } from './page/standIns.js';
import { setSpelling } from './spelling/waves.js';
import { connect, host } from './talk/host.js';
import { schedulePush } from './talk/pace.js';
import { listenToPointer } from './talk/pointer.js';
import { contentChanged, listenToVisibility } from './talk/push.js';

// Undo or redo came to the end of the page's history. Tells the program, which may have a document
// beyond it.
/** @param {'undo' | 'redo'} way */
function wantBeyond(way) {
  if (way === 'undo') host()?.earlierWanted();
  else host()?.laterWanted();
}

/**
 * Begins the work on a document; to be called after each load. `earlier` and `later` tell whether
 * the program keeps documents that undo and redo come to beyond the page's history, `additions`
 * whether what goes beyond the published behaviour is on.
 * @param {{ showDetails?: boolean, snapToGrid?: boolean, wholeSigns?: boolean,
 *   spelling?: boolean, additions?: boolean, earlier?: boolean, later?: boolean }} options
 */
export function start({
  showDetails = false, snapToGrid = false, wholeSigns = true, spelling = false,
  additions = true, earlier = false, later = false,
} = {}) {
  connect(schedulePush);
  setAdditions(additions);
  document.designMode = 'on';
  document.execCommand('styleWithCSS', false, 'false');
  document.execCommand('defaultParagraphSeparator', false, 'p');
  document.execCommand('enableObjectResizing', false, 'false');
  listenToVisibility();
  selection.ensure();
  // Without a focused element the engine drops typed characters until the first click.
  if (isEditable()) document.body.focus({ preventScroll: true });
  history.start({ earlier, later, changed: contentChanged, wantBeyond });
  pending.clear();
  forgetStandIns();
  listenToKeys();
  listenToClipboard();
  listenToPointer();
  overlay.start();
  keepCaretHeight();
  listenToEdges();
  listenToCells();
  listenToGestures(schedulePush);
  setDetails(showDetails);
  setSnap(snapToGrid);
  setWholeSigns(wholeSigns);
  setSpelling(spelling);
  contentChanged();
}
