#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace standin {

// The arguments that a program built with the Microsoft C runtime sees for a command line:
// - Blanks and tabs separate arguments; within double quotes they do not.
// - The program's name, the first, knows quotes only; it is empty when the line starts with a blank.
// - In the others, backslashes are literal unless a quote follows: 2n of them and a quote give n and
//   the quote opens or closes, 2n+1 and a quote give n and a literal quote.
// - Within quotes two quotes give a literal one.
// There is always a first argument. A letter of two bytes is taken as a whole: its second byte is no
// backslash.
std::vector<std::string> SplitCommandLine(std::string_view line);

}  // namespace standin
