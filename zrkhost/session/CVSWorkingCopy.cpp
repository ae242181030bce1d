#include "session/CVSWorkingCopy.h"

#include <algorithm>
#include <fstream>
#include <iterator>

#include "core/HostPath.h"

namespace zrkhost {

namespace {

std::string TextOf(const std::string& file) {
  std::ifstream stream(standin::FilePath(file), std::ios::binary);
  std::string text{std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
  std::erase_if(text, [](char character) { return character == '\r' || character == '\n'; });
  return text;
}

}  // namespace

CVSWorkingCopy CVSWorkingCopyOf(const std::string& folder) {
  auto repository = TextOf(folder + "\\CVS\\Repository");
  std::replace(repository.begin(), repository.end(), '/', '\\');
  const auto below = folder.find(repository);
  return {.Root = TextOf(folder + "\\CVS\\Root"),
          .ClientFolder = below == std::string::npos ? "" : folder.substr(0, below)};
}

}  // namespace zrkhost
