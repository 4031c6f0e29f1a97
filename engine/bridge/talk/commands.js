// SPDX-License-Identifier: GPL-3.0-or-later
// @ts-check
// The one table of commands: for each published number its status and what it does. Both look at
// the same view of the selection, so that what is shown and what is done agree.
import * as blocks from '../blocks/blocks.js';
import { deletionAtCaret } from '../blocks/caretDeletion.js';
import * as indent from '../blocks/indent.js';
import { listTagOf } from '../blocks/items.js';
import * as lists from '../blocks/lists.js';
import { deleteKeepingLooks, deleteSelected } from '../blocks/typing.js';
import * as align from '../formats/align.js';
import { formats } from '../formats/formats.js';
import * as inline from '../formats/inline.js';
import * as keptLooks from '../formats/keptLooks.js';
import * as pending from '../formats/pending.js';
import * as layers from '../objects/layers.js';
import * as objects from '../objects/objects.js';
import * as blanks from '../page/blanks.js';
import * as dom from '../page/dom.js';
import * as history from '../page/history.js';
import { openCaretLine } from '../page/lines.js';
import * as selection from '../page/selection.js';
import { dropLine } from '../page/sourceLines.js';
import { resolveAll } from '../page/standIns.js';
import { changeUnits, readUnits } from '../page/units.js';
import * as tables from '../tables/deeds.js';
import { isWorking, work } from '../page/working.js';
import { schedulePush } from './pace.js';
import { commonValue, readView, statusOfAll } from './view.js';
import { Command, Status } from './vocabulary.js';

// The elements to read a character format at: those of the selected texts, or the caret's.
/** @param {View} view */
const subjects = ({ range, elements }) =>
  (elements().length ? elements() : [selection.caretElement(range)]);
// A function that reads a format at an element; a format that is pending at the caret counts.
/**
 * @param {string} name
 * @param {View} view
 * @returns {(element: HTMLElement) => FormatValue}
 */
function reader(name, view) {
  if (pending.has(name) && !view.elements().length) return () => pending.get(name);
  const known = new Map();
  return (element) => formats[name].read(element, known);
}

// Puts a format on the selected text, or has it pending at the caret.
/**
 * @param {string} name
 * @param {FormatValue} value
 * @param {View} view
 */
function putFormat(name, value, { range, object, elements }) {
  if (!elements().length) {
    pending.set(name, value);
    return;
  }
  inline.apply(name, value, range);
  if (object?.isConnected) selection.selectNode(object);
}

// False where there is no text to format: a picture is selected, or the text takes no markup.
/** @param {View} view */
const takesFormats = ({ object, range, elements }) => elements().length > 0 ||
  (!object && dom.rawAt(range.startContainer) === null);
/**
 * @param {(view: View) => number} status
 * @returns {(view: View) => number}
 */
const whereText = (status) => (view) => (takesFormats(view) ? status(view) : Status.Disabled);
// A run() that changes all paragraphs of the selection; status() may have read some of them only.
/**
 * @param {(units: Unit[], value: string) => void} change
 * @returns {(value: string) => void}
 */
const onUnits = (change) => (value) => {
  openCaretLine();
  const saved = selection.save();
  changeUnits(saved, (units) => change(lists.wrapStrayText(readUnits(units), saved), value));
  openCaretLine();
};

// The kinds of rows.

/**
 * @param {string} name
 * @returns {CommandRow}
 */
const toggle = (name) => ({
  status: whereText((view) => statusOfAll(subjects(view), reader(name, view))),
  run: (value, view) =>
    putFormat(name, statusOfAll(subjects(view), reader(name, view)) !== Status.Latched, view),
});

/**
 * @param {string} name
 * @returns {CommandRow}
 */
const character = (name) => ({
  status: whereText(() => Status.Enabled),
  run(value, view) {
    const wanted = formats[name].parse(value);
    if (wanted !== '') putFormat(name, wanted, view);
  },
});

/**
 * @param {'left' | 'center' | 'right'} side
 * @returns {CommandRow}
 */
const justify = (side) => ({
  status: (view) => (view.units().length
    ? statusOfAll(view.units(), (unit) => align.read(unit) === side) : Status.Disabled),
  run: onUnits((units) => align.applyAll(units, side)),
});

/**
 * @param {string} tag
 * @returns {CommandRow}
 */
const list = (tag) => {
  /** @param {View} view */
  const status = (view) => statusOfAll(view.units(), (unit) => listTagOf(unit) === tag);
  return {
    status: (view) => (view.units().length ? status(view) : Status.Disabled),
    run(value, view) {
      if (status(view) === Status.Latched) lists.unlist();
      else onUnits((units) => lists.makeItems(units, tag, 'LI'))(value);
    },
  };
};

/**
 * @param {(view: View) => string} value
 * @returns {CommandRow}
 */
const query = (value) => ({ status: () => Status.Enabled, value });
/** @param {string} name */
const reading = (name) => query((view) =>
  String(commonValue(subjects(view), reader(name, view), formats[name].same)));

// The program has the engine itself carry these out; they have a status only.
/**
 * @param {(view: View) => number} status
 * @returns {CommandRow}
 */
const byEngine = (status) => ({ status });
/** @param {View} view */
const selected = (view) => (view.range.collapsed ? Status.Disabled : Status.Enabled);
const always = () => Status.Enabled;

/** @param {View} view */
const inTable = ({ chosen }) => (chosen() ? Status.Enabled : Status.Disabled);
// In a cell, or with all of a table selected.
/** @param {View} view */
const inCell = ({ chosen, object }) =>
  (chosen()?.first || object?.tagName === 'TABLE' ? Status.Enabled : Status.Disabled);
/**
 * @param {() => void} deed
 * @returns {CommandRow}
 */
const onCells = (deed) => ({ status: inCell, run: () => deed() });
/** @param {Element} element */
function deleteWhole(element) {
  dropLine(element);
  selection.selectNode(element);
  deleteKeepingLooks(selection.range());
}

/**
 * @param {import('../objects/layers.js').Order} order
 * @returns {CommandRow}
 */
const ordering = (order) => ({
  status(view) {
    const object = layers.subjectOf(view);
    return object && objects.isMovable(object) ? Status.Enabled : Status.Disabled;
  },
  run: layers.placed(order),
});

/**
 * The commands by their numbers.
 * @type {Map<number, CommandRow>}
 */
export const commands = new Map([
  [Command.Bold, toggle('bold')],
  [Command.Copy, byEngine(selected)],
  [Command.Cut, byEngine(selected)],
  [Command.Delete, {
    status: always,
    run(value, { range }) {
      if (!range.collapsed) {
        deleteSelected(range);
        return;
      }
      const target = selection.ahead();
      const own = deletionAtCaret(range, 'end', target);
      if (own) {
        own();
        return;
      }
      const input = { inputType: 'deleteContentForward' };
      keptLooks.noteDeletion(target);
      blanks.watch(input.inputType, target);
      document.execCommand('forwardDelete');
      blanks.engineDone(input);
      keptLooks.keepLooksOfDeleted();
      blanks.watched(input);
      pending.moveToCaret();
    },
  }],
  [Command.GetBackColor, reading('backColor')],
  [Command.GetBlockFormat, query((view) => commonValue(view.units(), blocks.read))],
  [Command.GetFontName, reading('fontName')],
  [Command.GetFontSize, reading('fontSize')],
  [Command.GetForeColor, reading('foreColor')],
  [Command.Indent, {
    status: (view) => (view.units().length ? Status.Enabled : Status.Disabled),
    run: onUnits(indent.indent),
  }],
  [Command.Italic, toggle('italic')],
  [Command.JustifyCenter, justify('center')],
  [Command.JustifyLeft, justify('left')],
  [Command.JustifyRight, justify('right')],
  [Command.OrderList, list('OL')],
  [Command.Outdent, {
    status: (view) => (view.units().some(indent.canOutdent) ? Status.Enabled : Status.Disabled),
    run: onUnits(indent.outdent),
  }],
  [Command.Paste, byEngine(always)],
  [Command.Redo, {
    status: () => (history.canRedo() ? Status.Enabled : Status.Disabled),
    travel: () => history.redo(),
  }],
  [Command.SelectAll, {
    status: always,
    travel: () => document.getSelection().selectAllChildren(document.body),
  }],
  [Command.SetBackColor, character('backColor')],
  [Command.SetBlockFormat, {
    status: (view) => (view.units().some(blocks.takesFormat) ? Status.Enabled : Status.Disabled),
    run(value) {
      openCaretLine();
      blocks.apply(value);
      openCaretLine();
    },
  }],
  [Command.SetFontName, character('fontName')],
  [Command.SetFontSize, character('fontSize')],
  [Command.SetForeColor, character('foreColor')],
  [Command.Underline, toggle('underline')],
  [Command.Undo, {
    status: () => (history.canUndo() ? Status.Enabled : Status.Disabled),
    travel: () => history.undo(),
  }],
  [Command.UnorderList, list('UL')],
  [Command.InsertRowBelow, onCells(tables.rowInserted('behind'))],
  [Command.InsertRowAbove, onCells(tables.rowInserted('before'))],
  [Command.InsertColumnRight, onCells(tables.columnInserted('behind'))],
  [Command.InsertColumnLeft, onCells(tables.columnInserted('before'))],
  [Command.DeleteRow, onCells(tables.rowsDeleted(deleteWhole))],
  [Command.DeleteColumn, onCells(tables.columnsDeleted(deleteWhole))],
  [Command.DeleteTable, {
    status: inTable,
    run: (value, view) => deleteWhole(view.chosen().table),
  }],
  [Command.MergeCells, {
    status: ({ chosen }) => (tables.areSeveral(chosen()) ? Status.Enabled : Status.Disabled),
    run: () => tables.cellsMerged(),
  }],
  [Command.SplitCell, {
    status: ({ chosen }) => (chosen()?.first ? Status.Enabled : Status.Disabled),
    run: () => tables.cellSplit(),
  }],
  [Command.SelectCell, { status: inCell, travel: tables.select('cell') }],
  [Command.SelectRow, { status: inCell, travel: tables.select('row') }],
  [Command.SelectColumn, { status: inCell, travel: tables.select('column') }],
  [Command.SelectTable, { status: inTable, travel: tables.selectTable }],
  [Command.MoveRowUp, onCells(tables.rowsMoved(-1))],
  [Command.MoveRowDown, onCells(tables.rowsMoved(1))],
  [Command.MoveColumnLeft, onCells(tables.columnsMoved(-1))],
  [Command.MoveColumnRight, onCells(tables.columnsMoved(1))],
  [Command.DistributeColumns, onCells(tables.columnsDistributed)],
  [Command.AbsolutePosition, {
    status(view) {
      const object = layers.subjectOf(view);
      if (!object) return Status.Disabled;
      return objects.isMovable(object) ? Status.Latched : Status.Enabled;
    },
    run(value, view) {
      layers.toggleAbsolute(layers.subjectOf(view));
      if (view.object) selection.selectNode(view.object);
    },
  }],
  [Command.BringToFront, ordering('front')],
  [Command.BringForward, ordering('forward')],
  [Command.BringAboveText, ordering('aboveText')],
  [Command.SendToBack, ordering('back')],
  [Command.SendBackward, ordering('backward')],
  [Command.SendBelowText, ordering('belowText')],
]);

/**
 * A command's status; Disabled without a selection.
 * @param {number} number
 * @param {View} [view]
 */
export const statusOf = (number, view = readView()) =>
  (view.range ? commands.get(number).status(view) : Status.Disabled);
/**
 * The value of a query command; empty without a selection.
 * @param {number} number
 * @param {View} [view]
 */
export const queryValue = (number, view = readView()) =>
  (view.range ? commands.get(number).value(view) : '');

/**
 * The status of a character format that is on or off; Disabled without a selection.
 * @param {string} name
 */
export function formatStatus(name) {
  const view = readView();
  return view.range ? toggle(name).status(view) : Status.Disabled;
}

/**
 * Carries out a command as one step of the history.
 * @param {number} number
 * @param {string} [value]
 * @returns {string | boolean} the value of a query; of any other command whether it applied
 */
export const exec = (number, value = '') => {
  const command = commands.get(number);
  if (!command || isWorking()) return false;
  history.settle();
  const view = readView();
  if (statusOf(number, view) === Status.Disabled) return false;
  if (command.value) return queryValue(number, view);
  work(() => {
    if (command.travel) {
      command.travel();
      // The engine tells later that the selection has moved.
      pending.clearIfMoved();
    } else if (command.run) {
      history.step(number, () => {
        if (!view.range.collapsed) resolveAll();
        command.run(String(value), view);
      });
    }
  });
  schedulePush();
  return true;
};
