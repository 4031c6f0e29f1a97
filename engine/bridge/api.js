// SPDX-License-Identifier: GPL-3.0-or-later
// @ts-check
// The names that the program evaluates, on the global object `velor` of the bridge's world. Nothing
// else of the bridge is global. docs/bridge.md says what each does.
import { changeObject, setBookmark, setLink } from './clipboard/dialogs.js';
import { pasteAs } from './clipboard/clipboard.js';
import { isPasting } from './clipboard/longPaste.js';
import { pasteHTML } from './clipboard/paste.js';
import { counts } from './find/counts.js';
import { endFind, find, replaceAll, replaceFound, selectedLine } from './find/find.js';
import { askAboutPicture, changePicture, removePicture } from './clipboard/pictures.js';
import { setDetails } from './objects/details.js';
import { setSnap } from './objects/grid.js';
import { showAnew } from './objects/parts.js';
import { restorePaths } from './page/paths.js';
import { setCaretAtPixel } from './page/selection.js';
import { serialize } from './page/serialize.js';
import { properties, setProperties, takeBackProperties } from './properties/properties.js';
import { checkAgain, setSpelling, spelled } from './spelling/waves.js';
import { correctWord, selectWord, spelledText } from './spelling/words.js';
import { start } from './start.js';
import './talk/arrivals.js';
import { changes, mirror } from './talk/changes.js';
import { exec } from './talk/commands.js';
import { host, setHost } from './talk/host.js';
import { caretPlaces, endPlaces, showPlace } from './page/places.js';
import { moveTo, replaceDocument } from './talk/replace.js';
import { actOnPath, choicesOnPath, setClassOnPath } from './talk/path.js';
import { state } from './talk/state.js';
import { parsed } from './talk/verify.js';

// What changes the page waits for nobody, but does nothing while a long paste goes on.
/**
 * @template {any[]} T
 * @param {(...values: T) => any} change
 */
const unlessPasting = (change) => (/** @type {T} */ ...values) =>
  (isPasting() ? false : change(...values));

globalThis.velor = {
  start,
  exec: unlessPasting(exec),
  state,
  pasteHTML: unlessPasting(pasteHTML),
  pasteAs: unlessPasting(pasteAs),
  setLink: unlessPasting(setLink),
  setBookmark: unlessPasting(setBookmark),
  changeObject: unlessPasting(changeObject),
  changePicture: unlessPasting(changePicture),
  removePicture: unlessPasting(removePicture),
  askAboutPicture,
  properties,
  setProperties: unlessPasting(setProperties),
  takeBackProperties,
  actOnPath: unlessPasting(actOnPath),
  choicesOnPath,
  setClassOnPath: unlessPasting(setClassOnPath),
  caretAt: setCaretAtPixel,
  serialize,
  replaceDocument,
  caretPlaces,
  endPlaces,
  showPlace,
  setDetails,
  setSnap,
  showAnew,
  changes,
  mirror,
  parsed,
  restore: restorePaths,
  moveTo,
  find,
  replaceFound,
  replaceAll,
  endFind,
  selectedLine,
  counts,
  setSpelling,
  spelled,
  checkAgain,
  spelledText,
  selectWord,
  correctWord: unlessPasting(correctWord),
  get host() { return host(); },
  set host(slots) { setHost(slots); },
};
