// SPDX-License-Identifier: GPL-3.0-or-later
// @ts-check
// The bridge as the program has it, and what only its tests look at.
import '../../../engine/bridge/api.js';
import { formats as blockFormats } from '../../../engine/bridge/blocks/blocks.js';
import { insert } from '../../../engine/bridge/clipboard/clipboard.js';
import { isWithin } from '../../../engine/bridge/clipboard/openEnds.js';
import * as extent from '../../../engine/bridge/blocks/extent.js';
import * as dom from '../../../engine/bridge/page/dom.js';
import * as glyphs from '../../../engine/bridge/objects/glyphs.js';
import * as history from '../../../engine/bridge/page/history.js';
import * as beside from '../../../engine/bridge/page/beside.js';
import * as selection from '../../../engine/bridge/page/selection.js';
import * as standIns from '../../../engine/bridge/page/standIns.js';
import * as chosen from '../../../engine/bridge/tables/chosen.js';
import * as columns from '../../../engine/bridge/tables/columns.js';
import * as filling from '../../../engine/bridge/tables/filling.js';
import * as grid from '../../../engine/bridge/tables/grid.js';
import * as merging from '../../../engine/bridge/tables/merging.js';
import * as rows from '../../../engine/bridge/tables/rows.js';
import { dividePiecesOver } from '../../../engine/bridge/talk/changes.js';
import { commands, statusOf } from '../../../engine/bridge/talk/commands.js';
import { Command, Status } from '../../../engine/bridge/talk/vocabulary.js';

globalThis.inside = {
  beside, blockFormats, commands, dividePiecesOver, dom, extent, glyphs, history, insert,
  isWithin, selection, standIns, statusOf, 
  tables: { ...chosen, ...filling, ...grid, ...rows, ...columns, ...merging },
  Command, Status,
};
