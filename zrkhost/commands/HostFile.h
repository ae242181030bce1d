#pragma once

#include <string>

namespace zrkhost {

// The file that a person named, as the library takes it: a full path separated by "\". A relative one is
// meant from the current folder and comes back lexically normal, without "." and ".."; a full one stays as it
// was given but for its separators. An empty one stays empty. Native encoding.
std::string HostFile(const std::string& file);

}  // namespace zrkhost
