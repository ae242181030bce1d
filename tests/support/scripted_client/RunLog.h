#pragma once

#include <string>
#include <string_view>
#include <vector>

// The log of all runs of the scripted clients, a text file with one line for each thing that happened;
// every word is escaped as in Escapes.h and stands behind one blank.
//
//   run ID PROGRAM FOLDER ARGUMENT...   a client was started; ID is its process
//   in ID BYTES                         it read from standard input
class RunLog {
public:
  // An empty path: nothing is logged.
  RunLog(std::string path, int id);

  void Started(std::string_view program, std::string_view folder, const std::vector<std::string>& arguments);
  void Read(std::string_view bytes);

private:
  std::string path_;
  std::string id_;
};
