// SPDX-License-Identifier: GPL-3.0-or-later
// The direction of includes is data: this table, and nothing else, says who may include whom.
#include <algorithm>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <map>
#include <regex>
#include <set>
#include <sstream>
#include <string>
#include <vector>

namespace {

namespace fs = std::filesystem;

/// Each layer and the layers whose headers it may include besides its own.
const std::map<std::string, std::set<std::string>> &AllowedIncludes() {
  static const std::map<std::string, std::set<std::string>> table = {
      {"platform", {}},
      {"page/text", {"platform"}},
      {"page/saving", {"page/text", "platform"}},
      {"page/source", {"page/text", "platform"}},
      {"files", {"platform"}},
      {"recovery", {"files", "platform"}},
      {"catalogue/jet", {"platform"}},
      {"catalogue", {"catalogue/jet", "platform"}},
      {"engine", {"page/saving", "page/text", "platform"}},
      {"qt", {"engine", "page/source", "page/text", "catalogue", "files", "recovery", "platform"}},
      {"app/settings", {"platform"}},
      {"chrome", {"platform"}},
      {"insert", {"chrome", "platform"}},
      {"projects", {"chrome", "platform", "app/settings"}},
      {"editor", {"chrome", "page/source", "page/text", "platform", "app/settings"}},
      {"recovery/offers", {"editor", "chrome", "page/saving", "page/text", "platform"}},
      {"app",
       {"editor", "insert", "projects", "chrome", "recovery/offers", "qt", "engine", "platform",
        "app/settings"}},
  };
  return table;
}

/// Layers whose logic must not know any toolkit: QtWidgets, WebEngine, QScintilla or SQLite.
const std::set<std::string> &ToolkitFreeLayers() {
  static const std::set<std::string> layers = {"platform",      "page/text", "page/saving",
                                               "page/source",   "files",     "recovery",
                                               "catalogue/jet", "catalogue", "app/settings"};
  return layers;
}

/// The layer a path of the repository lies in: the longest layer name that is a folder of it.
std::string LayerOf(const std::string &path) {
  std::string best;
  for (const auto &[layer, allowed] : AllowedIncludes())
    if (path.rfind(layer + "/", 0) == 0 && layer.size() > best.size()) best = layer;
  return best;
}

const std::vector<std::string> &SourceFolders() {
  static const std::vector<std::string> folders = {"app",       "editor",   "insert",   "projects",
                                                   "chrome",    "platform", "page",     "engine",
                                                   "catalogue", "files",    "recovery", "qt"};
  return folders;
}

struct Include {
  std::string file;
  std::string target;
  bool quoted;
};

std::vector<Include> IncludesOf(const std::string &file, std::istream &text) {
  static const std::regex pattern(R"(^\s*#\s*include\s*(["<])([^">]+)[">])");
  std::vector<Include> found;
  for (std::string line; std::getline(text, line);) {
    std::smatch match;
    if (std::regex_search(line, match, pattern))
      found.push_back({file, match[2], match[1] == "\""});
  }
  return found;
}

/// A sentence for an include that runs against the table; empty for one that is allowed.
std::string Objection(const Include &include) {
  const std::string from = LayerOf(include.file);
  if (from.empty()) return {};
  static const std::regex toolkit(
      R"(^(QtWidgets|QtWebEngine\w*|Qsci|QWidget|QDialog|QMainWindow|QApplication|QWebEngine\w*|QToolBar|QMenu|QPushButton|QLabel)(/|$))");
  if (ToolkitFreeLayers().count(from) && std::regex_search(include.target, toolkit))
    return include.file + " includes the toolkit: " + include.target;
  static const std::regex engine(
      R"(^(QtWebEngine\w*|QWebEngine\w*|Qsci|sqlite3\.h|unicode)(/|$|\.))");
  static const std::set<std::string> engineUsers = {"engine", "qt", "page/text", "catalogue",
                                                    "app"};
  if (!engineUsers.count(from) && std::regex_search(include.target, engine))
    return include.file + " includes an engine past its interface: " + include.target;
  if (!include.quoted) return {};
  const std::string to = LayerOf(include.target);
  if (to.empty() || to == from || AllowedIncludes().at(from).count(to)) return {};
  return include.file + " includes " + include.target + ": " + from + " must not know " + to;
}

std::vector<Include> AllIncludes() {
  std::vector<Include> all;
  const fs::path root = VELOR_SOURCE_DIR;
  for (const std::string &top : SourceFolders()) {
    for (const auto &entry : fs::recursive_directory_iterator(root / top)) {
      const std::string extension = entry.path().extension().string();
      if (extension != ".h" && extension != ".cpp") continue;
      std::ifstream text(entry.path());
      const auto found = IncludesOf(fs::relative(entry.path(), root).generic_string(), text);
      all.insert(all.end(), found.begin(), found.end());
    }
  }
  return all;
}

TEST(Layers, NoIncludeRunsAgainstTheArrows) {
  const std::vector<Include> all = AllIncludes();
  ASSERT_GT(all.size(), 100u) << "the walk over the sources found next to nothing";
  for (const Include &include : all) EXPECT_EQ(Objection(include), "");
}

TEST(Layers, AnIncludeThatRunsUpIsObjectedTo) {
  EXPECT_NE(Objection({"editor/frmMain.cpp", "insert/modColor.h", true}), "");
  EXPECT_NE(Objection({"chrome/Icons.cpp", "editor/frmMain.h", true}), "");
  EXPECT_NE(Objection({"editor/frmMain.cpp", "qt/QtDialogs.h", true}), "");
  EXPECT_NE(Objection({"platform/Files.h", "QtWidgets/QWidget", false}), "");
  EXPECT_NE(Objection({"platform/Files.h", "QWidget", false}), "");
  EXPECT_NE(Objection({"editor/frmMain.cpp", "QWebEngineView", false}), "");
  EXPECT_NE(Objection({"app/settings/modSettingManager.cpp", "editor/PageRecord.h", true}), "");
}

TEST(Layers, AnIncludeThatRunsDownIsAllowed) {
  EXPECT_EQ(Objection({"editor/frmMain.cpp", "platform/Files.h", true}), "");
  EXPECT_EQ(Objection({"editor/frmMain.cpp", "QWidget", false}), "");
  EXPECT_EQ(Objection({"app/main.cpp", "qt/QtDialogs.h", true}), "");
}

TEST(Layers, OnlyTheGuardedPlacesRunAnEventLoopOrADialog) {
  const fs::path root = VELOR_SOURCE_DIR;
  static const std::regex loop(R"((->|\.|::)exec\(\)|processEvents\()");
  for (const std::string &top : SourceFolders()) {
    for (const auto &entry : fs::recursive_directory_iterator(root / top)) {
      const std::string path = fs::relative(entry.path(), root).generic_string();
      if (entry.path().extension() != ".cpp" || path.rfind("qt/", 0) == 0 ||
          path.rfind("engine/", 0) == 0 || path == "app/main.cpp")
        continue;
      std::ifstream text(entry.path());
      std::stringstream whole;
      whole << text.rdbuf();
      EXPECT_FALSE(std::regex_search(whole.str(), loop))
          << path << " runs an event loop of its own";
    }
  }
}

}  // namespace
