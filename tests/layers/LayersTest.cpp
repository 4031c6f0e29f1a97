// SPDX-License-Identifier: GPL-3.0-or-later
// The direction of includes is data: AllowedIncludes(), and nothing else, says who may include
// whom.
#include <algorithm>
#include <cctype>
#include <filesystem>
#include <fstream>
#include <functional>
#include <gtest/gtest.h>
#include <map>
#include <regex>
#include <set>
#include <sstream>
#include <string>
#include <string_view>
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
      {"files", {"catalogue/jet", "platform"}},
      {"pictures", {"page/text", "platform"}},
      {"spelling", {"platform"}},
      {"recovery", {"files", "platform"}},
      {"catalogue/jet", {"platform"}},
      {"catalogue", {"catalogue/jet", "files", "platform"}},
      {"engine", {"files", "page/saving", "page/text", "platform"}},
      {"qt",
       {"engine", "page/source", "page/text", "catalogue", "files", "recovery", "spelling",
        "platform"}},
      {"app/settings", {"platform"}},
      {"chrome", {"platform"}},
      {"insert", {"chrome", "pictures", "platform"}},
      {"properties", {"insert", "chrome", "platform"}},
      {"projects", {"chrome", "platform", "app/settings"}},
      {"editor", {"chrome", "pictures", "page/source", "page/text", "platform", "app/settings"}},
      {"recovery/offers", {"editor", "chrome", "page/saving", "page/text", "platform"}},
      {"app",
       {"editor", "insert", "properties", "projects", "chrome", "recovery/offers", "qt", "engine",
        "pictures", "platform", "app/settings"}},
      {"tools", {"qt", "engine", "page/saving", "page/text", "catalogue", "files", "platform"}},
      {"tests/support", {}},
      {"bench",
       {"app", "editor", "projects", "chrome", "qt", "engine", "page/text", "pictures", "catalogue",
        "files", "recovery", "spelling", "platform", "tests/support"}},
  };
  return table;
}

/// Layers whose logic must not know any toolkit: QtWidgets, WebEngine, QScintilla or SQLite.
const std::set<std::string> &ToolkitFreeLayers() {
  static const std::set<std::string> layers = {
      "platform", "page/text", "page/saving",   "page/source", "files",       "pictures",
      "spelling", "recovery",  "catalogue/jet", "catalogue",   "app/settings"};
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
  static const std::vector<std::string> folders = {
      "app",  "editor", "insert",    "projects", "chrome",    "platform",
      "page", "engine", "catalogue", "recovery", "files",     "pictures",
      "qt",   "bench",  "tools",     "spelling", "properties"};
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
      R"(^(QtWebEngine\w*|QWebEngine\w*|Qsci|sqlite3\.h|unicode|hunspell)(/|$|\.))");
  static const std::set<std::string> engineUsers = {
      "engine", "qt", "page/text", "catalogue", "spelling", "insert", "app", "tools", "bench"};
  if (!engineUsers.count(from) && std::regex_search(include.target, engine))
    return include.file + " includes an engine past its interface: " + include.target;
  if (!include.quoted) return {};
  const std::string to = LayerOf(include.target);
  if (to.empty() || to == from || AllowedIncludes().at(from).count(to)) return {};
  return include.file + " includes " + include.target + ": " + from + " must not know " + to;
}

struct SourceFile {
  std::string path;
  std::string text;
};

const std::vector<SourceFile> &AllSources() {
  static const std::vector<SourceFile> all = [] {
    std::vector<SourceFile> found;
    const fs::path root = VELOR_SOURCE_DIR;
    for (const std::string &top : SourceFolders()) {
      for (const auto &entry : fs::recursive_directory_iterator(root / top)) {
        const std::string extension = entry.path().extension().string();
        if (extension != ".h" && extension != ".cpp") continue;
        std::ifstream file(entry.path());
        std::stringstream text;
        text << file.rdbuf();
        found.push_back({fs::relative(entry.path(), root).generic_string(), text.str()});
      }
    }
    return found;
  }();
  return all;
}

std::vector<Include> AllIncludes() {
  std::vector<Include> all;
  for (const SourceFile &file : AllSources()) {
    std::istringstream text(file.text);
    const auto found = IncludesOf(file.path, text);
    all.insert(all.end(), found.begin(), found.end());
  }
  return all;
}

/// Who points at whom.
using Arrows = std::map<std::string, std::set<std::string>>;

/// The names on a way that comes back to where it began, in order; empty when there is none.
std::vector<std::string> CircleIn(const Arrows &arrows) {
  std::set<std::string> cleared;
  std::vector<std::string> way;
  const std::function<bool(const std::string &)> closes = [&](const std::string &name) {
    const auto seen = std::find(way.begin(), way.end(), name);
    if (seen != way.end()) {
      way.erase(way.begin(), seen);
      way.push_back(name);
      return true;
    }
    if (cleared.count(name) || !arrows.count(name)) return false;
    way.push_back(name);
    for (const std::string &next : arrows.at(name))
      if (closes(next)) return true;
    way.pop_back();
    cleared.insert(name);
    return false;
  };
  for (const auto &[name, targets] : arrows)
    if (closes(name)) return way;
  return {};
}

/// What the headers include of each other.
Arrows HeaderArrows(const std::vector<Include> &includes) {
  Arrows arrows;
  for (const Include &include : includes)
    if (include.quoted && fs::path(include.file).extension() == ".h")
      arrows[include.file].insert(include.target);
  return arrows;
}

/// A text without its string literals and comments.
std::string CodeOf(const std::string &text) {
  static const std::regex other(R"("(\\.|[^"\\\n])*"|//[^\n]*)");
  return std::regex_replace(text, other, "");
}

/// Whether the text runs an event loop of its own: what a person does next may then arrive in the
/// middle of what is being done.
bool RunsAnEventLoop(const std::string &text) {
  static const std::regex loop(R"(\bexec\(|\bQEventLoop\s+\w+\s*[;({]|processEvents\()");
  const auto has = [&](const char *word) { return text.find(word) != std::string::npos; };
  if (!has("exec(") && !has("QEventLoop") && !has("processEvents(")) return false;
  return std::regex_search(CodeOf(text), loop);
}

/// The places that run one, each for a reason.
const std::set<std::string> &GuardedPlaces() {
  static const std::set<std::string> places = {
      "app/main.cpp",                          // the program's own
      "engine/GuardedWait.cpp",                // the one wait for a page; lets no input in
      "qt/QtDialogs.cpp",                      // dialogs that a person answers
      "qt/QtFileDialog.cpp",                   // likewise
      "qt/QtRuntime.cpp",                      // the contract's DoEvents
      "tools/editing-suite/EditingSuite.cpp",  // a program without a person
      "bench/CatalogueFigures.cpp",            // likewise
      "bench/Children.cpp",
      "bench/Measure.cpp",
  };
  return places;
}

/// Whether a word of the code is a type, constant, variable or call that only the system has which
/// the program runs on. `before` and `behind` are the characters around it.
bool IsOfTheSystem(std::string_view word, char before, char behind) {
  static const std::set<std::string_view> names = {"mode_t",  "off_t",   "pid_t",  "uid_t",
                                                   "ssize_t", "SIGKILL", "SIGHUP", "SIGTERM",
                                                   "SIGINT",  "linux",   "Linux",  "__linux__"};
  static const std::set<std::string_view> calls = {
      "kill", "fork",  "flock",   "fcntl", "ioctl", "getpid", "geteuid", "eventfd",
      "mmap", "fsync", "symlink", "lstat", "fstat", "pread",  "pwrite"};
  constexpr std::string_view Beginnings[] = {"XDG_", "Q_OS_", "O_", "S_I", "F_OFD_"};
  const bool isCall = behind == '(' && before != '.' && before != '>';
  return names.count(word) || (isCall && calls.count(word)) ||
         word.find("_LINUX_") != std::string_view::npos ||
         std::any_of(std::begin(Beginnings), std::end(Beginnings),
                     [word](std::string_view beginning) { return word.starts_with(beginning); });
}

/// Whether the text names headers, folders, types, calls or variables that only the system has.
bool NamesTheSystem(const std::string &text) {
  static const std::regex header(
      R"(<((unistd|fcntl|dirent|poll|pwd|grp|signal|dlfcn)\.h|csignal|(sys|linux|X11|xcb)/|QDBus))");
  static const std::regex folder(R"("/(proc|sys|dev|etc|usr)/)");
  // What the browsers of phones call themselves, wherever this program runs.
  static const std::regex phone(R"(Linux(; Android| armv))");
  const auto isInWord = [](char sign) { return std::isalnum(sign) || sign == '_'; };
  std::istringstream lines(text);
  for (std::string line; std::getline(lines, line);) {
    line = ' ' + line.substr(0, line.find("//")) + ' ';
    if (line.find("Linux") != std::string::npos) line = std::regex_replace(line, phone, "");
    if (line.starts_with(" #include")) {
      if (std::regex_search(line, header)) return true;
      continue;
    }
    if (line.find("\"/") != std::string::npos && std::regex_search(line, folder)) return true;
    for (auto end = line.begin(), begin = end; end != line.end();) {
      begin = std::find_if(end, line.end(), isInWord);
      end = std::find_if_not(begin, line.end(), isInWord);
      if (begin != end && IsOfTheSystem({begin, end}, *(begin - 1), *end)) return true;
    }
  }
  return false;
}

/// The folders that may name the system. A port to another system begins here.
const std::vector<std::string> &PlacesThatKnowTheSystem() {
  static const std::vector<std::string> places = {
      "files/",  // system calls on files and processes
      "qt/",     // desktop, signals, local sockets, the person's folders
      "bench/",  // no part of the program: measures processes
  };
  return places;
}

bool MayKnowTheSystem(const std::string &path) {
  const auto &places = PlacesThatKnowTheSystem();
  return std::any_of(places.begin(), places.end(),
                     [&](const std::string &place) { return path.rfind(place, 0) == 0; });
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
  EXPECT_NE(Objection({"engine/EngineView.cpp", "bench/Measure.h", true}), "");
  EXPECT_NE(Objection({"tools/catalogue/main.cpp", "app/main.h", true}), "");
  EXPECT_NE(Objection({"qt/QtDialogs.cpp", "tests/support/FakeFiles.h", true}), "");
}

TEST(Layers, AnIncludeThatRunsDownIsAllowed) {
  EXPECT_EQ(Objection({"editor/frmMain.cpp", "platform/Files.h", true}), "");
  EXPECT_EQ(Objection({"editor/frmMain.cpp", "QWidget", false}), "");
  EXPECT_EQ(Objection({"app/main.cpp", "qt/QtDialogs.h", true}), "");
}

TEST(Layers, EveryFolderIsOneOfTheTable) {
  for (const SourceFile &file : AllSources()) EXPECT_NE(LayerOf(file.path), "") << file.path;
}

TEST(Layers, TheTableHasNoCircle) {
  EXPECT_EQ(CircleIn(AllowedIncludes()), std::vector<std::string>());
}

TEST(Layers, NoHeadersIncludeEachOtherInACircle) {
  const Arrows arrows = HeaderArrows(AllIncludes());
  ASSERT_GT(arrows.size(), 50u);
  EXPECT_EQ(CircleIn(arrows), std::vector<std::string>());
}

TEST(Layers, ACircleIsFoundAndNamed) {
  EXPECT_EQ(CircleIn({{"a", {"b"}}, {"b", {"c", "d"}}, {"d", {"b"}}}),
            (std::vector<std::string>{"b", "d", "b"}));
  EXPECT_EQ(CircleIn({{"a", {"b", "c"}}, {"b", {"c"}}}), std::vector<std::string>());
  EXPECT_EQ(CircleIn(HeaderArrows({{"x/A.h", "x/B.h", true}, {"x/B.h", "x/A.h", true}})),
            (std::vector<std::string>{"x/A.h", "x/B.h", "x/A.h"}));
}

TEST(Layers, OnlyTheGuardedPlacesRunAnEventLoop) {
  std::set<std::string> places;
  for (const SourceFile &file : AllSources())
    if (RunsAnEventLoop(file.text)) places.insert(file.path);
  EXPECT_EQ(places, GuardedPlaces());
}

TEST(Layers, OnlyTheNamedPlacesKnowTheSystem) {
  for (const SourceFile &source : AllSources())
    if (!MayKnowTheSystem(source.path)) {
      EXPECT_FALSE(NamesTheSystem(source.text)) << source.path;
    }
}

TEST(Layers, EveryPlaceThatMayKnowTheSystemDoes) {
  for (const std::string &place : PlacesThatKnowTheSystem()) {
    const auto &sources = AllSources();
    EXPECT_TRUE(std::any_of(sources.begin(), sources.end(), [&](const SourceFile &source) {
      return source.path.rfind(place, 0) == 0 && NamesTheSystem(source.text);
    })) << place;
  }
}

TEST(Layers, TheSystemIsFoundByHeaderCallPlaceAndVariable) {
  EXPECT_TRUE(NamesTheSystem("#include <unistd.h>\n"));
  EXPECT_TRUE(NamesTheSystem("#include <sys/stat.h>\n"));
  EXPECT_TRUE(NamesTheSystem("#include <QDBusConnection>\n"));
  EXPECT_TRUE(NamesTheSystem("  ::kill(process, 9);\n"));
  EXPECT_TRUE(NamesTheSystem("  const int other = getpid();\n"));
  EXPECT_TRUE(NamesTheSystem("ReadAll(\"/proc/locks\");"));
  EXPECT_TRUE(NamesTheSystem("qEnvironmentVariable(\"XDG_DATA_HOME\")"));
  EXPECT_TRUE(NamesTheSystem("file = Open(name, O_RDONLY);"));
  EXPECT_TRUE(NamesTheSystem("constexpr mode_t OwnerOnly = 0600;"));
  EXPECT_TRUE(NamesTheSystem("end(process, SIGKILL);"));
  EXPECT_TRUE(NamesTheSystem("qputenv(\"ENGINE_LINUX_SWITCH\", on);"));
  EXPECT_FALSE(NamesTheSystem("  process.kill();\n  program->kill();\n"));
  EXPECT_FALSE(NamesTheSystem("// Not in $XDG_DATA_HOME on Linux: see fcntl(2).\n"));
  EXPECT_FALSE(NamesTheSystem("#include <QFile>\n#include <cerrno>\n"));
  EXPECT_TRUE(NamesTheSystem("\"Mozilla/5.0 (Linux; x86_64)\""));
  EXPECT_FALSE(NamesTheSystem("\"Mozilla/5.0 (Linux; Android 10; K)\""));
}

TEST(Layers, AnEventLoopIsFoundInEveryForm) {
  EXPECT_TRUE(RunsAnEventLoop("dialog.exec();"));
  EXPECT_TRUE(RunsAnEventLoop("menu->exec(QCursor::pos());"));
  EXPECT_TRUE(RunsAnEventLoop("QMenu::exec(actions, place);"));
  EXPECT_TRUE(RunsAnEventLoop("return exec(1);"));
  EXPECT_TRUE(RunsAnEventLoop("QEventLoop loop;"));
  EXPECT_TRUE(RunsAnEventLoop("QCoreApplication::processEvents(QEventLoop::AllEvents, 5);"));
  EXPECT_FALSE(RunsAnEventLoop("Run(\"velor.exec(5000)\");"));
  EXPECT_FALSE(RunsAnEventLoop("// dialog.exec() would wait here"));
  EXPECT_FALSE(RunsAnEventLoop("sqlite3_exec(database, nullptr);"));
}

}  // namespace
