#pragma once

#include <filesystem>
#include <string>
#include <vector>

struct ProgramResult {
  // Exit status; 128 and more: it was ended by a signal.
  int Status = 0;
  std::string Output;
  std::string Error;
};

// Runs a program to its end with `input` as its standard input. Line ends come back as LF.
ProgramResult RunProgram(const std::filesystem::path& program, const std::vector<std::string>& arguments,
                         const std::string& input = "");
