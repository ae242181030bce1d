#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "component/cvs/ArgumentChunks.h"

using testing::ElementsAre;

// In UTF-8, where a character has several bytes.
TEST(ArgumentChunksInUTF8, IsMeasuredInCharactersNotInBytes) {
  ArgumentChunks stage;
  const std::string path = stage.AddWithPathOf(31'996, "part", "\xC3\xA9");
  ASSERT_GT(path.size(), 60'000u);
  EXPECT_THAT(stage.Collected(stage.Tree.At("part")), ElementsAre(Argument(path)));

  const std::string longer = stage.AddWithPathOf(31'997, "longer", "\xC3\xA9");
  EXPECT_THAT(stage.Collected(stage.Tree.At("longer")), ElementsAre("", Argument(longer)));
}

TEST(ArgumentChunksInUTF8, ThatIsFilledIsMeasuredInCharactersToo) {
  ArgumentChunks stage;
  const std::string path = stage.AddWithPathOf(10, "part");
  std::string chunk;
  for (int i = 0; i < 31'980; ++i) chunk += "\xC3\xA9";
  EXPECT_THAT(stage.Collected(stage.Tree.At("part"), chunk), ElementsAre(chunk + Argument(path)));
}
