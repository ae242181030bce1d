#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <functional>
#include <iostream>
#include <optional>

#include "ZRKCVSStatus.h"
#include "ZRKICVSManager.h"
#include "component/manager/CVSStage.h"
#include "load/ProcessFigures.h"
#include "support/CapturedOutput.h"
#include "support/EnvironmentVariable.h"

namespace {

// Growth that is not told from chance: pages that are touched for the first time somewhere.
constexpr long kNoise = 2048;

class LongSession : public testing::Test, protected CVSStage {
protected:
  LongSession() {
    Products.Add("car", "proj/car.CATProduct")
        .Add("axle", "proj/axle.CATPart")
        .Add("wheel", "proj/wheel.CATPart");
    Products.Place("car", "axle.1", "axle")
        .Place("axle", "wheel.1", "wheel")
        .Place("axle", "wheel.2", "wheel");
    const std::string report =
        zrk::sample::StatusBlock("proj/car.CATProduct", "1.4") + zrk::sample::kSeparatorLine +
        zrk::sample::StatusBlock("proj/axle.CATPart", "1.5") + zrk::sample::kSeparatorLine +
        zrk::sample::StatusBlock("proj/wheel.CATPart", "1.6");
    Client.When("status -v").Out(report);
    Client.When("-n edit").Out("proj/axle.CATPart\tanna\r\n");
    car_ = Products.At("car");
  }

  // Does it `count` times, and expects that from the tenth part on nothing is piled up.
  static void ExpectFlat(const char* what, int count, const std::function<void(int)>& operation) {
    const int warmUp = std::max(count / 10, 50);
    ProcessFigures before;
    ProcessFigures after;
    std::chrono::steady_clock::duration time{};
    {
      const CapturedOutput quiet;
      for (int number = 0; number < warmUp; ++number) operation(number);
      before = TakeFigures();
      const auto start = std::chrono::steady_clock::now();
      for (int number = 0; number < count; ++number) operation(number);
      time = std::chrono::steady_clock::now() - start;
      after = TakeFigures();
    }
    std::cout << count << ' ' << what << ": "
              << std::chrono::duration_cast<std::chrono::milliseconds>(time).count() << " ms, "
              << std::chrono::duration_cast<std::chrono::microseconds>(time).count() / count << " us each; "
              << before << " -> " << after << '\n';
    EXPECT_LE(after.Memory, before.Memory + kNoise);
    EXPECT_EQ(after.Handles, before.Handles);
    EXPECT_EQ(after.Children, 0);
    EXPECT_EQ(after.Objects, before.Objects);
  }

  // The runs are not logged: the log would be all that grows.
  const EnvironmentVariable noLog_{"ZRK_CLIENT_LOG", ""};
  CATBaseUnknown_var car_;
};

int OperationCount() {
  const std::optional<std::string> wanted = GetEnvironmentValue("ZRK_LOAD_OPERATIONS");
  return wanted ? std::stoi(*wanted) : LOAD_OPERATIONS;
}

}  // namespace

TEST_F(LongSession, OfManyRefreshesPilesNothingUp) {
  ExpectFlat("refreshes", LOAD_REFRESHES, [&](int) {
    const ZRKICVSManager_var manager = Products.At("car");
    manager->RefreshStatus(car_);
  });
  EXPECT_EQ(ReadStatusAttributes(Products.At("car/axle.1/wheel.2"))->Revision, "1.6");
}

// ZRK_LOAD_OPERATIONS sets another number.
TEST_F(LongSession, OfManyOperationsOnOneManagerPilesNothingUp) {
  const ZRKICVSManager_var manager = car_;
  const std::string removed = Folder.Host("proj/gone.txt");
  int wrong = 0;
  ExpectFlat("operations", OperationCount(), [&](int number) {
    ZRKCVSStatus record;
    switch (number % 20) {
      case 0:
        manager->RefreshStatus(car_);
        break;
      case 1:
        if (manager->Edit() != S_OK) ++wrong;
        break;
      case 2:
        if (manager->Unedit() != S_OK) ++wrong;
        break;
      case 3:
        if (manager->SVNDelete(removed.c_str()) != E_FAIL) ++wrong;
        break;
      case 4:
        if (manager->PrintCommTime() != S_OK) ++wrong;
        break;
      case 5:
      case 6:
        if (manager->CVSRemove(removed.c_str()) != S_OK) ++wrong;
        break;
      default:
        manager->GetFileStatus(car_, record);
        if (record.CommitIdentifier != "kOGeDSplZWuXm2gG") ++wrong;
    }
  });
  EXPECT_EQ(wrong, 0);
}
