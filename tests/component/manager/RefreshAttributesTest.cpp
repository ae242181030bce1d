#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "ZRKICVSManager.h"
#include "component/attributes/OutputText.h"
#include "component/manager/CVSStage.h"
#include "component/product/DeepAssembly.h"
#include "component/product/ProductEvents.h"
#include "support/Files.h"

using testing::ElementsAre;
using zrk::sample::kSeparatorLine;
using zrk::sample::StatusBlock;

namespace {

// Through the interface, as the host calls it.
class RefreshAttributes : public testing::Test, protected CVSStage {
protected:
  const std::string tag_ = "release-2                (revision: 1.4)";
};

}  // namespace

TEST_F(RefreshAttributes, TellWhoMayEditWhat) {
  Products.Add("car", "proj/car").Add("axle", "proj/axle").Add("wheel", "proj/wheel");
  Products.Place("car", "a", "axle").Place("car", "w", "wheel");
  SetReadOnly(Folder / "proj/axle");
  SetReadOnly(Folder / "proj/wheel");
  Client.When("status -v")
      .Out(kSeparatorLine + StatusBlock("proj/car", "1.1") + kSeparatorLine +
           StatusBlock("proj/axle", "1.2") + kSeparatorLine + StatusBlock("proj/wheel", "1.3"));
  Client.When("-n edit").Out("proj/axle\tbert\thost\r\n");

  const RedrawnProducts redrawn;
  const CapturedOutput output;
  const ZRKICVSManager_var manager(Products.At("car"));
  manager->RefreshStatus(Products.At("car"));

  EXPECT_EQ(ReadStatusAttributes(Products.At("car")), (StatusAttributes{"1.1", "Edit", tag_, ""}));
  EXPECT_EQ(ReadStatusAttributes(Products.At("car/a")),
            (StatusAttributes{"1.2", "Locked", tag_, "proj/axle\nbert\nhost"}));
  EXPECT_EQ(ReadStatusAttributes(Products.At("car/w")), (StatusAttributes{"1.3", "ReadOnly", tag_, ""}));
  EXPECT_THAT(redrawn.Paths(), ElementsAre("car", "car/a", "car/w"));
  EXPECT_EQ(OutputText(output), "");
}

TEST_F(RefreshAttributes, StayWhereTheClientSaysNothing) {
  Products.Add("car", "proj/car");
  const StatusAttributes old{"1.1", "Edit", "tag", ""};
  WriteStatusAttributes(Products.At("car"), old);
  const CapturedOutput output;
  const ZRKICVSManager_var manager(Products.At("car"));
  manager->RefreshStatus(Products.At("car"));
  EXPECT_EQ(ReadStatusAttributes(Products.At("car")), old);
  EXPECT_EQ(OutputText(output), "File " + Folder.Host("proj/car") + " not found!\n");
}

TEST_F(RefreshAttributes, AreThoseOfTheRootGivenNotOfTheManagersProduct) {
  Products.Add("car", "proj/car").Add("axle", "proj/axle");
  Client.When("status -v").Out(StatusBlock("proj/axle", "1.2"));
  const ZRKICVSManager_var manager(Products.At("car"));
  manager->RefreshStatus(Products.At("axle"));
  EXPECT_EQ(ReadStatusAttributes(Products.At("car")), std::nullopt);
  EXPECT_EQ(ReadStatusAttributes(Products.At("axle")), (StatusAttributes{"1.2", "Edit", tag_, ""}));
}

TEST_F(RefreshAttributes, AreTakenOffWhereTheReferenceIsNotLoadedWithOneRedraw) {
  Products.Add("car", "proj/car").Place("car", "lost", std::nullopt);
  WriteStatusAttributes(Products.At("car/lost"), {"1.1", "Edit", "", ""});
  const RedrawnProducts redrawn;
  const CapturedOutput output;
  const ZRKICVSManager_var manager(Products.At("car"));
  manager->RefreshStatus(Products.At("car"));
  EXPECT_EQ(ReadStatusAttributes(Products.At("car/lost")), std::nullopt);
  EXPECT_THAT(redrawn.Paths(), ElementsAre("car/lost", "car"));
}

TEST_F(RefreshAttributes, ReachTheBottomOfADeepTree) {
  constexpr int kLevels = 5000;
  AddChain(Products, Folder.Host("proj"), kLevels);
  std::string report;
  for (int level = 0; level < kLevels; ++level) {
    std::string file("proj/p");
    file += std::to_string(level);
    report += kSeparatorLine + StatusBlock(file, "1.7");
  }
  WriteFile(Folder / "report", report);
  Client.When("status -v").File(Folder / "report");
  const ZRKICVSManager_var manager(Products.At("p0"));
  manager->RefreshStatus(Products.At("p0"));
  EXPECT_EQ(ReadStatusAttributes(FirstDescendant(Products.At("p0"), kLevels - 1)),
            (StatusAttributes{"1.7", "ReadOnly", tag_, ""}));
}
