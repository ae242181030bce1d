#include "Encoding.h"

namespace zrkhost {

std::string NativeFromUtf8(std::string_view text) {
  return std::string(text);
}

std::filesystem::path PathFromNative(const std::string& text) {
  return text;
}

}  // namespace zrkhost
