// Which line of a CVS refresh gives the time of which step.

#include <gtest/gtest.h>

#include <cmath>

#include "component/manager/CVSStage.h"
#include "component/manager/SlowStep.h"
#include "support/CapturedOutput.h"
#include "support/DebugMessages.h"

namespace {

class TheTimeLines : public testing::Test, protected CVSStage {
protected:
  TheTimeLines() { Products.Add("car", "proj/car"); }

  void Refresh() {
    const CapturedOutput quiet;
    ZRKECVSManager manager(Product("car"));
    manager.RefreshStatus(Root("car"));
  }

  // The ticks that a message gives in seconds.
  std::clock_t Ticks(std::size_t message) const {
    const std::wstring& text = messages_.All().at(message);
    return std::lround(std::stod(text.substr(text.find(L": ") + 2)) * 1000.0);
  }
  std::clock_t StatusCheck() const { return Ticks(0); }
  std::clock_t EditCheck() const { return Ticks(1); }
  std::clock_t Attributing() const { return Ticks(2); }

private:
  const DebugMessages messages_;
};

}  // namespace

TEST_F(TheTimeLines, TellTheStatusPassInTheFirstAlone) {
  const TimesAround times = WithSlowLaunch(L"status -v", [this] { Refresh(); });
  EXPECT_GE(StatusCheck(), times.Within);
  EXPECT_LE(EditCheck(), times.After);
  EXPECT_LE(Attributing(), times.After);
}

TEST_F(TheTimeLines, TellTheEditPassInTheSecondAlone) {
  const TimesAround times = WithSlowLaunch(L"-n edit", [this] { Refresh(); });
  EXPECT_LE(StatusCheck(), times.Before);
  EXPECT_GE(EditCheck(), times.Within);
  EXPECT_LE(Attributing(), times.After);
}

TEST_F(TheTimeLines, TellTheRedrawsInTheThirdAlone) {
  const TimesAround times = WithSlowRedraw([this] { Refresh(); });
  EXPECT_LE(StatusCheck(), times.Before);
  EXPECT_LE(EditCheck(), times.Before);
  EXPECT_GE(Attributing(), times.Within);
}
