#include <algorithm>

#include "CVSAnswers.h"
#include "CVSWorkingCopies.h"

namespace {

namespace fs = std::filesystem;

using testing::HasSubstr;
using testing::SizeIs;

Json AttributesFromClient(const CVSAnswer& answer, bool writable) {
  const char* unlocked = writable ? "Edit" : "ReadOnly";
  const bool locked = !writable && !answer.Editor.empty();
  return {{"Revision", answer.Revision},
          {"Status", locked ? "Locked" : unlocked},
          {"Release", answer.FirstTag},
          {"Comment", locked ? answer.Editor : ""}};
}

std::string Folder(int number) {
  const std::string name = "Gruppe " + std::to_string(number) + " größe";
  // Every fourth lies in the one before.
  return number % 4 == 3 ? Folder(number - 1) + "/" + name : name;
}

std::string Part(int folder, int number) {
  return Folder(folder) + "/Teil №" + std::to_string(number) + " of 10.CATPart";
}

class CVSRefresh : public CVSWorkingCopies {};
ZRK_THROUGH_BOTH_ROOTS(CVSRefresh);

TEST_P(CVSRefresh, GivesEveryFileOfALargeTreeTheAttributesThatTheClientTells) {
  std::map<std::string, std::string> files = {{"Auto größe.CATProduct", "car\n"}};
  for (int folder = 0; folder < 20; ++folder) {
    for (int number = 0; number < 10; ++number) files[Part(folder, number)] = "part\n";
  }
  fs::create_directories(fs::path(repository_.LocalRoot()) / kModule / "leerer Ordner");
  CheckOut(files);
  CheckOutForBen();
  ASSERT_TRUE(fs::exists(annasCopy_ / "leerer Ordner/CVS"));

  repository_.Tag(annasCopy_, "RELEASE-1");
  repository_.Tag(annasCopy_ / Folder(5), "RELEASE-2");
  const std::string newer = Part(2, 4);
  repository_.Commit(bensCopy_, newer, "newer\n");
  for (int folder = 7; folder < 12; ++folder) BenEdits(Part(folder, folder % 10));
  repository_.Edit(annasCopy_, Part(1, 1), "anna");
  // Edited by both.
  BenEdits(Part(1, 2));
  repository_.Edit(annasCopy_, Part(1, 2), "anna");
  WriteFile(annasCopy_ / Part(1, 1), "changed\n");
  const std::string unknown = Folder(6) + "/kein Teil.CATPart";
  WriteFile(annasCopy_ / unknown, "unknown\n");

  const Json report = Anna({"refresh"});
  const auto attributes = AttributesByFile(report, annasCopy_);
  const auto answers = AskCVS(Root(), annasCopy_);
  ASSERT_THAT(attributes, SizeIs(files.size() + 1));
  std::map<std::string, int> states;
  for (const auto& [file, contents] : files) {
    const Json expected = AttributesFromClient(answers.at(file), IsWritable(annasCopy_ / file));
    EXPECT_EQ(attributes.at(file), expected) << file;
    ++states[expected.at("Status")];
  }
  EXPECT_EQ(states, (std::map<std::string, int>{{"Edit", 2}, {"Locked", 5}, {"ReadOnly", 194}}));
  EXPECT_EQ(answers.at(newer).Status, "Needs Patch");
  EXPECT_THAT(attributes.at(Part(5, 0)).at("Release"), HasSubstr("RELEASE-2"));
  EXPECT_THAT(attributes.at(Part(4, 0)).at("Release"), HasSubstr("RELEASE-1"));

  EXPECT_EQ(attributes.at(unknown), nullptr);
  EXPECT_EQ(CommandOf(report).at("output"), "File " + folder_.Host(annasCopy_ / unknown) + " not found!\n");
}

// The file arguments of a command line and what stands in front of them.
struct SplitLine {
  explicit SplitLine(const std::string& line)
      : Front(line.substr(0, line.find(" \""))), Files(line.substr(Front.size())) {}

  std::string Front;
  std::string Files;
};

// How many characters, not bytes.
std::size_t Length(const std::string& text) {
  return static_cast<std::size_t>(
      std::count_if(text.begin(), text.end(), [](char c) { return (c & 0xC0) != 0x80; }));
}

TEST_P(CVSRefresh, AsksAboutALongTreeInAsFewCommandLinesAsItTakes) {
  const std::string name(200, 'x');
  const std::string folder = "ä " + name + "/ö " + name + "/ü " + name + "/ß " + name + "/";
  std::map<std::string, std::string> files = {{"Auto größe.CATProduct", "car\n"}};
  for (int number = 100; number < 178; ++number) {
    files[folder + "Teil " + std::to_string(number) + ".CATPart"] = "part\n";
  }
  CheckOut(files);
  CheckOutForBen();
  BenEdits(folder + "Teil 101.CATPart");
  BenEdits(folder + "Teil 177.CATPart");
  repository_.Commit(bensCopy_, folder + "Teil 102.CATPart", "newer\n");
  repository_.Tag(annasCopy_ / folder, "RELEASE-1");

  std::vector<std::string> commands = {"refresh"};
  const Json report = Anna(commands);
  const std::vector<std::string> lines = TextsOf(EventsOf(CommandOf(report), "launch"), "commandLine");
  ASSERT_THAT(lines, SizeIs(6));
  std::size_t total = 0;
  for (std::size_t i = 0; i < 3; ++i) {
    const SplitLine status(lines[i]);
    const SplitLine editors(lines[i + 3]);
    EXPECT_EQ(status.Front, " -d " + Root() + "  status -v ");
    EXPECT_EQ(editors.Front, " -d " + Root() + "  -n edit ");
    EXPECT_EQ(status.Files, editors.Files);
    EXPECT_LT(Length(status.Files), 32000U);
    total += Length(status.Files);
  }
  EXPECT_GT(total, 64000U);

  // The same, asked file by file.
  for (const auto& [file, contents] : files) {
    if (file != "Auto größe.CATProduct") commands.push_back("refresh \"Auto größe.CATProduct/" + file + "\"");
  }
  commands.erase(commands.begin());
  const Json single = Anna(commands);
  auto together = AttributesByFile(report, annasCopy_);
  auto each = AttributesByFile(single, annasCopy_);
  EXPECT_NE(together.at("Auto größe.CATProduct"), nullptr);
  together.erase("Auto größe.CATProduct");
  each.erase("Auto größe.CATProduct");
  EXPECT_EQ(together, each);
  EXPECT_EQ(together.at(folder + "Teil 177.CATPart").at("Status"), "Locked");
  EXPECT_EQ(together.at(folder + "Teil 176.CATPart").at("Status"), "ReadOnly");
}

}  // namespace
