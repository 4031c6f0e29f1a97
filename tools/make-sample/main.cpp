// SPDX-License-Identifier: GPL-3.0-or-later
// velor-make-sample FOLDER: makes a folder that the program can start in.
#include "tools/make-sample/SampleMaker.h"

#include <QCoreApplication>

#include <cstdio>
#include <exception>

int main(int argc, char **argv) {
  const QCoreApplication application(argc, argv);
  const QStringList arguments = QCoreApplication::arguments();
  if (arguments.size() != 2) {
    std::fputs("usage: velor-make-sample FOLDER\n", stderr);
    return 2;
  }
  try {
    velor::MakeSample(arguments[1]);
  } catch (const std::exception &error) {
    std::fprintf(stderr, "velor-make-sample: %s\n", error.what());
    return 1;
  }
  return 0;
}
