// What the time of filing a report counts into.

#include <gtest/gtest.h>

#include <string>

#include "component/faults/MemoryFaults.h"
#include "component/manager/CVSStage.h"
#include "support/CapturedOutput.h"
#include "support/DebugMessages.h"
#include "windows/WindowsControl.h"

namespace {

constexpr std::int64_t kHour = 3'600'000;
bool hourPassed = false;

// An hour passes while the block, whose length no other text has, gets its place in a table.
void LetAnHourPass() {
  hourPassed = true;
  standin::MoveClock(kHour);
}

double Seconds(const std::wstring& message) {
  return std::stod(message.substr(message.find(L": ") + 2));
}

}  // namespace

TEST(TheTimeOfFiling, OfTheStatusReportCountsIntoNoneOfTheTimes) {
  CVSStage stage;
  stage.Products.Add("car", "proj/car");
  const std::string block = zrk::sample::StatusBlock("proj/car", "1.1") + std::string(77'777, 'x');
  stage.Client.When("status -v").Out(zrk::sample::kSeparatorLine + block);
  ZRKECVSManager manager(stage.Product("car"));
  const DebugMessages messages;
  faults::OnAllocation(block.size() + 1, LetAnHourPass);
  manager.RefreshStatus(stage.Root("car"));
  faults::OnAllocation(0, nullptr);
  ASSERT_TRUE(hourPassed);
  standin::MoveClock(-kHour);
  ASSERT_EQ(messages.All().size(), 3u);
  for (const std::wstring& message : messages.All()) {
    EXPECT_LT(Seconds(message), 3600.0) << std::string(message.begin(), message.end());
  }
}
