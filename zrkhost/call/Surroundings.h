#pragma once

#include <filesystem>
#include <string>

// The program's own place and its environment.
namespace zrkhost {

// The component library beside this program, or where it was installed to go with it.
std::filesystem::path DefaultPlugin();
// The same of the host check.
std::filesystem::path DefaultHostCheck();
// The folder of the client adapters that go with this program; empty when there is none.
std::filesystem::path DefaultClients();

// Puts a folder behind those of the PATH environment variable. False, and nothing is done, when its name
// holds the character that separates folders there.
bool AppendToPath(const std::filesystem::path& folder);

// Absolute path of the running program.
std::filesystem::path ProgramFile();
// What the platform calls the file of a library of that name.
std::string LibraryFileName(const std::string& name);

}  // namespace zrkhost
