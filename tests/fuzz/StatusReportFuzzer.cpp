// The report of `cvs status -v`: its splitting, and the reading of its blocks.

#include "cvs/ReportTables.h"
#include "cvs/StatusBlock.h"
#include "fuzz/Fuzzing.h"

namespace {

using namespace zrk::cvs;

constexpr std::string_view kSeparator = "=====";
constexpr char kCVSRoot[] = ":ext:anna@host:/cvs/root";
const CATUnicodeString kSandboxRoot = "\\home\\anna\\";

// What stands between separators, from where a file begins in it.
std::vector<std::string_view> Blocks(std::string_view report) {
  std::vector<std::string_view> blocks;
  for (bool more = true; more;) {
    const std::size_t end = report.find(kSeparator);
    const std::string_view piece = report.substr(0, end);
    if (const std::size_t start = piece.find("File:"); start != std::string_view::npos) {
      blocks.push_back(piece.substr(start));
    }
    more = end != std::string_view::npos;
    if (more) report.remove_prefix(end + kSeparator.size());
  }
  return blocks;
}

ReportTable Split(std::string_view report) {
  ReportTable table;
  AddStatusReport(report, kSandboxRoot, kCVSRoot, table);
  return table;
}

std::string Key(std::string_view block) {
  return kSandboxRoot.ConvertToChar() + GetRepositoryPath(block, kCVSRoot);
}

void SplittingLosesNoByte(std::string_view report) {
  ReportTable expected;
  for (const std::string_view block : Blocks(report)) expected.try_emplace(Key(block), block);
  Require(Split(report) == expected, "each byte between separators is in the block of its file");
}

std::size_t SizeOf(const ZRKCVSStatus& record) {
  int size = 0;
  for (const CATUnicodeString* field :
       {&record.File, &record.Status, &record.WorkingRevision, &record.RepositoryRevision,
        &record.ExpansionOption, &record.CommitIdentifier, &record.StickyTag, &record.StickyDate,
        &record.StickyOptions, &record.MergeFrom, &record.ExistingTags}) {
    size += field->GetLengthInByte();
  }
  return static_cast<std::size_t>(size);
}

void ReadingIsBoundedAndRepeatable(std::string_view block) {
  ZRKCVSStatus record;
  Require(ParseCVSStatusBlock(block, record) == 0, "a block is read with result 0");
  // The first tag's line may hold a label, too.
  Require(SizeOf(record) <= 2 * block.size(), "a record holds no more than its block");
  const std::string tags = record.ExistingTags.ConvertToChar();
  const std::string file = record.File.ConvertToChar();
  ParseCVSStatusBlock(block, record);
  Require(record.ExistingTags.ConvertToChar() == tags + tags, "tags are appended");
  Require(record.File.ConvertToChar() == file, "all else is assigned");

  const std::string path = GetRepositoryPath(block, kCVSRoot);
  Require(path.size() <= block.size() && path.find('/') == std::string::npos,
          "a path has the host's separators");
}

struct Reported {
  std::string Name;
  std::string Path;
  std::string Status;
  std::string Revision;
  std::string Option;
  std::string Tag;
};

std::string Write(const Reported& file) {
  std::string block = "File: " + file.Name + "\tStatus: " + file.Status + "\r\n\r\n   Working revision:\t" +
                      file.Revision + "\r\n   Repository revision:\t" + file.Revision + "\t/cvs/root/" +
                      file.Path + ",v\r\n   Sticky Options:\t" + file.Option + "\r\n\r\n";
  if (!file.Tag.empty()) block += "   Existing Tags:\r\n\t" + file.Tag + "\r\n\tlast\r\n\r\n";
  return block;
}

std::string WithoutBlanks(std::string text) {
  std::erase(text, ' ');
  return text;
}

void ValuesComeBack(FuzzedDataProvider& values) {
  std::vector<Reported> files;
  std::string report = "cvs status: Examining .\r\n";
  for (const std::string& name : ConsumeNames(values, 8)) {
    const std::string folder = ConsumeWord(values, "ab/", 10);
    Reported file{name,
                  folder + "/" + name,
                  ConsumeWord(values, kNameCharacters, 20),
                  ConsumeWord(values, "0123456789.", 12),
                  ConsumeWord(values, kNameCharacters, 6),
                  ConsumeWord(values, kNameCharacters, 30)};
    report += "===================================================================\r\n" + Write(file);
    files.push_back(std::move(file));
  }

  const ReportTable table = Split(report);
  Require(table.size() == files.size(), "each file of a report is filed");
  for (const Reported& file : files) {
    std::string key = kSandboxRoot.ConvertToChar() + file.Path;
    std::replace(key.begin(), key.end(), '/', '\\');
    const auto found = table.find(key);
    Require(found != table.end(), "a file is filed by its path");
    Require(found->second == Write(file), "its block is what the client wrote");
    ZRKCVSStatus record;
    ParseCVSStatusBlock(found->second, record);
    Require(record.File.ConvertToChar() == WithoutBlanks(file.Name) + "\t", "the name");
    Require(record.Status.ConvertToChar() == file.Status + "\r", "the status");
    Require(record.WorkingRevision.ConvertToChar() == file.Revision, "the revision");
    Require(record.RepositoryRevision.ConvertToChar() == file.Revision + "/cvs/root/" + file.Path + ",v",
            "the repository revision");
    Require(record.StickyOptions.ConvertToChar() == file.Option, "the sticky options");
    Require(record.ExistingTags.ConvertToChar() == file.Tag, "the first tag");
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view report = Text(data, size);
  SplittingLosesNoByte(report);
  for (const std::string_view block : Blocks(report)) ReadingIsBoundedAndRepeatable(block);
  ReadingIsBoundedAndRepeatable(report);
  FuzzedDataProvider values(data, size);
  ValuesComeBack(values);
  return 0;
}
