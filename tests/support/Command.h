#pragma once

#include <filesystem>
#include <map>
#include <string>
#include <vector>

// Running a program to its end. Linux only.

struct CommandResult {
  // Exit status, or 128 and the number of the signal that ended it.
  int Status = 0;
  // What it wrote to standard output and standard error, in the order in which it came.
  std::string Output;
};

struct CommandOptions {
  // Empty: that of this process.
  std::filesystem::path Folder;
  std::string Input;
  // Added to this process's environment.
  std::map<std::string, std::string> Environment;
};

// The first argument is the program, searched for along PATH. Throws when it cannot be started.
CommandResult RunCommand(const std::vector<std::string>& arguments, const CommandOptions& options = {});

// The same, but throws, with the output, when the status is not 0.
std::string RunCommandOrThrow(const std::vector<std::string>& arguments, const CommandOptions& options = {});
