// SPDX-License-Identifier: GPL-3.0-or-later
// What eslint holds the scripts to; scripts.sh calls it from the repository's root.
import js from '@eslint/js';
import globals from 'globals';

const rules = {
  ...js.configs.recommended.rules,
  'complexity': ['error', 16],
  'eqeqeq': 'error',
  'max-depth': ['error', 3],
  'max-len': ['error', { code: 100, ignoreUrls: true }],
  'max-lines': ['error', 420],
  'no-control-regex': 'off',
  'no-mixed-operators': [
    'error', { groups: [['&&', '||'], ['??', '||'], ['&', '|', '^', '<<', '>>']] }],
  'no-nested-ternary': 'error',
  'no-shadow': 'error',
  'no-unused-vars': ['error', { args: 'none', caughtErrors: 'none' }],
  'no-var': 'error',
  'object-shorthand': 'error',
  'prefer-const': ['error', { destructuring: 'all' }],
};

const scripts = (files, sourceType, known) => ({
  files,
  languageOptions: { ecmaVersion: 2022, sourceType, globals: known },
  linterOptions: { reportUnusedDisableDirectives: 'error' },
  rules,
});
const written = (...names) => Object.fromEntries(names.map((name) => [name, 'writable']));

// What the build joins; the others are scripts by themselves.
const modules = [
  'engine/bridge/**/*.js', 'tests/engine/bridge/inside.js', 'tools/editing-suite/commands.js',
  'tools/page-check/edits.js'];

export default [
  scripts(modules, 'module',
    { ...globals.browser, ...written('qt', 'QWebChannel', 'velor') }),
  {
    ...scripts(['tests/engine/bridge/*.js', 'tools/**/*.js'], 'script',
      {
        ...globals.browser,
        ...written('inside', 'markup', 'pages', 'source', 'sweep', 'tables', 'velor', 'walk',
          'work'),
      }),
    ignores: modules,
  },
  scripts(['tests/**/*.mjs', 'tools/**/*.mjs'], 'module', globals.node),
  // A test's judgement is a list of rules.
  { files: ['tests/**/*.js'], rules: { 'complexity': 'off', 'max-depth': 'off' } },
];
