// SPDX-License-Identifier: GPL-3.0-or-later
// What the documents name is there: paths between backticks, and links to other documents.
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <regex>
#include <sstream>
#include <string>
#include <vector>

namespace {

namespace fs = std::filesystem;

const fs::path Root = VELOR_SOURCE_DIR;

std::vector<fs::path> Documents() {
  std::vector<fs::path> found;
  for (const auto &entry : fs::directory_iterator(Root))
    if (entry.path().extension() == ".md") found.push_back(entry.path());
  for (const auto &entry : fs::recursive_directory_iterator(Root / "docs"))
    if (entry.path().extension() == ".md") found.push_back(entry.path());
  return found;
}

std::string TextOf(const fs::path &file) {
  std::ifstream in(file);
  std::stringstream text;
  text << in.rdbuf();
  return text.str();
}

/// The first folder of a path that is one of the tree's.
bool IsOfTheTree(const std::string &path) {
  const std::string first = path.substr(0, path.find('/'));
  return !first.empty() && first != "build" && fs::is_directory(Root / first);
}

std::vector<std::string> Matches(const std::string &text, const std::regex &pattern) {
  std::vector<std::string> found;
  for (std::sregex_iterator at(text.begin(), text.end(), pattern), end; at != end; ++at)
    found.push_back((*at)[1]);
  return found;
}

/// Paths of the tree that a text names between backticks.
std::vector<std::string> PathsIn(const std::string &text) {
  static const std::regex path(R"(`([A-Za-z][\w.-]*(?:/[\w.-]+)*/[\w.-]*)`)");
  std::vector<std::string> found;
  for (const std::string &name : Matches(text, path))
    if (IsOfTheTree(name)) found.push_back(name);
  return found;
}

TEST(Documents, NameOnlyFilesAndFoldersThatAreThere) {
  std::size_t named = 0;
  for (const fs::path &document : Documents()) {
    for (const std::string &name : PathsIn(TextOf(document))) {
      ++named;
      EXPECT_TRUE(fs::exists(Root / name)) << document << " names " << name;
    }
  }
  EXPECT_GT(named, 50U) << "the documents name next to nothing";
}

TEST(Documents, LinkOnlyToFilesThatAreThere) {
  static const std::regex link(R"(\]\(([^)#:]+)(?:#[^)]*)?\))");
  std::size_t links = 0;
  for (const fs::path &document : Documents()) {
    for (const std::string &target : Matches(TextOf(document), link)) {
      ++links;
      EXPECT_TRUE(fs::exists(document.parent_path() / target)) << document << " -> " << target;
    }
  }
  EXPECT_GT(links, 20U) << "the documents link to next to nothing";
}

TEST(Documents, AFileThatIsGoneIsNoticed) {
  const std::vector<std::string> paths = PathsIn("see `engine/Gone.h` and `no/path/of/ours`");
  ASSERT_EQ(paths.size(), 1U);
  EXPECT_FALSE(fs::exists(Root / paths[0]));
}

}  // namespace
