// SPDX-License-Identifier: GPL-3.0-or-later
// The direction of the bridge's imports is data: this table, and nothing else, says which folder's
// modules may import which folder's.
#include "tests/layers/Sources.h"

#include <filesystem>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <map>
#include <vector>

namespace velor::layers {
namespace {

namespace fs = std::filesystem;
using ::testing::ContainerEq;

using Names = std::set<std::string>;
/// Each module and those that it imports, as paths below engine/bridge.
using Imports = std::map<std::string, Names>;

const std::map<std::string, Names> &AllowedImports() {
  static const std::map<std::string, Names> table = {
      {"page", {}},
      {"formats", {"page"}},
      {"tables", {"page", "formats"}},
      {"objects", {"page", "formats", "tables"}},
      {"blocks", {"page", "formats", "tables", "objects"}},
      {"find", {"page", "objects"}},
      {"talk", {"page", "formats", "tables", "objects", "blocks"}},
      {"spelling", {"page", "objects", "find", "talk"}},
      {"properties", {"page", "formats", "tables", "talk"}},
      {"clipboard", {"page", "formats", "tables", "objects", "blocks", "talk"}},
      {"keys", {"page", "formats", "tables", "objects", "blocks", "talk"}},
      {"",
       {"page", "formats", "tables", "objects", "blocks", "find", "talk", "spelling", "properties",
        "clipboard", "keys"}},
  };
  return table;
}

std::string FolderOf(const std::string &module) {
  return fs::path(module).parent_path().generic_string();
}

Imports AllImports() {
  static const std::regex import(R"re((?:^|\n)(?:import|export)\b[^;'"]*['"](\.[^'"]+)['"];)re");
  const fs::path root = fs::path(VELOR_SOURCE_DIR) / "engine/bridge";
  Imports all;
  for (const auto &entry : fs::recursive_directory_iterator(root)) {
    if (entry.path().extension() != ".js") continue;
    const fs::path module = fs::relative(entry.path(), root);
    Names &targets = all[module.generic_string()];
    for (const std::string &target : Matches(TextOf("engine/bridge" / module), import))
      targets.insert((module.parent_path() / target).lexically_normal().generic_string());
  }
  return all;
}

/// A sentence for an import that runs against the table; empty for one that is allowed.
std::string Objection(const std::string &from, const std::string &to) {
  const std::string folder = FolderOf(from);
  const auto allowed = AllowedImports().find(folder);
  if (allowed == AllowedImports().end()) return folder + " is no folder of the table";
  if (FolderOf(to) == folder || allowed->second.count(FolderOf(to))) return {};
  return from + " imports " + to;
}

/// The modules of a circle in their order; none where there is no circle from `module` on.
std::vector<std::string> Circle(const Imports &imports, const std::string &module,
                                std::vector<std::string> &way, Names &done) {
  const auto again = std::find(way.begin(), way.end(), module);
  if (again != way.end()) return {again, way.end()};
  if (!done.insert(module).second) return {};
  way.push_back(module);
  const auto found = imports.find(module);
  if (found != imports.end()) {
    for (const std::string &target : found->second)
      if (const auto circle = Circle(imports, target, way, done); !circle.empty()) return circle;
  }
  way.pop_back();
  return {};
}

std::vector<std::string> AnyCircle(const Imports &imports) {
  Names done;
  for (const auto &[module, targets] : imports) {
    std::vector<std::string> way;
    if (const auto circle = Circle(imports, module, way, done); !circle.empty()) return circle;
  }
  return {};
}

TEST(BridgeImports, NoneRunsAgainstTheArrows) {
  const Imports imports = AllImports();
  ASSERT_GT(imports.size(), 30U) << "the walk over the scripts found next to nothing";
  for (const auto &[module, targets] : imports)
    for (const std::string &target : targets) EXPECT_EQ(Objection(module, target), "");
}

TEST(BridgeImports, NoTwoModulesImportEachOther) {
  EXPECT_THAT(AnyCircle(AllImports()), ::testing::IsEmpty());
}

TEST(BridgeImports, AnUpwardImportAndACircleAreObjectedTo) {
  EXPECT_NE(Objection("page/history.js", "talk/pace.js"), "");
  EXPECT_NE(Objection("talk/commands.js", "api.js"), "");
  EXPECT_NE(Objection("elsewhere/new.js", "page/dom.js"), "");
  EXPECT_EQ(Objection("keys/enter.js", "blocks/lists.js"), "");
  const Imports circle = {{"a.js", {"b.js"}}, {"b.js", {"c.js"}}, {"c.js", {"b.js"}}};
  EXPECT_THAT(AnyCircle(circle), ::testing::ElementsAre("b.js", "c.js"));
}

TEST(BridgeImports, EveryModuleIsInTheBundle) {
  const Imports imports = AllImports();
  Names reached;
  std::vector<std::string> left = {"api.js", "shown.js"};
  while (!left.empty()) {
    const std::string module = left.back();
    left.pop_back();
    if (!reached.insert(module).second) continue;
    ASSERT_TRUE(imports.count(module)) << module;
    left.insert(left.end(), imports.at(module).begin(), imports.at(module).end());
  }
  Names all;
  for (const auto &[module, targets] : imports) all.insert(module);
  EXPECT_THAT(reached, ContainerEq(all));
}

TEST(BridgeImports, TheDocumentNamesEveryModuleInItsFoldersRow) {
  const std::string table = Between(TextOf("docs/bridge.md"), "| Folder | Modules |\n", "\n\n");
  Names documented;
  static const std::regex row(R"((\| [^|]*\| [^\n]*\|))");
  static const std::regex folder(R"(^\| (?:`(\w+)/`)?)");
  static const std::regex name(R"((?:\| |, |and )`(\w+)`(?= \(|,| \||$))");
  for (const std::string &line : Matches(table + "\n", row)) {
    std::smatch match;
    ASSERT_TRUE(std::regex_search(line, match, folder)) << line;
    const std::string prefix = match[1].matched ? match[1].str() + "/" : std::string();
    for (const std::string &module : Matches(line, name))
      documented.insert(prefix + module + ".js");
  }
  Names all;
  for (const auto &[module, targets] : AllImports()) all.insert(module);
  EXPECT_THAT(documented, ContainerEq(all));
}

}  // namespace
}  // namespace velor::layers
