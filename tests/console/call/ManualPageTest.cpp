// The manual page, beside what the program itself says of its use.

#include <regex>

#include "commands/CommandTable.h"
#include "console/ConsoleTest.h"
#include "support/Files.h"
#include "support/Platform.h"

namespace {

using testing::HasSubstr;

class ManualPage : public ConsoleTest {
protected:
  // With "\\-" for each hyphen of an option, as the page writes it.
  static std::string Escaped(const std::string& option) {
    return std::regex_replace(option, std::regex("-"), "\\-");
  }

  // Each option that a help lists, in all its spellings.
  std::vector<std::string> OptionsOf(const std::vector<std::string>& call) const {
    const auto help = Zrkhost(call).Output;
    const auto list = help.substr(help.find("Options:"));
    std::vector<std::string> options;
    const std::regex line("\n  (-[-a-z]+)(?:,(-[-a-z]+))?");
    for (std::sregex_iterator at(list.begin(), list.end(), line), end; at != end; ++at) {
      for (const std::string option : {(*at)[1], (*at)[2]}) {
        if (!option.empty()) options.push_back(option);
      }
    }
    return options;
  }

  const std::string page_ = ReadFile(ExecutableFolder() / "zrkhost.1");
};

TEST_F(ManualPage, NamesEveryOption) {
  EXPECT_THAT(OptionsOf({"--help"}), testing::IsSupersetOf({"-h", "--help", "-c", "--page"}));
  for (const auto& option : OptionsOf({"--help"})) EXPECT_THAT(page_, HasSubstr(Escaped(option))) << option;
}

TEST_F(ManualPage, NamesEveryOptionOfTheHostCheckInTheSynopsis) {
  const auto begin = page_.find(".B zrkhost check\\-host");
  const auto synopsis = page_.substr(begin, page_.find(".SH DESCRIPTION") - begin);
  const auto options = OptionsOf({"check-host", "--help"});
  EXPECT_THAT(options, testing::IsSupersetOf({"-h", "--help", "--session", "--folder", "--library"}));
  for (const auto& option : options) EXPECT_THAT(synopsis, HasSubstr(Escaped(option))) << option;
}

TEST_F(ManualPage, ExplainsEveryCommandWithItsOptions) {
  for (const auto& kind : zrkhost::AllCommands()) {
    std::smatch usage;
    const std::regex line("\n\\.BI? " + std::string(kind.Name) + "( .*)?\n");
    ASSERT_TRUE(std::regex_search(page_, usage, line)) << kind.Name;
    for (const auto& option : kind.Options) EXPECT_THAT(usage.str(), HasSubstr(Escaped(option.Name)));
  }
}

// Another hyphen would be typeset as one, and be none when it is copied.
TEST_F(ManualPage, WritesTheHyphensOfOptionsToBeCopied) {
  EXPECT_FALSE(std::regex_search(page_, std::regex("(^|[ \"\\[])--?[a-z]")));
}

}  // namespace
