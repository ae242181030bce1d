#include "component/product/NoProduct.h"
#include "cvs/FileArguments.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "component/product/ProductEvents.h"
#include "support/Assembly.h"
#include "support/CVSFolder.h"
#include "support/Files.h"
#include "support/HostText.h"
#include "support/Session.h"

using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;
using zrk::cvs::RelativePath;

namespace {

class FileArguments : public testing::Test {
protected:
  FileArguments() { WriteCVSFolder(folder_ / "proj", "/cvs/root", "proj"); }

  // The tail after the product's argument was appended to `tail`.
  std::string Appended(const CATBaseUnknown_var& product, const char* tail = "") {
    const ZRKIAttClass_var attributeClass = StatusClass();
    CATUnicodeString text(tail);
    EXPECT_EQ(zrk::cvs::AppendCVSFileArgument({sandboxRoot_, attributeClass}, product, text), 0);
    return Text(text);
  }

  Session session_;
  TemporaryFolder folder_;
  Assembly assembly_{folder_};
  CATUnicodeString sandboxRoot_{(folder_.Host() + "\\").c_str()};
  const StatusAttributes attributes_{"1.1", "Edit", "release", ""};
};

}  // namespace

TEST(ARelativePath, IsThePathWithoutTheWorkingFolder) {
  EXPECT_EQ(Text(RelativePath("C:\\w\\proj\\a.CATPart", "C:\\w\\")), "proj\\a.CATPart");
}

TEST(ARelativePath, LosesTheFirstOccurrenceAloneWhereverItStands) {
  EXPECT_EQ(Text(RelativePath("x\\w\\y\\w\\z", "\\w\\")), "xy\\w\\z");
}

TEST(ARelativePath, IsTheWholePathOutsideTheWorkingFolder) {
  EXPECT_EQ(Text(RelativePath("D:\\a", "C:\\w\\")), "D:\\a");
  EXPECT_EQ(Text(RelativePath("c:\\w\\a", "C:\\w\\")), "c:\\w\\a");
  EXPECT_EQ(Text(RelativePath("D:\\a", "")), "D:\\a");
}

TEST(AQuotedPath, StandsBetweenDoubleQuotes) {
  EXPECT_EQ(Text(zrk::cvs::Quoted("proj\\a b")), "\"proj\\a b\"");
}

TEST_F(FileArguments, IsABlankAndTheQuotedRelativePath) {
  assembly_.Add("car", "proj/a b.CATPart");
  EXPECT_EQ(Appended(assembly_.At("car")), " \"proj\\a b.CATPart\"");
  EXPECT_EQ(Appended(assembly_.At("car"), " status -v"), " status -v \"proj\\a b.CATPart\"");
}

TEST_F(FileArguments, OfAnInstanceIsItsReferencesDocument) {
  assembly_.Add("car", "proj/car").Add("axle", "proj/axle").Place("car", "a", "axle");
  EXPECT_EQ(Appended(assembly_.At("car/a")), " \"proj\\axle\"");
}

TEST_F(FileArguments, IsThatOfOneProductNotOfTheTreeBelow) {
  assembly_.Add("car", "proj/car").Add("axle", "proj/axle").Place("car", "a", "axle");
  EXPECT_EQ(Appended(assembly_.At("car")), " \"proj\\car\"");
}

TEST_F(FileArguments, NeedsTheRepositoryFileBesideTheDocument) {
  assembly_.Add("other", "other/a").Add("below", "proj/sub/a");
  EXPECT_EQ(Appended(assembly_.At("other"), "x"), "x");
  EXPECT_EQ(Appended(assembly_.At("below"), "x"), "x");
  WriteFile(folder_ / "other/CVS/Root", "/cvs/root\n");
  EXPECT_EQ(Appended(assembly_.At("other"), "x"), "x");
  WriteFile(folder_ / "other/CVS/Repository", "");
  EXPECT_EQ(Appended(assembly_.At("other"), "x"), "x \"other\\a\"");
}

TEST_F(FileArguments, NeedsNoDocumentOnDisk) {
  assembly_.Add({.Name = "car", .Document = folder_.Host("proj") + "\\missing"});
  EXPECT_EQ(Appended(assembly_.At("car")), " \"proj\\missing\"");
}

TEST_F(FileArguments, IsMissingForADocumentThatWasNeverStored) {
  assembly_.Add({.Name = "car", .Document = ""});
  EXPECT_EQ(Appended(assembly_.At("car"), "x"), "x");
}

TEST_F(FileArguments, OfAProductWithoutADocumentIsMissingAndLeavesItAlone) {
  assembly_.AddWithoutDocument("car");
  WriteStatusAttributes(assembly_.At("car"), attributes_);
  const RedrawnProducts redrawn;
  EXPECT_EQ(Appended(assembly_.At("car"), "x"), "x");
  EXPECT_EQ(ReadStatusAttributes(assembly_.At("car")), attributes_);
  EXPECT_THAT(redrawn.Paths(), IsEmpty());
}

TEST_F(FileArguments, OfAProductWithoutItsReferenceIsMissingAndClearsIt) {
  assembly_.Add("car", "proj/car").Place("car", "lost", std::nullopt);
  WriteStatusAttributes(assembly_.At("car/lost"), attributes_);
  const RedrawnProducts redrawn;
  EXPECT_EQ(Appended(assembly_.At("car/lost"), "x"), "x");
  EXPECT_EQ(ReadStatusAttributes(assembly_.At("car/lost")), std::nullopt);
  EXPECT_THAT(redrawn.Paths(), ElementsAre("car/lost"));
}

TEST_F(FileArguments, OfAProductThatCannotBeLinkedIsMissingAndClearsTheProductGiven) {
  assembly_.Add("car", "proj/car").AddNotLinkable("axle").Place("car", "a", "axle");
  WriteStatusAttributes(assembly_.At("car/a"), attributes_);
  WriteStatusAttributes(assembly_.At("axle"), attributes_);
  const RedrawnProducts redrawn;
  EXPECT_EQ(Appended(assembly_.At("car/a"), "x"), "x");
  EXPECT_EQ(ReadStatusAttributes(assembly_.At("car/a")), std::nullopt);
  EXPECT_EQ(ReadStatusAttributes(assembly_.At("axle")), attributes_);
  EXPECT_THAT(redrawn.Paths(), ElementsAre("car/a"));
}

TEST_F(FileArguments, RedrawsNothingWhenThereIsADocument) {
  assembly_.Add("car", "proj/car").Add("other", "other/a");
  const RedrawnProducts redrawn;
  Appended(assembly_.At("car"));
  Appended(assembly_.At("other"));
  EXPECT_THAT(redrawn.Paths(), IsEmpty());
}

TEST_F(FileArguments, OfWhatIsNoProductIsMissing) {
  const WorkModes modes;
  const RedrawnProducts redrawn;
  EXPECT_EQ(Appended(nullptr, "x"), "x");
  EXPECT_EQ(Appended(CATBaseUnknown_var::Adopt(new NoProduct), "x"), "x");
  EXPECT_THAT(modes.All(), IsEmpty());
  EXPECT_THAT(redrawn.Paths(), IsEmpty());
}

TEST_F(FileArguments, PutsTheProductItselfIntoWorkModeOne) {
  assembly_.Add("car", "proj/car").Add("axle", "proj/axle").Place("car", "a", "axle");
  assembly_.Place("car", "lost", std::nullopt);
  const WorkModes modes;
  Appended(assembly_.At("car/a"));
  Appended(assembly_.At("car/lost"));
  EXPECT_THAT(modes.All(), ElementsAre(Pair("car/a", 1), Pair("car/lost", 1)));
}
