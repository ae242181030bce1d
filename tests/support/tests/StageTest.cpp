#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <windows.h>

#include <cstdio>
#include <iostream>

#include "CATApplicationFrame.h"
#include "CATDlgNotify.h"
#include "support/Assembly.h"
#include "support/CVSFolder.h"
#include "support/CapturedOutput.h"
#include "support/DebugMessages.h"
#include "support/DialogRecorder.h"
#include "support/EnvironmentVariable.h"
#include "support/Files.h"
#include "support/HandleCount.h"
#include "support/Session.h"
#include "support/TemporaryFolder.h"

namespace {

using testing::ElementsAre;

TEST(TemporaryFolder, IsRemovedWithAllItHolds) {
  std::filesystem::path path;
  {
    const TemporaryFolder folder;
    const TemporaryFolder other;
    path = folder.Path();
    EXPECT_NE(path, other.Path());
    WriteFile(folder / "a/b", "x");
    SetReadOnly(folder / "a/b");
    EXPECT_TRUE(std::filesystem::is_directory(path));
  }
  EXPECT_FALSE(std::filesystem::exists(path));
}

TEST(TemporaryFolder, IsAHostPathToo) {
  const TemporaryFolder folder;
  EXPECT_EQ(folder.Host().find('/'), std::string::npos);
  EXPECT_EQ(folder.Host("a.CATPart"), folder.Host() + "\\a.CATPart");
}

TEST(EnvironmentVariable, ComesBackAsItWas) {
  const std::string name = "ZRK_STAGE_TEST";
  {
    const EnvironmentVariable outer(name, "1");
    {
      const EnvironmentVariable inner(name, std::nullopt);
      EXPECT_EQ(GetEnvironmentValue(name), std::nullopt);
    }
    EXPECT_EQ(GetEnvironmentValue(name), "1");
  }
  EXPECT_EQ(GetEnvironmentValue(name), std::nullopt);
}

TEST(CapturedOutput, HoldsWhatEveryStreamWrites) {
  const CapturedOutput output;
  std::cout << "a";
  std::cout.flush();
  std::wprintf(L"b");
  std::fflush(stdout);
  std::cout << "c";
  EXPECT_EQ(output.Bytes(), "abc");
}

TEST(DebugMessages, AreRecordedOneByOne) {
  DebugMessages messages;
  OutputDebugStringW(L"one\n");
  OutputDebugStringW(L"two");
  EXPECT_THAT(messages.All(), ElementsAre(L"one\n", L"two"));
  messages.Clear();
  EXPECT_TRUE(messages.All().empty());
}

TEST(DialogRecorder, AnswersInOrderAndThenNo) {
  const Session session;
  const DialogRecorder user({standin::DialogAnswer::Yes});
  const auto ask = [](unsigned int style) {
    auto* dialog = new CATDlgNotify(CATApplicationFrame::GetFrame()->GetMainWindow(), "Warning", style);
    const int answer = dialog->DisplayBlocked("message", "title");
    dialog->RequestDestruction();
    return answer;
  };
  EXPECT_EQ(ask(0x4100200), 1);
  EXPECT_EQ(ask(0x4800200), 3);
  EXPECT_EQ(ask(0x4800200), 4);
  ASSERT_EQ(user.Requests().size(), 3u);
  EXPECT_EQ(user.Requests()[0].Message, "message");
  EXPECT_EQ(user.Requests()[0].Title, "title");
}

TEST(OpenHandles, GrowWithAPipeAndShrinkWhenItIsClosed) {
  const int before = CountOpenHandles();
  HANDLE readEnd = nullptr;
  HANDLE writeEnd = nullptr;
  ASSERT_TRUE(CreatePipe(&readEnd, &writeEnd, nullptr, 0));
  EXPECT_GT(CountOpenHandles(), before);
  CloseHandle(readEnd);
  CloseHandle(writeEnd);
  EXPECT_EQ(CountOpenHandles(), before);
}

TEST(CVSFolder, HoldsTheFilesOfTheClient) {
  const TemporaryFolder folder;
  WriteCVSFolder(folder / "proj", "/cvs", "proj", {CVSEntryLine("a.CATPart", "1.3"), "D"});
  EXPECT_EQ(ReadFile(folder / "proj/CVS/Root"), "/cvs\n");
  EXPECT_EQ(ReadFile(folder / "proj/CVS/Repository"), "proj\n");
  EXPECT_EQ(ReadFile(folder / "proj/CVS/Entries"), "/a.CATPart/1.3/Mon Mar  2 10:00:00 2020/-kb/\nD\n");
}

TEST(Assembly, FindsProductsByTheirPaths) {
  const TemporaryFolder folder;
  Assembly assembly(folder);
  assembly.Add("car", "proj/car.CATProduct").Add("axle", "proj/axle.CATPart").AddWithoutDocument("empty");
  assembly.Place("car", "axle.1", "axle").Place("car", "axle.2", "axle").Place("car", "gone", std::nullopt);
  EXPECT_EQ(standin::ProductPath(assembly.At("car")), "car");
  EXPECT_EQ(standin::ProductPath(assembly.At("car/axle.2")), "car/axle.2");
  EXPECT_EQ(standin::ReferenceName(assembly.At("car/axle.2")), "axle");
  EXPECT_EQ(standin::ReferenceName(assembly.At("car/gone")), "");
  EXPECT_THROW(assembly.At("car/none"), std::runtime_error);
  EXPECT_THROW(assembly.Place("axle", "car.1", "car"), std::runtime_error);
  EXPECT_TRUE(std::filesystem::exists(folder / "proj/axle.CATPart"));
}

TEST(Session, ReadsAndWritesStatusAttributes) {
  const Session session;
  const TemporaryFolder folder;
  Assembly assembly(folder);
  assembly.Add("car", "car.CATProduct");
  const CATBaseUnknown_var car = assembly.At("car");
  EXPECT_EQ(ReadStatusAttributes(car), std::nullopt);
  const StatusAttributes attributes = {"1.3", "Edit", "R1", "a\nb"};
  WriteStatusAttributes(car, attributes);
  EXPECT_EQ(ReadStatusAttributes(car), attributes);
}

}  // namespace
