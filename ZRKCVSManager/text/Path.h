#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

// Parts of the host's paths: 8-bit text in the active code page, separated by "\". All is done by
// characters. In a double-byte code page the second byte of a letter may be that of "\"; it separates
// nothing, and no text begins there. The views are good as long as the path that was passed.
namespace zrk::text {

// What stands before the last separator; the whole path without one.
std::string_view FolderOf(std::string_view path);

// The folder above one that is written without a closing "\"; nothing above a drive, a `\\server\share` and a
// name without a separator. The root of the current drive is empty.
std::optional<std::string_view> FolderAbove(std::string_view folder);

// What stands behind the last separator; the whole path without one.
std::string_view NameOf(std::string_view path);

// Position in bytes of the first place where the text occurs; npos when there is none.
std::size_t Find(std::string_view path, std::string_view text);

}  // namespace zrk::text
