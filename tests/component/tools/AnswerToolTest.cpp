#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "component/tools/ToolRunner.h"
#include "support/ClientReports.h"
#include "support/Files.h"
#include "support/HandleCount.h"
#include "windows/WindowsControl.h"

using zrk::tools::AnswerTool;

namespace {

class Answer : public testing::Test {
protected:
  // Answers the client's question and gives all that the client read.
  std::string Give(const char* answer) {
    EXPECT_EQ(tool_.Run("unedit"), zrk::sample::kRevertQuestion);
    AnswerTool(tool_.Context(), answer);
    return tool_.ClientInput();
  }
  bool IsDone() const { return std::filesystem::exists(tool_.Folder / "done"); }

  ToolRunner tool_;
};

}  // namespace

TEST_F(Answer, YesIsThreeLettersAndAZero) {
  tool_.Client.Otherwise().Out(zrk::sample::kRevertQuestion).ReadAll();
  EXPECT_EQ(Give("yes"), std::string("yes\0", 4));
}

TEST_F(Answer, NoIsTwoLettersAndAZero) {
  tool_.Client.Otherwise().Out(zrk::sample::kRevertQuestion).ReadAll();
  EXPECT_EQ(Give("no"), std::string("no\0", 3));
}

TEST_F(Answer, NoneIsTheEndOfTheClientsInput) {
  tool_.Client.Otherwise().Out(zrk::sample::kRevertQuestion).ReadAll();
  EXPECT_EQ(Give(nullptr), "");
}

TEST_F(Answer, WhatTheClientDoesUponItIsDoneOnReturn) {
  tool_.Client.Otherwise().Out(zrk::sample::kRevertQuestion).Read().Store("done", "x");
  Give("yes");
  EXPECT_TRUE(IsDone());
}

TEST_F(Answer, WhatTheClientGoesOnToWriteIsReadToItsEnd) {
  tool_.Client.Otherwise()
      .Out(zrk::sample::kRevertQuestion)
      .Read()
      .Repeat(100'000, "a line of ten words or so\r\n")
      .Store("done", "x");
  Give("yes");
  EXPECT_TRUE(IsDone());
}

TEST_F(Answer, ToAClientThatDiedIsLost) {
  tool_.Client.Otherwise().Out(zrk::sample::kRevertQuestion).Crash();
  EXPECT_EQ(Give("yes"), "");
}

TEST_F(Answer, ToAClientThatEndedIsLost) {
  tool_.Client.Otherwise().Out(zrk::sample::kRevertQuestion);
  EXPECT_EQ(Give("yes"), "");
}

TEST_F(Answer, ToAClientThatClosedItsInputIsLostAndTheClientEnds) {
  tool_.Client.Otherwise().Out("has been modified; ").CloseInput().Out("revert changes?").Store("done", "x");
  tool_.Run("unedit");
  AnswerTool(tool_.Context(), "yes");
  EXPECT_TRUE(IsDone());
}

TEST_F(Answer, ThePipesAreClosedBehindIt) {
  tool_.Client.Otherwise().Out(zrk::sample::kRevertQuestion).ReadAll();
  Give("yes");
  tool_.ClosePipes();
  const int handles = CountOpenHandles();
  Give("yes");
  EXPECT_EQ(CountOpenHandles(), handles);
  EXPECT_EQ(tool_.ChildInput.Write.Get(), nullptr);
  EXPECT_EQ(tool_.ChildOutput.Read.Get(), nullptr);
}

TEST(AnswerFaults, AFailedWriteStillLetsTheClientSeeTheEndOfItsInput) {
  ToolRunner tool;
  tool.Client.Otherwise().Out("revert changes? ").ReadAll();
  tool.Run("unedit");
  standin::FailWindowsCall(standin::WindowsCall::WriteFile, 0);
  zrk::tools::AnswerTool(tool.Context(), "yes");
  standin::FailWindowsCall(standin::WindowsCall::WriteFile, -1);
  EXPECT_EQ(tool.ClientInput(), "");
}
