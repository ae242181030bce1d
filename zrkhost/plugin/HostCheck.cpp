#include "plugin/HostCheck.h"

#include "base/CallError.h"
#include "base/Encoding.h"
#include "plugin/Library.h"

namespace zrkhost {

namespace fs = std::filesystem;

HostCheck::HostCheck(const fs::path& file) {
  const auto library = LoadSharedLibrary(fs::absolute(file));
  if (!library.Handle) {
    throw CallError(Utf8FromPath(file) +
                    ": cannot be loaded as the host check: " + Utf8FromNative(library.Error));
  }
  checkHost_ = reinterpret_cast<decltype(checkHost_)>(FindSymbol(library.Handle, "ZRKCheckHost"));
  if (!checkHost_)
    throw CallError(Utf8FromPath(file) + ": is not the host check: it does not export ZRKCheckHost");
}

}  // namespace zrkhost
