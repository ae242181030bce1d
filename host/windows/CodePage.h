#pragma once

// The code page of this process's 8-bit text.
namespace standin {

inline constexpr unsigned int kUtf8CodePage = 65001;

// UTF-8 at first. A process of Windows has the same one for its life: change it where nothing else runs.
// Besides UTF-8 there are the pages with letters of two bytes: 932, 936, 949 and 950.
void SetCodePage(unsigned int codePage);
unsigned int CodePage();

}  // namespace standin
