#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "component/tools/ToolRunner.h"
#include "support/DebugMessages.h"
#include "windows/WindowsControl.h"

namespace {

constexpr std::size_t kPieceOfOutput = 4096;

}  // namespace

TEST(ToolOutput, IsAppendedToWhatTheCallerHas) {
  ToolRunner tool;
  tool.Client.Otherwise().Out("new");
  EXPECT_EQ(tool.Run("status", "old "), "old new");
}

TEST(ToolOutput, StandardErrorComesInBetween) {
  ToolRunner tool;
  tool.Client.Otherwise().Out("one\r\n").Error("two\r\n").Out("three\r\n").Error("four\r\n");
  EXPECT_EQ(tool.Run(), "one\r\ntwo\r\nthree\r\nfour\r\n");
}

TEST(ToolOutput, AClientThatPrintsNothingLeavesItAsItIs) {
  ToolRunner tool;
  const DebugMessages messages;
  EXPECT_EQ(tool.Run("status", "old"), "old");
  EXPECT_EQ(tool.Client.Runs().size(), 1u);
  EXPECT_TRUE(messages.All().empty());
}

TEST(ToolOutput, OfAClientThatCrashesIsWhatCameBefore) {
  ToolRunner tool;
  tool.Client.Otherwise().Out("partial").Crash();
  const DebugMessages messages;
  EXPECT_EQ(tool.Run(), "partial");
  EXPECT_TRUE(messages.All().empty());
}

TEST(ToolOutput, IsKeptWhateverStatusTheClientEndsWith) {
  ToolRunner tool;
  tool.Client.Otherwise().Out("refused").Exit(1);
  EXPECT_EQ(tool.Run(), "refused");
}

TEST(ToolOutput, MayEndAtTheEdgeOfAChunk) {
  for (const std::size_t size :
       {kPieceOfOutput - 1, kPieceOfOutput, kPieceOfOutput + 1, 2 * kPieceOfOutput, 3 * kPieceOfOutput}) {
    ToolRunner tool;
    tool.Client.Otherwise().Repeat(size, "x");
    EXPECT_EQ(tool.Run(), std::string(size, 'x')) << size;
  }
}

TEST(ToolOutput, ACharacterMayLieAcrossTheEdgeOfAChunk) {
  const std::string text = std::string(kPieceOfOutput - 1, 'x') + "\xC3\xA4" + "\r\n";
  ToolRunner tool;
  tool.Client.Otherwise().Out(text);
  EXPECT_EQ(tool.Run(), text);
}

TEST(ToolOutput, BytesThatAreNoTextComeThroughAsTheyAre) {
  std::string bytes;
  for (int byte = 1; byte < 256; ++byte) bytes += static_cast<char>(byte);
  ToolRunner tool;
  tool.Client.Otherwise().Out(bytes);
  EXPECT_EQ(tool.Run(), bytes);
}

TEST(ToolOutput, EachChunkOf4096BytesIsCutAtItsFirstZero) {
  // The client writes the chunks in one piece, so that each is read whole.
  std::string bytes;
  std::string expected;
  for (const std::string text : {"one ", "two ", "three ", "four"}) {
    bytes += text + std::string(kPieceOfOutput - text.size(), '\0');
    bytes.back() = 'x';
    expected += text;
  }
  ToolRunner tool;
  tool.Client.Otherwise().Out(bytes);
  EXPECT_EQ(tool.Run(), expected);
}

TEST(ToolOutput, AChunkThatBeginsWithAZeroAddsNothing) {
  std::string bytes = std::string(kPieceOfOutput, 'x') + "next";
  bytes[0] = '\0';
  ToolRunner tool;
  tool.Client.Otherwise().Out(bytes);
  EXPECT_EQ(tool.Run(), "next");
}

TEST(ToolOutput, MayBeAHundredMegabytes) {
  const std::string line = "File: wheel left.CATPart  \tStatus: Up-to-date\r\n\r\n";
  const std::size_t count = 100'000'000 / line.size();
  ToolRunner tool;
  tool.Client.Otherwise().Repeat(count, line).Out("end");
  std::string expected;
  expected.reserve(count * line.size() + 3);
  for (std::size_t i = 0; i < count; ++i) expected += line;
  expected += "end";
  EXPECT_TRUE(tool.Run() == expected);
}

TEST(ToolOutput, TheWriteEndOfTheClientsInputStaysOpenForAnAnswer) {
  ToolRunner tool;
  tool.Run();
  EXPECT_NE(tool.ChildInput.Write.Get(), nullptr);
}

TEST(ToolOutput, EndsWhenTheClientWritesNoByte) {
  ToolRunner tool;
  tool.Client.Otherwise()
      .Out(std::string(kPieceOfOutput, 'x') + "lost")
      .Repeat(10'000, "a line\r\n")
      .Store("done", "x");
  standin::FailWindowsCall(standin::WindowsCall::ReadFileEmpty, 1);
  EXPECT_EQ(tool.Run(), std::string(kPieceOfOutput, 'x'));
  tool.ClosePipes();
  EXPECT_TRUE(std::filesystem::exists(tool.Folder / "done")) << "the rest of its output was not read";
}
