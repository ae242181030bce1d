#include <gtest/gtest.h>

#include <iostream>
#include <limits>
#include <locale>

#include "component/attributes/FlushedOutput.h"
#include "component/attributes/OutputText.h"
#include "component/manager/CVSStage.h"
#include "component/manager/SlowStep.h"
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

TEST_F(TheCommunicationTime, IsPrintedInDecimalDigitsAloneWhateverTheFormatOfTheStream) {
  struct Grouped : std::numpunct<char> {
    char do_thousands_sep() const override { return '.'; }
    std::string do_grouping() const override { return "\3"; }
  };
  ZRKECVSManager manager(Product("car"));
  manager.CommTime = 1234567;
  const std::locale before = std::cout.imbue(std::locale(std::locale::classic(), new Grouped));
  const std::ios::fmtflags flags = std::cout.flags(std::ios::hex | std::ios::showbase | std::ios::showpos);
  const std::string printed = Printed(manager);
  std::cout.flags(flags);
  std::cout.imbue(before);
  EXPECT_EQ(printed, " Total CVS Comm Time: 1234567\n");
}

TEST_F(TheCommunicationTime, IsFlushedWhenItIsPrinted) {
  ZRKECVSManager manager(Product("car"));
  manager.CommTime = 1234;
  const FlushedOutput output;
  manager.PrintCommTime();
  EXPECT_EQ(output.Text(), " Total CVS Comm Time: 1234\n");
}

TEST_F(TheCommunicationTime, AfterARefreshIsThatOfTheEditPassAlone) {
  ZRKECVSManager manager(Product("car"));
  manager.CommTime = kMuch;
  const DebugMessages messages;
  const TimesAround times = WithSlowLaunch(L"status -v", [&] {
    const CapturedOutput quiet;
    manager.RefreshStatus(Root("car"));
  });
  EXPECT_GE(manager.CommTime, 0);
  EXPECT_LE(manager.CommTime, times.After);
  const CATUnicodeString seconds =
      CATUnicodeString::BuildFromNum(static_cast<double>(manager.CommTime) / 1000.0, "%g");
  EXPECT_EQ(messages.All().at(1), L"\nCVS edit check time: " + seconds.ConvertToWideChar() + L" sec\n");
}

TEST_F(TheCommunicationTime, GrowsByAQueryOfOneFile) {
  ZRKECVSManager manager(Product("car"));
  manager.CommTime = kMuch;
  ZRKCVSStatus record;
  const TimesAround times =
      WithSlowLaunch(L"status -v", [&] { manager.GetFileStatus(Products.At("car"), record); });
  EXPECT_GE(manager.CommTime, kMuch + times.Within);
  EXPECT_LE(manager.CommTime, kMuch + times.Before + times.Within + times.After);
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
