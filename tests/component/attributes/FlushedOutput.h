#pragma once

#include <iostream>
#include <sstream>
#include <string>

// Takes what std::cout writes while it lives, and shows what of it was flushed.
class FlushedOutput : private std::stringbuf {
public:
  FlushedOutput() : original_(std::cout.rdbuf(this)) {}
  FlushedOutput(const FlushedOutput&) = delete;
  FlushedOutput& operator=(const FlushedOutput&) = delete;
  ~FlushedOutput() override { std::cout.rdbuf(original_); }

  const std::string& Text() const { return flushed_; }

private:
  int sync() override {
    flushed_ = str();
    return 0;
  }

  std::streambuf* original_;
  std::string flushed_;
};
