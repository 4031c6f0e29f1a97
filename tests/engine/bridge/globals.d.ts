// SPDX-License-Identifier: GPL-3.0-or-later
// What the scripts of these tests find on the global object: each other, and what of the bridge is
// looked at. For the type checker only.
declare var markup: any;
declare var moves: any;
declare var pages: any;
declare var deeds: any;
declare var sweep: any;
declare var sweptChanges: string[];
declare var sweptKinds: string[];
declare var source: any;
declare var tables: any;
declare var tryTables: any;
declare var walk: any;
declare var work: any;
