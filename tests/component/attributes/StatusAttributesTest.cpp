#include "attributes/StatusAttributes.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "CATICkeParm.h"
#include "attributes/AttributeDictionary.h"
#include "component/attributes/AttributeStage.h"
#include "component/attributes/FlushedOutput.h"
#include "component/attributes/OutputText.h"

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class StatusAttributesOfAProduct : public testing::Test, protected AttributeStage {
protected:
  StatusAttributesOfAProduct() { Products.Add("part", "proj/part"); }

  CATBaseUnknown_var Part() { return Products.At("part"); }
};

}  // namespace

TEST_F(StatusAttributesOfAProduct, IsEditWhenTheFileIsWritable) {
  FileBlock("proj/part", "1.5");
  EXPECT_EQ(Write(Part()), 0);
  EXPECT_EQ(ReadStatusAttributes(Part()), (StatusAttributes{"1.5", "Edit", Tag, ""}));
}

TEST_F(StatusAttributesOfAProduct, IsEditWhenTheFileIsWritableWhateverTheClientSays) {
  FileBlock("proj/part", "1.5", "Needs Patch");
  EditLines[Folder.Host("proj/part")] = "proj/part\nbert";
  WriteStatusAttributes(Part(), Old);
  Write(Part());
  EXPECT_EQ(ReadStatusAttributes(Part()), (StatusAttributes{"1.5", "Edit", Tag, ""}));
}

TEST_F(StatusAttributesOfAProduct, IsLockedWithTheEditorsWhenSomebodyEditsTheReadOnlyFile) {
  FileBlock("proj/part", "1.5");
  EditLines[Folder.Host("proj/part")] = "proj/part\nbert\nhost";
  SetReadOnly(Folder / "proj/part");
  Write(Part());
  EXPECT_EQ(ReadStatusAttributes(Part()), (StatusAttributes{"1.5", "Locked", Tag, "proj/part\nbert\nhost"}));
}

TEST_F(StatusAttributesOfAProduct, IsReadOnlyWithoutACommentWhenNobodyEditsTheReadOnlyFile) {
  FileBlock("proj/part", "1.5");
  EditLines[Folder.Host("proj/other")] = "proj/other\nbert";
  SetReadOnly(Folder / "proj/part");
  WriteStatusAttributes(Part(), Old);
  Write(Part());
  EXPECT_EQ(ReadStatusAttributes(Part()), (StatusAttributes{"1.5", "ReadOnly", Tag, ""}));
}

TEST_F(StatusAttributesOfAProduct, IsReadOnlyWhenTheFileIsNotOnDisk) {
  FileBlock("proj/part", "1.5");
  std::filesystem::remove(Folder / "proj/part");
  Write(Part());
  EXPECT_EQ(ReadStatusAttributes(Part()), (StatusAttributes{"1.5", "ReadOnly", Tag, ""}));
}

TEST_F(StatusAttributesOfAProduct, TakesNoRevisionAndNoReleaseFromAReportWithoutThem) {
  Blocks[Folder.Host("proj/part")] = "File: part\tStatus: Locally Added\r\n";
  WriteStatusAttributes(Part(), Old);
  Write(Part());
  EXPECT_EQ(ReadStatusAttributes(Part()), (StatusAttributes{"", "Edit", "", ""}));
}

TEST_F(StatusAttributesOfAProduct, OfAFileTheReportDoesNotKnowIsToldInOneLineAndStays) {
  WriteStatusAttributes(Part(), Old);
  const CapturedOutput output;
  EXPECT_EQ(Write(Part()), 0);
  EXPECT_EQ(OutputText(output), "File " + Folder.Host("proj/part") + " not found!\n");
  EXPECT_EQ(ReadStatusAttributes(Part()), Old);
  EXPECT_THAT(Redrawn.Paths(), ElementsAre("part"));
}

TEST_F(StatusAttributesOfAProduct, OfAFileTheReportDoesNotKnowIsToldBeforeTheRedrawAndFlushed) {
  const FlushedOutput output;
  std::string toldAtRedraw;
  standin::SetRedrawListener([&](const CATBaseUnknown_var&) { toldAtRedraw = output.Text(); });
  Write(Part());
  EXPECT_EQ(toldAtRedraw, "File " + Folder.Host("proj/part") + " not found!\n");
}

TEST_F(StatusAttributesOfAProduct, OfAFileTheReportDoesNotKnowIsNotMade) {
  EditLines[Folder.Host("proj/part")] = "proj/part\nbert";
  const CapturedOutput output;
  Write(Part());
  EXPECT_EQ(ReadStatusAttributes(Part()), std::nullopt);
}

TEST_F(StatusAttributesOfAProduct, OfADocumentThatWasNeverStoredIsNotFoundEither) {
  Products.Add({.Name = "new", .Document = ""});
  const CapturedOutput output;
  Write(Products.At("new"));
  EXPECT_EQ(OutputText(output), "File  not found!\n");
  EXPECT_THAT(Redrawn.Paths(), ElementsAre("new"));
}

TEST_F(StatusAttributesOfAProduct, WritesNothingElseToStandardOutput) {
  FileBlock("proj/part", "1.5");
  const CapturedOutput output;
  Write(Part());
  EXPECT_EQ(OutputText(output), "");
}

TEST_F(StatusAttributesOfAProduct, IsLookedUpByTheExactPath) {
  Products.Add("Part", "proj/PART2");
  FileBlock("proj/part2", "1.5");
  const CapturedOutput output;
  Write(Products.At("Part"));
  EXPECT_NE(OutputText(output), "");
  EXPECT_EQ(ReadStatusAttributes(Products.At("Part")), std::nullopt);
}

TEST_F(StatusAttributesOfAProduct, IsTakenOffAFileTheClientDoesNotKnow) {
  Blocks[Folder.Host("proj/part")] = "File: part\tStatus: Unknown\n";
  WriteStatusAttributes(Part(), Old);
  EXPECT_EQ(Write(Part()), 0);
  EXPECT_EQ(ReadStatusAttributes(Part()), std::nullopt);
  EXPECT_THAT(Redrawn.Paths(), ElementsAre("part"));
}

TEST_F(StatusAttributesOfAProduct, IsWrittenForAnUnknownFileWhoseLineEndsInACarriageReturn) {
  FileBlock("proj/part", "1.5", "Unknown");
  Write(Part());
  EXPECT_EQ(ReadStatusAttributes(Part()), (StatusAttributes{"1.5", "Edit", Tag, ""}));
}

TEST_F(StatusAttributesOfAProduct, IsTakenOffForThatWordAloneInThatCase) {
  for (const char* const word : {"unknown", "UNKNOWN", "Unknown ", "Unknown file", ""}) {
    Blocks[Folder.Host("proj/part")] = std::string("File: part\tStatus: ") + word + "\n";
    WriteStatusAttributes(Part(), Old);
    Write(Part());
    EXPECT_NE(ReadStatusAttributes(Part()), std::nullopt) << word;
  }
}

TEST_F(StatusAttributesOfAProduct, StandsOnTheInstanceNotOnItsReference) {
  FileBlock("proj/part", "1.5");
  Products.Add("car", "proj/car").Place("car", "p", "part");
  Write(Products.At("car/p"));
  EXPECT_EQ(ReadStatusAttributes(Products.At("car/p")), (StatusAttributes{"1.5", "Edit", Tag, ""}));
  EXPECT_EQ(ReadStatusAttributes(Part()), std::nullopt);
  EXPECT_THAT(Redrawn.Paths(), ElementsAre("car/p"));
}

TEST_F(StatusAttributesOfAProduct, IsTakenOffAProductThatCannotBeLinkedWithoutARedraw) {
  Products.AddNotLinkable("bare").Place("part", "b", "bare");
  for (const char* const path : {"bare", "part/b"}) {
    WriteStatusAttributes(Products.At(path), Old);
    EXPECT_EQ(Write(Products.At(path)), 0);
    EXPECT_EQ(ReadStatusAttributes(Products.At(path)), std::nullopt) << path;
  }
  EXPECT_THAT(Redrawn.Paths(), IsEmpty());
}

TEST_F(StatusAttributesOfAProduct, StaysWhereThereIsNoDocument) {
  Products.AddWithoutDocument("empty");
  WriteStatusAttributes(Products.At("empty"), Old);
  const CapturedOutput output;
  EXPECT_EQ(Write(Products.At("empty")), 0);
  EXPECT_EQ(ReadStatusAttributes(Products.At("empty")), Old);
  EXPECT_EQ(OutputText(output), "");
  EXPECT_THAT(Redrawn.Paths(), IsEmpty());
}

TEST_F(StatusAttributesOfAProduct, StaysWhereTheReferenceIsNotLoaded) {
  Products.Place("part", "lost", std::nullopt);
  WriteStatusAttributes(Products.At("part/lost"), Old);
  EXPECT_EQ(Write(Products.At("part/lost")), 0);
  EXPECT_EQ(ReadStatusAttributes(Products.At("part/lost")), Old);
  EXPECT_THAT(Redrawn.Paths(), IsEmpty());
}

TEST_F(StatusAttributesOfAProduct, OfNothingIsNone) {
  EXPECT_EQ(Write(nullptr), 0);
  EXPECT_THAT(Redrawn.Paths(), IsEmpty());
}

TEST_F(StatusAttributesOfAProduct, IsNotWrittenWhereNoInstanceCanBeAddedButTheProductIsRedrawn) {
  FileBlock("proj/part", "1.5");
  standin::RefuseNewInstances(true);
  EXPECT_EQ(Write(Part()), 0);
  EXPECT_EQ(ReadStatusAttributes(Part()), std::nullopt);
  EXPECT_THAT(Redrawn.Paths(), ElementsAre("part"));
}

TEST_F(StatusAttributesOfAProduct, IsNotWrittenOntoAProductThatCannotCarryItButTheProductIsRedrawn) {
  Products.Add(
      {.Name = "fixed", .Document = Folder.Host("proj/part"), .Linkable = true, .Extendable = false});
  FileBlock("proj/part", "1.5");
  EXPECT_EQ(Write(Products.At("fixed")), 0);
  EXPECT_THAT(Redrawn.Paths(), ElementsAre("fixed"));
}

TEST_F(StatusAttributesOfAProduct, IsRedrawnOnceWhenItIsWritten) {
  FileBlock("proj/part", "1.5");
  Write(Part());
  EXPECT_THAT(Redrawn.Paths(), ElementsAre("part"));
}

TEST_F(StatusAttributesOfAProduct, StandsWhenTheProductIsRedrawn) {
  std::vector<std::optional<StatusAttributes>> drawn;
  standin::SetRedrawListener(
      [&](const CATBaseUnknown_var& product) { drawn.push_back(ReadStatusAttributes(product)); });
  FileBlock("proj/part", "1.5");
  Write(Part());
  Blocks[Folder.Host("proj/part")] = "File: part\tStatus: Unknown\n";
  Write(Part());
  EXPECT_THAT(drawn, ElementsAre(StatusAttributes{"1.5", "Edit", Tag, ""}, std::nullopt));
}

TEST_F(StatusAttributesOfAProduct, LeavesOutTheParametersThatTheClassDoesNotHave) {
  standin::InstallAttributeDictionary({{"ZRKCVS", {"Revision", "Comment"}}});
  FileBlock("proj/part", "1.5");
  EditLines[Folder.Host("proj/part")] = "proj/part\nbert";
  SetReadOnly(Folder / "proj/part");
  Write(Part());
  EXPECT_EQ(ReadStatusAttributes(Part()), (StatusAttributes{"1.5", "", "", "proj/part\nbert"}));
}

TEST_F(StatusAttributesOfAProduct, TouchesNoOtherParameterOfTheClass) {
  standin::InstallAttributeDictionary({{"ZRKCVS", {"Revision", "Status", "Release", "Comment", "File"}}});
  FileBlock("proj/part", "1.5");
  Write(Part());
  const ZRKIAttInstance_var instance(ZRKIAttExtendable_var(Part())->FindInstance(StatusClass()));
  EXPECT_FALSE(CATICkeParm_var(instance->GetParameter("File"))->HasValue());
  EXPECT_TRUE(CATICkeParm_var(instance->GetParameter("Comment"))->HasValue());
}
