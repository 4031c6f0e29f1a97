// SPDX-License-Identifier: GPL-3.0-or-later
// The program and the bridge speak in numbers, fields and names that no compiler compares. Each is
// written once on either side, and in docs/bridge.md; here the three are held together.
#include "tests/layers/Sources.h"

#include <filesystem>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace velor::layers {
namespace {

namespace fs = std::filesystem;
using ::testing::ContainerEq;
using ::testing::IsSubsetOf;
using ::testing::SizeIs;

using Names = std::set<std::string>;

const std::string &Document() {
  static const std::string text = TextOf("docs/bridge.md");
  return text;
}

/// "Bold = 5000" and "Bold: 5000" as "Bold 5000".
Names NumbersIn(const std::string &text) {
  static const std::regex entry(R"((\w+)(?: =|:) (\d+))");
  Names found;
  for (std::sregex_iterator at(text.begin(), text.end(), entry), end; at != end; ++at)
    found.insert((*at)[1].str() + " " + (*at)[2].str());
  return found;
}

/// The members of an interface of types.d.ts.
Names MembersOf(const std::string &interface) {
  static const std::regex member(R"(\n  (\w+)\??[:(])");
  return Matches(
      Between(TextOf("engine/bridge/types.d.ts"), "interface " + interface + " {", "\n}"), member);
}

/// The scripts of the bridge, or the sources of a folder, as one text.
std::string AllOf(const std::string &folder, const Names &extensions) {
  std::string all;
  const fs::path root = VELOR_SOURCE_DIR;
  for (const auto &entry : fs::recursive_directory_iterator(root / folder)) {
    if (!extensions.count(entry.path().extension().string())) continue;
    all += TextOf(fs::relative(entry.path(), root)) + "\n";
  }
  return all;
}

std::string Vocabulary(const std::string &name) {
  return Between(TextOf("engine/bridge/talk/vocabulary.js"), "export const " + name, "});");
}

/// What the table under a heading of the document names in its first column.
Names CallsUnder(const std::string &heading, const std::regex &call) {
  const std::string part = Between(Document(), "\n## " + heading + "\n", "\n## ");
  static const std::regex row(R"((?:^|\n)\| (`[^|]*`) \|)");
  Names found;
  for (const std::string &cell : Matches(part, row)) {
    const Names calls = Matches(cell, call);
    found.insert(calls.begin(), calls.end());
  }
  return found;
}

TEST(BridgeContract, CommandsHaveTheSameNumbersOnBothSides) {
  const Names program =
      NumbersIn(Between(TextOf("platform/EditingCommands.h"), "enum class EditingCommand", "};"));
  EXPECT_THAT(program, SizeIs(52));
  EXPECT_THAT(NumbersIn(Vocabulary("Command")), ContainerEq(program));
}

TEST(BridgeContract, EveryCommandHasOneRowInTheTable) {
  static const std::regex row(R"(\n  \[Command\.(\w+), )");
  const Names rows = Matches(TextOf("engine/bridge/talk/commands.js"), row);
  static const std::regex name(R"(\n  (\w+): \d+)");
  EXPECT_THAT(rows, SizeIs(52));
  EXPECT_THAT(rows, ContainerEq(Matches(Vocabulary("Command"), name)));
}

TEST(BridgeContract, ThePageAnswersTheKeysThatTheProgramKnowsOf) {
  static const std::regex answered(R"(\['(?:shift\+)?\w', Command\.\w+\])");
  static const std::regex parts(R"(\['(shift\+)?(\w)', Command\.(\w+)\])");
  const std::string script =
      Between(TextOf("engine/bridge/keys/shortcuts.js"), "const byKey = new Map([", "]);");
  Names inScript;
  for (std::sregex_iterator at(script.begin(), script.end(), answered), end; at != end; ++at) {
    std::smatch part;
    const std::string row = at->str();
    ASSERT_TRUE(std::regex_match(row, part, parts));
    inScript.insert(std::string("Ctrl+") + (part[1].matched ? "Shift+" : "") +
                    static_cast<char>(std::toupper(part[2].str()[0])) + " " + part[3].str());
  }
  static const std::regex known(R"r(\{"([^"]+", EditingCommand::\w+)\})r");
  Names inProgram;
  for (std::string row :
       Matches(Between(TextOf("engine/PageKeys.h"), "BridgeKeys{{", "}};"), known))
    inProgram.insert(row.replace(row.find('"'), std::string("\", EditingCommand::").size(), " "));
  EXPECT_THAT(inScript, SizeIs(7));
  EXPECT_THAT(inProgram, ContainerEq(inScript));
}

TEST(BridgeContract, NoScriptWritesACommandAsANumber) {
  static const std::regex number(R"(\b([56]0\d\d)\b)");
  std::string scripts = AllOf("engine/bridge", {".js"});
  const std::string vocabulary = TextOf("engine/bridge/talk/vocabulary.js");
  const std::size_t at = scripts.find(vocabulary);
  ASSERT_NE(at, std::string::npos);
  scripts.erase(at, vocabulary.size());
  EXPECT_THAT(Matches(scripts, number), SizeIs(0));
}

TEST(BridgeContract, StatusesHaveTheSameNumbersOnBothSides) {
  Names program =
      NumbersIn(Between(TextOf("platform/EditingComponent.h"), "enum class CommandStatus", "};"));
  // The program's word for what the bridge does not know.
  EXPECT_EQ(program.erase("NotSupported 0"), 1U);
  EXPECT_THAT(NumbersIn(Vocabulary("Status")), ContainerEq(program));
}

TEST(BridgeContract, TheStateHasTheSameFieldsInScriptsProgramAndDocument) {
  const Names fields = MembersOf("State");
  EXPECT_THAT(fields, SizeIs(18));
  static const std::regex read(R"r(object\[u"(\w+)"\]\.to\w+\(\)[;.)])r");
  const std::string parser =
      Between(TextOf("engine/StateSnapshot.cpp"), "StateSnapshot::FromJson", "\n}");
  EXPECT_THAT(Matches(parser, read), ContainerEq(fields));
  const std::string example = Between(Document(), "\nThe state:\n", "\n}\n");
  static const std::regex key(R"r("(\w+)":)r");
  Names told = Matches(example, key);
  for (const char *inner : {"5000", "tag", "attributes", "pixels", "shown"}) told.erase(inner);
  EXPECT_THAT(told, ContainerEq(fields));
}

TEST(BridgeContract, TheSlotsAreTheSameInProgramScriptsAndDocument) {
  static const std::regex slot(R"(\n  void (\w+)\()");
  const std::string host = TextOf("engine/BridgeHost.h");
  const Names slots = Matches(Between(host, "public Q_SLOTS:", "Q_SIGNALS:"), slot);
  EXPECT_THAT(slots, SizeIs(13));
  EXPECT_THAT(MembersOf("Host"), ContainerEq(slots));
  static const std::regex called(R"(\bhost\(\)\??\.(\w+)\()");
  EXPECT_THAT(Matches(AllOf("engine/bridge", {".js"}), called), ContainerEq(slots));
  static const std::regex documented(R"(`(\w+)\()");
  EXPECT_THAT(CallsUnder("Page to program", documented), ContainerEq(slots));
}

/// The names of elements in a piece of a script or a source, in small letters.
Names ElementsIn(const std::string &piece) {
  static const std::regex word(R"(\b([A-Za-z][A-Za-z0-9]*)\b)");
  Names names;
  for (const std::string &each : Matches(piece, word)) {
    std::string name;
    for (const char letter : each) name += static_cast<char>(std::tolower(letter));
    names.insert(name);
  }
  return names;
}

TEST(BridgeContract, SourceAndDesignViewTakeTheSameElementsForBlocksObjectsAndCode) {
  const std::string dom = TextOf("engine/bridge/page/dom.js");
  const std::string source = TextOf("page/source/SourceText.cpp");
  const auto inScript = [&dom](const std::string &name) {
    return ElementsIn(Between(dom, "const " + name + " = set(", ");"));
  };
  static const std::regex literal(R"r(u"([^"]*)")r");
  const auto inSource = [&source](const std::string &name) {
    Names names;
    for (const std::string &part :
         Matches(Between(source, "const NameSet " + name + "(", ");"), literal))
      names.merge(ElementsIn(part));
    return names;
  };
  const std::string elements = TextOf("page/text/HtmlElements.h");
  Names blocks;
  for (const char *list : {"ParagraphEnders", "OtherCommonBlocks", "OtherBlocks"}) {
    Names part = Matches(Between(elements, std::string(list) + "[] = {", "};"), literal);
    blocks.merge(part);
    EXPECT_THAT(part, SizeIs(0)) << "in two lists of blocks";
  }
  EXPECT_GT(blocks.size(), 40U);
  EXPECT_THAT(blocks, ContainerEq(inScript("blocks")));
  Names atoms = inScript("atoms");
  atoms.insert("svg");
  EXPECT_GT(atoms.size(), 15U);
  EXPECT_THAT(inSource("Atoms"), ContainerEq(atoms));
  EXPECT_GT(inScript("unseen").size(), 10U);
  EXPECT_THAT(inSource("Unseen"), ContainerEq(inScript("unseen")));
  Names code = ElementsIn(Between(TextOf("engine/bridge/spelling/spelledLines.js"),
                                  "const noLanguage = '", ", [spellcheck"));
  EXPECT_GT(code.size(), 5U);
  EXPECT_THAT(inSource("NoLanguage"), ContainerEq(code));
}

TEST(BridgeContract, TheGlobalNamesAreThoseThatTheDocumentAndTheProgramName) {
  static const std::regex name(R"(\n  (?:get |set )?(\w+)[,:(])");
  const Names names =
      Matches(Between(TextOf("engine/bridge/api.js"), "globalThis.velor = {", "\n};"), name);
  EXPECT_GT(names.size(), 10U);
  static const std::regex documented(R"(`velor\.(\w+)[(`])");
  EXPECT_THAT(CallsUnder("Program to page", documented), ContainerEq(names));

  static const std::regex evaluated(R"(["(;\s]velor\.(\w+))");
  const Names program = Matches(AllOf("engine", {".cpp"}), evaluated);
  Names unknown;
  for (const std::string &each : program)
    if (!names.count(each) && each != "bridge") unknown.insert(each);
  EXPECT_THAT(unknown, SizeIs(0)) << "bridge is the name of a log";
  Names used = program;
  for (const char *folder : {"tests", "tools", "bench"}) {
    const Names others = Matches(AllOf(folder, {".cpp", ".h", ".js"}), evaluated);
    used.insert(others.begin(), others.end());
  }
  EXPECT_THAT(names, IsSubsetOf(used)) << "nobody evaluates one of the global names";
}

}  // namespace
}  // namespace velor::layers
