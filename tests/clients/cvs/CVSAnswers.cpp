#include "CVSAnswers.h"

#include <algorithm>
#include <sstream>
#include <vector>

#include "support/Command.h"

namespace fs = std::filesystem;

namespace {

std::vector<std::string> Lines(const std::string& text) {
  std::vector<std::string> lines;
  std::istringstream stream(text);
  for (std::string line; std::getline(stream, line);) lines.push_back(line);
  return lines;
}

std::string Field(const std::string& line, std::size_t number) {
  std::istringstream stream(line);
  std::string field;
  for (std::size_t i = 0; i <= number; ++i) std::getline(stream, field, '\t');
  return field;
}

std::string WithoutPadding(std::string text) {
  text.erase(text.find_last_not_of(' ') + 1);
  return text;
}

void AskAboutFolder(const fs::path& folder, const std::string& prefix,
                    std::map<std::string, CVSAnswer>& answers) {
  const std::string report = RunCommandOrThrow({"cvs", "-Q", "status", "-v", "-l"},
                                               {.Folder = folder, .Input = "", .Environment = {}});
  CVSAnswer* answer = nullptr;
  bool tagIsNext = false;
  for (const std::string& line : Lines(report)) {
    if (line.starts_with("File: ")) {
      answer = &answers[prefix + WithoutPadding(Field(line, 0).substr(6))];
      answer->Status = Field(line, 1).substr(std::string("Status: ").size());
    } else if (line.starts_with("   Working revision:")) {
      answer->Revision = Field(line, 1);
    } else if (tagIsNext) {
      answer->FirstTag = line;
      std::erase(answer->FirstTag, '\t');
    }
    tagIsNext = line == "   Existing Tags:";
  }
}

}  // namespace

std::map<std::string, CVSAnswer> AskCVS(const std::string& root, const fs::path& workingCopy) {
  std::map<std::string, CVSAnswer> answers;
  AskAboutFolder(workingCopy, "", answers);
  for (const fs::directory_entry& entry : fs::recursive_directory_iterator(workingCopy)) {
    if (!fs::exists(entry.path() / "CVS")) continue;
    AskAboutFolder(entry.path(), fs::relative(entry.path(), workingCopy).string() + "/", answers);
  }

  const std::string module = workingCopy.filename();
  const std::string editors =
      RunCommandOrThrow({"cvs", "-Q", "-d", root, "editors", module},
                        {.Folder = workingCopy.parent_path(), .Input = "", .Environment = {}});
  for (const std::string& line : Lines(editors)) {
    // A further editor's line begins with a tab.
    if (line.starts_with('\t')) continue;
    CVSAnswer& answer = answers[Field(line, 0).substr(module.size() + 1)];
    answer.Editor = line;
    std::replace(answer.Editor.begin(), answer.Editor.end(), '\t', '\n');
  }
  return answers;
}
