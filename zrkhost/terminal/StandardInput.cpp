#include "terminal/StandardInput.h"

#include <cstdio>
#include <iostream>
#include <iterator>

#include "base/CallError.h"

namespace zrkhost {

std::string ReadStandardInput() {
  const std::string text{std::istreambuf_iterator<char>(std::cin), std::istreambuf_iterator<char>()};
  // The stream itself takes a failure for the end.
  if (std::ferror(stdin)) throw CallError("standard input: cannot be read");
  return text;
}

bool ReadLine(std::string& line) {
  std::clearerr(stdin);
  std::cin.clear();
  return static_cast<bool>(std::getline(std::cin, line));
}

}  // namespace zrkhost
