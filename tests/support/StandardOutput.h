#pragma once

#include <filesystem>

// File descriptor 1 of this process.

// Lets it lead to a new file, and gives the descriptor that keeps what it led to.
int RedirectStandardOutput(const std::filesystem::path& file);
void RestoreStandardOutput(int original);
