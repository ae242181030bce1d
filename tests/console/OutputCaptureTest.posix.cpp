#include "OutputCapture.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <cstdio>
#include <cwchar>
#include <iostream>

#include "support/CapturedOutput.h"

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

}  // namespace
