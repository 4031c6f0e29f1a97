// SPDX-License-Identifier: GPL-3.0-or-later
// @ts-check
// What the program asks of a page in the preview. The rest of the bridge is not there.
import { breakpoints } from './page/sheets.js';

globalThis.velorShown = { breakpoints };
