#pragma once

#include <filesystem>
#include <map>
#include <string>

// What the client says about one file.
struct CVSAnswer {
  std::string Status;
  std::string Revision;
  // The first line below "Existing Tags:", without its tab stops.
  std::string FirstTag;
  // The first editor's line of `cvs editors`, with line feeds for its tab stops; empty when nobody edits.
  std::string Editor;
};

// Asks the installed client itself, folder by folder, about all it knows of the working copy. The keys are
// paths below it.
std::map<std::string, CVSAnswer> AskCVS(const std::string& root, const std::filesystem::path& workingCopy);
