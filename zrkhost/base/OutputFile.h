#pragma once

#include <filesystem>
#include <fstream>
#include <string>
#include <string_view>

namespace zrkhost {

// A file that a call is asked to write in the end. It is opened before anything is run, so that one that
// cannot be written is known by then. What it held before stays until it is written; one that was not there
// goes again when it is not written.
class OutputFile {
public:
  // `what` it holds, for messages, such as "report". Throws CallError.
  OutputFile(const std::filesystem::path& file, const std::string& what);
  ~OutputFile();
  OutputFile(const OutputFile&) = delete;
  OutputFile& operator=(const OutputFile&) = delete;

  // All that the file holds. False when it does not take it.
  bool Write(std::string_view text);

private:
  std::filesystem::path file_;
  bool isNew_;
  std::ofstream stream_;
  // A pipe or a device holds nothing that could be in the way.
  bool isRegular_;
};

}  // namespace zrkhost
