// What the time of filing a report and of reading an entries file counts into.

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <filesystem>
#include <fstream>
#include <functional>
#include <string>
#include <thread>

#include "component/faults/MemoryFaults.h"
#include "component/manager/CVSStage.h"
#include "component/manager/SlowStep.h"
#include "component/svn/DatabaseStage.h"
#include "support/CapturedOutput.h"
#include "support/DebugMessages.h"
#include "windows/WindowsControl.h"

namespace {

constexpr std::int64_t kHour = 3'600'000;
bool hourPassed = false;

void LetAnHourPass() {
  hourPassed = true;
  standin::MoveClock(kHour);
}

// An hour passes during the call while a text whose length no other has is copied: a block or a line gets its
// place in a table, or a value is taken out of a report.
void CallWithAnHourAtTheCopyOf(const std::string& text, const std::function<void()>& call) {
  hourPassed = false;
  faults::OnAllocation(text.size() + 1, LetAnHourPass);
  call();
  faults::OnAllocation(0, nullptr);
  ASSERT_TRUE(hourPassed);
  standin::MoveClock(-kHour);
}

const std::string kLong(77'777, 'x');

double Seconds(const std::wstring& message) {
  return std::stod(message.substr(message.find(L": ") + 2));
}

class RefreshTimesOfEntries : public SVNStage {};
class RefreshTimesOfXML : public SVNStage {};
// Its reports hold the long text as a lock's owner.
class RefreshTimesOfADatabase : public DatabaseStage {
protected:
  RefreshTimesOfADatabase() {
    Products.Add("car", "wc/car");
    Report({reports::LockedElsewhere("car", {"t", kLong})});
  }
};

void ExpectAnHourInTheXMLAlone(const zrk::svn::SVNTimes& times) {
  EXPECT_GE(times.XMLParsing, kHour);
  EXPECT_LT(times.StatusCheck, kHour);
  EXPECT_LT(times.Attributing, kHour);
}

}  // namespace

TEST(RefreshTimesOfFiling, CountIntoNoneOfTheMessages) {
  const std::string block = zrk::sample::StatusBlock("proj/car", "1.1") + kLong;
  const std::string editLine = "proj/car\tanna\tnow\there\t" + kLong;
  for (const std::string& filed : {block, editLine}) {
    CVSStage stage;
    stage.Products.Add("car", "proj/car");
    stage.Client.When("status -v").Out(zrk::sample::kSeparatorLine + block);
    stage.Client.When("-n edit").Out(editLine + "\r\n");
    ZRKECVSManager manager(stage.Product("car"));
    const DebugMessages messages;
    CallWithAnHourAtTheCopyOf(filed, [&] { manager.RefreshStatus(stage.Root("car")); });
    ASSERT_EQ(messages.All().size(), 3u);
    for (const std::wstring& message : messages.All()) {
      EXPECT_LT(Seconds(message), 3600.0) << std::string(message.begin(), message.end());
    }
  }
}

TEST(CommTimeOfAQuery, DoesNotHoldTheReadingOfTheReport) {
  CVSStage stage;
  stage.Products.Add("car", "proj/car");
  const std::string value = "\t" + kLong;
  stage.Client.When("status -v").Out("   Working revision:" + value + "\r\n");
  ZRKECVSManager manager(stage.Product("car"));
  ZRKCVSStatus record;
  CallWithAnHourAtTheCopyOf(value,
                            [&] { manager.GetFileStatus(CATIProduct_var(stage.Root("car")), record); });
  EXPECT_EQ(record.WorkingRevision, kLong.c_str());
  EXPECT_LT(manager.CommTime, kHour);
}

// The entries file is a pipe here that takes its time.
TEST_F(RefreshTimesOfEntries, CountIntoTheStatusCheck) {
  Products.Add("wheel", "wc/wheel.CATPart");
  WriteEntries("wc", "");
  ZRKECVSManager manager(*Products.At("wheel").Get());
  const std::filesystem::path pipe = Folder / "wc/.svn/entries";
  std::filesystem::remove(pipe);
  ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);

  std::clock_t reading = 0;
  std::thread writer([&] {
    // Open once the reader has opened it too.
    std::ofstream entriesFile(pipe);
    reading = LetTimePass();
    entriesFile << entries::Format(10) << entries::File(10, "wheel.CATPart", "9", "bert");
  });
  manager.RefreshStatus(nullptr);
  writer.join();
  EXPECT_GE(manager.SVNTimings.StatusCheck, static_cast<double>(reading));
  EXPECT_EQ(ReadStatusAttributes(Products.At("wheel"))->Revision, "9");
}

TEST_F(RefreshTimesOfXML, HoldTheReadingOfTheReport) {
  Products.Add("wheel", "wc/wheel.CATPart");
  WriteEntries("wc", entries::File(10, "wheel.CATPart", "9", "bert"));
  Client.When("--xml").Out(XMLReport(kLong));
  Client.Otherwise().Out(ForeignLockReport("wheel.CATPart"));
  ZRKECVSManager manager(*Products.At("wheel").Get());
  CallWithAnHourAtTheCopyOf(kLong, [&] { manager.RefreshStatus(nullptr); });
  ExpectAnHourInTheXMLAlone(manager.SVNTimings);
}

TEST_F(RefreshTimesOfADatabase, OfARefreshHoldTheReadingOfTheReportAsXML) {
  ZRKECVSManager manager(*Products.At("car").Get());
  CallWithAnHourAtTheCopyOf(kLong, [&] { manager.RefreshStatus(nullptr); });
  ExpectAnHourInTheXMLAlone(manager.SVNTimings);
}

TEST_F(RefreshTimesOfADatabase, OfAQueryHoldTheRunAlone) {
  ZRKECVSManager manager(*Products.At("car").Get());
  ZRKCVSStatus record;
  CallWithAnHourAtTheCopyOf(kLong,
                            [&] { manager.GetFileStatus(CATIProduct_var(Products.At("car")), record); });
  EXPECT_EQ(record.LockOwner, kLong.c_str());
  EXPECT_LT(manager.CommTime, kHour);
}
