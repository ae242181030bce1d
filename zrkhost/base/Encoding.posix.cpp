#include "base/Encoding.h"

namespace zrkhost {

std::filesystem::path PathFromNative(const std::string& text) {
  return text;
}

}  // namespace zrkhost
