// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <string>
#include <vector>

namespace velor {

/// The folder with further samples that an environment variable names, else the one that the build
/// was given; none where neither names one. Tests that take such a folder are there only with it:
/// the project's own samples are tested in any case.
inline std::vector<std::string> MoreSamples(const char *variable, const char *ofTheBuild) {
  const QString folder = qEnvironmentVariable(variable, QString::fromUtf8(ofTheBuild));
  if (folder.isEmpty()) return {};
  return {folder.toStdString()};
}

}  // namespace velor
