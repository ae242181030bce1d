#include "core/HostPath.h"

#include "text/NativeText.h"

namespace standin {

std::string HostPath(const std::filesystem::path& path) {
  return NativeFromWide(std::filesystem::path(path).make_preferred().wstring());
}

std::filesystem::path FilePath(std::string_view hostPath) {
  return WideFromNative(hostPath);
}

}  // namespace standin
