// The reading of the entries file, which here is a pipe that takes its time, counts into the first clock.

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <filesystem>
#include <fstream>
#include <thread>

#include "component/manager/SlowStep.h"
#include "component/svn/SVNStage.h"
#include "manager/ZRKECVSManager.h"

namespace {

using namespace entries;

class SubversionEntriesClock : public SVNStage {};

TEST_F(SubversionEntriesClock, StatusCheckHoldsTheReadingOfTheEntriesFile) {
  Products.Add("wheel", "wc/wheel.CATPart");
  WriteEntries("wc", "");
  ZRKECVSManager manager(*Products.At("wheel").Get());
  const std::filesystem::path pipe = Folder / "wc/.svn/entries";
  std::filesystem::remove(pipe);
  ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);

  Stretch reading{};
  std::thread writer([&] {
    // Open once the reader has opened it too.
    std::ofstream entriesFile(pipe);
    reading = LetTimePass();
    entriesFile << Format(10) << File(10, "wheel.CATPart", "9", "bert");
  });
  manager.RefreshStatus(nullptr);
  writer.join();
  EXPECT_GE(manager.SVNTimings.StatusCheck, static_cast<double>(reading.Length()));
  EXPECT_EQ(ReadStatusAttributes(Products.At("wheel"))->Revision, "9");
}

}  // namespace
