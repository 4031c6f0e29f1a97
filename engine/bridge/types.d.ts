// SPDX-License-Identifier: GPL-3.0-or-later
// The words that the bridge's modules have in common, for the type checker. Nothing of this file is
// in the program.

/**
 * A node whose kind is asked while the program runs (dom.isText, dom.isBlock ...): the checker lets
 * everything be read of it.
 */
type AnyNode = any;

/** A place between two characters of a text, or between two children of an element. */
type Point = [node: Node, offset: number];

/**
 * A point that survives the wrapping, unwrapping and renaming of elements around it: it clings to a
 * text, to one side of an object (0 before it, 1 behind it), to an element without content, or to
 * the start (0) or end (1) of a cell that is selected as such.
 */
type Anchor = TextAnchor | { beside: ChildNode; side: number } | { inside: Element } |
  { cell: Node; side: number };
interface TextAnchor { node: Text; offset: number }

/** The selection as anchors; null where nothing is selected. */
type SavedSelection = { anchor: Anchor; focus: Anchor } | null;

/** The selection as the engine tells it; anchorNode is null where there is none. */
interface SelectionPoints {
  anchorNode: Node | null;
  anchorOffset: number;
  focusNode: Node | null;
  focusOffset: number;
}

/**
 * A range that is no live one: the engine follows all of those through every change of the document
 * until they are collected.
 */
interface PlainRange {
  startContainer: Node;
  startOffset: number;
  endContainer: Node;
  endOffset: number;
  collapsed?: boolean;
}

/**
 * A point that holds in a fresh parse of the same document: child numbers from the root element and
 * an offset, neighbouring texts counted as one.
 */
type NodePath = number[];

/**
 * A place that the page's source has too: the `ordinal`th element of a name, and an offset in its
 * text.
 */
interface SourcePlace { name: string; ordinal: number; offset: number }

/** A direction in the document, by the property that leads there; page/dom.js has both. */
type Side = 'previousSibling' | 'nextSibling';
/** An end of a range or of a paragraph. */
type Edge = 'start' | 'end';
/** An end of a node's content, by the property that leads there. */
type EdgeChild = 'firstChild' | 'lastChild';
/** A test of a node. */
type Test = (node: AnyNode) => boolean;

/** A character of a text. */
interface Character { node: Text; index: number; object?: undefined }
/** What is beside a point in its line: a character or an object; see page/beside.js. */
type Neighbour = Character | { object: Element; node?: undefined; index?: undefined };

/** The texts at the caret before a change; see page/whitespace.js. */
interface Noted {
  texts: Map<Text, string>;         // those that the change may reach, as they were
  left: Neighbour | null;           // what was beside the caret
  right: Neighbour | null;
  stood: Map<Text, Siblings>;       // where they stood
  start: { node: AnyNode; offset: number };
  target: PlainRange | null;        // what the engine was about to delete in texts
  isStandIn?(character: Neighbour | null): boolean;
}
/** Where a node stands, or stood. */
interface Siblings { parentNode: AnyNode; previousSibling: AnyNode; nextSibling: AnyNode }

/** A no-break space that stands for a blank; see page/standIns.js. */
interface StandIn {
  node: Text;
  index: number;
  typed: boolean;
  was: string;
  across: Side | 'none' | null;
}
/** A stand-in, and the text that the page has in its place. */
interface Resolution { node: Text; index: number; text: string }

/** A paragraph of a selection; see page/units.js. */
interface Unit {
  readonly container: Element;
  readonly home: Element;           // the container, or the object
  readonly object: Element | null;  // a selected object that is a block itself
  readonly nodes: ChildNode[];      // what shows, in the container
  readonly block: Element | null;   // the container where the unit is all of it
}

/** One change of the document, which can be taken back and done again. */
interface Change {
  /** Keeps what is needed for both, when the step is over; answers what that weighs. */
  seal(): number;
  undo(): void;
  redo(): void;
  isVoid?: boolean;
}

/** What one undo takes back. */
interface Step {
  kind: string | number;            // an inputType or a command; equal ones may be one step
  before: RestPoints;
  after: RestPoints;
  changes: Change[];
  weight: number;
  completed: number;                // of the changes: those that what goes with them was made for
  seen?: Map<Node, Set<string>>;    // while the step is gathered: what has changed already
  names?: Map<AnyNode, string[]>;   // and the order of attributes that are to be taken off
}
/** The selection when the document was at rest, and what is kept along with it. */
interface RestPoints extends SelectionPoints { along: unknown }

/**
 * The selection as a command sees it; its parts are read when they are asked for, and once only.
 */
interface View {
  range: Range | null;
  object: Element | null;
  elements(): Element[];
  units(): Unit[];
  chosen(): import('./tables/chosen.js').Chosen | null;
}

/**
 * A row of the table of commands. A query has `value`; what the engine carries out has only
 * `status`.
 */
interface CommandRow {
  status(view: View): number;
  value?(view: View): string;
  run?(value: string, view: View): void;
  /** A deed that is no step of the history. */
  travel?(): void;
}

/**
 * The value of a character format: true or false for bold, italic and underline, else a text: a
 * font's name, a size ('14' for points, '15 px'), '#RRGGBB'.
 */
type FormatValue = string | boolean;

/** What formats/formats.js says of one character format. */
interface FormatEntry {
  /**
   * The value that text in an element is shown with, by the engine's computed styles. `known`: a
   * map that the caller gives to all calls of one pass over an unchanged page; results are kept
   * there.
   */
  read(element: HTMLElement, known?: Map<Node, unknown>): FormatValue;

  // Where the page can have the format.

  /** Elements that mean the format and nothing else, as B and STRONG mean bold. May be empty. */
  tags: string[];
  /** The attribute of FONT that has the value; left out where FONT has none. */
  attribute?: string;
  /** The CSS property that has the value in an inline style. */
  property: string;
  /** The word among others in the property's value that is the format ('underline'). */
  part?: string;

  // How it is written to the page.

  /** A value as FONT's attribute has it; the value itself if left out. */
  inAttribute?(value: FormatValue): FormatValue | number;
  /** A value as the inline style has it; the value itself if left out. */
  inStyle?(value: FormatValue): string;
  /**
   * A new element to put around text, by the page's dialect; null where no element around the text
   * can give it the value. If left out: FONT with the attribute, or SPAN with the style.
   */
  write?(value: FormatValue): HTMLElement | null;
  /**
   * The same for text within an element of the tag that `write` makes: another B would not help.
   */
  inLike?(): HTMLElement;

  // How it goes along with other elements.

  /**
   * The style is taken off a block with several paragraphs too. For formats that are on or off: a
   * span inside would only undo the block's style. Else a block counts only where its style is its
   * text's alone.
   */
  acrossBlocks?: boolean;
  /** The element goes inside links, since a link has a value of its own (its colour). */
  insideLinks?: boolean;
  /**
   * The value of a text that the program gives; '' for one that is none. The text itself if left
   * out.
   */
  parse?(value: string): FormatValue;
}

/** A character format: its entry with what is left out there, and what follows from it. */
interface Format extends FormatEntry {
  inAttribute(value: FormatValue): FormatValue | number;
  write(value: FormatValue): HTMLElement | null;
  parse(value: string): FormatValue;
  /** True for two values that are the same. */
  same(one: FormatValue, other: FormatValue): boolean;
  /** True for an element that gives the format to text in it, by its tag, attribute or style. */
  carries(element: AnyNode): boolean;
  /** A new empty element that gives the same format as the one given does, and nothing else. */
  shell(element: HTMLElement): HTMLElement;
  /** Takes the format off an element, which goes where it was nothing else. */
  strip(element: HTMLElement): void;
}

/** A position in the viewport, in its pixels. */
interface Position { x: number; y: number }
/** The same as mouse events have it. */
interface Pointer { clientX: number; clientY: number }

/** A box in the viewport, in its pixels. */
interface Box {
  left: number;
  top: number;
  right: number;
  bottom: number;
  width?: number;
  height?: number;
}

/** A picture that is drawn over the page (a CSS image), with its box in the viewport. */
interface Layer extends Position { image: string; width: number; height: number; repeat?: string }

/**
 * A change of an object's size and position, in its own pixels: by how much its left upper corner
 * moves, and its new size with padding and border; what is left out stays.
 */
interface Resizing { dx?: number; dy?: number; width?: number; height?: number }

/** An element as the program is told of it; no tag for none. */
interface ToldElement { tag: string; attributes: [name: string, value: string][] }

/** What pushState tells, as JSON. */
interface State {
  version: number;
  dirty: boolean;
  generation: number;
  commands: Record<number, number>;
  fontName: string;
  fontSize: string;
  foreColor: string;
  backColor: string;
  blockFormat: string;
  selection: 'None' | 'Text' | 'Control';
  element: ToldElement;
  link: ToldElement;
  picture: { pixels: [number, number], shown: [number, number] } | null;
  cells: number[];
  place: number[];
  asked: number[];
  path: string[];
  pathNumbers: number[];
}

/** A line of the page's text; see find/pageText.js. */
interface TextLine { text: string; pieces: TextPiece[] }
/** Where a stretch of a line, from `at` on, is in a text. It ends where the next piece begins. */
interface TextPiece { node: Text; at: number; offset: number }
/** What is searched for, as the program gives it. */
interface SearchQuery {
  words: string;
  matchCase?: boolean;
  wholeWords?: boolean;
  ignoreAccents?: boolean;
  expression?: boolean;
  inSelection?: boolean;
}
type SearchWay = 'here' | 'next' | 'previous' | 'stay';
/** What was found; `current` counts from 1, 0 for none. */
interface SearchAnswer { count: number; current: number; invalid: boolean; replaced?: number }
/** A stretch of a text that a search has found; `groups` are those of an expression. */
interface TextMatch { start: number; end: number; groups: string[] }
interface PageMatch extends TextMatch { line: TextLine }
/** A stretch of a line. */
interface LineStretch { line: TextLine; start: number; end: number }

/** How much text there is. */
interface TextCount { words: number; characters: number }

/** A line as its spelling is judged; see spelling/spelledLines.js. */
interface SpelledLine {
  line: TextLine;
  /** The line's text; what is no text of the page's language has U+FFFC in place of each unit. */
  text: string;
  /** From an index on the text is in a language; '' where the page does not say. */
  runs: [start: number, language: string][];
}

/** What differs in a text: `fresh` in place of `length` UTF-16 code units from `offset`. */
type TextEdit = [offset: number, length: number, fresh: string];
/** The text of number `revision`: whole, or the steps that lead to it. */
interface Telling { revision: number; html?: string; steps?: TextEdit[][] }

/** The slots of the program's object on the channel. */
interface Host {
  pushState(json: string): void;
  pushMirror(json: string): void;
  pushMouse(x: number, y: number): void;
  inputArrived(): void;
  pictureWanted(): void;
  picturesPasted(json: string): void;
  pasting(percent: number): void;
  pasteStopped(): void;
  linkWanted(address: string): void;
  pictureOpened(): void;
  earlierWanted(): void;
  laterWanted(): void;
  spellingWanted(json: string): void;
}

declare class QWebChannel {
  constructor(transport: object, ready: (channel: { objects: { velorHost: Host } }) => void);
}
declare const qt: { webChannelTransport: object };
interface Window {
  velor: object;
  QWebChannel?: typeof QWebChannel;
  qt?: typeof qt;
}
declare var velor: object;
declare var velorShown: object;
// What Chromium has and the checker's library does not know.
interface CSSStyleDeclaration { zoom: string }
interface CSSStyleSheet { replaceSync(text: string): void }
// What only some kinds of rules have.
interface CSSRule {
  selectorText?: string;
  styleSheet?: CSSStyleSheet;
  cssRules?: CSSRuleList;
  style?: CSSStyleDeclaration;
}
interface Array<T> {
  findLastIndex(fits: (each: T) => boolean): number;
  findLast(fits: (each: T) => boolean): T | undefined;
}
