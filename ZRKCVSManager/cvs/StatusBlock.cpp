#include "cvs/StatusBlock.h"
#include "text/Text.h"

namespace zrk::cvs {

using text::NextLine;
using text::Piece;
using text::Replaced;
namespace {

constexpr std::string_view kFile = "File:";
constexpr std::string_view kStatus = "Status:";
constexpr std::string_view kWorkingRevision = "Working revision:";
constexpr std::string_view kRepositoryRevision = "Repository revision:";
constexpr std::string_view kExistingTags = "Existing Tags:";

struct Label {
  std::string_view Text;
  CATUnicodeString ZRKCVSStatus::*Field;
};

// In the order in which they are looked for.
constexpr Label kLabels[] = {
    {kRepositoryRevision, &ZRKCVSStatus::RepositoryRevision},
    {"Expansion option:", &ZRKCVSStatus::ExpansionOption},
    {"Commit Identifier:", &ZRKCVSStatus::CommitIdentifier},
    {"Sticky Tag:", &ZRKCVSStatus::StickyTag},
    {"Sticky Date:", &ZRKCVSStatus::StickyDate},
    {"Sticky Options:", &ZRKCVSStatus::StickyOptions},
    {"Merge From:", &ZRKCVSStatus::MergeFrom},
};

std::string Without(std::string_view text, std::string_view removed) {
  std::string result;
  result.reserve(text.size());
  for (const char character : text) {
    if (removed.find(character) == std::string_view::npos) result += character;
  }
  return result;
}

// What follows a label, without the line's last character.
std::string_view ValueFrom(std::string_view line, std::size_t start) {
  return Piece(line, start,
               static_cast<std::ptrdiff_t>(line.size()) - static_cast<std::ptrdiff_t>(start) - 1);
}

void ParseFileLine(std::string_view line, std::size_t filePosition, ZRKCVSStatus& record) {
  const std::size_t statusPosition = line.find(kStatus);
  if (statusPosition == std::string_view::npos) return;
  const std::size_t name = filePosition + kFile.size();
  const auto nameLength = static_cast<std::ptrdiff_t>(statusPosition) - static_cast<std::ptrdiff_t>(name);
  record.File = Without(Piece(line, name, nameLength), " ").c_str();
  const std::size_t words = statusPosition + kStatus.size() + 1;
  record.Status = std::string(Piece(line, words, -1)).c_str();
}

// A record holds the first tag alone: of the lines below the label the first that has more than the one
// character that every value loses.
void AppendFirstTag(std::string_view block, ZRKCVSStatus& record) {
  const std::size_t label = block.find(kExistingTags);
  if (label == std::string_view::npos) return;
  const std::size_t lineEnd = block.find('\n', label);
  if (lineEnd == std::string_view::npos) return;
  std::string_view rest = block.substr(lineEnd);
  for (std::string_view line = NextLine(rest); !line.empty(); line = NextLine(rest)) {
    line.remove_suffix(1);
    if (line.empty()) continue;
    record.ExistingTags += Without(line, "\t").c_str();
    return;
  }
}

}  // namespace

void ParseCVSStatusLine(std::string_view line, ZRKCVSStatus& record) {
  if (const std::size_t position = line.find(kFile); position != std::string_view::npos) {
    ParseFileLine(line, position, record);
    return;
  }
  if (const std::size_t position = line.find(kWorkingRevision); position != std::string_view::npos) {
    record.WorkingRevision = Without(ValueFrom(line, position + kWorkingRevision.size()), " \t").c_str();
    return;
  }
  for (const Label& label : kLabels) {
    if (const std::size_t position = line.find(label.Text); position != std::string_view::npos) {
      record.*label.Field = Without(ValueFrom(line, position + label.Text.size()), "\t").c_str();
      return;
    }
  }
}

int ParseCVSStatusBlock(std::string_view block, ZRKCVSStatus& record) {
  std::string_view rest = block;
  for (std::string_view line = NextLine(rest); !line.empty(); line = NextLine(rest)) {
    ParseCVSStatusLine(line, record);
  }
  AppendFirstTag(block, record);
  return 0;
}

std::string GetRepositoryPath(std::string_view block, std::string_view cvsRoot) {
  const std::size_t rootFolder = cvsRoot.find('/');
  if (rootFolder == std::string_view::npos) return {};
  const std::string_view folder = cvsRoot.substr(rootFolder);

  const std::size_t label = block.find(kRepositoryRevision);
  if (label == std::string_view::npos) return {};
  const std::size_t folderPosition = block.find(folder, label + kRepositoryRevision.size() + 1);
  if (folderPosition == std::string_view::npos) return {};
  const std::size_t start = folderPosition + folder.size() + 1;
  const std::size_t end = block.find(",v", folderPosition);
  const std::ptrdiff_t length = end == std::string_view::npos
                                    ? -1
                                    : static_cast<std::ptrdiff_t>(end) - static_cast<std::ptrdiff_t>(start);
  return Replaced(Piece(block, start, length), '/', '\\');
}

}  // namespace zrk::cvs
