#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "component/attributes/AttributeStage.h"
#include "component/attributes/OutputText.h"
#include "component/manager/AffirmedReference.h"
#include "component/product/DeepAssembly.h"

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

// "car" with axles "a" and "b", which have wheels "w".
class StatusAttributesTree : public testing::Test, protected AttributeStage {
protected:
  StatusAttributesTree() {
    Products.Add("car", "proj/car").Add("axle", "proj/axle").Add("wheel", "proj/wheel");
    Products.Place("axle", "w", "wheel").Place("car", "b", "axle").Place("car", "a", "axle");
    FileBlock("proj/car", "1.1");
    FileBlock("proj/axle", "1.2");
    FileBlock("proj/wheel", "1.3");
  }

  std::string RevisionOf(const std::string& path) {
    return ReadStatusAttributes(Products.At(path)).value_or(StatusAttributes{"none", "", "", ""}).Revision;
  }
};

}  // namespace

TEST_F(StatusAttributesTree, IsWrittenOntoEveryProductParentsFirst) {
  EXPECT_EQ(WriteTree(Products.At("car")), 0);
  EXPECT_THAT(Redrawn.Paths(), ElementsAre("car", "car/b", "car/b/w", "car/a", "car/a/w"));
  EXPECT_EQ(RevisionOf("car"), "1.1");
  EXPECT_EQ(RevisionOf("car/a"), "1.2");
  EXPECT_EQ(RevisionOf("car/b"), "1.2");
  EXPECT_EQ(RevisionOf("car/a/w"), "1.3");
  EXPECT_EQ(RevisionOf("car/b/w"), "1.3");
}

TEST_F(StatusAttributesTree, OfOneProductLeavesItsChildrenAlone) {
  Write(Products.At("car"));
  EXPECT_THAT(Redrawn.Paths(), ElementsAre("car"));
}

TEST_F(StatusAttributesTree, GoesOnBelowAProductThatIsNotFound) {
  Blocks.erase(Folder.Host("proj/car"));
  const CapturedOutput output;
  WriteTree(Products.At("car"));
  EXPECT_EQ(OutputText(output), "File " + Folder.Host("proj/car") + " not found!\n");
  EXPECT_EQ(RevisionOf("car"), "none");
  EXPECT_EQ(RevisionOf("car/a"), "1.2");
}

TEST_F(StatusAttributesTree, TellsAFileThatIsNotFoundOncePerUse) {
  Blocks.erase(Folder.Host("proj/axle"));
  const CapturedOutput output;
  WriteTree(Products.At("car"));
  const std::string line = "File " + Folder.Host("proj/axle") + " not found!\n";
  EXPECT_EQ(OutputText(output), line + line);
}

TEST_F(StatusAttributesTree, GoesOnBelowAProductThatIsUnknown) {
  Blocks[Folder.Host("proj/axle")] = "File: axle\tStatus: Unknown\n";
  WriteStatusAttributes(Products.At("car/a"), Old);
  WriteTree(Products.At("car"));
  EXPECT_EQ(RevisionOf("car/a"), "none");
  EXPECT_EQ(RevisionOf("car/a/w"), "1.3");
}

TEST_F(StatusAttributesTree, EndsAtAProductWithoutADocument) {
  Products.AddWithoutDocument("empty").Place("empty", "w", "wheel").Place("car", "e", "empty");
  Products.Place("car", "w", "wheel");
  WriteStatusAttributes(Products.At("car/e"), Old);
  WriteStatusAttributes(Products.At("car/e/w"), Old);
  WriteTree(Products.At("car"));
  EXPECT_EQ(ReadStatusAttributes(Products.At("car/e")), Old);
  EXPECT_EQ(ReadStatusAttributes(Products.At("car/e/w")), Old);
  EXPECT_EQ(RevisionOf("car/w"), "1.3");
}

TEST_F(StatusAttributesTree, EndsAtAProductThatCannotBeLinked) {
  Products.AddNotLinkable("bare").Place("bare", "w", "wheel").Place("car", "e", "bare");
  Products.Place("car", "w", "wheel");
  WriteStatusAttributes(Products.At("car/e"), Old);
  WriteStatusAttributes(Products.At("car/e/w"), Old);
  WriteTree(Products.At("car"));
  EXPECT_EQ(ReadStatusAttributes(Products.At("car/e")), std::nullopt);
  EXPECT_EQ(ReadStatusAttributes(Products.At("car/e/w")), Old);
  EXPECT_EQ(RevisionOf("car/w"), "1.3");
}

TEST_F(StatusAttributesTree, GoesOnBehindAProductWithoutItsReference) {
  Products.Place("car", "lost", std::nullopt).Place("car", "w", "wheel");
  WriteStatusAttributes(Products.At("car/lost"), Old);
  WriteTree(Products.At("car"));
  EXPECT_EQ(ReadStatusAttributes(Products.At("car/lost")), Old);
  EXPECT_EQ(RevisionOf("car/w"), "1.3");
}

TEST_F(StatusAttributesTree, BeginsAtAReferenceWhoseTestAnswersWithAPositiveCode) {
  WriteTree(AffirmedReference::Of(Products.At("car")));
  EXPECT_EQ(RevisionOf("car"), "1.1");
  EXPECT_EQ(RevisionOf("car/a"), "1.2");
}

TEST_F(StatusAttributesTree, OfNothingIsNone) {
  EXPECT_EQ(WriteTree(nullptr), 0);
  EXPECT_THAT(Redrawn.Paths(), IsEmpty());
}
