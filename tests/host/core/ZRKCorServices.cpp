#include "ZRKCorServices.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "core/HostPath.h"
#include "support/EnvironmentVariable.h"
#include "support/Files.h"
#include "support/Platform.h"
#include "support/TemporaryFolder.h"

namespace {

namespace fs = std::filesystem;

constexpr bool kFilesHaveExecuteBits = fs::path::preferred_separator == '/';

constexpr char kVariable[] = "ZRK_TEST_FOLDERS";

void MakeProgram(const fs::path& path) {
  WriteFile(path, "");
  fs::permissions(path, fs::perms::owner_all);
}

struct LookUp {
  bool Found;
  std::string Path;
};

LookUp Find(const std::string& folders, const char* file) {
  const EnvironmentVariable variable(kVariable, folders);
  CATUnicodeString path("left from before");
  const bool found = ZRKCorEnvVarManager::GetRuntimeFilePath(kVariable, file, path);
  return {found, path.ConvertToChar()};
}

std::string List(std::initializer_list<std::string> folders) {
  std::string list;
  for (const std::string& folder : folders)
    list += (list.empty() ? "" : std::string(1, kPathListSeparator)) + folder;
  return list;
}

TEST(GetRuntimeFilePath, GivesTheFileOfTheFirstFolderThatHoldsIt) {
  const TemporaryFolder folder;
  fs::create_directories(folder / "none");
  MakeProgram(folder / "one/cvs.exe");
  MakeProgram(folder / "two/cvs.exe");
  const LookUp found = Find(
      List({(folder / "none").string(), (folder / "two").string(), (folder / "one").string()}), "cvs.exe");
  EXPECT_TRUE(found.Found);
  EXPECT_EQ(found.Path, folder.Host() + "\\two\\cvs.exe");
}

TEST(GetRuntimeFilePath, SkipsEmptyFolders) {
  const TemporaryFolder folder;
  MakeProgram(folder / "cvs.exe");
  const std::string separator(1, kPathListSeparator);
  const LookUp found = Find(separator + separator + folder.Path().string() + separator, "cvs.exe");
  EXPECT_EQ(found.Path, folder.Host() + "\\cvs.exe");
}

TEST(GetRuntimeFilePath, DoesNotTakeAnEmptyFolderForTheCurrentOne) {
  const TemporaryFolder folder;
  MakeProgram(folder / "cvs.exe");
  const fs::path previous = fs::current_path();
  fs::current_path(folder.Path());
  const LookUp found = Find(std::string(2, kPathListSeparator), "cvs.exe");
  fs::current_path(previous);
  EXPECT_FALSE(found.Found);
}

TEST(GetRuntimeFilePath, DoesNotDoubleASeparatorAtTheEndOfAFolder) {
  const TemporaryFolder folder;
  MakeProgram(folder / "cvs.exe");
  const std::string withSeparator = (folder.Path() / "").string();
  ASSERT_NE(withSeparator, folder.Path().string());
  EXPECT_EQ(Find(withSeparator, "cvs.exe").Path, folder.Host() + "\\cvs.exe");
}

TEST(GetRuntimeFilePath, LeavesThePathEmptyWhenThereIsNoSuchFile) {
  const TemporaryFolder folder;
  const LookUp found = Find(folder.Path().string(), "cvs.exe");
  EXPECT_FALSE(found.Found);
  EXPECT_EQ(found.Path, "");
  EXPECT_FALSE(Find("", "cvs.exe").Found);
}

TEST(GetRuntimeFilePath, LeavesThePathEmptyWithoutTheVariable) {
  const EnvironmentVariable variable(kVariable, std::nullopt);
  CATUnicodeString path("left from before");
  EXPECT_FALSE(ZRKCorEnvVarManager::GetRuntimeFilePath(kVariable, "cvs.exe", path));
  EXPECT_EQ(path.GetLengthInByte(), 0);
  EXPECT_FALSE(ZRKCorEnvVarManager::GetRuntimeFilePath(nullptr, "cvs.exe", path));
}

TEST(GetRuntimeFilePath, PassesFoldersOfThatNameOver) {
  const TemporaryFolder folder;
  fs::create_directories(folder / "one/cvs.exe");
  MakeProgram(folder / "two/cvs.exe");
  const LookUp found = Find(List({(folder / "one").string(), (folder / "two").string()}), "cvs.exe");
  EXPECT_EQ(found.Path, folder.Host() + "\\two\\cvs.exe");
}

TEST(GetRuntimeFilePath, PassesFilesOverThatCannotBeRun) {
  if (!kFilesHaveExecuteBits) GTEST_SKIP() << "every file can be run here";
  const TemporaryFolder folder;
  WriteFile(folder / "one/cvs.exe", "");
  MakeProgram(folder / "two/cvs.exe");
  const LookUp found = Find(List({(folder / "one").string(), (folder / "two").string()}), "cvs.exe");
  EXPECT_EQ(found.Path, folder.Host() + "\\two\\cvs.exe");
}

TEST(GetRuntimeFilePath, MakesARelativeFolderAbsolute) {
  const TemporaryFolder folder;
  MakeProgram(folder / "cvs.exe");
  const std::string relative = fs::relative(folder.Path()).string();
  if (relative.empty()) GTEST_SKIP() << "no relative path leads to another drive";
  const LookUp found = Find(relative, "cvs.exe");
  ASSERT_TRUE(found.Found);
  EXPECT_TRUE(standin::FilePath(found.Path).is_absolute());
}

TEST(GetRuntimeFilePath, LooksNowhereButInTheFolders) {
  const TemporaryFolder folder;
  MakeProgram(folder / "elsewhere/cvs.exe");
  fs::create_directories(folder / "empty");
  const std::string outside = folder.Host("elsewhere/cvs.exe");
  EXPECT_FALSE(Find((folder / "empty").string(), outside.c_str()).Found);
  EXPECT_FALSE(Find((folder / "elsewhere").string(), "").Found);
}

struct Parts {
  std::string Folder;
  std::string Name;
};

Parts Split(const char* path) {
  CATUnicodeString folder("left from before");
  CATUnicodeString name("left from before");
  ZRKCorParserServices::SplitFilePath(path, folder, name);
  return {folder.ConvertToChar(), name.ConvertToChar()};
}

TEST(SplitFilePath, SplitsAtTheLastSeparator) {
  EXPECT_EQ(Split("\\w\\proj\\a.txt").Folder, "\\w\\proj");
  EXPECT_EQ(Split("\\w\\proj\\a.txt").Name, "a.txt");
  EXPECT_EQ(Split("\\w\\").Folder, "\\w");
  EXPECT_EQ(Split("\\w\\").Name, "");
}

TEST(SplitFilePath, KeepsTheSeparatorOfARoot) {
  EXPECT_EQ(Split("C:\\a.txt").Folder, "C:\\");
  EXPECT_EQ(Split("C:\\a.txt").Name, "a.txt");
  EXPECT_EQ(Split("\\a.txt").Folder, "\\");
  EXPECT_EQ(Split("\\a.txt").Name, "a.txt");
}

TEST(SplitFilePath, GivesAnEmptyFolderWithoutSeparator) {
  EXPECT_EQ(Split("a.txt").Folder, "");
  EXPECT_EQ(Split("a.txt").Name, "a.txt");
  EXPECT_EQ(Split("w/a.txt").Name, "w/a.txt");
  EXPECT_EQ(Split("").Folder, "");
  EXPECT_EQ(Split("").Name, "");
}

TEST(SplitFilePath, MayGiveAPartBackInTheTextItSplits) {
  CATUnicodeString path("\\w\\a.txt");
  CATUnicodeString name;
  ZRKCorParserServices::SplitFilePath(path, path, name);
  EXPECT_STREQ(path.ConvertToChar(), "\\w");
  EXPECT_STREQ(name.ConvertToChar(), "a.txt");
}

TEST(HostPath, SeparatesWithBackslashesAndBack) {
  const fs::path file = fs::path("w") / "proj" / "a b.CATPart";
  EXPECT_EQ(standin::HostPath(file), "w\\proj\\a b.CATPart");
  EXPECT_EQ(standin::FilePath("w\\proj\\a b.CATPart"), file);
}

TEST(HostPath, KeepsEveryByteOfAName) {
  if (!kFilesHaveExecuteBits) GTEST_SKIP() << "file names are wide text here";
  const std::string name = "\\w\\caf\xC3\xA9\xFF.CATPart";
  EXPECT_EQ(standin::HostPath(standin::FilePath(name)), name);
  EXPECT_EQ(standin::FilePath(name).string(), "/w/caf\xC3\xA9\xFF.CATPart");
}

}  // namespace
