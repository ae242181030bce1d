#pragma once

#include <string>

namespace zrkhost {

// Which working copy a folder of CVS belongs to, as the library reads it from the files of the client. Native
// encoding, paths as the host writes them.
struct CVSWorkingCopy {
  // What stands in CVS\Root; empty when that is not there.
  std::string Root;
  // The folder that the client is run in: the path up to where what stands in CVS\Repository occurs first;
  // empty when it does not occur.
  std::string ClientFolder;

  // Without both the client is not run.
  bool IsWhole() const { return !Root.empty() && !ClientFolder.empty(); }
  bool operator==(const CVSWorkingCopy&) const = default;
};

// `folder` is as the host writes it, without a "\" at its end.
CVSWorkingCopy CVSWorkingCopyOf(const std::string& folder);

}  // namespace zrkhost
