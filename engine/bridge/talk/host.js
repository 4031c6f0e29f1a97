// SPDX-License-Identifier: GPL-3.0-or-later
// @ts-check
// The line to the program: the object whose slots the program offers on the channel.

/** @type {Host | null} */
let slots = null;

// The program's slots; null before the channel is there.
export const host = () => slots;
export function setHost(object) { slots = object; }

// Connects to the program where the page has a channel and is not connected yet; `then` is called
// once the slots are there.
export function connect(then) {
  if (slots || !window.QWebChannel || !window.qt?.webChannelTransport) return;
  new QWebChannel(qt.webChannelTransport, (channel) => {
    setHost(channel.objects.velorHost);
    then();
  });
}
