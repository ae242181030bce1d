#include "terminal/OutputCapture.h"

#include <cstdio>
#include <iostream>
#include <utility>

namespace zrkhost {

void OutputCapture::Forward() {
  std::cout.flush();
  std::wcout.flush();
  std::fflush(stdout);
  const auto text = ReadNew();
  WriteReal(text);
  taken_ += text;
}

std::string OutputCapture::Take() {
  Forward();
  return std::exchange(taken_, {});
}

void OutputCapture::Write(std::string_view text) {
  Forward();
  WriteReal(text);
}

}  // namespace zrkhost
