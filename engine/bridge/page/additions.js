// SPDX-License-Identifier: GPL-3.0-or-later
// @ts-check
// Whether what goes beyond the published behaviour is on.

let on = true;

export const hasAdditions = () => on;
/** @param {boolean} value */
export function setAdditions(value) { on = value; }
