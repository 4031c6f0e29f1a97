// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/layers/Sources.h"

#include <fstream>
#include <sstream>

namespace velor::layers {

std::string TextOf(const std::filesystem::path &path) {
  std::ifstream file(std::filesystem::path(VELOR_SOURCE_DIR) / path);
  std::stringstream text;
  text << file.rdbuf();
  return text.str();
}

std::string Between(const std::string &text, const std::string &begin, const std::string &end) {
  const std::size_t from = text.find(begin);
  if (from == std::string::npos) return {};
  const std::size_t start = from + begin.size();
  const std::size_t to = text.find(end, start);
  return to == std::string::npos ? std::string() : text.substr(start, to - start);
}

std::set<std::string> Matches(const std::string &text, const std::regex &pattern) {
  std::set<std::string> found;
  for (std::sregex_iterator at(text.begin(), text.end(), pattern), end; at != end; ++at)
    found.insert((*at)[1].str());
  return found;
}

}  // namespace velor::layers
