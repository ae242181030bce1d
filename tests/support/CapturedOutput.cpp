#include "support/CapturedOutput.h"

#include <cstdio>
#include <iostream>

#include "support/Files.h"
#include "support/StandardOutput.h"

namespace {

void Flush() {
  std::cout.flush();
  std::fflush(nullptr);
}

}  // namespace

CapturedOutput::CapturedOutput() {
  Flush();
  original_ = RedirectStandardOutput(folder_ / "output");
}

CapturedOutput::~CapturedOutput() {
  Flush();
  RestoreStandardOutput(original_);
}

std::string CapturedOutput::Bytes() const {
  Flush();
  return ReadFile(folder_ / "output");
}
