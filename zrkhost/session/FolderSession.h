#pragma once

#include <filesystem>
#include <optional>

#include "session/SessionDescription.h"

namespace zrkhost {

// A session made from a working copy: every file below `folder`, the clients' own folders CVS and .svn aside,
// is the document of a product that is named after the file's path below `folder`, with "/". The root is the
// file `root`, or the first by name at the top of the folder; all others are its children, by name.
// Folders behind symbolic links are not entered. Throws CallError, also when a file's path holds a "\" that
// is no separator: to the host it would be one, and the product would get another file's document.
SessionDescription SessionOfFolder(const std::filesystem::path& folder,
                                   const std::optional<std::filesystem::path>& root);

}  // namespace zrkhost
