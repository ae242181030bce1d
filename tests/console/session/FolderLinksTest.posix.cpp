#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "session/FolderSession.h"
#include "support/Files.h"
#include "support/TemporaryFolder.h"

namespace {

TEST(FolderLinks, DoNotLeadRoundInACircle) {
  const TemporaryFolder folder;
  WriteFile(folder / "a", "x");
  WriteFile(folder / "sub/b", "x");
  std::filesystem::create_directory_symlink(folder.Path(), folder / "sub/up");
  std::filesystem::create_symlink("self", folder / "self");
  std::filesystem::create_symlink("gone", folder / "broken");
  std::filesystem::create_symlink("a", folder / "link");
  const auto session = zrkhost::SessionOfFolder(folder.Path(), std::nullopt);
  std::vector<std::string> names;
  for (const auto& product : session.Products) names.push_back(product.Name);
  EXPECT_THAT(names, testing::ElementsAre("a", "link", "sub/b"));
}

}  // namespace
