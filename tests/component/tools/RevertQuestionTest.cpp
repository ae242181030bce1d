#include <gtest/gtest.h>

#include <string>

#include "component/tools/ToolRunner.h"

// Every client here waits behind its question: a run that read on would not end.

namespace {

constexpr char kQuestion[] = "car.CATPart has been modified; revert changes? ";

}  // namespace

TEST(RevertQuestion, EndsTheReadingWithTheClientStillWaiting) {
  ToolRunner tool;
  tool.Client.Otherwise().Out(kQuestion).ReadAll();
  EXPECT_EQ(tool.Run("unedit"), kQuestion);
  EXPECT_EQ(tool.ClientInput(), "");
}

TEST(RevertQuestion, WhatWasReadBeforeStaysInTheOutput) {
  ToolRunner tool;
  const std::string before(10'000, 'x');
  tool.Client.Otherwise().Out(before + kQuestion).ReadAll();
  EXPECT_EQ(tool.Run("unedit"), before + kQuestion);
}

TEST(RevertQuestion, EndsTheReadingInEveryCommandAndInSVNModeToo) {
  ToolRunner tool;
  tool.Client.Otherwise().Out("revert changes").Hang();
  EXPECT_EQ(tool.Run("status -v"), "revert changes");
  EXPECT_EQ(tool.Run("-n edit"), "revert changes");
  tool.IsSVN = true;
  EXPECT_EQ(tool.Run("update"), "revert changes");
}

TEST(RevertQuestion, MayStandInStandardError) {
  ToolRunner tool;
  tool.Client.Otherwise().Error(kQuestion).Hang();
  EXPECT_EQ(tool.Run(), kQuestion);
}

TEST(RevertQuestion, IsFoundWhereverTheEdgeOfAChunkCutsIt) {
  const std::string question = "revert changes";
  for (std::size_t inFirstChunk = 0; inFirstChunk <= question.size(); ++inFirstChunk) {
    ToolRunner tool;
    const std::string text = std::string(4096 - inFirstChunk, 'x') + question;
    tool.Client.Otherwise().Out(text).Hang();
    EXPECT_EQ(tool.Run(), text) << inFirstChunk;
  }
}

TEST(RevertQuestion, IsFoundWhenItComesByteByByte) {
  ToolRunner tool;
  auto rule = tool.Client.Otherwise();
  for (const char character : std::string(kQuestion)) rule.Out(std::string(1, character));
  rule.Hang();
  // The reading ends with the chunk that completes the text; what comes behind may or may not be in it.
  EXPECT_EQ(std::string(kQuestion).find(tool.Run()), 0u);
}

TEST(RevertQuestion, OfTheCallersOwnTextEndsTheReadingAfterTheFirstChunk) {
  ToolRunner tool;
  tool.Client.Otherwise().Out("x").Hang();
  EXPECT_EQ(tool.Run("status", "revert changes "), "revert changes x");
}

TEST(RevertQuestion, MayBeginInTheCallersOwnText) {
  ToolRunner tool;
  tool.Client.Otherwise().Out("anges").Hang();
  EXPECT_EQ(tool.Run("status", "revert ch"), "revert changes");
}

TEST(RevertQuestion, IsFoundBehindAChunkCutAtAZero) {
  std::string bytes = "revert " + std::string(4096 - 7, 'x') + "changes";
  bytes[7] = '\0';
  ToolRunner tool;
  tool.Client.Otherwise().Out(bytes).Hang();
  EXPECT_EQ(tool.Run(), "revert changes");
}

TEST(RevertQuestion, SimilarTextIsReadToTheEnd) {
  ToolRunner tool;
  const std::string text = "Revert changes? revert  changes revert change";
  tool.Client.Otherwise().Out(text);
  EXPECT_EQ(tool.Run(), text);
}
