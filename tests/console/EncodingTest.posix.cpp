#include <gtest/gtest.h>

#include "Encoding.h"

namespace {

TEST(NativeEncoding, IsUtf8AndKeepsEveryByteOnTheWayIn) {
  EXPECT_EQ(zrkhost::NativeFromUtf8("T\u00fcr\xff"), "T\u00fcr\xff");
}

TEST(NativeEncoding, IsMadeWellFormedOnTheWayOut) {
  EXPECT_EQ(zrkhost::Utf8FromNative("T\u00fcr"), "T\u00fcr");
  EXPECT_EQ(zrkhost::Utf8FromNative("a\xff\xfe"
                                    "b"),
            "a\uFFFD\uFFFDb");
}

}  // namespace
