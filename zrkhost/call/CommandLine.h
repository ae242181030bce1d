#pragma once

#include <optional>
#include <string>
#include <vector>

namespace zrkhost {

// What a call of the program asks for. Texts are in the native encoding.
struct Options {
  // One of these two is given.
  std::optional<std::string> SessionFile;
  std::optional<std::string> Folder;
  std::optional<std::string> Root;
  std::vector<std::string> Commands;
  // "-" is standard input.
  std::optional<std::string> CommandFile;
  std::optional<std::string> Answer;
  bool Verbose = false;
  std::optional<std::string> Report;
  std::optional<std::string> Page;
  std::optional<std::string> Plugin;
  std::optional<std::string> Clients;
};

// Absent when the program has nothing more to do: `status` is what to end with, and what was asked for, or
// what is wrong, has been printed.
std::optional<Options> ParseCommandLine(int argc, char** argv, int& status);

}  // namespace zrkhost
