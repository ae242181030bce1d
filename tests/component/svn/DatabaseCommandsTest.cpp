// The command lines for working copies with a database as they are handed over, character by character, and
// the folder that each runs in.

#include <gtest/gtest.h>

#include "DatabaseStage.h"
#include "ZRKICVSManager.h"
#include "manager/ZRKECVSManager.h"
#include "support/JapaneseCodePage.h"
#include "support/Launches.h"
#include "svn/DatabaseClient.h"
#include "text/NativeText.h"

namespace {

using zrk::svn::DatabaseCommand;
using zrk::svn::LaunchFolder;

using WideLines = std::vector<std::wstring>;

class DatabaseCommands : public DatabaseStage {
protected:
  DatabaseCommands() { Products.Add("car", Document); }

  static std::wstring Wide(const std::string& text) { return standin::WideFromNative(text); }
  std::wstring Path() const { return Wide(Folder.Host(Document)); }
  ZRKICVSManager_var Manager() const { return Products.At("car"); }
  // Of the launches so far, each of svn.exe in that folder.
  WideLines LinesIn(const std::string& folder) const {
    WideLines lines;
    for (const standin::Launch& launch : Launched.All()) {
      EXPECT_EQ(launch.Program, Wide(Client.HostPath("svn.exe")));
      EXPECT_EQ(launch.Folder, Wide(Folder.Host(folder)));
      EXPECT_TRUE(launch.Started);
      lines.push_back(launch.CommandLine);
    }
    return lines;
  }

  const std::string Document = "wc/front axle/wheel left.CATPart";
  const Launches Launched;
};

TEST_F(DatabaseCommands, OfARefreshNameNoPath) {
  Manager()->RefreshStatus(Products.At("car"));
  EXPECT_EQ(LinesIn("wc/front axle"), (WideLines{L" status -v -u --xml --non-interactive --ignore-externals",
                                                 L" status -v --xml --non-interactive --ignore-externals"}));
}

TEST_F(DatabaseCommands, OfALock) {
  Report({});
  Manager()->Edit();
  EXPECT_EQ(LinesIn("wc/front axle"),
            (WideLines{L" update --non-interactive \"" + Path() + L"\"",
                       L" lock --non-interactive \"" + Path() + L"\"",
                       L" status -v -u --xml --non-interactive --ignore-externals \"" + Path() + L"\""}));
}

TEST_F(DatabaseCommands, OfAnUnlock) {
  Manager()->Unedit();
  EXPECT_EQ(LinesIn("wc/front axle"),
            (WideLines{L" unlock --non-interactive \"" + Path() + L"\"",
                       L" status -v -u --xml --non-interactive --ignore-externals \"" + Path() + L"\"",
                       L" status -v --xml --non-interactive --ignore-externals \"" + Path() + L"\""}));
}

TEST_F(DatabaseCommands, OfADeletionRunInTheFilesOwnFolder) {
  std::filesystem::create_directories(Folder / "wc/other");
  const std::string file = Folder.Host("wc/other/old part.CATPart");
  EXPECT_EQ(Manager()->SVNDelete(file.c_str()), S_OK);
  EXPECT_EQ(LinesIn("wc/other"), WideLines{L" delete --force --non-interactive \"" + Wide(file) + L"\""});
  EXPECT_TRUE(Redrawn.Paths().empty());
}

TEST_F(DatabaseCommands, OfADeletionGoByTheFormOfTheFilesOwnFolder) {
  WriteEntries("old", entries::Folder("12"));
  WriteFile(Folder / "plain/part", "");
  for (const char* file : {"old/part", "plain/part"}) {
    Client.ClearRuns();
    EXPECT_EQ(Manager()->SVNDelete(Folder.Host(file).c_str()), S_OK);
    EXPECT_EQ(Arguments(), (Lists{{"delete", "-mzq", "--force", Folder.Host(file)}})) << file;
    EXPECT_EQ(RunFolders(), Texts{Folder.Host("wc/front axle")}) << file;
  }
}

TEST_F(DatabaseCommands, OfADeletionByAManagerOfTheTextFormGoByTheFilesOwnFolderToo) {
  WriteEntries("old", entries::Folder("12"));
  Products.Add("part", "old/part");
  ZRKECVSManager manager(*Products.At("part").Get());
  const std::string file = Folder.Host("wc/car");
  EXPECT_EQ(manager.SVNDelete(file.c_str()), S_OK);
  EXPECT_EQ(Arguments(), (Lists{{"delete", "--force", "--non-interactive", file}}));
  EXPECT_EQ(RunFolders(), Texts{Folder.Host("wc")});
}

TEST_F(DatabaseCommands, OfARefusedDeletionThereAreNone) {
  ZRKECVSManager manager(*Products.At("car").Get());
  manager.IsSVN = false;
  EXPECT_EQ(manager.SVNDelete(Folder.Host(Document).c_str()), E_FAIL);
  EXPECT_TRUE(Launched.All().empty());
}

TEST_F(DatabaseCommands, CloseAPathThatHoldsAnAtWithOneMore) {
  Products.Add("wheel", "wc/a@b/wheel@2.CATPart");
  const std::wstring path = Wide(Folder.Host("wc/a@b/wheel@2.CATPart")) + L"@";
  const ZRKICVSManager_var manager = Products.At("wheel");
  manager->Edit();
  manager->Unedit();
  manager->SVNDelete(Folder.Host("wc/a@b/wheel@2.CATPart").c_str());
  const WideLines lines = LinesIn("wc/a@b");
  EXPECT_EQ(lines.size(), 8U);
  for (const std::wstring& line : lines) EXPECT_TRUE(line.ends_with(L" \"" + path + L"\""));
}

TEST_F(DatabaseCommands, OfAFileWithAnAtShowWhatTheClientSaysOfIt) {
  Products.Add("wheel", "wc/a@b/wheel@2.CATPart");
  Report({{.Path = Folder.Host("wc/a@b/wheel@2.CATPart"), .Revision = "5"}});
  ZRKICVSManager_var(Products.At("wheel"))->Unedit();
  EXPECT_EQ(Shown("wheel")->Revision, "5");
}

TEST_F(DatabaseCommands, OfARefreshPassNoAt) {
  Products.Add("wheel", "wc/a@b/wheel@2.CATPart");
  Report({{.Path = "wheel@2.CATPart", .Revision = "5"}});
  ZRKICVSManager_var(Products.At("wheel"))->RefreshStatus(nullptr);
  EXPECT_EQ(Arguments(), Lists{StatusOfBoth});
  EXPECT_EQ(RunFolders(), Texts{Folder.Host("wc/a@b")});
  EXPECT_EQ(Shown("wheel")->Revision, "5");
}

// How an argument is quoted, so that a program gets it back.

std::string Command(const char* command, const std::string& path) {
  return DatabaseCommand(command, path).ConvertToChar();
}

TEST(DatabaseCommand, PutsItsPathInQuotes) {
  EXPECT_EQ(Command("lock", "C:\\w c\\a"), " lock --non-interactive \"C:\\w c\\a\"");
  EXPECT_EQ(Command("delete --force", "-x"), " delete --force --non-interactive \"-x\"");
}

TEST(DatabaseCommand, ClosesAPathWithAnAtWithinTheQuotes) {
  EXPECT_EQ(Command("lock", "C:\\a@2"), " lock --non-interactive \"C:\\a@2@\"");
  EXPECT_EQ(Command("lock", "C:\\a@"), " lock --non-interactive \"C:\\a@@\"");
  EXPECT_EQ(Command("lock", "C:\\@x\\a"), " lock --non-interactive \"C:\\@x\\a@\"");
  EXPECT_EQ(Command("lock", "@a"), " lock --non-interactive \"@a@\"");
}

TEST(DatabaseCommand, EscapesQuotationMarksAndWhatStandsBeforeThem) {
  EXPECT_EQ(Command("lock", "a\"b"), " lock --non-interactive \"a\\\"b\"");
  EXPECT_EQ(Command("lock", "a\\\"b"), " lock --non-interactive \"a\\\\\\\"b\"");
  EXPECT_EQ(Command("lock", "a\\b"), " lock --non-interactive \"a\\b\"");
  EXPECT_EQ(Command("lock", "C:\\a\"b"), " lock --non-interactive \"C:\\a\\\"b\"");
}

TEST(DatabaseCommand, DoublesBackslashesAtTheEnd) {
  EXPECT_EQ(Command("delete", "C:\\w\\"), " delete --non-interactive \"C:\\w\\\\\"");
  EXPECT_EQ(Command("delete", "C:\\\\"), " delete --non-interactive \"C:\\\\\\\\\"");
  EXPECT_EQ(Command("delete", "\\"), " delete --non-interactive \"\\\\\"");
}

// In code page 932 U+8868 is 95 5C, and 5C alone is the backslash.
TEST(DatabaseCommand, TakesNoPartOfALetterForABackslashOrAnAt) {
  const JapaneseCodePage codePage;
  if (!JapaneseCodePage::IsActive()) GTEST_SKIP() << "the system's code page is not 932";
  EXPECT_EQ(Command("lock", "C:\\\x95\\"), " lock --non-interactive \"C:\\\x95\\\"");
  EXPECT_EQ(Command("lock", "C:\\\x95\\\\"), " lock --non-interactive \"C:\\\x95\\\\\\\"");
  EXPECT_EQ(Command("lock", "C:\\\x83@"), " lock --non-interactive \"C:\\\x83@\"");
}

TEST_F(DatabaseCommands, ForAFileAtTheRootRunThere) {
  zrk::svn::SVNTimes notAsked;
  zrk::svn::ReadStatusOfFile(Context(), "\\car", notAsked);
  zrk::svn::RunDatabaseCommand(Context(), "lock", "\\car");
  ASSERT_EQ(Launched.All().size(), 3U);
  for (const standin::Launch& launch : Launched.All()) EXPECT_EQ(launch.Folder, L"\\");
}

TEST(LaunchFolder, OfADriveOrTheRootHasAClosingBackslashAndNoOther) {
  EXPECT_EQ(LaunchFolder("C:"), "C:\\");
  EXPECT_EQ(LaunchFolder(""), "\\");
  EXPECT_EQ(LaunchFolder("C:\\w"), "C:\\w");
  EXPECT_EQ(LaunchFolder("\\\\server\\share"), "\\\\server\\share");
}

}  // namespace
