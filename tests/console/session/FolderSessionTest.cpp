#include "session/FolderSession.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "base/CallError.h"
#include "support/Files.h"
#include "support/TemporaryFolder.h"

namespace {

using testing::ElementsAre;
using testing::HasSubstr;

std::vector<std::string> ChildNames(const zrkhost::SessionDescription& session) {
  for (const auto& product : session.Products) {
    if (product.Name != session.Root) continue;
    std::vector<std::string> names;
    for (const auto& child : product.Children) names.push_back(child.Name);
    return names;
  }
  return {"no root"};
}

class FolderSession : public testing::Test {
protected:
  void Add(const std::string& file) const { WriteFile(folder_ / file, "x"); }
  zrkhost::SessionDescription Of(const std::optional<std::filesystem::path>& root = std::nullopt) const {
    return zrkhost::SessionOfFolder(folder_.Path(), root);
  }
  std::string Complaint(const std::optional<std::filesystem::path>& root = std::nullopt) const {
    try {
      Of(root);
    } catch (const zrkhost::CallError& error) {
      return error.what();
    }
    return "nothing";
  }

  TemporaryFolder folder_;
};

TEST_F(FolderSession, MakesTheFirstFileAtTheTopTheRootAndAllOthersItsChildrenByName) {
  for (const char* file : {"b.CATPart", "a/z.CATPart", "car.CATProduct", "a/b/c.CATPart", "d.CATPart"})
    Add(file);
  const auto session = Of();
  EXPECT_EQ(session.Root, "b.CATPart");
  EXPECT_THAT(ChildNames(session),
              ElementsAre("a/b/c.CATPart", "a/z.CATPart", "car.CATProduct", "d.CATPart"));
}

TEST_F(FolderSession, GivesEveryProductItsDocument) {
  Add("car.CATProduct");
  Add("sub/axle 1.CATPart");
  const auto session = Of();
  ASSERT_EQ(session.Products.size(), 2u);
  EXPECT_EQ(session.Products[0].Document, folder_ / "car.CATProduct");
  EXPECT_EQ(session.Products[1].Document, folder_ / "sub" / "axle 1.CATPart");
  EXPECT_EQ(session.Products[1].Name, "sub/axle 1.CATPart");
}

TEST_F(FolderSession, LeavesTheClientsFoldersOutAtEveryLevel) {
  for (const char* file :
       {"a", "CVS/Root", ".svn/entries", "sub/CVS/Entries", "sub/deep/.svn/x", "sub/b", "CVSroot/c"}) {
    Add(file);
  }
  EXPECT_THAT(ChildNames(Of()), ElementsAre("CVSroot/c", "sub/b"));
}

TEST_F(FolderSession, TakesAFileWithAClientsNameForAFile) {
  Add("a");
  Add("sub/CVS");
  EXPECT_THAT(ChildNames(Of()), ElementsAre("sub/CVS"));
}

TEST_F(FolderSession, TakesTheRootThatIsNamed) {
  Add("a");
  Add("sub/b");
  EXPECT_EQ(Of("sub/b").Root, "sub/b");
  EXPECT_THAT(ChildNames(Of("sub/b")), ElementsAre("a"));
  EXPECT_EQ(Of("./sub/../a").Root, "a");
}

TEST_F(FolderSession, RefusesARootThatIsNoFileOfTheFolder) {
  Add("a");
  Add("CVS/Root");
  EXPECT_THAT(Complaint("b"), HasSubstr("b: is not a file of the folder"));
  EXPECT_THAT(Complaint("CVS/Root"), HasSubstr("is not a file of the folder"));
  EXPECT_THAT(Complaint("../a"), HasSubstr("is not a file of the folder"));
}

TEST_F(FolderSession, RefusesAFolderWithoutAFileAtItsTop) {
  EXPECT_THAT(Complaint(), HasSubstr("holds no file that could be the root"));
  Add("sub/a");
  EXPECT_THAT(Complaint(), HasSubstr("holds no file that could be the root"));
  EXPECT_EQ(Of("sub/a").Root, "sub/a");
}

TEST_F(FolderSession, RefusesWhatIsNoFolder) {
  Add("a");
  EXPECT_THROW(zrkhost::SessionOfFolder(folder_ / "a", std::nullopt), zrkhost::CallError);
  EXPECT_THROW(zrkhost::SessionOfFolder(folder_ / "gone", std::nullopt), zrkhost::CallError);
}

TEST_F(FolderSession, TakesAFolderThatIsWrittenWithASeparatorAtItsEnd) {
  Add("a");
  EXPECT_EQ(zrkhost::SessionOfFolder(folder_.Path() / "", std::nullopt).Products[0].Document, folder_ / "a");
}

}  // namespace
