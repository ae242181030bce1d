#include <gtest/gtest.h>
#include <unistd.h>

#include <cstdio>
#include <string>

#include "OpenDescriptors.h"
#include "TestFiles.h"
#include "support/BinaryFiles.h"
#include "windows/TextModeFile.h"

namespace {

std::string ReadByCharacter(std::FILE* file) {
  std::string text;
  for (int character = std::getc(file); character != EOF; character = std::getc(file)) {
    text += static_cast<char>(character);
  }
  return text;
}

// The text that a file with these bytes holds.
std::string TextOf(const std::string& bytes) {
  const TemporaryFolder scratch;
  const Stream file = Open(AddFile(scratch, "file", bytes), "rt");
  return file ? ReadRest(file.get()) : "not opened";
}

// The same through reads that ask for `size` bytes each.
std::string TextInPieces(const std::string& bytes, std::size_t size) {
  int ends[2];
  if (pipe(ends) != 0 || write(ends[1], bytes.data(), bytes.size()) != static_cast<ssize_t>(bytes.size())) {
    return "no pipe";
  }
  close(ends[1]);
  standin::TextModeFile file{standin::FileDescriptor(ends[0])};
  std::string text;
  std::string piece(size, '\0');
  for (long count = file.Read(piece.data(), size); count > 0; count = file.Read(piece.data(), size)) {
    text.append(piece, 0, static_cast<std::size_t>(count));
  }
  return text;
}

}  // namespace

TEST(TextMode, ReadsCrLfAsLf) {
  EXPECT_EQ(TextOf("a\r\nb\r\n\r\nc\r\n"), "a\nb\n\nc\n");
  EXPECT_EQ(TextOf("a\nb\n"), "a\nb\n");
  EXPECT_EQ(TextOf("\r\n"), "\n");
  EXPECT_EQ(TextOf(""), "");
}

TEST(TextMode, IsTheOneOfAModeThatDoesNotSayUnlessFilesAreOpenedAsBinary) {
  const TemporaryFolder scratch;
  const std::string path = AddFile(scratch, "file", "a\r\n");
  EXPECT_EQ(ReadRest(Open(path, "r").get()), "a\n");
  const BinaryFiles binary;
  EXPECT_EQ(ReadRest(Open(path, "r").get()), "a\r\n");
  EXPECT_EQ(ReadRest(Open(path, "rt").get()), "a\n");
}

TEST(TextMode, LeavesOtherCrAlone) {
  EXPECT_EQ(TextOf("a\rb"), "a\rb");
  EXPECT_EQ(TextOf("\r\r\r\n\n\r"), "\r\r\n\n\r");
  EXPECT_EQ(TextOf("a\r"), "a\r");
  EXPECT_EQ(TextOf("\r"), "\r");
  EXPECT_EQ(TextOf("a\n\rb"), "a\n\rb");
}

TEST(TextMode, EndsAtCtrlZ) {
  EXPECT_EQ(TextOf("a\x1A"
                   "b"),
            "a");
  EXPECT_EQ(TextOf("\x1A"), "");
  EXPECT_EQ(TextOf("a\r\x1A\n"), "a\r");
  EXPECT_EQ(TextOf("a\r\n\x1A\x1A"), "a\n");
}

TEST(TextMode, DoesNotGoOnBehindCtrlZ) {
  std::string bytes(400000, 'a');
  bytes[200000] = '\x1A';
  const TemporaryFolder scratch;
  const Stream file = Open(AddFile(scratch, "file", bytes), "r");
  EXPECT_EQ(ReadRest(file.get()), std::string(200000, 'a'));
  EXPECT_TRUE(std::feof(file.get()));
  std::clearerr(file.get());
  EXPECT_EQ(ReadRest(file.get()), "");
}

TEST(TextMode, ReadsEveryOtherByteAsItself) {
  std::string bytes;
  for (int byte = 0; byte < 256; ++byte) {
    if (byte != 26) bytes += static_cast<char>(byte);
  }
  EXPECT_EQ(TextOf(bytes), bytes);
}

TEST(TextMode, GivesTheSameTextInPiecesOfAnySize) {
  const std::string bytes = "a\r\n\r\r\n\rb\r\n\n\r\r\nlonger line\r\n\r";
  const std::string text = TextOf(bytes);
  EXPECT_EQ(text, "a\n\r\n\rb\n\n\r\nlonger line\n\r");
  for (std::size_t size = 1; size <= bytes.size() + 1; ++size) {
    EXPECT_EQ(TextInPieces(bytes, size), text) << size;
    EXPECT_EQ(TextInPieces(bytes + '\x1A' + "rest", size), text) << size;
    EXPECT_EQ(TextInPieces("\r\n" + bytes + "\r\x1A\n", size), '\n' + text + '\r') << size;
  }
}

TEST(TextMode, IsTheSameForCharactersAndBlocks) {
  std::string bytes;
  for (int line = 0; line < 20000; ++line) bytes += std::string(line % 41, 'x') + "\r\n";
  const TemporaryFolder scratch;
  const auto path = AddFile(scratch, "file", bytes);
  std::string text = bytes;
  std::erase(text, '\r');
  EXPECT_EQ(ReadByCharacter(Open(path, "rt").get()), text);
  EXPECT_EQ(ReadRest(Open(path, "rt").get()), text);
}

TEST(TextMode, TellsTheEndOfTheFile) {
  const TemporaryFolder scratch;
  const Stream file = Open(AddFile(scratch, "file", "a"), "rt");
  EXPECT_EQ(std::getc(file.get()), 'a');
  EXPECT_FALSE(std::feof(file.get()));
  EXPECT_EQ(std::getc(file.get()), EOF);
  EXPECT_TRUE(std::feof(file.get()));
  EXPECT_FALSE(std::ferror(file.get()));
}

TEST(TextMode, CanBeReadAgainFromTheStart) {
  const TemporaryFolder scratch;
  const Stream file = Open(AddFile(scratch, "file", "a\r\nb\r\x1A"), "rt");
  EXPECT_EQ(ReadRest(file.get()), "a\nb\r");
  std::rewind(file.get());
  EXPECT_EQ(ReadRest(file.get()), "a\nb\r");
  EXPECT_EQ(std::fseek(file.get(), 0, SEEK_END), 0);
  EXPECT_EQ(std::ftell(file.get()), 6);
}

TEST(TextMode, GivesBackTheDescriptor) {
  const TemporaryFolder scratch;
  const auto path = AddFile(scratch, "file", "a");
  const auto before = OpenDescriptors();
  {
    const Stream file = Open(path, "rt");
    EXPECT_EQ(OpenDescriptors().size(), before.size() + 1);
  }
  EXPECT_EQ(OpenDescriptors(), before);
}
