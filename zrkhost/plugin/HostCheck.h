#pragma once

#include <filesystem>

#include "ZRKHostCheck.h"

namespace zrkhost {

// The host check, loaded at run time as a host would load it.
class HostCheck {
public:
  // Throws CallError, with the file's name and the reason, when the file cannot be loaded or is not the
  // check.
  explicit HostCheck(const std::filesystem::path& file);

  // See ZRKCheckHost.
  int Run(CATBaseUnknown* product, ZRKHostCheckReport report, void* context) const {
    return checkHost_(product, report, context);
  }

private:
  decltype(&ZRKCheckHost) checkHost_ = nullptr;
};

}  // namespace zrkhost
