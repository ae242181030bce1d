#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "component/cvs/ArgumentChunks.h"
#include "component/product/DeepAssembly.h"
#include "component/product/ProductEvents.h"

using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;

namespace {

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
