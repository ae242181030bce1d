// How the working copy is looked for: what is asked of the products on the way, and in which folders.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "CATIDescendants.h"
#include "component/product/ProductEvents.h"
#include "cvs/WorkingCopy.h"
#include "framework/Facet.h"
#include "support/Assembly.h"
#include "support/CVSFolder.h"
#include "support/CurrentFolder.h"
#include "support/Files.h"

using testing::ElementsAre;
using testing::IsEmpty;
using zrk::cvs::WorkingCopy;

namespace {

// Remembers the interface that children are asked for by, and has none.
class RecordingDescendants final : public standin::OneInterface<CATIDescendants> {
public:
  explicit RecordingDescendants(std::vector<std::string>& asked) : asked_(asked) {}
  void GetChildren(const char* interfaceName, CATListValCATISpecObject_var&) override {
    asked_.emplace_back(interfaceName);
  }

private:
  std::vector<std::string>& asked_;
};

// A reference product as it is, but for its descendants, or without any.
class Parent final : public CATIProduct {
public:
  Parent(const CATBaseUnknown_var& product, const CATBaseUnknown_var& descendants)
      : product_(product), descendants_(descendants) {}
  CATBaseUnknown* QueryInterface(const CATIID& interfaceId) override {
    if (interfaceId == CATIProduct::ClassId()) {
      AddRef();
      return this;
    }
    if (interfaceId != CATIDescendants::ClassId()) return product_->QueryInterface(interfaceId);
    return descendants_ ? descendants_->QueryInterface(interfaceId) : nullptr;
  }
  HRESULT TestReference() override { return S_OK; }
  CATIProduct_var GetReferenceProduct() override { return CATIProduct_var(this); }

private:
  CATBaseUnknown_var product_;
  CATBaseUnknown_var descendants_;
};

class DiscoveryWalk : public testing::Test {
protected:
  static WorkingCopy From(const CATIProduct_var& product) {
    WorkingCopy found;
    zrk::cvs::DiscoverWorkingCopy(product, found);
    return found;
  }

  TemporaryFolder folder_;
  Assembly assembly_{folder_};
};

}  // namespace

TEST_F(DiscoveryWalk, AsksForTheChildrenThatAreProducts) {
  assembly_.Add("car", "plain/car");
  std::vector<std::string> asked;
  const auto descendants = CATBaseUnknown_var::Adopt(new RecordingDescendants(asked));
  From(CATIProduct_var::Adopt(new Parent(assembly_.At("car"), descendants)));
  EXPECT_THAT(asked, ElementsAre("CATIProduct"));
}

TEST_F(DiscoveryWalk, EndsAtAProductThatCannotNameItsChildren) {
  WriteCVSFolder(folder_ / "proj", "/cvs/root", "proj");
  assembly_.Add("car", "plain/car").Add("part", "proj/a").Place("car", "p", "part");
  const WorkingCopy found = From(CATIProduct_var::Adopt(new Parent(assembly_.At("car"), nullptr)));
  EXPECT_STREQ(found.CVSRoot.ConvertToChar(), "");
}

TEST_F(DiscoveryWalk, LeavesTheWorkModeOfEveryProductAsItIs) {
  WriteCVSFolder(folder_ / "proj", "/cvs/root", "proj");
  assembly_.Add("car", "plain/car").Add("part", "proj/a");
  assembly_.Place("car", "lost", std::nullopt).Place("car", "p", "part");
  const WorkModes modes;
  EXPECT_STREQ(From(CATIProduct_var(assembly_.At("car"))).CVSRoot.ConvertToChar(), "/cvs/root");
  EXPECT_THAT(modes.All(), IsEmpty());
}

TEST_F(DiscoveryWalk, TakesAPathWithoutABackslashForItsOwnFolder) {
  const CurrentFolder current(folder_.Path());
  WriteCVSFolder(folder_ / "part", "/cvs/root", "rt");
  WriteFile(folder_ / "part/.svn/entries", "10\n");
  assembly_.Add({.Name = "part", .Document = "part"});
  const WorkingCopy found = From(CATIProduct_var(assembly_.At("part")));
  EXPECT_STREQ(found.SandboxRoot.ConvertToChar(), "pa");
  EXPECT_STREQ(found.CVSRoot.ConvertToChar(), "/cvs/root");
  EXPECT_STREQ(found.SVNWorkingFolder.ConvertToChar(), "part");
  EXPECT_TRUE(zrk::cvs::CVSFolders().Hold("part"));
}
