// The command lines as they are handed over, character by character.

#include <gtest/gtest.h>

#include "SVNStage.h"
#include "ZRKICVSManager.h"
#include "manager/ZRKECVSManager.h"
#include "support/Launches.h"
#include "text/NativeText.h"

namespace {

using entries::File;

class SVNCommandLines : public SVNStage {
protected:
  SVNCommandLines() {
    Products.Add("car", Document);
    WriteEntries("wc", File(10, "wheel left.CATPart", "9", "bert"));
    // A root of CVS must not find its way into them.
    WriteFile(Folder / "wc" / "CVS" / "Repository", "wc\n");
    WriteFile(Folder / "wc" / "CVS" / "Root", "/cvs\n");
  }

  std::wstring Path() const { return standin::WideFromNative(Folder.Host(Document)); }
  ZRKICVSManager_var Manager() const { return Products.At("car"); }
  // Of the launches so far, each of which must be of svn.exe in the working folder.
  std::vector<std::wstring> Lines() const {
    std::vector<std::wstring> lines;
    for (const standin::Launch& launch : Launched.All()) {
      EXPECT_EQ(launch.Program, standin::WideFromNative(Client.HostPath("svn.exe")));
      EXPECT_EQ(launch.Folder, standin::WideFromNative(Folder.Host("wc")));
      EXPECT_TRUE(launch.Started);
      lines.push_back(launch.CommandLine);
    }
    return lines;
  }

  const std::string Document = "wc/wheel left.CATPart";
  const Launches Launched;
};

using WideLines = std::vector<std::wstring>;

TEST_F(SVNCommandLines, OfALock) {
  Manager()->Edit();
  EXPECT_EQ(Lines(), (WideLines{L" update \"" + Path() + L"\"", L" lock \"" + Path() + L"\"",
                                L" status -v -u \"" + Path() + L"\""}));
}

TEST_F(SVNCommandLines, OfAnUnlock) {
  Manager()->Unedit();
  EXPECT_EQ(Lines(), (WideLines{L" unlock \"" + Path() + L"\"", L" status -v -u \"" + Path() + L"\""}));
}

TEST_F(SVNCommandLines, OfADeletionHasTwoBlanksBeforeThePath) {
  Manager()->SVNDelete(Folder.Host("wc/old part.CATPart").c_str());
  EXPECT_EQ(Lines(), (WideLines{L" delete -m\"zq\" --force  \"" +
                                standin::WideFromNative(Folder.Host("wc/old part.CATPart")) + L"\""}));
}

TEST_F(SVNCommandLines, OfARefresh) {
  Manager()->RefreshStatus(Products.At("car"));
  EXPECT_EQ(Lines(),
            (WideLines{L" status -v -u \"" + Path() + L"\"", L" status -v -u --xml \"" + Path() + L"\""}));
}

TEST_F(SVNCommandLines, KeepNamesOfAnyAlphabet) {
  Products.Add("wheel", std::filesystem::path(u8"wc/Tr\u00E4gerplatte.CATPart"));
  const ZRKICVSManager_var manager = Products.At("wheel");
  manager->Unedit();
  EXPECT_EQ(Lines().at(0),
            L" unlock \"" + standin::WideFromNative(Folder.Host("wc")) + L"\\Tr\u00E4gerplatte.CATPart\"");
}

TEST_F(SVNCommandLines, OfARefusedDeletionThereAreNone) {
  ZRKECVSManager manager(*Products.At("car").Get());
  manager.IsSVN = false;
  EXPECT_EQ(manager.SVNDelete(Folder.Host(Document).c_str()), E_FAIL);
  EXPECT_EQ(Lines(), WideLines{});
}

}  // namespace
