#pragma once

#include <string_view>

namespace zrkhost {

// Columns that the characters take on a terminal, as the system counts them: marks that stand on the
// character before them none, East Asian characters and emoji two.
int CharacterWidth(std::u32string_view characters);

}  // namespace zrkhost
