// Which form of working copy a folder belongs to.

#include "svn/WorkingCopyForm.h"

#include <gtest/gtest.h>

#include "support/Files.h"
#include "support/TemporaryFolder.h"

namespace {

using zrk::svn::Form;
using zrk::svn::FormOfDocument;
using zrk::svn::WorkingCopyForms;

class WorkingCopyFormOfAFolder : public testing::Test {
protected:
  void WriteDatabase(const std::string& folder) const { WriteFile(Folder / folder / ".svn/wc.db", "db"); }
  void WriteEntries(const std::string& folder, const std::string& text) const {
    WriteFile(Folder / folder / ".svn/entries", text);
  }
  void WriteCVS(const std::string& folder) const { WriteFile(Folder / folder / "CVS/Repository", ""); }

  Form Kind(const std::string& folder) const { return WorkingCopyForms().Of(Folder.Host(folder)).Kind; }
  // Below the temporary folder; "none" without one.
  std::string Root(const std::string& folder) const {
    const std::string root = WorkingCopyForms().Of(Folder.Host(folder)).DatabaseRoot;
    return root.empty() ? "none" : root.substr(Folder.Host().size());
  }

  const TemporaryFolder Folder;
};

TEST_F(WorkingCopyFormOfAFolder, IsNoneWithoutAnything) {
  EXPECT_EQ(Kind("plain"), Form::None);
  EXPECT_EQ(Root("plain"), "none");
}

TEST_F(WorkingCopyFormOfAFolder, IsTheDatabaseThatItHoldsItself) {
  WriteDatabase("wc");
  EXPECT_EQ(Kind("wc"), Form::Database);
  EXPECT_EQ(Root("wc"), "\\wc");
}

TEST_F(WorkingCopyFormOfAFolder, IsTheDatabaseAboveAtAnyDepthAlsoWhenTheFoldersAreGone) {
  WriteDatabase("wc");
  EXPECT_EQ(Kind("wc/a/b/c"), Form::Database);
  EXPECT_EQ(Root("wc/a/b/c"), "\\wc");
}

TEST_F(WorkingCopyFormOfAFolder, IsTheNearestOfTwoDatabases) {
  WriteDatabase("wc");
  WriteDatabase("wc/a/b");
  EXPECT_EQ(Root("wc/a"), "\\wc");
  EXPECT_EQ(Root("wc/a/b"), "\\wc\\a\\b");
  EXPECT_EQ(Root("wc/a/b/c"), "\\wc\\a\\b");
}

TEST_F(WorkingCopyFormOfAFolder, IsNotThatOfADatabaseBesideOrBelowIt) {
  WriteDatabase("wc/a");
  EXPECT_EQ(Kind("wc"), Form::None);
  EXPECT_EQ(Kind("wc/b"), Form::None);
}

TEST_F(WorkingCopyFormOfAFolder, IsNotThatOfANameThatBeginsAsIts) {
  WriteDatabase("wc");
  EXPECT_EQ(Kind("wc2"), Form::None);
}

TEST_F(WorkingCopyFormOfAFolder, IsTextWhenItsEntriesHaveMoreThanOneLine) {
  WriteEntries("wc", "10\n\ndir\n");
  EXPECT_EQ(Kind("wc"), Form::Text);
  EXPECT_EQ(Root("wc"), "none");
}

TEST_F(WorkingCopyFormOfAFolder, IsTextAlsoWithADatabaseBesideTheEntries) {
  WriteDatabase("wc");
  WriteEntries("wc", "10\n\ndir\n");
  EXPECT_EQ(Kind("wc"), Form::Text);
  EXPECT_EQ(Root("wc"), "none");
}

TEST_F(WorkingCopyFormOfAFolder, IsTextAlsoWithCVSBesideTheEntries) {
  WriteEntries("wc", "10\n\ndir\n");
  WriteCVS("wc");
  EXPECT_EQ(Kind("wc"), Form::Text);
}

TEST_F(WorkingCopyFormOfAFolder, OneLineOfEntriesSaysNothing) {
  WriteDatabase("wc");
  for (const char* line : {"", "12", "12\n", "12\r\n", "12\n\x1a\n"}) {
    WriteEntries("wc", line);
    WriteEntries("wc/a", line);
    EXPECT_EQ(Root("wc"), "\\wc") << line;
    EXPECT_EQ(Root("wc/a"), "\\wc") << line;
  }
}

TEST_F(WorkingCopyFormOfAFolder, ASecondLineMakesItTextWhateverItHolds) {
  for (const char* lines : {"12\n\n", "12\n ", "12\r\n\r\n", "\n\f"}) {
    WriteEntries("wc", lines);
    EXPECT_EQ(Kind("wc"), Form::Text) << lines;
  }
}

TEST_F(WorkingCopyFormOfAFolder, TextEntriesAboveEndTheWayUp) {
  WriteDatabase("wc");
  WriteEntries("wc/old", "10\n\ndir\n");
  EXPECT_EQ(Kind("wc/old"), Form::Text);
  EXPECT_EQ(Kind("wc/old/sub"), Form::None);
  EXPECT_EQ(Root("wc/old/sub"), "none");
}

TEST_F(WorkingCopyFormOfAFolder, ADatabaseBelowTextEntriesHolds) {
  WriteEntries("wc", "10\n\ndir\n");
  WriteDatabase("wc/new");
  EXPECT_EQ(Root("wc/new/sub"), "\\wc\\new");
}

TEST_F(WorkingCopyFormOfAFolder, OfCVSIsNoneAlsoWithADatabaseBesideIt) {
  WriteDatabase("wc");
  WriteCVS("wc");
  EXPECT_EQ(Kind("wc"), Form::None);
}

TEST_F(WorkingCopyFormOfAFolder, OfCVSEndsTheWayUp) {
  WriteDatabase("wc");
  WriteCVS("wc/cvs");
  EXPECT_EQ(Kind("wc/cvs"), Form::None);
  EXPECT_EQ(Kind("wc/cvs/sub"), Form::None);
  EXPECT_EQ(Root("wc/other"), "\\wc");
}

TEST_F(WorkingCopyFormOfAFolder, NeedsTheFilesAndNotFoldersOfTheirNames) {
  std::filesystem::create_directories(Folder / "wc/.svn/wc.db");
  std::filesystem::create_directories(Folder / "wc/.svn/entries");
  EXPECT_EQ(Kind("wc"), Form::None);
  WriteDatabase("cvs");
  std::filesystem::create_directories(Folder / "cvs/CVS/Repository");
  EXPECT_EQ(Kind("cvs"), Form::Database);
}

TEST_F(WorkingCopyFormOfAFolder, IsRememberedWithTheFoldersOnTheWay) {
  WriteDatabase("wc");
  WorkingCopyForms forms;
  EXPECT_EQ(forms.Of(Folder.Host("wc/a/b")).Kind, Form::Database);
  EXPECT_EQ(forms.Of(Folder.Host("plain/a")).Kind, Form::None);
  WriteCVS("wc/a/b");
  WriteCVS("wc/a");
  WriteDatabase("plain");
  for (const char* folder : {"wc/a/b", "wc/a", "wc"}) {
    EXPECT_EQ(forms.Of(Folder.Host(folder)).Kind, Form::Database) << folder;
  }
  EXPECT_EQ(forms.Of(Folder.Host("plain")).Kind, Form::None);
  EXPECT_EQ(forms.Of(Folder.Host("plain/b")).Kind, Form::None);
}

TEST_F(WorkingCopyFormOfAFolder, OfARememberedFolderAboveHoldsForThoseBelow) {
  WriteDatabase("wc");
  WriteEntries("wc/old", "10\n\ndir\n");
  WriteCVS("wc/cvs");
  WorkingCopyForms forms;
  for (const char* folder : {"wc", "wc/old", "wc/cvs"}) forms.Of(Folder.Host(folder));
  EXPECT_EQ(forms.Of(Folder.Host("wc/a")).DatabaseRoot, Folder.Host("wc"));
  EXPECT_EQ(forms.Of(Folder.Host("wc/old/a")).Kind, Form::None);
  EXPECT_EQ(forms.Of(Folder.Host("wc/cvs/a")).Kind, Form::None);
}

TEST_F(WorkingCopyFormOfAFolder, IsLookedForAnewInTheNextWalk) {
  WriteDatabase("wc");
  EXPECT_EQ(Kind("wc/a"), Form::Database);
  WriteCVS("wc/a");
  EXPECT_EQ(Kind("wc/a"), Form::None);
}

TEST_F(WorkingCopyFormOfAFolder, IsThatOfTheDocumentsInIt) {
  WriteDatabase("wc");
  EXPECT_EQ(FormOfDocument(Folder.Host("wc/a/car.CATPart").c_str()), Form::Database);
  EXPECT_EQ(FormOfDocument(Folder.Host("wc").c_str()), Form::None);
}

TEST_F(WorkingCopyFormOfAFolder, OfADocumentThatWasNeverStoredIsNone) {
  EXPECT_EQ(FormOfDocument(""), Form::None);
}

}  // namespace
