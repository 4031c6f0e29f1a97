// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tests/whole/model/Deed.h"

#include <QRandomGenerator>
#include <QString>

#include <vector>

namespace velor {

/// A random walk of so many deeds, weighted as people do things.
std::vector<Deed> RandomWalk(QRandomGenerator &random, int length);

/// What is wrong after the first deed that leads to something wrong, and that deed's number;
/// nothing wrong: an empty sentence.
struct Outcome {
  QString wrong;
  int deeds = 0;
};
Outcome Carry(const std::vector<Deed> &walk, const QString &engine);

/// The walk without the deeds that its failure does not need, as far as some tries find out.
std::vector<Deed> Shortened(std::vector<Deed> walk, const QString &engine, int tries);

/// The walk for people, a deed a line.
QString InWords(const std::vector<Deed> &walk);

}  // namespace velor
