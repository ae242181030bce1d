#include "cvs/WorkingCopy.h"

#include <gtest/gtest.h>

#include "component/product/DeepAssembly.h"
#include "support/BinaryFiles.h"
#include "support/CVSFolder.h"
#include "support/Files.h"
#include "support/HostText.h"

using zrk::cvs::WorkingCopy;

namespace {

class WorkingCopyDiscovery : public testing::Test {
protected:
  WorkingCopy Found(const std::string& product) {
    WorkingCopy found;
    zrk::cvs::DiscoverWorkingCopy(CATIProduct_var(assembly_.At(product)), found);
    return found;
  }

  // What is found when something is known already.
  WorkingCopy FoundUpon(const WorkingCopy& known, const std::string& product) {
    WorkingCopy found = known;
    zrk::cvs::DiscoverWorkingCopy(CATIProduct_var(assembly_.At(product)), found);
    return found;
  }

  void WriteSVNFolder(const std::string& folder) { WriteFile(folder_ / folder / ".svn/entries", "10\n"); }

  std::string HostFolder(const std::string& folder) { return folder_.Host() + "\\" + folder + "\\"; }

  TemporaryFolder folder_;
  Assembly assembly_{folder_};
  const WorkingCopy known_{true, "C:\\svn", "C:\\w\\", "/known/root"};
};

}  // namespace

TEST_F(WorkingCopyDiscovery, FindsTheWorkingFolderWhereTheRepositoryPathBegins) {
  WriteCVSFolder(folder_ / "w/proj/sub", ":pserver:anna@host:/cvs/root", "proj/sub");
  assembly_.Add("part", "w/proj/sub/a.CATPart");
  const WorkingCopy found = Found("part");
  EXPECT_EQ(Text(found.SandboxRoot), HostFolder("w"));
  EXPECT_EQ(Text(found.CVSRoot), ":pserver:anna@host:/cvs/root");
  EXPECT_FALSE(found.IsSVN);
  EXPECT_EQ(Text(found.SVNWorkingFolder), "");
}

TEST_F(WorkingCopyDiscovery, TakesTheFirstPlaceWhereTheRepositoryPathOccurs) {
  WriteCVSFolder(folder_ / "w/proj/x/proj", "/cvs/root", "proj");
  assembly_.Add("part", "w/proj/x/proj/a.CATPart");
  EXPECT_EQ(Text(Found("part").SandboxRoot), HostFolder("w"));
}

TEST_F(WorkingCopyDiscovery, LooksForTheRepositoryPathInTheDocumentsNameToo) {
  WriteCVSFolder(folder_ / "w", "/cvs/root", "part");
  assembly_.Add("part", "w/a.part");
  EXPECT_EQ(Text(Found("part").SandboxRoot), HostFolder("w") + "a.");
}

TEST_F(WorkingCopyDiscovery, ReadsAdministrativeFilesWithWindowsLineEnds) {
  WriteFile(folder_ / "w/proj/sub/CVS/Repository", "proj/sub\r\n");
  WriteFile(folder_ / "w/proj/sub/CVS/Root", "/cvs/root\r\n");
  assembly_.Add("part", "w/proj/sub/a");
  const WorkingCopy found = Found("part");
  EXPECT_EQ(Text(found.SandboxRoot), HostFolder("w"));
  EXPECT_EQ(Text(found.CVSRoot), "/cvs/root");
}

TEST_F(WorkingCopyDiscovery, OpensTheRootAsTheProcessOpensFilesAndTheOthersAsText) {
  WriteFile(folder_ / "w/proj/sub/CVS/Repository", "proj/sub\r\n");
  WriteFile(folder_ / "w/proj/sub/CVS/Root", "/cvs/root\r\n");
  assembly_.Add("part", "w/proj/sub/a");
  const BinaryFiles binary;
  const WorkingCopy found = Found("part");
  EXPECT_EQ(Text(found.SandboxRoot), HostFolder("w"));
  EXPECT_EQ(Text(found.CVSRoot), "/cvs/root\r");
}

TEST_F(WorkingCopyDiscovery, ReadsAdministrativeFilesWithoutALastLineEnd) {
  WriteFile(folder_ / "w/proj/CVS/Repository", "proj");
  WriteFile(folder_ / "w/proj/CVS/Root", "/cvs/root");
  assembly_.Add("part", "w/proj/a");
  const WorkingCopy found = Found("part");
  EXPECT_EQ(Text(found.SandboxRoot), HostFolder("w"));
  EXPECT_EQ(Text(found.CVSRoot), "/cvs/root");
}

TEST_F(WorkingCopyDiscovery, JoinsTheLinesOfAdministrativeFilesAndTrimsNothingElse) {
  WriteFile(folder_ / "w/proj/CVS/Repository", "pr\n\noj\n");
  WriteFile(folder_ / "w/proj/CVS/Root", " /cvs\n/root \t\n");
  assembly_.Add("part", "w/proj/a");
  const WorkingCopy found = Found("part");
  EXPECT_EQ(Text(found.SandboxRoot), HostFolder("w"));
  EXPECT_EQ(Text(found.CVSRoot), " /cvs/root \t");
}

TEST_F(WorkingCopyDiscovery, KeepsSlashesOfTheRoot) {
  WriteCVSFolder(folder_ / "proj", "C:/cvs/root", "proj");
  assembly_.Add("part", "proj/a");
  EXPECT_EQ(Text(Found("part").CVSRoot), "C:/cvs/root");
}

TEST_F(WorkingCopyDiscovery, LeavesTheWorkingFolderEmptyWhenTheRepositoryPathDoesNotOccur) {
  WriteCVSFolder(folder_ / "proj", "/cvs/root", "elsewhere");
  assembly_.Add("part", "proj/a");
  const WorkingCopy found = FoundUpon(known_, "part");
  EXPECT_EQ(Text(found.SandboxRoot), "");
  EXPECT_EQ(Text(found.CVSRoot), "/cvs/root");
}

TEST_F(WorkingCopyDiscovery, KeepsTheRootThatIsKnownWhereThereIsNoRootFile) {
  WriteFile(folder_ / "proj/CVS/Repository", "proj\n");
  assembly_.Add("part", "proj/a");
  const WorkingCopy found = FoundUpon(known_, "part");
  EXPECT_EQ(Text(found.SandboxRoot), folder_.Host() + "\\");
  EXPECT_EQ(Text(found.CVSRoot), "/known/root");
}

TEST_F(WorkingCopyDiscovery, TakesARootFileAloneForNoWorkingCopy) {
  WriteFile(folder_ / "proj/CVS/Root", "/cvs/root\n");
  assembly_.Add("part", "proj/a");
  const WorkingCopy found = Found("part");
  EXPECT_EQ(Text(found.SandboxRoot), "");
  EXPECT_EQ(Text(found.CVSRoot), "");
}

TEST_F(WorkingCopyDiscovery, FindsTheDocumentOfAnInstance) {
  WriteCVSFolder(folder_ / "proj", "/cvs/root", "proj");
  assembly_.Add("car", "other/car").Add("part", "proj/a").Place("car", "p", "part");
  EXPECT_EQ(Text(Found("car/p").SandboxRoot), folder_.Host() + "\\");
}

TEST_F(WorkingCopyDiscovery, DoesNotLookBelowAProductInACVSWorkingCopy) {
  WriteCVSFolder(folder_ / "proj", "/cvs/root", "proj");
  WriteCVSFolder(folder_ / "w/other", "/other/root", "other");
  WriteSVNFolder("w/other");
  assembly_.Add("car", "proj/car").Add("part", "w/other/a").Place("car", "p", "part");
  const WorkingCopy found = Found("car");
  EXPECT_EQ(Text(found.CVSRoot), "/cvs/root");
  EXPECT_EQ(Text(found.SandboxRoot), folder_.Host() + "\\");
  EXPECT_FALSE(found.IsSVN);
}

TEST_F(WorkingCopyDiscovery, DoesNotLookBelowAProductWhoseWorkingCopyHasNoRootFile) {
  WriteFile(folder_ / "proj/CVS/Repository", "proj\n");
  WriteCVSFolder(folder_ / "w/other", "/other/root", "other");
  assembly_.Add("car", "proj/car").Add("part", "w/other/a").Place("car", "p", "part");
  const WorkingCopy found = Found("car");
  EXPECT_EQ(Text(found.CVSRoot), "");
  EXPECT_EQ(Text(found.SandboxRoot), folder_.Host() + "\\");
}

TEST_F(WorkingCopyDiscovery, GoesDownUntilItFindsACVSWorkingCopy) {
  WriteCVSFolder(folder_ / "proj", "/cvs/root", "proj");
  assembly_.Add("car", "plain/car").Add("axle", "plain/axle").Add("part", "proj/a");
  assembly_.Place("axle", "p", "part").Place("car", "a", "axle");
  EXPECT_EQ(Text(Found("car").CVSRoot), "/cvs/root");
}

TEST_F(WorkingCopyDiscovery, OfSeveralWorkingCopiesTheLastInTheOrderOfTheTreeHolds) {
  WriteCVSFolder(folder_ / "1/one", "/one", "one");
  WriteCVSFolder(folder_ / "2/two", "/two", "two");
  WriteCVSFolder(folder_ / "3/three", "/three", "three");
  assembly_.Add("car", "plain/car").Add("axle", "plain/axle");
  assembly_.Add("part1", "1/one/a").Add("part2", "2/two/a").Add("part3", "3/three/a");
  assembly_.Place("axle", "1", "part1").Place("axle", "3", "part3");
  assembly_.Place("car", "a", "axle").Place("car", "2", "part2");
  EXPECT_EQ(Text(Found("axle").CVSRoot), "/three");
  EXPECT_EQ(Text(Found("car").CVSRoot), "/two");
  EXPECT_EQ(Text(Found("car").SandboxRoot), HostFolder("2"));
}

TEST_F(WorkingCopyDiscovery, FindsTheSubversionFolderOfTheDocument) {
  WriteSVNFolder("w/sub");
  assembly_.Add("part", "w/sub/a");
  const WorkingCopy found = Found("part");
  EXPECT_TRUE(found.IsSVN);
  EXPECT_EQ(Text(found.SVNWorkingFolder), folder_.Host() + "\\w\\sub");
  EXPECT_EQ(Text(found.SandboxRoot), "");
  EXPECT_EQ(Text(found.CVSRoot), "");
}

TEST_F(WorkingCopyDiscovery, NeedsTheEntriesFileOfASubversionFolder) {
  std::filesystem::create_directories(folder_ / "w/.svn");
  assembly_.Add("part", "w/a");
  EXPECT_FALSE(Found("part").IsSVN);
}

TEST_F(WorkingCopyDiscovery, TakesNoOtherFileForTheEntriesFile) {
  for (const char* const file : {"format", "all-wcprops", "dir-props", "entries.bak", "README.txt"}) {
    WriteFile(folder_ / "w/.svn" / file, "10\n");
  }
  assembly_.Add("part", "w/a");
  EXPECT_FALSE(Found("part").IsSVN);
}

TEST_F(WorkingCopyDiscovery, TakesFoldersForNoAdministrativeFiles) {
  std::filesystem::create_directories(folder_ / "w/.svn/entries");
  std::filesystem::create_directories(folder_ / "w/CVS/Repository");
  assembly_.Add("part", "w/a");
  const WorkingCopy found = FoundUpon(known_, "part");
  EXPECT_FALSE(found.IsSVN);
  EXPECT_EQ(Text(found.SandboxRoot), "C:\\w\\");
}

TEST_F(WorkingCopyDiscovery, FindsBothInAFolderOfBoth) {
  WriteSVNFolder("w/proj");
  WriteCVSFolder(folder_ / "w/proj", "/cvs/root", "proj");
  assembly_.Add("part", "w/proj/a");
  const WorkingCopy found = Found("part");
  EXPECT_TRUE(found.IsSVN);
  EXPECT_EQ(Text(found.SVNWorkingFolder), folder_.Host() + "\\w\\proj");
  EXPECT_EQ(Text(found.SandboxRoot), HostFolder("w"));
  EXPECT_EQ(Text(found.CVSRoot), "/cvs/root");
}

TEST_F(WorkingCopyDiscovery, TheProductExaminedLastDecidesWhetherItIsSubversion) {
  WriteSVNFolder("svn");
  assembly_.Add("car", "svn/car").Add("part", "plain/a").Place("car", "p", "part");
  const WorkingCopy found = Found("car");
  EXPECT_FALSE(found.IsSVN);
  EXPECT_EQ(Text(found.SVNWorkingFolder), folder_.Host() + "\\svn");

  assembly_.Add("top", "plain/top").Place("top", "b", "part").Place("top", "c", "car");
  assembly_.Add("last", "svn/last").Place("top", "l", "last");
  EXPECT_TRUE(Found("top").IsSVN);
}

TEST_F(WorkingCopyDiscovery, TakesTheLastSubversionFolder) {
  WriteSVNFolder("1");
  WriteSVNFolder("2");
  assembly_.Add("car", "1/car").Add("part", "2/a").Place("car", "p", "part");
  EXPECT_EQ(Text(Found("car").SVNWorkingFolder), folder_.Host() + "\\2");
}

TEST_F(WorkingCopyDiscovery, ClearsTheSubversionFlagAloneInAPlainFolder) {
  assembly_.Add("part", "plain/a");
  const WorkingCopy found = FoundUpon(known_, "part");
  EXPECT_FALSE(found.IsSVN);
  EXPECT_EQ(Text(found.SVNWorkingFolder), "C:\\svn");
  EXPECT_EQ(Text(found.SandboxRoot), "C:\\w\\");
  EXPECT_EQ(Text(found.CVSRoot), "/known/root");
}

TEST_F(WorkingCopyDiscovery, LeavesAllAsItWasWithoutAStoredDocument) {
  WriteCVSFolder(folder_ / "proj", "/cvs/root", "proj");
  assembly_.AddWithoutDocument("none").AddNotLinkable("unlinked").Add({.Name = "new", .Document = ""});
  assembly_.Add("part", "proj/a");
  for (const char* const product : {"none", "unlinked", "new"}) {
    assembly_.Place(product, "p", "part");
    const WorkingCopy found = FoundUpon(known_, product);
    EXPECT_TRUE(found.IsSVN) << product;
    EXPECT_EQ(Text(found.SVNWorkingFolder), "C:\\svn") << product;
    EXPECT_EQ(Text(found.SandboxRoot), "C:\\w\\") << product;
    EXPECT_EQ(Text(found.CVSRoot), "/known/root") << product;
  }
}

TEST_F(WorkingCopyDiscovery, GoesOnBehindAProductWithoutItsReference) {
  WriteCVSFolder(folder_ / "proj", "/cvs/root", "proj");
  assembly_.Add("car", "plain/car").Add("part", "proj/a");
  assembly_.Place("car", "lost", std::nullopt).Place("car", "p", "part");
  EXPECT_EQ(Text(Found("car").CVSRoot), "/cvs/root");
  EXPECT_EQ(Text(FoundUpon(known_, "car/lost").CVSRoot), "/known/root");
}

TEST_F(WorkingCopyDiscovery, OfADeepTreeCostsNoStack) {
  constexpr int kLevels = 5000;
  AddChain(assembly_, folder_.Host("plain"), kLevels);
  WriteCVSFolder(folder_ / "proj", "/cvs/root", "proj");
  assembly_.Add("part", "proj/a").Place("p4999", "p", "part");
  EXPECT_EQ(Text(Found("p0").CVSRoot), "/cvs/root");
}

TEST_F(WorkingCopyDiscovery, TellsACVSWorkingCopyByItsRepositoryFile) {
  WriteFile(folder_ / "w/CVS/Repository", "");
  zrk::cvs::CVSFolders folders;
  EXPECT_TRUE(folders.Hold((HostFolder("w") + "a").c_str()));
  EXPECT_TRUE(folders.Hold((HostFolder("w") + "b").c_str()));
  EXPECT_FALSE(folders.Hold((HostFolder("w") + "sub\\a").c_str()));
  EXPECT_FALSE(folders.Hold((folder_.Host() + "\\w").c_str()));
  EXPECT_TRUE(folders.Hold((HostFolder("w") + "a").c_str()));
}
