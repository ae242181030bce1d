#include <gtest/gtest.h>

#include "base/Encoding.h"

namespace {

TEST(NativeEncoding, IsMadeWellFormedOnTheWayOut) {
  EXPECT_EQ(zrkhost::Utf8FromNative("T\u00fcr"), "T\u00fcr");
  EXPECT_EQ(zrkhost::Utf8FromNative("a\xff\xfe"
                                    "b"),
            "a\uFFFD\uFFFDb");
}

}  // namespace
