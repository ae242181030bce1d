#pragma once

#include <string_view>

namespace zrkhost {

// The text of page.html, as it was when the program was configured.
std::string_view PageSource();

}  // namespace zrkhost
