#include "Encoding.h"

#include "text/NativeText.h"

namespace zrkhost {

std::string NativeFromUtf8(std::string_view text) {
  return standin::NativeFromWide(PathFromUtf8(text).wstring());
}

std::filesystem::path PathFromNative(const std::string& text) {
  return standin::WideFromNative(text);
}

}  // namespace zrkhost
