// Where the time of a Subversion refresh went, as it is reported on the debugger channel.

#include <gtest/gtest.h>

#include "component/manager/SlowStep.h"
#include "component/svn/SVNStage.h"
#include "manager/ZRKECVSManager.h"
#include "support/DebugMessages.h"

namespace {

using namespace entries;

class SubversionRefreshTimes : public SVNStage {
protected:
  SubversionRefreshTimes() {
    Products.Add("car", "wc/car.CATProduct")
        .Add("wheel", "wc/wheel.CATPart")
        .Place("car", "wheel.1", "wheel");
    WriteEntries("wc", File(10, "car.CATProduct", "9", "bert"));
  }

  static std::wstring Line(const wchar_t* label, double ticks) {
    const CATUnicodeString seconds = CATUnicodeString::BuildFromNum(ticks / 1000.0, "%g");
    return std::wstring(L"\n") + label + L": " + seconds.ConvertToWideChar() + L" sec\n";
  }
};

TEST_F(SubversionRefreshTimes, AreThreeMessagesInTheOrderOfTheSteps) {
  ZRKECVSManager manager(*Products.At("car").Get());
  const DebugMessages messages;
  // So that no two of the three are the same.
  standin::SetLaunchListener([](const standin::Launch& launch) {
    LetTimePass();
    if (launch.CommandLine.find(L" --xml ") != std::wstring::npos) LetTimePass();
  });
  manager.RefreshStatus(nullptr);
  standin::SetLaunchListener({});
  EXPECT_EQ(messages.All(),
            (std::vector<std::wstring>{
                Line(L"SVN status check time", manager.SVNTimings.StatusCheck),
                Line(L"XML Parsing time", manager.SVNTimings.XMLParsing),
                Line(L"Refreshing status time (attributing)", manager.SVNTimings.Attributing)}));
}

TEST_F(SubversionRefreshTimes, StartAtZero) {
  const ZRKECVSManager manager(*Products.At("car").Get());
  EXPECT_EQ(manager.SVNTimings.StatusCheck, 0.0);
  EXPECT_EQ(manager.SVNTimings.XMLParsing, 0.0);
  EXPECT_EQ(manager.SVNTimings.Attributing, 0.0);
}

TEST_F(SubversionRefreshTimes, StartAnewWithEveryRefresh) {
  ZRKECVSManager manager(*Products.At("car").Get());
  manager.SVNTimings = {1e12, 1e12, 1e12};
  manager.RefreshStatus(nullptr);
  EXPECT_LT(manager.SVNTimings.StatusCheck, 1e12);
  EXPECT_LT(manager.SVNTimings.XMLParsing, 1e12);
  EXPECT_LT(manager.SVNTimings.Attributing, 1e12);
}

// The redraw of each product takes a while.
TEST_F(SubversionRefreshTimes, OfAllProductsAddUpAndAttributingIncludesTheRedraw) {
  ZRKECVSManager manager(*Products.At("car").Get());
  std::clock_t ticks = 0;
  standin::SetRedrawListener([&](const CATBaseUnknown_var&) { ticks += LetTimePass().Length(); });
  manager.RefreshStatus(nullptr);
  standin::SetRedrawListener({});
  EXPECT_GT(ticks, 0);
  EXPECT_GE(manager.SVNTimings.Attributing, static_cast<double>(ticks));
}

}  // namespace
