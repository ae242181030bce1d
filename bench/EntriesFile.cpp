// Looking up a file in a working copy's entries file.

#include "svn/EntriesFile.h"

#include <cstdio>
#include <memory>
#include <stdexcept>
#include <string>

#include "Measurement.h"
#include "support/Files.h"
#include "support/TemporaryFolder.h"

namespace {

std::string MakeEntries(int files) {
  std::string text = "10\n\ndir\n1234\nhttps://server/repository/car\n\f\n";
  for (int file = 0; file < files; ++file) {
    text += "part" + std::to_string(file) +
            ".CATPart\nfile\n\n\n\n\n2026-11-21T08:15:14.000000Z\n0123456789abcdef0123456789abcdef\n"
            "2026-11-20T17:01:02.123456Z\n1234\nanna\nhas-props\n";
    text.append(20, '\n');
    text += "48213\n\f\n";
  }
  return text;
}

std::size_t ReadPlainly(const std::string& path) {
  struct Closer {
    void operator()(std::FILE* file) const { std::fclose(file); }
  };
  const std::unique_ptr<std::FILE, Closer> file(std::fopen(path.c_str(), "rb"));
  std::fseek(file.get(), 0, SEEK_END);
  std::string text(static_cast<std::size_t>(std::ftell(file.get())), '\0');
  std::rewind(file.get());
  return std::fread(text.data(), 1, text.size(), file.get());
}

}  // namespace

Measurements MeasureEntriesFile() {
  constexpr int kFiles = 20'000;
  constexpr int kRounds = 50;
  const TemporaryFolder folder;
  const std::string entries = MakeEntries(kFiles);
  WriteFile(folder / ".svn/entries", entries);
  const std::string document = folder.Host("part19999.CATPart");
  const std::string path = folder.Host(".svn/entries");
  const SideBySide result = Compare(
      kRounds,
      [&] {
        ZRKCVSStatus record;
        zrk::svn::ReadSVNEntry(document.c_str(), record);
        if (record.RevisionNumber != 1234) throw std::runtime_error("the entry was not found");
      },
      [&] {
        if (ReadPlainly(path) != entries.size()) throw std::runtime_error("the file was not read whole");
      });
  return {{"Last of 20,000 entries: look-up",
           static_cast<double>(entries.size()) / 1e6 / result.First,
           "MB/s",
           {},
           result.Detail("look-up", "plain read of the file")},
          {"The same to a plain read of the file", result.Ratio(), "times", {}, ""}};
}
