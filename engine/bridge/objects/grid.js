// SPDX-License-Identifier: GPL-3.0-or-later
// @ts-check
// The grid that boxes are moved on, and whether they keep to it.

/** From one line of the grid to the next, in pixels. */
export const gridStep = 50;

let snapping = false;

/** True where boxes that are moved keep to the grid. */
export const snaps = () => snapping;
/** @param {boolean} on */
export function setSnap(on) { snapping = on; }
