#pragma once

#include <optional>
#include <string>

#include "session/SessionDescription.h"

namespace zrkhost {

// What a product with these attributes shows of its file, to stand behind a result: such as
// `, now "Locked" (Locked by: ben), revision 1.4`. Without a status, or without attributes, it begins with
// `, now no status`. Another value that is empty is left out, and so are the lines of a comment that hold
// nothing; the others stand on one line. For a terminal, as DisplayText gives it.
std::string ShownStatus(const std::optional<AttributeValues>& attributes);

}  // namespace zrkhost
