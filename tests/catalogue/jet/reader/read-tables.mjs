// SPDX-License-Identifier: GPL-3.0-or-later
// Answers each path on standard input with one line: that Jet file's tables as JSON,
// { table: [[cell, ...], ...] }, dates in ISO form, or { error: text }.
// Usage: node read-tables.mjs FOLDER   FOLDER is where the package was installed
import { readFileSync } from 'node:fs';
import { createInterface } from 'node:readline';
import { pathToFileURL } from 'node:url';

const entry = `${process.argv[2]}/node_modules/mdb-reader/lib/node/index.js`;
const { default: MDBReader } = await import(pathToFileURL(entry).href);

function tablesOf(path) {
  const reader = new MDBReader(readFileSync(path));
  const tables = {};
  for (const name of reader.getTableNames()) {
    const table = reader.getTable(name);
    const columns = table.getColumnNames();
    tables[name] = table.getData().map((row) => columns.map((column) => row[column]));
  }
  return tables;
}

for await (const path of createInterface({ input: process.stdin })) {
  let answer;
  try {
    answer = tablesOf(path);
  } catch (error) {
    answer = { error: String(error) };
  }
  process.stdout.write(`${JSON.stringify(answer)}\n`);
}
