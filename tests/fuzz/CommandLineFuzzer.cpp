// The splitting of a command line by the rules of the Microsoft C runtime.

#include "fuzz/Fuzzing.h"
#include "windows/CommandLine.h"

namespace {

std::string WithoutSyntax(std::string text) {
  std::erase_if(text, [](char character) {
    return std::string_view(" \t\"\\").find(character) != std::string_view::npos;
  });
  return text;
}

void NoByteIsLost(const std::string& line) {
  const std::vector<std::string> arguments = standin::SplitCommandLine(line);
  Require(!arguments.empty(), "there is always a first argument");
  std::string joined;
  for (const std::string& argument : arguments) joined += argument;
  Require(joined.size() <= line.size(), "splitting adds nothing");
  Require(WithoutSyntax(joined) == WithoutSyntax(line),
          "all but blanks, quotes and backslashes comes through in order");
}

// In quotes, with what a quote and the closing one need in front of them.
std::string Quoted(const std::string& argument) {
  std::string quoted = "\"";
  std::size_t backslashes = 0;
  for (const char character : argument) {
    if (character == '"') quoted.append(backslashes + 1, '\\');
    backslashes = character == '\\' ? backslashes + 1 : 0;
    quoted += character;
  }
  return quoted.append(backslashes, '\\') + "\"";
}

void ArgumentsComeBack(FuzzedDataProvider& values) {
  std::string line;
  std::vector<std::string> expected{""};
  while (values.remaining_bytes() > 0) {
    expected.push_back(ConsumeWord(values, "ab \t\"\\", 12));
    line += std::string(1, values.ConsumeBool() ? ' ' : '\t') + Quoted(expected.back());
  }
  Require(standin::SplitCommandLine(line) == expected, "quoted arguments come back as they were");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  NoByteIsLost(std::string(Text(data, size)));
  FuzzedDataProvider values(data, size);
  ArgumentsComeBack(values);
  return 0;
}
