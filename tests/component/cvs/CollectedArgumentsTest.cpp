#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "CATIProduct.h"
#include "component/cvs/ArgumentChunks.h"
#include "component/product/DeepAssembly.h"
#include "component/product/ProductEvents.h"
#include "framework/Facet.h"
#include "support/Files.h"

using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;

namespace {

// A product whose reference is not loaded, and that counts how often it is asked whether it is one.
class AskedProduct final : public standin::OneInterface<CATIProduct> {
public:
  static inline int Asked = 0;
  HRESULT TestReference() override {
    ++Asked;
    return E_FAIL;
  }
  CATIProduct_var GetReferenceProduct() override { return nullptr; }
};

class CollectedArguments : public testing::Test {
protected:
  ArgumentChunks stage_;
  Assembly& tree_ = stage_.Tree;
  const StatusAttributes attributes_{"1.1", "Edit", "release", ""};
};

}  // namespace

TEST_F(CollectedArguments, StandInTheOrderOfTheTree) {
  tree_.Add("car", "proj/car").Add("axle", "proj/axle").Add("wheel", "proj/wheel");
  tree_.Place("axle", "w", "wheel").Place("car", "b", "axle").Place("car", "a", "wheel");
  EXPECT_THAT(stage_.Collected(tree_.At("car")),
              ElementsAre(" \"proj\\car\" \"proj\\axle\" \"proj\\wheel\" \"proj\\wheel\""));
  EXPECT_EQ(stage_.Result, 0);
  EXPECT_EQ(stage_.Position, 1);
}

TEST_F(CollectedArguments, NameAProductOncePerUse) {
  tree_.Add("car", "proj/car").Add("wheel", "proj/wheel");
  tree_.Place("car", "w.1", "wheel").Place("car", "w.2", "wheel");
  EXPECT_THAT(stage_.Collected(tree_.At("car")),
              ElementsAre(" \"proj\\car\" \"proj\\wheel\" \"proj\\wheel\""));
}

TEST_F(CollectedArguments, LeaveOutDocumentsThatAreNotTheClientsButNotWhatIsBelow) {
  tree_.Add("car", "other/car").Add("wheel", "proj/wheel").Place("car", "w", "wheel");
  EXPECT_THAT(stage_.Collected(tree_.At("car")), ElementsAre(" \"proj\\wheel\""));
}

TEST_F(CollectedArguments, GoOnBelowADocumentThatWasNeverStored) {
  tree_.Add({.Name = "car", .Document = ""}).Add("wheel", "proj/wheel").Place("car", "w", "wheel");
  EXPECT_THAT(stage_.Collected(tree_.At("car")), ElementsAre(" \"proj\\wheel\""));
}

TEST_F(CollectedArguments, EndAtAProductWithoutADocumentWithoutAWord) {
  tree_.Add("car", "proj/car").AddWithoutDocument("axle").Add("wheel", "proj/wheel");
  tree_.Place("axle", "w", "wheel").Place("car", "a", "axle").Place("car", "b", "wheel");
  WriteStatusAttributes(tree_.At("car/a"), attributes_);
  const RedrawnProducts redrawn;
  EXPECT_THAT(stage_.Collected(tree_.At("car")), ElementsAre(" \"proj\\car\" \"proj\\wheel\""));
  EXPECT_EQ(ReadStatusAttributes(tree_.At("car/a")), attributes_);
  EXPECT_THAT(redrawn.Paths(), IsEmpty());
}

TEST_F(CollectedArguments, EndAtAProductWithoutItsReferenceAndClearIt) {
  tree_.Add("car", "proj/car").Add("wheel", "proj/wheel");
  tree_.Place("car", "lost", std::nullopt).Place("car", "w", "wheel");
  WriteStatusAttributes(tree_.At("car/lost"), attributes_);
  const RedrawnProducts redrawn;
  EXPECT_THAT(stage_.Collected(tree_.At("car")), ElementsAre(" \"proj\\car\" \"proj\\wheel\""));
  EXPECT_EQ(ReadStatusAttributes(tree_.At("car/lost")), std::nullopt);
  EXPECT_THAT(redrawn.Paths(), ElementsAre("car/lost"));
}

TEST_F(CollectedArguments, EndAtAProductThatCannotBeLinkedAndClearIt) {
  tree_.Add("car", "proj/car").AddNotLinkable("axle").Add("wheel", "proj/wheel");
  tree_.Place("axle", "w", "wheel").Place("car", "a", "axle").Place("car", "b", "wheel");
  WriteStatusAttributes(tree_.At("car/a"), attributes_);
  WriteStatusAttributes(tree_.At("car/a/w"), attributes_);
  const RedrawnProducts redrawn;
  EXPECT_THAT(stage_.Collected(tree_.At("car")), ElementsAre(" \"proj\\car\" \"proj\\wheel\""));
  EXPECT_EQ(ReadStatusAttributes(tree_.At("car/a")), std::nullopt);
  EXPECT_EQ(ReadStatusAttributes(tree_.At("car/a/w")), attributes_);
  EXPECT_THAT(redrawn.Paths(), ElementsAre("car/a"));
}

TEST_F(CollectedArguments, PutEachProductVisitedIntoWorkModeOne) {
  tree_.Add("car", "proj/car").AddWithoutDocument("axle").Add("wheel", "proj/wheel");
  tree_.Place("axle", "w", "wheel").Place("car", "a", "axle").Place("car", "b", "wheel");
  const WorkModes modes;
  stage_.Collected(tree_.At("car"));
  EXPECT_THAT(modes.All(), ElementsAre(Pair("car", 1), Pair("car/a", 1), Pair("car/b", 1)));
}

TEST_F(CollectedArguments, OfNothingAreNone) {
  EXPECT_THAT(stage_.Collected(nullptr, "x"), ElementsAre("x"));
  EXPECT_EQ(stage_.Result, 0);
}

TEST_F(CollectedArguments, OfADeepTreeCostNoStack) {
  constexpr int kLevels = 5000;
  AddChain(tree_, stage_.Folder.Host("proj"), kLevels);
  std::string expected;
  for (int level = 0; level < kLevels; ++level) {
    std::string path("proj\\p");
    path += std::to_string(level);
    expected += Argument(path);
  }
  std::string all;
  for (const std::string& chunk : stage_.Collected(tree_.At("p0"))) all += chunk;
  EXPECT_EQ(all, expected);
}

TEST_F(CollectedArguments, AreCollectedOnceTheWorkModeIsSet) {
  const CATBaseUnknown_var product = CATBaseUnknown_var::Adopt(new AskedProduct);
  int askedBefore = -1;
  standin::SetWorkModeListener([&](const CATBaseUnknown_var&, int) { askedBefore = AskedProduct::Asked; });
  AskedProduct::Asked = 0;
  stage_.Collected(product);
  standin::SetWorkModeListener({});
  EXPECT_EQ(askedBefore, 0);
  EXPECT_GT(AskedProduct::Asked, 0);
}

TEST_F(CollectedArguments, AreTakenOffBeforeTheProductIsRedrawn) {
  tree_.Add("car", "proj/car").AddNotLinkable("axle").Place("car", "a", "axle");
  WriteStatusAttributes(tree_.At("car/a"), attributes_);
  std::vector<std::optional<StatusAttributes>> drawn;
  standin::SetRedrawListener(
      [&](const CATBaseUnknown_var& product) { drawn.push_back(ReadStatusAttributes(product)); });
  stage_.Collected(tree_.At("car"));
  standin::SetRedrawListener({});
  EXPECT_THAT(drawn, ElementsAre(std::nullopt));
}

TEST_F(CollectedArguments, FollowTheFoldersAsTheyAreEachTime) {
  tree_.Add("car", "proj/car");
  EXPECT_THAT(stage_.Collected(tree_.At("car")), ElementsAre(" \"proj\\car\""));
  std::filesystem::remove(stage_.Folder / "proj/CVS/Repository");
  EXPECT_THAT(stage_.Collected(tree_.At("car")), ElementsAre(""));
  WriteFile(stage_.Folder / "proj/CVS/Repository", "proj\n");
  EXPECT_THAT(stage_.Collected(tree_.At("car")), ElementsAre(" \"proj\\car\""));
}
