// What the clocks of a Subversion refresh measure, shown by steps that take a while.

#include <gtest/gtest.h>

#include "component/manager/SlowStep.h"
#include "component/svn/SVNStage.h"
#include "manager/ZRKECVSManager.h"

namespace {

class SubversionRefreshClocks : public SVNStage {
protected:
  SubversionRefreshClocks() {
    Products.Add("car", "wc/car.CATProduct")
        .Add("wheel", "wc/wheel.CATPart")
        .Place("car", "wheel.1", "wheel");
    WriteEntries("wc", "");
  }
  ~SubversionRefreshClocks() override {
    standin::SetLaunchListener({});
    standin::SetRedrawListener({});
  }

  // The clocks after the refresh of one product, in ticks.
  std::clock_t StatusCheck() const { return static_cast<std::clock_t>(times_.StatusCheck); }
  std::clock_t XMLParsing() const { return static_cast<std::clock_t>(times_.XMLParsing); }
  std::clock_t Attributing() const { return static_cast<std::clock_t>(times_.Attributing); }
  void RefreshWheel() {
    ZRKECVSManager manager(*Products.At("wheel").Get());
    manager.RefreshStatus(nullptr);
    times_ = manager.SVNTimings;
  }

  // Launches whose command line holds the text take a while; gives how long they took in all.
  std::clock_t RefreshCarWithSlow(const wchar_t* command, ZRKECVSManager& manager) {
    std::clock_t ticks = 0;
    standin::SetLaunchListener([&](const standin::Launch& launch) {
      if (launch.CommandLine.find(command) != std::wstring::npos) ticks += LetTimePass().Length();
    });
    manager.RefreshStatus(nullptr);
    standin::SetLaunchListener({});
    EXPECT_GT(ticks, 0) << "no such launch";
    return ticks;
  }

  static constexpr wchar_t kTextReport[] = L"status -v -u \"";
  static constexpr wchar_t kXMLReport[] = L"status -v -u --xml \"";

private:
  zrk::svn::SVNTimes times_;
};

TEST_F(SubversionRefreshClocks, StatusCheckHoldsTheTextReportsOfAllProducts) {
  ZRKECVSManager manager(*Products.At("car").Get());
  const std::clock_t ticks = RefreshCarWithSlow(kTextReport, manager);
  EXPECT_GE(manager.SVNTimings.StatusCheck, static_cast<double>(ticks));
}

TEST_F(SubversionRefreshClocks, XMLParsingHoldsTheXMLReportsOfAllProducts) {
  ZRKECVSManager manager(*Products.At("car").Get());
  const std::clock_t ticks = RefreshCarWithSlow(kXMLReport, manager);
  EXPECT_GE(manager.SVNTimings.XMLParsing, static_cast<double>(ticks));
}

TEST_F(SubversionRefreshClocks, TheTextReportCountsIntoStatusCheckAlone) {
  const TimesAround times = WithSlowLaunch(kTextReport, [this] { RefreshWheel(); });
  EXPECT_GE(StatusCheck(), times.Within);
  EXPECT_LE(XMLParsing(), times.After);
  EXPECT_LE(Attributing(), times.After);
}

TEST_F(SubversionRefreshClocks, TheXMLReportCountsIntoXMLParsingAlone) {
  const TimesAround times = WithSlowLaunch(kXMLReport, [this] { RefreshWheel(); });
  EXPECT_LE(StatusCheck(), times.Before);
  EXPECT_GE(XMLParsing(), times.Within);
  EXPECT_LE(Attributing(), times.After);
}

TEST_F(SubversionRefreshClocks, TheRedrawCountsIntoAttributingAlone) {
  const TimesAround times = WithSlowRedraw([this] { RefreshWheel(); });
  EXPECT_LE(StatusCheck(), times.Before);
  EXPECT_LE(XMLParsing(), times.Before);
  EXPECT_GE(Attributing(), times.Within);
}

}  // namespace
