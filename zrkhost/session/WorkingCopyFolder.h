#pragma once

#include <filesystem>

namespace zrkhost {

enum class WorkingCopyKind { None, CVS, Subversion };

// What the files beside a document say about its folder:
//
//   CVS         CVS/Repository in the folder
//   Subversion  .svn/entries in the folder, or .svn/wc.db in it or in the nearest folder above that holds
//               one; the way up ends at a folder of CVS and at one with a list of entries of its own
//
// A folder that does not exist is none.
WorkingCopyKind WorkingCopyKindOf(const std::filesystem::path& folder);

// Whether it is a client's own folder beside the files of a working copy.
bool IsClientsFolder(const std::filesystem::path& folder);

// Whether a product with a document in this folder is the last one of its branch in which the library looks
// for a working copy: in one of CVS, and in one of Subversion but for those with a list of entries.
bool EndsSearch(const std::filesystem::path& folder);

}  // namespace zrkhost
