#include <gtest/gtest.h>
#include <windows.h>

#include "TestChild.h"
#include "windows/WindowsControl.h"

using standin::FailWindowsCall;
using standin::WindowsCall;

TEST(Faults, StrikeOnceAfterTheGivenNumberOfCalls) {
  FailWindowsCall(WindowsCall::CreatePipe, 2);
  EXPECT_TRUE(TestPipe().IsValid());
  EXPECT_TRUE(TestPipe().IsValid());
  EXPECT_FALSE(TestPipe().IsValid());
  EXPECT_TRUE(TestPipe().IsValid());
}

TEST(Faults, AreTakenBackByANegativeNumber) {
  FailWindowsCall(WindowsCall::CreatePipe, 0);
  FailWindowsCall(WindowsCall::CreatePipe, -1);
  EXPECT_TRUE(TestPipe().IsValid());
}

TEST(Faults, StrikeOnlyTheFunctionMeant) {
  FailWindowsCall(WindowsCall::WriteFile, 0);
  TestPipe pipe;
  EXPECT_TRUE(SetHandleInformation(pipe.Reading, HANDLE_FLAG_INHERIT, 1));
  EXPECT_FALSE(pipe.Write("a"));
  EXPECT_TRUE(pipe.Write("b"));
  pipe.CloseWriting();
  EXPECT_EQ(pipe.ReadAll(), "b");
}

TEST(Faults, OfReadingLoseNothing) {
  TestPipe pipe;
  ASSERT_TRUE(pipe.Write("abc"));
  pipe.CloseWriting();
  FailWindowsCall(WindowsCall::ReadFile, 0);
  EXPECT_EQ(pipe.ReadAll(), "");
  EXPECT_EQ(pipe.ReadAll(), "abc");
}

TEST(Faults, OfSetHandleInformationChangeNothing) {
  TestPipe pipe(true);
  FailWindowsCall(WindowsCall::SetHandleInformation, 0);
  EXPECT_FALSE(SetHandleInformation(pipe.Writing, HANDLE_FLAG_INHERIT, 0));
  ASSERT_NE(Launch(L"\\bin\\echo", L" still", StandardHandles(nullptr, pipe.Writing, nullptr)), 0u);
  pipe.CloseWriting();
  EXPECT_EQ(pipe.ReadAll(), "still\n");
}

TEST(Faults, OfCreateProcessStartNothing) {
  FailWindowsCall(WindowsCall::CreateProcess, 0);
  EXPECT_EQ(Launch(L"\\bin\\true", L"true"), 0u);
  EXPECT_NE(Launch(L"\\bin\\true", L"true"), 0u);
}

TEST(Faults, OfAnEmptyReadLeaveAllToTheNextOne) {
  TestPipe pipe;
  ASSERT_TRUE(pipe.Write("a"));
  FailWindowsCall(WindowsCall::ReadFileEmpty, 0);
  char byte = 0;
  DWORD count = 1;
  EXPECT_TRUE(ReadFile(pipe.Reading, &byte, 1, &count, nullptr));
  EXPECT_EQ(count, 0u);
  EXPECT_TRUE(ReadFile(pipe.Reading, &byte, 1, &count, nullptr));
  EXPECT_EQ(count, 1u);
}

TEST(Faults, OfCloseHandleCloseAllTheSame) {
  TestPipe pipe;
  const HANDLE reading = pipe.Reading;
  FailWindowsCall(WindowsCall::CloseHandle, 0);
  EXPECT_FALSE(CloseHandle(reading));
  EXPECT_FALSE(pipe.Write("a")) << "there is still somebody who could read it";
  EXPECT_FALSE(CloseHandle(reading)) << "it is closed already";
}

TEST(Faults, OfCloseHandleInVainLeaveItOpen) {
  TestPipe pipe;
  const HANDLE reading = pipe.Reading;
  FailWindowsCall(WindowsCall::CloseHandleInVain, 0);
  EXPECT_FALSE(CloseHandle(reading));
  EXPECT_TRUE(pipe.Write("a"));
  EXPECT_TRUE(CloseHandle(reading));
}

TEST(Faults, LeaveNoHandleOpen) {
  const int before = standin::OpenHandleCount();
  FailWindowsCall(WindowsCall::CreatePipe, 0);
  EXPECT_FALSE(TestPipe().IsValid());
  FailWindowsCall(WindowsCall::CreateProcess, 0);
  EXPECT_EQ(Launch(L"\\bin\\true", L"true"), 0u);
  EXPECT_EQ(standin::OpenHandleCount(), before);
}
