// What the clocks of a Subversion refresh measure, told by launches that take a while.

#include <gtest/gtest.h>

#include <ctime>

#include "component/svn/SVNStage.h"
#include "manager/ZRKECVSManager.h"
#include "windows/LaunchLog.h"

namespace {

class SubversionRefreshClocks : public SVNStage {
protected:
  SubversionRefreshClocks() {
    Products.Add("car", "wc/car.CATProduct")
        .Add("wheel", "wc/wheel.CATPart")
        .Place("car", "wheel.1", "wheel");
    WriteEntries("wc", "");
  }
  ~SubversionRefreshClocks() override { standin::SetLaunchListener({}); }

  // Launches whose command line holds the option, or does not hold it, take the time.
  static void Delay(bool xml) {
    standin::SetLaunchListener([xml](const standin::Launch& launch) {
      const bool isXML = launch.CommandLine.find(L" --xml ") != std::wstring::npos;
      const clock_t start = clock();
      while (isXML == xml && clock() - start < kTicks) {
      }
    });
  }
  static constexpr clock_t kTicks = 100;
};

TEST_F(SubversionRefreshClocks, StatusCheckHoldsTheTextReportsOfAllProducts) {
  ZRKECVSManager manager(*Products.At("car").Get());
  Delay(false);
  manager.RefreshStatus(nullptr);
  EXPECT_GE(manager.SVNTimings.StatusCheck, 2.0 * kTicks);
}

TEST_F(SubversionRefreshClocks, XMLParsingHoldsTheXMLReportsOfAllProducts) {
  ZRKECVSManager manager(*Products.At("car").Get());
  Delay(true);
  manager.RefreshStatus(nullptr);
  EXPECT_GE(manager.SVNTimings.XMLParsing, 2.0 * kTicks);
}

}  // namespace
