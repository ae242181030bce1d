#include "files/ClientFile.h"

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>

#include "support/Files.h"
#include "support/HandleCount.h"
#include "support/TemporaryFolder.h"

using zrk::files::CanOpen;

namespace {

std::optional<std::string> ReadText(const std::string& path) {
  const auto text = zrk::files::ReadText(path);
  if (!text) return std::nullopt;
  return std::string(text->View());
}

class AClientFile : public testing::Test {
protected:
  std::optional<std::string> Read(std::string_view bytes) {
    WriteFile(folder_ / "file", bytes);
    return ReadText(folder_.Host("file"));
  }

  TemporaryFolder folder_;
};

}  // namespace

TEST_F(AClientFile, IsReadWhole) {
  EXPECT_EQ(Read("one\ntwo\n"), "one\ntwo\n");
  EXPECT_EQ(Read(""), "");
}

TEST_F(AClientFile, KeepsALastLineWithoutALineEnd) {
  EXPECT_EQ(Read("one\ntwo"), "one\ntwo");
}

TEST_F(AClientFile, LosesTheCarriageReturnOfALineEndAndNoOther) {
  EXPECT_EQ(Read("one\r\ntwo\rthree\r\r\n\r"), "one\ntwo\rthree\r\n\r");
}

TEST_F(AClientFile, EndsAtItsEndMark) {
  EXPECT_EQ(Read("one\x1Atwo"), "one");
}

TEST_F(AClientFile, KeepsEveryOtherByte) {
  std::string bytes;
  for (int byte = 0; byte < 256; ++byte) {
    if (byte != 0x1A) bytes += static_cast<char>(byte);
  }
  EXPECT_EQ(Read(bytes), bytes);
}

TEST_F(AClientFile, MayBeLarge) {
  const std::string bytes(1'000'001, 'x');
  EXPECT_TRUE(Read(bytes) == bytes);
}

TEST_F(AClientFile, ThatGrowsWhileItIsReadIsReadOn) {
  // Of a device the size is not known beforehand; on Windows there is none that could be read here.
  if (!std::filesystem::exists("/proc/self/environ")) GTEST_SKIP() << "needs a file that tells no size";
  std::ifstream stream("/proc/self/environ", std::ios::binary);
  const std::string expected{std::istreambuf_iterator<char>(stream), {}};
  EXPECT_EQ(ReadText("\\proc\\self\\environ"), expected);
}

TEST_F(AClientFile, ThatIsNotThereCannotBeRead) {
  EXPECT_EQ(ReadText(folder_.Host("missing")), std::nullopt);
  EXPECT_EQ(ReadText(folder_.Host("missing\\file")), std::nullopt);
  EXPECT_FALSE(CanOpen(folder_.Host("missing")));
}

TEST_F(AClientFile, CanBeOpenedWhenItIsThere) {
  WriteFile(folder_ / "sub" / "a b", "");
  EXPECT_TRUE(CanOpen(folder_.Host() + "\\sub\\a b"));
}

TEST_F(AClientFile, MayBeReadOnly) {
  WriteFile(folder_ / "file", "text");
  SetReadOnly(folder_ / "file");
  EXPECT_EQ(ReadText(folder_.Host("file")), "text");
}

TEST_F(AClientFile, IsNotAFolder) {
  std::filesystem::create_directory(folder_ / "sub");
  EXPECT_FALSE(CanOpen(folder_.Host("sub")));
  EXPECT_EQ(ReadText(folder_.Host("sub")), std::nullopt);
}

TEST_F(AClientFile, IsClosedAfterwards) {
  WriteFile(folder_ / "file", "text");
  const int before = CountOpenHandles();
  CanOpen(folder_.Host("file"));
  ReadText(folder_.Host("file"));
  EXPECT_EQ(CountOpenHandles(), before);
}
