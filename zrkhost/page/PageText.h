#pragma once

#include <map>
#include <string>
#include <string_view>

// Texts on their way into a page. All are UTF-8.
namespace zrkhost {

// The text as the content or the quoted attribute of an element shows it. Line ends and tabs stay; other
// control characters, which HTML does not take, become their pictures, such as U+2407 for the bell, or U+FFFD
// where there is none.
std::string HtmlText(std::string_view text);

// JSON that stands in a script element: nothing in it can end the element or be taken for markup.
std::string JsonForScript(std::string_view json);

// The page with each of `parts` in the place of the sample of that name, which stands between <!--[name]-->
// and
// <!--[/name]-->; the marks go. Throws std::logic_error when a sample has no part.
std::string FillPage(std::string_view page, const std::map<std::string, std::string>& parts);

}  // namespace zrkhost
