#pragma once

#include <filesystem>
#include <string>

#include "session/SessionDescription.h"

namespace zrkhost {

// The session that a JSON file describes. Throws CallError with the file's name, the JSON pointer of the
// place and what is wrong there.
SessionDescription ReadSessionFile(const std::filesystem::path& file);

// The same from the file's text. `folder`, absolute, is where relative document folders start.
SessionDescription ParseSession(const std::string& text, const std::string& fileName,
                                const std::filesystem::path& folder);

}  // namespace zrkhost
