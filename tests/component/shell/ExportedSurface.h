#pragma once

#include <set>
#include <string>

// What the built library lets other modules link to, by the names the linker knows. An entry that other
// modules could reach without a name counts too, under a name of its own.
std::set<std::string> ExportedNames();
