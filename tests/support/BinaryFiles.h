#pragma once

// While it lives, a file is opened as binary when the mode says neither "t" nor "b".
class BinaryFiles {
public:
  BinaryFiles();
  BinaryFiles(const BinaryFiles&) = delete;
  BinaryFiles& operator=(const BinaryFiles&) = delete;
  ~BinaryFiles();
};
