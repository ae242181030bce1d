#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>
#include <windows.h>

#include <cstdio>
#include <filesystem>
#include <string>

#include "OpenDescriptors.h"
#include "TestFiles.h"

namespace {

struct _stat64i32 Status(const std::filesystem::path& path) {
  struct _stat64i32 status {};
  EXPECT_EQ(_stat64i32(standin::HostPath(path).c_str(), &status), 0);
  return status;
}

}  // namespace

TEST(Files, HaveNamesSeparatedByBackslashes) {
  const TemporaryFolder scratch;
  std::filesystem::create_directory(scratch / "CVS");
  AddFile(scratch, "CVS/Root", "/cvs\n");
  const Stream file = Open(scratch.Host() + "\\CVS\\Root", "rt");
  ASSERT_TRUE(file);
  EXPECT_EQ(ReadRest(file.get()), "/cvs\n");
}

TEST(Files, AreReadAsTheyAreInBinaryMode) {
  const TemporaryFolder scratch;
  const std::string bytes = "a\r\nb\x1A\xFF\r";
  const std::string path = standin::HostPath(AddFile(scratch, "file", bytes));
  for (const char* mode : {"rb", "rb+", "r+b"}) {
    const Stream file = Open(path, mode);
    ASSERT_TRUE(file) << mode;
    EXPECT_EQ(ReadRest(file.get()), bytes) << mode;
  }
}

TEST(Files, CanBeWritten) {
  const TemporaryFolder scratch;
  const std::string path = scratch.Host("new");
  {
    const Stream file = Open(path, "wb");
    ASSERT_TRUE(file);
    EXPECT_GE(std::fputs("text", file.get()), 0);
  }
  EXPECT_EQ(ReadRest(Open(path, "rb").get()), "text");
  EXPECT_FALSE(Open(path, "")) << "no mode";
}

TEST(Files, AreNotInheritedByChildren) {
  const TemporaryFolder scratch;
  const std::string path = standin::HostPath(AddFile(scratch, "file", ""));
  for (const char* mode : {"r", "rt", "rb", "r+", "w", "ab"}) {
    const auto before = OpenDescriptors();
    const Stream file = Open(path, mode);
    ASSERT_TRUE(file) << mode;
    for (const int descriptor : OpenDescriptors()) {
      EXPECT_TRUE(before.contains(descriptor) || (fcntl(descriptor, F_GETFD) & FD_CLOEXEC)) << mode;
    }
  }
}

TEST(Files, CannotBeOpenedWhereThereIsNoneOrAFolder) {
  const TemporaryFolder scratch;
  const auto before = OpenDescriptors();
  for (const char* mode : {"r", "rt", "rb", "r+", "w"}) {
    EXPECT_FALSE(Open(scratch.Host(), mode)) << mode;
    EXPECT_FALSE(Open(std::string(), mode)) << mode;
  }
  EXPECT_FALSE(Open(scratch.Host("none"), "rt"));
  EXPECT_FALSE(Open(scratch.Host("none"), "rb"));
  EXPECT_EQ(OpenDescriptors(), before);
}

TEST(FileStatus, TellsTheOwnersRightsAsTheyAreSet) {
  const TemporaryFolder scratch;
  const auto path = AddFile(scratch, "file", "");
  const struct {
    mode_t Mode;
    int Rights;
  } cases[] = {{0600, _S_IREAD | _S_IWRITE}, {0400, _S_IREAD}, {0444, _S_IREAD}, {0200, _S_IWRITE}, {0066, 0},
               {0622, _S_IREAD | _S_IWRITE}};
  for (const auto& expected : cases) {
    ASSERT_EQ(chmod(path.c_str(), expected.Mode), 0);
    EXPECT_EQ(Status(path).st_mode & (_S_IREAD | _S_IWRITE), expected.Rights) << std::oct << expected.Mode;
  }
}

TEST(FileStatus, TellsTheSize) {
  const TemporaryFolder scratch;
  const auto path = AddFile(scratch, "file", "12345");
  EXPECT_EQ(Status(path).st_size, 5);
}

TEST(FileStatus, CutsSizesThatDoNotFit) {
  const TemporaryFolder scratch;
  const auto path = AddFile(scratch, "file", "");
  ASSERT_EQ(truncate(path.c_str(), (1LL << 32) + 5), 0);
  EXPECT_EQ(Status(path).st_size, 0x7FFFFFFF);
}

TEST(FileStatus, FailsForAMissingFileAndLeavesTheResultAlone) {
  const TemporaryFolder scratch;
  struct _stat64i32 status {};
  status.st_mode = 0x1234;
  status.st_size = 42;
  EXPECT_EQ(_stat64i32(scratch.Host("none").c_str(), &status), -1);
  EXPECT_EQ(_stat64i32("", &status), -1);
  EXPECT_EQ(status.st_mode, 0x1234);
  EXPECT_EQ(status.st_size, 42);
}
