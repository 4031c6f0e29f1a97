// SPDX-License-Identifier: GPL-3.0-or-later
// seeded_run SEEDS ROUNDS: changes the seed pages at random, always in the same way, and feeds them
// to the fuzzed code. For builds without a fuzzing engine.
#include "tests/page/fuzz/FaithfulFuzz.h"

#include <QDir>
#include <QFile>

#include <cstdio>
#include <cstdlib>
#include <random>
#include <vector>

namespace {

std::vector<QByteArray> Seeds(const QString &folder) {
  std::vector<QByteArray> seeds;
  for (const QString &name : QDir(folder).entryList(QDir::Files)) {
    QFile file(QDir(folder).filePath(name));
    if (file.open(QIODevice::ReadOnly)) seeds.push_back(file.readAll());
  }
  return seeds;
}

QByteArray Changed(const std::vector<QByteArray> &seeds, std::mt19937 &random) {
  static constexpr const char *Pieces[] = {
      "<",    ">",        "\"",           "'",      "&",       "&#x",
      "\r",   "\n",       "\x1f",         "<p>",    "</p>",    "<!--",
      "-->",  "<%",       "%>",           "<?php",  "?>",      "<script>",
      "</",   "<svg>",    "<noscript>",   "=",      "/",       "<template shadowrootmode=open>",
      "\xA4", "\xFF\xFE", "\xEF\xBB\xBF", "\x1b$B", "<table>", "<meta charset=big5>"};
  const auto pick = [&](std::size_t count) { return static_cast<std::size_t>(random()) % count; };
  QByteArray data = seeds[pick(seeds.size())];
  for (std::size_t changes = 1 + pick(8); changes > 0; --changes) {
    const auto at = static_cast<qsizetype>(pick(static_cast<std::size_t>(data.size()) + 1));
    switch (pick(4)) {
      case 0:
        data.insert(at, Pieces[pick(std::size(Pieces))]);
        break;
      case 1:
        data.remove(at, static_cast<qsizetype>(pick(12)));
        break;
      case 2:
        data.insert(
            at,
            data.mid(static_cast<qsizetype>(pick(static_cast<std::size_t>(data.size()) + 1)), 20));
        break;
      default:
        if (at < data.size()) data[at] = static_cast<char>(pick(256));
    }
  }
  return data;
}

}  // namespace

int main(int argc, char **argv) {
  if (argc != 3) return 2;
  const std::vector<QByteArray> seeds = Seeds(QString::fromLocal8Bit(argv[1]));
  if (seeds.empty()) return 2;
  std::mt19937 random(1);
  for (const QByteArray &seed : seeds) velor::FuzzFaithfulPage(seed);
  for (int round = std::atoi(argv[2]); round > 0; --round)
    velor::FuzzFaithfulPage(Changed(seeds, random));
  std::puts("no failure");
  return 0;
}
