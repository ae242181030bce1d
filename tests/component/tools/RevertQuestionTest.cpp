#include <gtest/gtest.h>

#include <chrono>
#include <future>
#include <string>

#include "component/tools/ToolRunner.h"
#include "support/ClientReports.h"

// A client that writes several chunks writes them in one piece, so that each is read as one. A run that does
// not see the question where it stands goes on to the client's last chunk, or waits as the client does.

namespace {

constexpr std::size_t kChunk = 4096;

// The text filled up to whole chunks.
std::string Chunks(std::string text) {
  text.resize((text.size() + kChunk - 1) / kChunk * kChunk, 'x');
  return text;
}

// Runs a client that waits for the end of its input behind the question. A run that waits too is known by
// its output; it is long over when it must not be waited for any longer.
std::string RunWaiting(ToolRunner& tool, const char* arguments = "unedit", const char* before = "") {
  auto run = std::async(std::launch::async, [&] { return tool.Run(arguments, before); });
  if (run.wait_for(std::chrono::minutes(1)) == std::future_status::ready) return run.get();
  tool.ChildInput.Write.Close();
  return "read on: " + run.get();
}

}  // namespace

TEST(RevertQuestion, EndsTheReadingWithTheClientStillWaiting) {
  ToolRunner tool;
  tool.Client.Otherwise().Out(zrk::sample::kRevertQuestion).ReadAll();
  EXPECT_EQ(RunWaiting(tool), zrk::sample::kRevertQuestion);
  EXPECT_EQ(tool.ClientInput(), "");
}

TEST(RevertQuestion, WhatWasReadBeforeStaysInTheOutput) {
  ToolRunner tool;
  const std::string before(10'000, 'x');
  tool.Client.Otherwise().Out(before + zrk::sample::kRevertQuestion).ReadAll();
  EXPECT_EQ(RunWaiting(tool), before + zrk::sample::kRevertQuestion);
}

TEST(RevertQuestion, EndsTheReadingInEveryCommandAndInSVNModeToo) {
  ToolRunner tool;
  tool.Client.Otherwise().Out("revert changes").Hang();
  EXPECT_EQ(RunWaiting(tool, "status -v"), "revert changes");
  EXPECT_EQ(RunWaiting(tool, "-n edit"), "revert changes");
  tool.IsSVN = true;
  EXPECT_EQ(RunWaiting(tool, "update"), "revert changes");
}

TEST(RevertQuestion, MayStandInStandardError) {
  ToolRunner tool;
  tool.Client.Otherwise().Error(zrk::sample::kRevertQuestion).Hang();
  EXPECT_EQ(RunWaiting(tool), zrk::sample::kRevertQuestion);
}

TEST(RevertQuestion, IsFoundWhereverTheEdgeOfAChunkCutsIt) {
  const std::string question = "revert changes";
  for (std::size_t inFirstChunk = 0; inFirstChunk <= question.size(); ++inFirstChunk) {
    ToolRunner tool;
    const std::string text = Chunks(std::string(kChunk - inFirstChunk, 'x') + question);
    tool.Client.Otherwise().Out(text + std::string(kChunk, 'y'));
    EXPECT_EQ(tool.Run(), text) << inFirstChunk;
  }
}

TEST(RevertQuestion, IsFoundWhenItComesByteByByte) {
  ToolRunner tool;
  auto rule = tool.Client.Otherwise();
  for (const char character : std::string(zrk::sample::kRevertQuestion)) rule.Out(std::string(1, character));
  rule.Hang();
  // The reading ends with the chunk that completes the text; what comes behind may or may not be in it.
  const std::string output = RunWaiting(tool);
  EXPECT_NE(output.find("revert changes"), std::string::npos);
  EXPECT_TRUE(std::string(zrk::sample::kRevertQuestion).starts_with(output)) << output;
}

TEST(RevertQuestion, OfTheCallersOwnTextEndsTheReadingAfterTheFirstChunk) {
  ToolRunner tool;
  tool.Client.Otherwise().Out(Chunks("first") + Chunks("second"));
  EXPECT_EQ(tool.Run("status", "revert changes "), "revert changes " + Chunks("first"));
}

TEST(RevertQuestion, MayBeginInTheCallersOwnText) {
  ToolRunner tool;
  tool.Client.Otherwise().Out(Chunks("anges") + Chunks("second"));
  EXPECT_EQ(tool.Run("status", "revert ch"), "revert ch" + Chunks("anges"));
}

TEST(RevertQuestion, IsFoundBehindAChunkCutAtAZero) {
  std::string first = Chunks("revert ");
  first[7] = '\0';
  ToolRunner tool;
  tool.Client.Otherwise().Out(first + Chunks("changes") + Chunks("third"));
  EXPECT_EQ(tool.Run(), "revert " + Chunks("changes"));
}

TEST(RevertQuestion, SimilarTextIsReadToTheEnd) {
  ToolRunner tool;
  const std::string text = "Revert changes? revert  changes revert change";
  tool.Client.Otherwise().Out(text);
  EXPECT_EQ(tool.Run(), text);
}
