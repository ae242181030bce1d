#include <gtest/gtest.h>
#include <unistd.h>

#include <cstdio>
#include <cwchar>
#include <iostream>

#include "RedirectedStream.h"

TEST(WideOutput, MixesWithNarrowOutputInOrder) {
  const RedirectedStream output(STDOUT_FILENO);
  std::printf("narrow 1\n");
  wprintf(L"wide 2\n");
  std::cout << "stream 3\n";
  wprintf(L"wide 4\n");
  std::printf("narrow 5\n");
  EXPECT_EQ(output.Text(), "narrow 1\nwide 2\nstream 3\nwide 4\nnarrow 5\n");
}

TEST(WideOutput, FollowsItsFormat) {
  const RedirectedStream output(STDOUT_FILENO);
  wprintf(L"%d of %ls, %5.2f\n", 3, L"four", 1.5);
  EXPECT_EQ(output.Text(), "3 of four,  1.50\n");
}

TEST(WideOutput, CountsWideCharacters) {
  const RedirectedStream output(STDOUT_FILENO);
  EXPECT_EQ(wprintf(L"\u00E4\U0001F527!"), 3);
  EXPECT_EQ(wprintf(L""), 0);
  EXPECT_EQ(output.Text(), "\xC3\xA4\xF0\x9F\x94\xA7!");
}

TEST(WideOutput, KeepsLongTextsAndNulCharacters) {
  const std::wstring line(100000, L'x');
  const RedirectedStream output(STDOUT_FILENO);
  EXPECT_EQ(wprintf(L"%ls%lc.", line.c_str(), L'\0'), 100002);
  EXPECT_EQ(output.Text(), std::string(100000, 'x') + '\0' + '.');
}
