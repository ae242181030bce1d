#include <gtest/gtest.h>

#include "component/manager/CVSStage.h"
#include "support/CapturedOutput.h"
#include "support/Launches.h"

namespace {

std::wstring Wide(const std::string& text) {
  return CATUnicodeString(text.c_str()).ConvertToWideChar();
}

class RefreshCommandLines : public testing::Test, protected CVSStage {
protected:
  void ExpectLaunch(const standin::Launch& launch, const std::string& tail) {
    EXPECT_EQ(launch.Program, Wide(Client.HostPath("cvs.exe")));
    EXPECT_EQ(launch.CommandLine, Wide(std::string(" -d ") + zrk::sample::kCVSRoot + " " + tail));
    EXPECT_EQ(launch.Folder, Wide(SandboxRoot()));
    EXPECT_TRUE(launch.Started);
  }

  const CapturedOutput quiet_;
  const Launches launches_;
};

}  // namespace

TEST_F(RefreshCommandLines, HaveTwoBlanksBeforeTheFirstFile) {
  Products.Add("car", "proj/car").Add("axle", "proj/a b").Place("car", "a", "axle");
  ZRKECVSManager manager(Product("car"));
  manager.RefreshStatus(Root("car"));
  ASSERT_EQ(launches_.All().size(), 2u);
  ExpectLaunch(launches_.All()[0], " status -v  \"proj\\car\" \"proj\\a b\"");
  ExpectLaunch(launches_.All()[1], " -n edit  \"proj\\car\" \"proj\\a b\"");
}

TEST_F(RefreshCommandLines, WithoutAFileKeepTheirClosingBlank) {
  Products.Add("car", "proj/car").Add("other", "elsewhere/x");
  ZRKECVSManager manager(Product("car"));
  manager.RefreshStatus(Root("other"));
  ASSERT_EQ(launches_.All().size(), 2u);
  ExpectLaunch(launches_.All()[0], " status -v ");
  ExpectLaunch(launches_.All()[1], " -n edit ");
}

TEST_F(RefreshCommandLines, OfAQueryHaveOneBlankBeforeTheFile) {
  Products.Add("car", "proj/car");
  ZRKECVSManager manager(Product("car"));
  ZRKCVSStatus record;
  manager.GetFileStatus(Products.At("car"), record);
  ASSERT_EQ(launches_.All().size(), 1u);
  ExpectLaunch(launches_.All()[0], " status -v \"proj\\car\"");
}
