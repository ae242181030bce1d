#include <gtest/gtest.h>

#include <limits>

#include "component/attributes/OutputText.h"
#include "component/manager/CVSStage.h"
#include "support/DebugMessages.h"

namespace {

class TheCommunicationTime : public testing::Test, protected CVSStage {
protected:
  TheCommunicationTime() { Products.Add("car", "proj/car"); }

  std::string Printed(ZRKECVSManager& manager) {
    const CapturedOutput output;
    EXPECT_EQ(manager.PrintCommTime(), S_OK);
    return OutputText(output);
  }

  static constexpr zrk::tools::Ticks kMuch = 1'000'000'000'000;
};

}  // namespace

TEST_F(TheCommunicationTime, IsPrintedAndThenZero) {
  ZRKECVSManager manager(Product("car"));
  manager.CommTime = 1234;
  EXPECT_EQ(Printed(manager), " Total CVS Comm Time: 1234\n");
  EXPECT_EQ(manager.CommTime, 0);
  EXPECT_EQ(Printed(manager), " Total CVS Comm Time: 0\n");
}

TEST_F(TheCommunicationTime, IsPrintedAsASignedNumberOf64Bits) {
  ZRKECVSManager manager(Product("car"));
  manager.CommTime = std::numeric_limits<std::int64_t>::max();
  EXPECT_EQ(Printed(manager), " Total CVS Comm Time: 9223372036854775807\n");
  manager.CommTime = -5;
  EXPECT_EQ(Printed(manager), " Total CVS Comm Time: -5\n");
}

TEST_F(TheCommunicationTime, AfterARefreshIsThatOfTheEditPassAlone) {
  ZRKECVSManager manager(Product("car"));
  manager.CommTime = kMuch;
  const CapturedOutput quiet;
  const DebugMessages messages;
  manager.RefreshStatus(Root("car"));
  EXPECT_LT(manager.CommTime, kMuch);
  const CATUnicodeString seconds =
      CATUnicodeString::BuildFromNum(static_cast<double>(manager.CommTime) / 1000.0, "%g");
  EXPECT_EQ(messages.All().at(1), L"\nCVS edit check time: " + seconds.ConvertToWideChar() + L" sec\n");
}

TEST_F(TheCommunicationTime, GrowsByAQueryOfOneFile) {
  ZRKECVSManager manager(Product("car"));
  manager.CommTime = kMuch;
  ZRKCVSStatus record;
  manager.GetFileStatus(Products.At("car"), record);
  EXPECT_GE(manager.CommTime, kMuch);
  EXPECT_LT(manager.CommTime, kMuch + 1'000'000);
}

TEST_F(TheCommunicationTime, StaysWhenTheRefreshStopsBeforeTheClientRuns) {
  ZRKECVSManager manager(Product("car"));
  manager.CommTime = 7;
  manager.RefreshStatus(nullptr);
  EXPECT_EQ(manager.CommTime, 7);
}

TEST_F(TheCommunicationTime, DoesNotGrowByARemoval) {
  ZRKECVSManager manager(Product("car"));
  manager.CommTime = 7;
  manager.CVSRemove(Folder.Host("proj/car").c_str());
  EXPECT_EQ(manager.CommTime, 7);
}
