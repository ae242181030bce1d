#include "tools/Pipe.h"

#include <gtest/gtest.h>

#include "support/HandleCount.h"

namespace {

using zrk::tools::Pipe;

bool Create(Pipe& pipe) {
  return CreatePipe(pipe.Read.Receive(), pipe.Write.Receive(), nullptr, 0);
}

TEST(Pipe, ClosesWhatItHeldWhenItReceivesOtherHandles) {
  const int before = CountOpenHandles();
  {
    Pipe pipe;
    ASSERT_TRUE(Create(pipe));
    const int open = CountOpenHandles();
    EXPECT_GT(open, before);
    ASSERT_TRUE(Create(pipe));
    EXPECT_EQ(CountOpenHandles(), open);
  }
  EXPECT_EQ(CountOpenHandles(), before);
}

TEST(Pipe, IsClosedOnceAndThenHasNothingToClose) {
  Pipe pipe;
  ASSERT_TRUE(Create(pipe));
  EXPECT_TRUE(pipe.Read.Close());
  EXPECT_EQ(pipe.Read.Get(), nullptr);
  EXPECT_TRUE(pipe.Read.Close());
}

}  // namespace
