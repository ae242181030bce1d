#include <gtest/gtest.h>

#include <chrono>
#include <iostream>

#include "CATINavigateObject.h"
#include "ZRKICVSManager.h"
#include "component/manager/CVSStage.h"
#include "load/ProcessFigures.h"
#include "support/CapturedOutput.h"
#include "support/Files.h"

namespace {

constexpr int kProducts = 10'000;

std::string PartFile(int number) {
  return "proj/part " + std::to_string(number) + ".CATPart";
}

// "car" with all others as its children, and what the client reports of them.
class LargeTree : public testing::Test, protected CVSStage {
protected:
  LargeTree() {
    std::string statusReport;
    std::string editReport;
    Products.Add("car", PartFile(0));
    for (int number = 0; number < kProducts; ++number) {
      if (number > 0) {
        const std::string name = std::to_string(number);
        Products.Add(name, PartFile(number)).Place("car", name, name);
      }
      SetReadOnly(Folder / PartFile(number));
      statusReport +=
          zrk::sample::kSeparatorLine + zrk::sample::StatusBlock(PartFile(number), Revision(number));
      if (IsTaken(number)) editReport += PartFile(number) + "\tanna\r\n";
    }
    WriteFile(Folder / "status", statusReport);
    WriteFile(Folder / "editors", editReport);
    Client.When("status -v").Once().File(Folder / "status");
    Client.When("-n edit").Once().File(Folder / "editors");
  }

  static std::string Revision(int number) { return "1." + std::to_string(number); }
  static bool IsTaken(int number) { return number % 3 == 0; }

  static void ExpectStatus(const CATBaseUnknown_var& product, int number) {
    const std::string comment = IsTaken(number) ? PartFile(number) + "\nanna" : "";
    EXPECT_EQ(ReadStatusAttributes(product),
              (StatusAttributes{Revision(number), IsTaken(number) ? "Locked" : "ReadOnly",
                                "release-2                (revision: 1.4)", comment}));
  }
};

}  // namespace

TEST_F(LargeTree, OfTenThousandProductsIsRefreshedInAFewRunsAndWhole) {
  const ZRKICVSManager_var manager = Products.At("car");
  const ProcessFigures before = TakeFigures();
  const auto start = std::chrono::steady_clock::now();
  {
    const CapturedOutput quiet;
    manager->RefreshStatus(Products.At("car"));
  }
  const auto milliseconds =
      std::chrono::duration_cast<std::chrono::milliseconds>(std::chrono::steady_clock::now() - start).count();
  const std::size_t runs = Client.Runs().size();
  const ProcessFigures after = TakeFigures();
  std::cout << kProducts << " products: " << milliseconds << " ms, " << runs << " client runs; " << before
            << " -> " << after << '\n';

  // An argument has 25 characters at most, its blank and quotes among them, and a batch less than 32,000.
  constexpr std::size_t kBatches = kProducts * 25 / 32'000 + 1;
  EXPECT_LE(runs, 2 * kBatches);
  EXPECT_EQ(after.Handles, before.Handles);
  EXPECT_EQ(after.Children, 0);

  ExpectStatus(Products.At("car"), 0);
  const CATINavigateObject_var car = Products.At("car");
  const std::unique_ptr<CATListValCATBaseUnknown_var> children(car->GetChildren());
  ASSERT_EQ(children->Size(), kProducts - 1);
  for (int number = 1; number < kProducts; ++number) ExpectStatus((*children)[number], number);
}
