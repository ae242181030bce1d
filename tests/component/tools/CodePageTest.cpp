// Names with a letter that is not ASCII, in the 8-bit encoding of the system: UTF-8 or the active code page.

#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "component/tools/ToolRunner.h"
#include "core/HostPath.h"
#include "files/ClientFile.h"
#include "files/FileMode.h"
#include "support/Files.h"
#include "text/NativeText.h"

namespace {

const std::filesystem::path kUmlautName(u8"T\u00FCr links");

std::string NativeName() {
  return standin::NativeFromWide(L"T\u00FCr links");
}

}  // namespace

TEST(CodePageNames, ReachTheClientInItsArguments) {
  ToolRunner tool;
  tool.Run(("status \"sub\\" + NativeName() + "\"").c_str());
  ASSERT_EQ(tool.Client.Runs().size(), 1u);
  EXPECT_EQ(tool.Client.Runs()[0].Arguments,
            (std::vector<std::string>{"-d", "/cvs/root", "status", "sub\\" + NativeName()}));
}

TEST(CodePageNames, MayBeThatOfTheWorkingFolder) {
  ToolRunner tool;
  std::filesystem::create_directory(tool.Folder / kUmlautName);
  tool.RunIn(tool.Folder.Host() + "\\" + NativeName());
  ASSERT_EQ(tool.Client.Runs().size(), 1u);
  EXPECT_EQ(tool.Client.Runs()[0].Folder, tool.Folder.Host() + "\\" + NativeName());
}

TEST(CodePageNames, MayBeThatOfTheClientsFolder) {
  ToolRunner tool;
  std::filesystem::create_directory(tool.Folder / kUmlautName);
  std::filesystem::copy_file(standin::FilePath(tool.Client.HostPath("cvs.exe")),
                             tool.Folder / kUmlautName / "cvs.exe");
  tool.CVSExePath = (tool.Folder.Host() + "\\" + NativeName() + "\\cvs.exe").c_str();
  tool.Client.Otherwise().Out("text");
  EXPECT_EQ(tool.Run(), "text");
}

TEST(CodePageNames, MayBeThatOfAFileThatIsRead) {
  const TemporaryFolder folder;
  WriteFile(folder / kUmlautName, "text\r\n");
  const std::string path = folder.Host() + "\\" + NativeName();
  const auto text = zrk::files::ReadText(path);
  ASSERT_TRUE(text);
  EXPECT_EQ(text->View(), "text\n");
  EXPECT_TRUE(zrk::files::IsWritable(path.c_str()));
  SetReadOnly(folder / kUmlautName);
  EXPECT_FALSE(zrk::files::IsWritable(path.c_str()));
}
