#include <gtest/gtest.h>
#include <pthread.h>
#include <unistd.h>
#include <windows.h>
#include <csignal>

#include <atomic>
#include <iterator>
#include <set>
#include <string>
#include <thread>

#include "OpenDescriptors.h"
#include "RedirectedStream.h"
#include "TestChild.h"
#include "windows/WindowsControl.h"

namespace {

bool IsBrokenPipeSignalPending() {
  sigset_t pending;
  sigpending(&pending);
  return sigismember(&pending, SIGPIPE) == 1;
}

}  // namespace

TEST(Pipes, GiveBackWhatWasWritten) {
  TestPipe pipe;
  ASSERT_TRUE(pipe.IsValid());
  const std::string bytes("a\0b\r\n\x1A\xFF", 7);
  EXPECT_TRUE(pipe.Write(bytes));
  pipe.CloseWriting();
  EXPECT_EQ(pipe.ReadAll(), bytes);
}

TEST(Pipes, ReadFailsWithNothingReadOnceTheOtherEndIsClosed) {
  TestPipe pipe;
  pipe.CloseWriting();
  char byte = 'x';
  DWORD count = 7;
  EXPECT_FALSE(ReadFile(pipe.Reading, &byte, 1, &count, nullptr));
  EXPECT_EQ(count, 0u);
  EXPECT_EQ(byte, 'x');
}

TEST(Pipes, ReadingNoBytesSucceedsAtOnce) {
  TestPipe pipe;
  DWORD count = 7;
  EXPECT_TRUE(ReadFile(pipe.Reading, nullptr, 0, &count, nullptr));
  EXPECT_EQ(count, 0u);
}

TEST(Pipes, ReadGivesWhatIsThereWithoutWaitingForMore) {
  TestPipe pipe;
  ASSERT_TRUE(pipe.Write("abc"));
  char buffer[10];
  DWORD count = 0;
  ASSERT_TRUE(ReadFile(pipe.Reading, buffer, sizeof buffer, &count, nullptr));
  EXPECT_EQ(std::string(buffer, count), "abc");
}

TEST(Pipes, OneEndDoesNotDoTheWorkOfTheOther) {
  TestPipe pipe;
  ASSERT_TRUE(pipe.Write("abc"));
  char byte = 0;
  DWORD count = 7;
  EXPECT_FALSE(ReadFile(pipe.Writing, &byte, 1, &count, nullptr));
  EXPECT_FALSE(ReadFile(pipe.Writing, &byte, 0, &count, nullptr));
  EXPECT_FALSE(WriteFile(pipe.Reading, &byte, 1, &count, nullptr));
  EXPECT_EQ(count, 0u);
}

TEST(Pipes, WriteTakesAllHoweverSmallThePipe) {
  TestPipe pipe;
  std::string text;
  for (int i = 0; text.size() < (1u << 20); ++i) text += std::to_string(i);
  std::string received;
  std::thread reader([&] { received = pipe.ReadAll(); });
  EXPECT_TRUE(pipe.Write(text));
  pipe.CloseWriting();
  reader.join();
  EXPECT_EQ(received, text);
}

TEST(Pipes, ReadGoesOnAfterASignal) {
  static std::atomic<int> signals;
  signals = 0;
  struct sigaction interrupting {};
  interrupting.sa_handler = [](int) { ++signals; };
  struct sigaction before = {};
  sigaction(SIGUSR1, &interrupting, &before);

  TestPipe pipe;
  std::string received;
  std::thread reader([&] { received = pipe.ReadAll(); });
  bool delivered = true;
  for (int sent = 0; delivered && sent < 50; ++sent) {
    pthread_kill(reader.native_handle(), SIGUSR1);
    delivered = Eventually([&] { return signals > sent; });
  }
  EXPECT_TRUE(delivered);
  EXPECT_TRUE(pipe.Write("late"));
  pipe.CloseWriting();
  reader.join();
  sigaction(SIGUSR1, &before, nullptr);
  EXPECT_EQ(received, "late");
}

TEST(Pipes, WritingWithoutAReaderFailsAndRaisesNoSignal) {
  TestPipe pipe;
  pipe.CloseReading();
  DWORD written = 7;
  EXPECT_FALSE(WriteFile(pipe.Writing, "yes", 3, &written, nullptr));  // a signal would end the test
  EXPECT_EQ(written, 0u);
  EXPECT_FALSE(IsBrokenPipeSignalPending());
}

TEST(Pipes, WritingWithoutAReaderRaisesNoSignalForAHostThatBlocksIt) {
  sigset_t brokenPipe;
  sigset_t before;
  sigemptyset(&brokenPipe);
  sigaddset(&brokenPipe, SIGPIPE);
  pthread_sigmask(SIG_BLOCK, &brokenPipe, &before);
  TestPipe pipe;
  pipe.CloseReading();
  EXPECT_FALSE(pipe.Write("yes"));
  EXPECT_FALSE(IsBrokenPipeSignalPending());

  raise(SIGPIPE);
  EXPECT_FALSE(pipe.Write("yes"));
  EXPECT_TRUE(IsBrokenPipeSignalPending()) << "the host's own signal is gone";

  constexpr timespec DoNotWait{0, 0};
  sigtimedwait(&brokenPipe, nullptr, &DoNotWait);
  pthread_sigmask(SIG_SETMASK, &before, nullptr);
}

TEST(Pipes, WhatWasWrittenAtOnceIsReadInPieces) {
  TestPipe pipe;
  ASSERT_TRUE(pipe.Write("abcdef"));
  char buffer[4];
  DWORD count = 0;
  ASSERT_TRUE(ReadFile(pipe.Reading, buffer, sizeof(buffer), &count, nullptr));
  EXPECT_EQ(std::string(buffer, count), "abcd");
  ASSERT_TRUE(ReadFile(pipe.Reading, buffer, sizeof(buffer), &count, nullptr));
  EXPECT_EQ(std::string(buffer, count), "ef");
}

TEST(Pipes, LeaveWhatWasNotReadToAChildThatInheritsTheEnd) {
  TestPipe input(true);
  TestPipe output(true);
  ASSERT_TRUE(input.Write("abcdef"));
  input.CloseWriting();
  char buffer[2];
  DWORD count = 0;
  ASSERT_TRUE(ReadFile(input.Reading, buffer, sizeof(buffer), &count, nullptr));
  EXPECT_EQ(std::string(buffer, count), "ab");
  ASSERT_NE(Launch(L"\\bin\\cat", L"cat", StandardHandles(input.Reading, output.Writing, nullptr)), 0u);
  output.CloseWriting();
  EXPECT_EQ(output.ReadAll(), "cdef");
}

TEST(Handles, FailInEveryUseAfterTheyAreClosed) {
  TestPipe pipe;
  const HANDLE reading = pipe.Reading;
  const HANDLE writing = pipe.Writing;
  pipe.CloseReading();
  pipe.CloseWriting();
  char byte = 0;
  DWORD count = 0;
  EXPECT_FALSE(CloseHandle(reading));
  EXPECT_FALSE(CloseHandle(writing));
  EXPECT_FALSE(ReadFile(reading, &byte, 1, &count, nullptr));
  EXPECT_FALSE(WriteFile(writing, &byte, 1, &count, nullptr));
  EXPECT_FALSE(SetHandleInformation(reading, HANDLE_FLAG_INHERIT, 0));
}

TEST(Handles, ForeignValuesFail) {
  int number = 0;
  for (const HANDLE foreign : {HANDLE{nullptr}, INVALID_HANDLE_VALUE, static_cast<HANDLE>(&number)}) {
    DWORD count = 0;
    EXPECT_FALSE(CloseHandle(foreign));
    EXPECT_FALSE(ReadFile(foreign, &number, 1, &count, nullptr));
    EXPECT_FALSE(ReadFile(foreign, &number, 0, &count, nullptr));
    EXPECT_FALSE(WriteFile(foreign, &number, 1, &count, nullptr));
    EXPECT_FALSE(SetHandleInformation(foreign, HANDLE_FLAG_INHERIT, 1));
  }
}

TEST(Handles, AreNeverTheSameTwice) {
  std::set<HANDLE> seen;
  for (int i = 0; i < 100; ++i) {
    const TestPipe pipe;
    EXPECT_NE(pipe.Reading, nullptr);
    EXPECT_TRUE(seen.insert(pipe.Reading).second);
    EXPECT_TRUE(seen.insert(pipe.Writing).second);
  }
}

TEST(Handles, AreCountedWhileTheyAreOpen) {
  const int before = standin::OpenHandleCount();
  {
    TestPipe pipe;
    EXPECT_EQ(standin::OpenHandleCount(), before + 2);
    pipe.CloseReading();
    EXPECT_EQ(standin::OpenHandleCount(), before + 1);
  }
  EXPECT_EQ(standin::OpenHandleCount(), before);
}

TEST(Handles, AreCountedWhileTheyAreInheritable) {
  const int before = standin::InheritableHandleCount();
  const TestPipe apart(false);
  EXPECT_EQ(standin::InheritableHandleCount(), before);
  TestPipe shared(true);
  EXPECT_EQ(standin::InheritableHandleCount(), before + 2);
  SetHandleInformation(shared.Reading, HANDLE_FLAG_INHERIT, 0);
  EXPECT_EQ(standin::InheritableHandleCount(), before + 1);
  shared.CloseWriting();
  EXPECT_EQ(standin::InheritableHandleCount(), before);
}

TEST(Handles, HaveDescriptorsThatCloseOnExecAndWithThem) {
  const std::set<int> before = OpenDescriptors();
  {
    const TestPipe inheritable(true);
    int added = 0;
    for (const int descriptor : OpenDescriptors()) {
      if (before.contains(descriptor)) continue;
      ++added;
      EXPECT_TRUE(fcntl(descriptor, F_GETFD) & FD_CLOEXEC) << descriptor;
    }
    EXPECT_EQ(added, 2);
  }
  EXPECT_EQ(OpenDescriptors(), before);
}

TEST(Handles, DoNotTakeTheNumbersOfClosedStandardStreams) {
  const int input = dup(STDIN_FILENO);
  close(STDIN_FILENO);
  {
    TestPipe pipe;
    EXPECT_LT(fcntl(STDIN_FILENO, F_GETFD), 0);
    EXPECT_TRUE(pipe.Write("a"));
    pipe.CloseWriting();
    EXPECT_EQ(pipe.ReadAll(), "a");
  }
  dup2(input, STDIN_FILENO);
  close(input);
}

TEST(StandardHandles, CanBeWrittenTo) {
  const RedirectedStream output(STDOUT_FILENO);
  const RedirectedStream error(STDERR_FILENO);
  DWORD written = 0;
  EXPECT_TRUE(WriteFile(GetStdHandle(STD_OUTPUT_HANDLE), "out", 3, &written, nullptr));
  EXPECT_EQ(written, 3u);
  EXPECT_TRUE(WriteFile(GetStdHandle(STD_ERROR_HANDLE), "err", 3, &written, nullptr));
  EXPECT_EQ(output.Text(), "out");
  EXPECT_EQ(error.Text(), "err");
}

TEST(StandardHandles, BelongToTheProcess) {
  const int before = standin::OpenHandleCount();
  const HANDLE output = GetStdHandle(STD_OUTPUT_HANDLE);
  EXPECT_NE(output, nullptr);
  EXPECT_EQ(output, GetStdHandle(STD_OUTPUT_HANDLE));
  EXPECT_EQ(standin::OpenHandleCount(), before);
  EXPECT_FALSE(CloseHandle(output));
  EXPECT_GE(fcntl(STDOUT_FILENO, F_GETFD), 0);
}

TEST(StandardHandles, AreThree) {
  EXPECT_EQ(GetStdHandle(0), INVALID_HANDLE_VALUE);
}
