// SPDX-License-Identifier: GPL-3.0-or-later
// @ts-check
// The connection to the program: the object on the channel whose slots the bridge calls.

/** @type {Host | null} */
let slots = null;

/** The program's slots; null before the channel is there. */
export const host = () => slots;
/** @param {Host} object */
export function setHost(object) { slots = object; }

/**
 * Connects to the program where the page has a channel and is not connected yet.
 * @param {() => void} then called once the slots are there
 */
export function connect(then) {
  if (slots || !window.QWebChannel || !window.qt?.webChannelTransport) return;
  new QWebChannel(qt.webChannelTransport, (channel) => {
    setHost(channel.objects.velorHost);
    then();
  });
}
