#include "SVNStatus.h"
#include "SVNWorkingCopies.h"

namespace {

using testing::Each;
using testing::Pair;
using testing::SizeIs;

// Names that a command line or a report could take for something else, in every command.
class SVNNames : public SVNWorkingCopy {
protected:
  SVNNames() {
    CheckOutFiles(names_);
    anna_.SignOn(repository_.URL() + "/" + names_.front());
  }

  // The command on each name, as the product's own manager does it.
  Json OnEach(const std::string& command) const {
    std::vector<std::string> commands;
    for (const std::string& name : names_) {
      commands.push_back(name == names_.front() ? command : Command(command, "all/" + name));
    }
    return AnnaOn(names_, commands);
  }
  void ExpectEach(const Json& report, const std::string& status, const std::string& comment) const {
    const auto attributes = AttributesByFile(report, annasCopy_);
    ASSERT_THAT(attributes, SizeIs(names_.size()));
    for (const auto& [name, shown] : attributes) {
      EXPECT_EQ(shown, Json({{"Revision", "1"}, {"Status", status}, {"Release", ""}, {"Comment", comment}}))
          << name;
    }
  }

  const std::vector<std::string> names_ = {"car",          "with  two blanks",
                                           " blank first", "blank last ",
                                           "-leading",     "--xml",
                                           "Größe ß 車",   "u\xCC\x88 apart",
                                           "at@sign",      "@",
                                           "rev@1",        "@HEAD",
                                           "closed@",      "folder@2/part@",
                                           "-folder/-m",   "it's",
                                           "5\" wheel",    "\"quoted\"",
                                           "a&b<c>",       "100%20%",
                                           "#1;$HOME`x`",  "sub folder/ü/x",
                                           "[x]*?",        "url:/a"};
};

TEST_F(SVNNames, AreEditedRefreshedAndGivenBack) {
  ExpectEach(OnEach("edit"), "Edit", "anna\n");
  const Json report = AnnaOn(names_, {"refresh"});
  ExpectWhatSVNSays(report, AskSVN(annasCopy_));
  ExpectEach(report, "Edit", "Locked by: \nanna\n-------------\n");
  ExpectEach(OnEach("unedit"), "ReadOnly", "\n");
}

TEST_F(SVNNames, AreAskedFor) {
  const Json report = OnEach("status");
  for (std::size_t i = 0; i < names_.size(); ++i) {
    const Json& record = CommandOf(report, i).at("record");
    EXPECT_EQ(record.at("File"), names_[i].substr(names_[i].rfind('/') + 1));
    EXPECT_EQ(record.at("Status"), "normal");
    EXPECT_EQ(record.at("WorkingRevision"), "1") << names_[i];
  }
}

TEST_F(SVNNames, AreDeleted) {
  std::vector<std::string> commands;
  for (const std::string& name : names_) commands.push_back(Command("delete", (annasCopy_ / name).string()));
  AnnaOn(names_, commands);
  const SVNAnswer answer = AskSVN(annasCopy_);
  for (const std::string& name : names_) {
    EXPECT_EQ(answer.Entries.at((annasCopy_ / name).string()).Item, "deleted") << name;
  }
}

}  // namespace
