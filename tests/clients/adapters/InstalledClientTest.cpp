#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <csignal>
#include <cstdio>
#include <fstream>
#include <memory>

#include <sys/stat.h>

#include "Adapter.h"
#include "support/TemporaryFolder.h"

namespace {

using testing::HasSubstr;
using testing::StartsWith;

// Both adapters with clients of the test's own.
class InstalledClient : public testing::TestWithParam<std::string> {
protected:
  std::string Adapter() const { return GetParam() + ".exe"; }
  std::filesystem::path Client() const { return folder_ / GetParam(); }
  std::string Path() const { return folder_.Path().string() + ":/usr/bin:/bin"; }

  CommandResult Call(const std::vector<std::string>& arguments, const std::string& input = "",
                     std::map<std::string, std::string> environment = {}) const {
    environment.emplace("PATH", Path());
    return RunAdapter(Adapter(), arguments, {.Folder = {}, .Input = input, .Environment = environment});
  }

  TemporaryFolder folder_;
};

INSTANTIATE_TEST_SUITE_P(OfBoth, InstalledClient, testing::Values("cvs", "svn"),
                         [](const auto& parameter) { return parameter.param; });

TEST_P(InstalledClient, GivesItsStatus) {
  WriteProgram(Client(), "exit 7\n");
  EXPECT_EQ(Call({"x"}).Status, 7);
}

TEST_P(InstalledClient, GivesTheSignalThatEndedIt) {
  WriteProgram(Client(), "kill -9 $$\n");
  EXPECT_EQ(Call({"x"}).Status, 128 + SIGKILL);
}

TEST_P(InstalledClient, IsMissedWithAWordOnHowToInstallIt) {
  const CommandResult result = Call({"x"}, "", {{"PATH", folder_.Path().string()}});
  EXPECT_EQ(result.Status, 127);
  EXPECT_THAT(result.Output,
              StartsWith(Adapter() + ": the program \"" + GetParam() + "\" is not on the PATH"));
  EXPECT_THAT(result.Output, HasSubstr("apt-get install"));
}

TEST_P(InstalledClient, IsMissedWithoutAPath) {
  EXPECT_EQ(Call({"x"}, "", {{"PATH", ""}}).Status, 127);
}

// The client takes the adapter's place then.
TEST_P(InstalledClient, IsAlsoMissedByACallThatNeverAsks) {
  const CommandResult result = Call({"x", "--non-interactive"}, "", {{"PATH", folder_.Path().string()}});
  EXPECT_EQ(result.Status, 127);
  EXPECT_THAT(result.Output, HasSubstr("is not on the PATH"));
}

TEST_P(InstalledClient, SpeaksEnglishAndUTF8AndGivesItsStatusInACallThatNeverAsks) {
  WriteProgram(Client(), "printf \"$LC_ALL-$LANGUAGE- $*\"; exit 7\n");
  const CommandResult result = Call({"x", "--non-interactive"}, "", {{"LC_ALL", "C"}, {"LANGUAGE", "de"}});
  EXPECT_EQ(result.Status, 7);
  EXPECT_EQ(result.Output, "C.UTF-8-- x --non-interactive");
}

TEST_P(InstalledClient, IsSoughtInOneFolderAfterTheOther) {
  const std::filesystem::path first = folder_ / "first";
  WriteFile(first / GetParam(), "not a program");
  std::filesystem::create_directories(folder_ / "second" / GetParam());
  WriteProgram(Client(), "exit 7\n");
  const std::string path = first.string() + "::" + (folder_ / "second").string() + ":" + Path();
  EXPECT_EQ(Call({"x"}, "", {{"PATH", path}}).Status, 7);
}

TEST_P(InstalledClient, IsNeverTheAdapterItself) {
  std::filesystem::create_directory(folder_ / "loop");
  std::filesystem::create_symlink(ExecutableFolder() / "clients" / Adapter(), folder_ / "loop" / GetParam());
  WriteProgram(Client(), "exit 7\n");
  EXPECT_EQ(Call({"x"}, "", {{"PATH", (folder_ / "loop").string() + ":" + Path()}}).Status, 7);
}

TEST_P(InstalledClient, IsHeardOnBothStreamsInTheOrderOfItsWriting) {
  WriteProgram(Client(), "echo one; echo two >&2; echo three; printf 'four\\r\\n'\n");
  EXPECT_EQ(Call({"x"}).Output, "one\r\ntwo\r\nthree\r\nfour\r\n");
}

TEST_P(InstalledClient, ReadsTheStandardInputByteForByte) {
  WriteProgram(Client(), "od -An -tx1 | tr -d ' \\n'\n");
  EXPECT_EQ(Call({"x"}, std::string("yes\0", 4)).Output, "79657300");
}

TEST_P(InstalledClient, SpeaksEnglishAndUTF8) {
  WriteProgram(Client(), "echo $LC_ALL-$LANGUAGE-\n");
  EXPECT_EQ(Call({"x"}, "", {{"LC_ALL", "de_DE.ISO-8859-1"}, {"LANGUAGE", "de"}}).Output, "C.UTF-8--\r\n");
}

TEST_P(InstalledClient, DeliversMoreThanAPipeHolds) {
  WriteProgram(Client(), "i=0; while [ $i -lt 20000 ]; do echo 0123456789; i=$((i+1)); done\n");
  std::string expected;
  for (int i = 0; i < 20000; ++i) expected += "0123456789\r\n";
  EXPECT_TRUE(Call({"x"}).Output == expected);
}

TEST_P(InstalledClient, IsHeardBeforeItHasItsAnswer) {
  const std::string answers = (folder_ / "answers").string();
  ASSERT_EQ(mkfifo(answers.c_str(), 0600), 0);
  WriteProgram(Client(), "printf 'revert changes? '; read answer < " + answers + "; echo $answer\n");

  const std::string command =
      "PATH=" + Path() + " " + (ExecutableFolder() / "clients" / Adapter()).string() + " x";
  const auto close = [](std::FILE* file) { pclose(file); };
  const std::unique_ptr<std::FILE, decltype(close)> output(popen(command.c_str(), "r"), close);
  ASSERT_TRUE(output);
  std::array<char, 16> question{};
  ASSERT_EQ(std::fread(question.data(), 1, question.size(), output.get()), question.size());
  EXPECT_EQ(std::string(question.data(), question.size()), "revert changes? ");

  std::ofstream(answers) << "yes\n";
  std::array<char, 16> rest{};
  const std::size_t size = std::fread(rest.data(), 1, rest.size(), output.get());
  EXPECT_EQ(std::string(rest.data(), size), "yes\r\n");
}

}  // namespace
