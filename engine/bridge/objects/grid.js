// SPDX-License-Identifier: GPL-3.0-or-later
// @ts-check
// The grid that boxes are moved on.

export const gridStep = 50; // pixels

let snapping = false;

export const snaps = () => snapping;
export function setSnap(on) { snapping = on; }
