#pragma once

#include <string>
#include <string_view>

// Texts from clients and files as they are shown to a person.
namespace zrkhost {

enum class LineBreaks { Escape, Keep };

// The text with control characters, and characters that reorder a line, written as escapes such as \n and
// \x1b, so that it cannot drive the terminal. Keep: line ends stay, without their carriage returns. The
// text is UTF-8; bytes that are not are escaped too.
std::string DisplayText(std::string_view text, LineBreaks lineBreaks = LineBreaks::Escape);

// The lines of a text on one, as DisplayText gives them: without the blanks around each, a blank between two.
// Lines of nothing are left out; of a line that is ruled with "-" one "-" stays, but none at either end.
std::string OneLine(std::string_view text);

// Columns that a text of DisplayText takes on a terminal.
int DisplayWidth(std::string_view text);

// The text, cut to at most `width` columns with an ellipsis at its end where something is missing.
std::string CutToWidth(std::string_view text, int width);

}  // namespace zrkhost
