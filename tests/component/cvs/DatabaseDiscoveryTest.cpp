// What discovery makes of Subversion working copies with a database, field by field.

#include <gtest/gtest.h>

#include "cvs/WorkingCopy.h"
#include "support/Assembly.h"
#include "support/CVSFolder.h"
#include "support/Files.h"
#include "support/HostText.h"

namespace {

using zrk::cvs::WorkingCopy;

// "db" and "db2" are working copies with a database, "text" and "text2" such with text entries, "cvs" is one
// of CVS, "plain" none.
class DatabaseDiscovery : public testing::Test {
protected:
  DatabaseDiscovery() {
    for (const char* folder : {"db", "db2"}) WriteDatabase(folder);
    for (const char* folder : {"text", "text2"}) {
      WriteFile(folder_ / folder / ".svn/entries", "10\n\ndir\n");
    }
    WriteCVSFolder(folder_ / "cvs", "/cvs/root", "cvs");
  }

  void WriteDatabase(const std::string& folder) const {
    WriteFile(folder_ / folder / ".svn/wc.db", "db");
    WriteFile(folder_ / folder / ".svn/entries", "12\n");
  }

  // What is found upon what is known, in a tree of a document in each of the folders: the first is the root,
  // the others are its children, in order.
  WorkingCopy Found(const std::vector<std::string>& folders, const WorkingCopy& known = {}) {
    const std::string root = "root" + std::to_string(++trees_);
    assembly_.Add(root, folders.at(0) + "/" + root);
    for (std::size_t i = 1; i < folders.size(); ++i) {
      const std::string name = root + "-" + std::to_string(i);
      assembly_.Add(name, folders[i] + "/" + name).Place(root, name, name);
    }
    WorkingCopy found = known;
    zrk::cvs::DiscoverWorkingCopy(CATIProduct_var(assembly_.At(root)), found);
    return found;
  }

  // The same below a root in "plain".
  WorkingCopy FoundBelow(std::vector<std::string> folders, const WorkingCopy& known = {}) {
    folders.insert(folders.begin(), "plain");
    return Found(folders, known);
  }

  void ExpectSubversion(const WorkingCopy& found, const std::string& workingFolder,
                        const std::string& databaseRoot) const {
    EXPECT_TRUE(found.IsSVN);
    EXPECT_EQ(Text(found.SVNWorkingFolder), folder_.Host(workingFolder));
    EXPECT_EQ(Text(found.SVNDatabaseRoot), databaseRoot.empty() ? "" : folder_.Host(databaseRoot));
  }

  TemporaryFolder folder_;
  Assembly assembly_{folder_};
  const WorkingCopy known_{true, "C:\\svn", "C:\\w\\", "/known/root", "C:\\known"};

private:
  int trees_ = 0;
};

TEST_F(DatabaseDiscovery, SetsTheFlagTheDocumentsFolderAndTheTopOfTheWorkingCopyAlone) {
  const WorkingCopy found = Found({"db/sub/deep"}, {false, "C:\\svn", "C:\\w\\", "/known/root", "C:\\known"});
  ExpectSubversion(found, "db/sub/deep", "db");
  EXPECT_EQ(Text(found.SandboxRoot), "C:\\w\\");
  EXPECT_EQ(Text(found.CVSRoot), "/known/root");
}

TEST_F(DatabaseDiscovery, AtTheTopTheTwoFoldersAreTheSame) {
  ExpectSubversion(Found({"db"}), "db", "db");
}

TEST_F(DatabaseDiscovery, OfTextEntriesAloneHasNoTop) {
  ExpectSubversion(Found({"text"}), "text", "");
  ExpectSubversion(Found({"text", "text2"}), "text2", "");
}

TEST_F(DatabaseDiscovery, TextEntriesBesideADatabaseWin) {
  WriteFile(folder_ / "db/.svn/entries", "10\n\ndir\n");
  ExpectSubversion(Found({"db"}), "db", "");
}

TEST_F(DatabaseDiscovery, ADocumentEndsItsBranch) {
  for (const char* below : {"cvs", "text", "plain", "db2"})
    ExpectSubversion(Found({"db", below}), "db", "db");
}

TEST_F(DatabaseDiscovery, ADocumentOfTextEntriesDoesNotEndItsBranch) {
  ExpectSubversion(Found({"text", "db/sub"}), "db/sub", "db");
}

TEST_F(DatabaseDiscovery, OfTwoTheLastOneHolds) {
  ExpectSubversion(FoundBelow({"db", "db2/sub"}), "db2/sub", "db2");
}

TEST_F(DatabaseDiscovery, TextEntriesMetLaterSetTheWorkingFolderAndLeaveTheTop) {
  ExpectSubversion(FoundBelow({"db/sub", "text"}), "text", "db");
  ExpectSubversion(FoundBelow({"db", "text", "db2", "text2"}), "text2", "db2");
}

TEST_F(DatabaseDiscovery, BetweenCVSAndSubversionTheLastDocumentDecides) {
  const WorkingCopy cvsLast = FoundBelow({"db", "cvs"});
  EXPECT_FALSE(cvsLast.IsSVN);
  EXPECT_EQ(Text(cvsLast.CVSRoot), "/cvs/root");
  EXPECT_EQ(Text(cvsLast.SandboxRoot), folder_.Host() + "\\");
  EXPECT_EQ(Text(cvsLast.SVNDatabaseRoot), folder_.Host("db"));

  const WorkingCopy cvsFirst = FoundBelow({"cvs", "db"});
  ExpectSubversion(cvsFirst, "db", "db");
  EXPECT_EQ(Text(cvsFirst.CVSRoot), "/cvs/root");
}

TEST_F(DatabaseDiscovery, DocumentsInNoWorkingCopyTakeNothingAwayWhereverTheyStand) {
  ExpectSubversion(FoundBelow({"db/sub", "plain"}), "db/sub", "db");
  ExpectSubversion(FoundBelow({"plain", "db/sub"}), "db/sub", "db");
  ExpectSubversion(FoundBelow({"plain", "db", "plain", "db2", "plain", "plain"}), "db2", "db2");
}

TEST_F(DatabaseDiscovery, BehindTextEntriesADocumentInNoWorkingCopyBringsTheLastDatabaseBack) {
  ExpectSubversion(FoundBelow({"db/sub", "text", "plain"}), "db/sub", "db");
}

TEST_F(DatabaseDiscovery, WhenCVSWasMetADocumentInNoWorkingCopyDecidesAsEver) {
  for (const std::vector<std::string>& folders :
       std::vector<std::vector<std::string>>{{"db", "cvs", "plain"}, {"cvs", "db", "plain"}}) {
    const WorkingCopy found = FoundBelow(folders);
    EXPECT_FALSE(found.IsSVN);
    EXPECT_EQ(Text(found.SVNDatabaseRoot), folder_.Host("db"));
    EXPECT_EQ(Text(found.CVSRoot), "/cvs/root");
  }
}

TEST_F(DatabaseDiscovery, WithoutADatabaseADocumentInNoWorkingCopyDecidesAsEver) {
  const WorkingCopy found = FoundBelow({"text", "plain"}, known_);
  EXPECT_FALSE(found.IsSVN);
  EXPECT_EQ(Text(found.SVNWorkingFolder), folder_.Host("text"));
  EXPECT_EQ(Text(found.SVNDatabaseRoot), "C:\\known");
}

TEST_F(DatabaseDiscovery, OneLineOfEntriesIsSubversionAsEverAndNoDatabase) {
  WriteFile(folder_ / "one/.svn/entries", "12\n");
  ExpectSubversion(Found({"one"}), "one", "");
  ExpectSubversion(FoundBelow({"db", "one"}), "one", "db");
}

TEST_F(DatabaseDiscovery, AFolderOfCVSInADatabaseIsCVS) {
  WriteCVSFolder(folder_ / "db/cvs", "/cvs/root", "cvs");
  const WorkingCopy found = Found({"db/cvs"});
  EXPECT_FALSE(found.IsSVN);
  EXPECT_EQ(Text(found.CVSRoot), "/cvs/root");
  EXPECT_EQ(Text(found.SVNDatabaseRoot), "");
}

TEST_F(DatabaseDiscovery, OfCVSAtTheTopOfADatabaseIsBothAsEver) {
  WriteCVSFolder(folder_ / "db", "/cvs/root", "db");
  const WorkingCopy found = Found({"db"});
  EXPECT_TRUE(found.IsSVN);
  EXPECT_EQ(Text(found.SVNDatabaseRoot), "");
  EXPECT_EQ(Text(found.CVSRoot), "/cvs/root");
}

TEST_F(DatabaseDiscovery, AWorkingCopyInAnotherIsItsOwn) {
  WriteDatabase("db/inner");
  ExpectSubversion(Found({"db/inner/sub"}), "db/inner/sub", "db/inner");
}

TEST_F(DatabaseDiscovery, WhatIsNotFoundStaysAsItWas) {
  assembly_.AddWithoutDocument("none").Add({.Name = "new", .Document = ""});
  for (const char* product : {"none", "new"}) {
    WorkingCopy found = known_;
    zrk::cvs::DiscoverWorkingCopy(CATIProduct_var(assembly_.At(product)), found);
    EXPECT_TRUE(found.IsSVN);
    EXPECT_EQ(Text(found.SVNDatabaseRoot), "C:\\known");
  }
}

}  // namespace
