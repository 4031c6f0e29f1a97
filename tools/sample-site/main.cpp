// SPDX-License-Identifier: GPL-3.0-or-later
// velor-sample-site DIR: makes a folder that the program can start in, with a catalogue of three
// projects and their sites.
#include "tools/sample-site/SampleMaker.h"

#include <QCoreApplication>

#include <cstdio>
#include <exception>

int main(int argc, char **argv) {
  const QCoreApplication application(argc, argv);
  const QStringList arguments = QCoreApplication::arguments();
  // An option that is asked for in vain would become a folder.
  if (arguments.size() != 2 || arguments[1].startsWith(u'-')) {
    std::fputs("usage: velor-sample-site DIR\n", stderr);
    return 2;
  }
  try {
    velor::MakeSample(arguments[1]);
  } catch (const std::exception &error) {
    std::fprintf(stderr, "velor-sample-site: %s\n", error.what());
    return 1;
  }
  return 0;
}
