#include "base/Encoding.h"

#include "text/NativeText.h"

namespace zrkhost {

std::string Utf8FromNative(std::string_view text) {
  return Utf8FromWide(standin::WideFromNative(text));
}

std::filesystem::path PathFromUtf8(std::string_view text) {
  return std::filesystem::path(std::u8string(text.begin(), text.end()));
}

std::string Utf8FromPath(const std::filesystem::path& path) {
  const auto text = path.generic_u8string();
  return {text.begin(), text.end()};
}

}  // namespace zrkhost
