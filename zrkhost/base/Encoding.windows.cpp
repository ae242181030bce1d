#include "base/Encoding.h"

#include "text/NativeText.h"

namespace zrkhost {

std::filesystem::path PathFromNative(const std::string& text) {
  return standin::WideFromNative(text);
}

}  // namespace zrkhost
