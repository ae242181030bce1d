#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "component/cvs/ArgumentChunks.h"

using testing::ElementsAre;

namespace {

class ArgumentChunksOfPaths : public testing::Test {
protected:
  ArgumentChunks stage_;
};

}  // namespace

TEST_F(ArgumentChunksOfPaths, IsFollowedByANewOneWhenTheNextPathWouldMakeIt32000Long) {
  const std::string path = stage_.AddWithPathOf(10, "part");
  const std::string full(32'000 - 3 - 10, 'x');
  EXPECT_THAT(stage_.Collected(stage_.Tree.At("part"), full), ElementsAre(full, Argument(path)));
  EXPECT_EQ(stage_.Position, 2);
}

TEST_F(ArgumentChunksOfPaths, TakesAPathThatMakesIt31999Long) {
  const std::string path = stage_.AddWithPathOf(10, "part");
  const std::string almostFull(32'000 - 3 - 10 - 1, 'x');
  EXPECT_THAT(stage_.Collected(stage_.Tree.At("part"), almostFull), ElementsAre(almostFull + Argument(path)));
  EXPECT_EQ(stage_.Position, 1);
}

TEST_F(ArgumentChunksOfPaths, Of31990CharactersDoesNotTakeAPathOfTen) {
  const std::string path = stage_.AddWithPathOf(10, "part");
  const std::string chunk(31'990, 'x');
  EXPECT_THAT(stage_.Collected(stage_.Tree.At("part"), chunk), ElementsAre(chunk, Argument(path)));
}

TEST_F(ArgumentChunksOfPaths, StaysEmptyBeforeAFirstPathOf31997Characters) {
  const std::string path = stage_.AddWithPathOf(31'997, "part");
  EXPECT_THAT(stage_.Collected(stage_.Tree.At("part")), ElementsAre("", Argument(path)));
}

TEST_F(ArgumentChunksOfPaths, TakesAFirstPathOf31996Characters) {
  const std::string path = stage_.AddWithPathOf(31'996, "part");
  EXPECT_THAT(stage_.Collected(stage_.Tree.At("part")), ElementsAre(Argument(path)));
}

TEST_F(ArgumentChunksOfPaths, HoldsALongPathAlone) {
  stage_.Tree.Add("car", "proj/car").Add("axle", "proj/axle");
  const std::string path = stage_.AddWithPathOf(40'000, "part");
  stage_.Tree.Place("car", "p", "part").Place("car", "a", "axle");
  EXPECT_THAT(stage_.Collected(stage_.Tree.At("car")),
              ElementsAre(Argument("proj\\car"), Argument(path), Argument("proj\\axle")));
  EXPECT_EQ(stage_.Position, 3);
}

TEST_F(ArgumentChunksOfPaths, NeverReaches32000CharactersByShortPaths) {
  stage_.Tree.Add("car", "proj/car");
  std::string expected = Argument("proj\\car");
  const std::string path = stage_.AddWithPathOf(97, "part");
  constexpr int kParts = 1000;
  for (int part = 0; part < kParts; ++part) {
    stage_.Tree.Place("car", std::to_string(part), "part");
    expected += Argument(path);
  }
  const std::vector<std::string> chunks = stage_.Collected(stage_.Tree.At("car"));
  // Of 100 characters each, 319 paths stand behind the first one's 11 in the first chunk and fit in each
  // other.
  EXPECT_EQ(chunks.size(), 4u);
  std::string all;
  for (const std::string& chunk : chunks) {
    EXPECT_LT(chunk.size(), 32'000u);
    all += chunk;
  }
  EXPECT_EQ(all, expected);
  EXPECT_EQ(chunks.at(0).size(), 11u + 31'900u);
  EXPECT_EQ(chunks.at(1).size(), 31'900u);
}

TEST_F(ArgumentChunksOfPaths, IsFilledFromThePositionGiven) {
  const std::string path = stage_.AddWithPathOf(10, "part");
  CATListValCATUnicodeString chunks;
  chunks.Append("first");
  chunks.Append("second");
  EXPECT_EQ(stage_.Collect(stage_.Tree.At("part"), chunks, 2), 2);
  EXPECT_STREQ(chunks[1].ConvertToChar(), "first");
  EXPECT_EQ(chunks[2].ConvertToChar(), "second" + Argument(path));
}

TEST_F(ArgumentChunksOfPaths, IsFollowedByTheOneBehindIt) {
  const std::string path = stage_.AddWithPathOf(10, "part");
  CATListValCATUnicodeString chunks;
  chunks.Append(std::string(32'000, 'x').c_str());
  chunks.Append("second");
  chunks.Append("third");
  EXPECT_EQ(stage_.Collect(stage_.Tree.At("part"), chunks, 1), 2);
  EXPECT_EQ(chunks[2].ConvertToChar(), "second" + Argument(path));
  EXPECT_STREQ(chunks[3].ConvertToChar(), "third");
  EXPECT_EQ(chunks.Size(), 4);
}

TEST_F(ArgumentChunksOfPaths, IsMeasuredWithoutTheWorkingFolder) {
  // The full path is longer than 31,997 characters, the relative one is not.
  const std::string path = stage_.AddWithPathOf(31'990, "part");
  ASSERT_GT(stage_.Folder.Host().size() + path.size(), 31'997u);
  EXPECT_THAT(stage_.Collected(stage_.Tree.At("part")), ElementsAre(Argument(path)));
}
