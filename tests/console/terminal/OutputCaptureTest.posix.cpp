#include "terminal/OutputCapture.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <unistd.h>

#include <cstdio>
#include <cwchar>
#include <iostream>
#include <system_error>

#include "support/CapturedOutput.h"
#include "support/HandleCount.h"

namespace {

TEST(OutputCapture, GivesWhatIsWrittenByAnyMeansInItsOrder) {
  const CapturedOutput real;
  std::string taken;
  {
    zrkhost::OutputCapture capture;
    std::cout << "one\n";
    wprintf(L"tw\u00f6\n");
    std::printf("three\n");
    std::cout << "four" << std::endl;
    EXPECT_EQ(write(STDOUT_FILENO, "five\n", 5), 5);
    taken = capture.Take();
  }
  EXPECT_EQ(taken, "one\ntw\u00f6\nthree\nfour\nfive\n");
  EXPECT_EQ(real.Bytes(), taken);
}

TEST(OutputCapture, GivesEverythingOnce) {
  const CapturedOutput real;
  zrkhost::OutputCapture capture;
  std::cout << "one";
  EXPECT_EQ(capture.Take(), "one");
  EXPECT_EQ(capture.Take(), "");
  std::cout << "two";
  EXPECT_EQ(capture.Take(), "two");
}

TEST(OutputCapture, KeepsTheProgramsOwnTextApartAndInPlace) {
  const CapturedOutput real;
  std::string taken;
  {
    zrkhost::OutputCapture capture;
    std::cout << "library 1\n";
    capture.Write("own\n");
    std::cout << "library 2\n";
    capture.Forward();
    taken = capture.Take();
  }
  EXPECT_EQ(taken, "library 1\nlibrary 2\n");
  EXPECT_EQ(real.Bytes(), "library 1\nown\nlibrary 2\n");
}

TEST(OutputCapture, KeepsEveryByteOfLongOutput) {
  const CapturedOutput real;
  std::string expected;
  for (int i = 0; i < 300'000; ++i) expected += static_cast<char>(i % 256);
  zrkhost::OutputCapture capture;
  std::cout << expected;
  EXPECT_EQ(capture.Take(), expected);
}

TEST(OutputCapture, GivesStandardOutputBack) {
  const CapturedOutput real;
  { zrkhost::OutputCapture capture; }
  std::cout << "after" << std::flush;
  EXPECT_EQ(real.Bytes(), "after");
}

TEST(OutputCapture, LeavesNothingOpenWhereItCannotBegin) {
  if (ZRK_SANITIZED) GTEST_SKIP() << "the sanitizers look at objects through descriptors of their own";
  const int before = CountOpenHandles();
  const int next = fcntl(STDOUT_FILENO, F_DUPFD, 3);
  close(next);
  rlimit usual{};
  ASSERT_EQ(getrlimit(RLIMIT_NOFILE, &usual), 0);
  // Room for one descriptor; two are needed.
  rlimit tight = usual;
  tight.rlim_cur = static_cast<rlim_t>(next) + 1;
  ASSERT_EQ(setrlimit(RLIMIT_NOFILE, &tight), 0);
  EXPECT_THROW(zrkhost::OutputCapture(), std::system_error);
  ASSERT_EQ(setrlimit(RLIMIT_NOFILE, &usual), 0);
  EXPECT_EQ(CountOpenHandles(), before);
}

}  // namespace
