// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <filesystem>
#include <regex>
#include <set>
#include <string>

namespace velor::layers {

/// The text of a file of the repository, named from its root; empty for one that is not there.
std::string TextOf(const std::filesystem::path &path);

/// What is between two texts, from the first that is there; empty where either is missing.
std::string Between(const std::string &text, const std::string &begin, const std::string &end);

/// The first group of every match.
std::set<std::string> Matches(const std::string &text, const std::regex &pattern);

}  // namespace velor::layers
