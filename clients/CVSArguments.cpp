#include "CVSArguments.h"

#include <algorithm>
#include <string_view>

#include "Slashes.h"

namespace {

bool IsOption(std::string_view argument) {
  return argument.size() > 1 && argument.front() == '-';
}

// Whether the value of that option stands in the argument behind it. An option with its value attached,
// such as -d/cvs, has none there.
bool TakesNextArgument(std::string_view option, std::string_view lettersWithValue) {
  return option.size() == 2 && lettersWithValue.find(option[1]) != std::string_view::npos;
}

constexpr std::string_view kGlobalLettersWithValue = "Tdesz";

std::string_view LettersWithValue(std::string_view command) {
  // Everywhere else -a is a flag.
  const bool watches = command == "edit" || command == "unedit" || command == "watch";
  return watches ? "a" : "DFIWjkmr";
}

}  // namespace

CVSCall TranslateCVSCall(const std::vector<std::string>& arguments) {
  CVSCall call;
  std::vector<std::string>& translated = call.Arguments;
  auto argument = arguments.begin();
  const auto end = arguments.end();

  bool dryRun = false;
  for (; argument != end && IsOption(*argument); ++argument) {
    if (*argument == "-x") continue;
    dryRun = dryRun || *argument == "-n";
    translated.push_back(*argument);
    if (TakesNextArgument(*argument, kGlobalLettersWithValue) && argument + 1 != end) {
      translated.push_back(*++argument);
    }
  }
  if (argument == end) return call;

  const bool edit = *argument == "edit";
  const bool asksForEditors = edit && dryRun;
  call.Command = asksForEditors ? "editors" : *argument;
  translated.push_back(call.Command);
  const std::string_view lettersWithValue = LettersWithValue(*argument);

  bool optionsEnded = false;
  for (++argument; argument != end; ++argument) {
    if (optionsEnded || !IsOption(*argument)) {
      translated.push_back(WithSlashes(*argument));
      continue;
    }
    optionsEnded = *argument == "--";
    const bool hasValue = TakesNextArgument(*argument, lettersWithValue) && argument + 1 != end;
    const bool foreign =
        asksForEditors ? *argument != "-l" && *argument != "-R" && !optionsEnded : edit && *argument == "-z";
    if (!foreign) translated.push_back(*argument);
    if (hasValue) {
      ++argument;
      if (!foreign) translated.push_back(*argument);
    }
  }
  return call;
}
