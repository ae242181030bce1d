#include "framework/Misuse.h"

#include <cstdio>
#include <cstdlib>

namespace standin {

void EndOnMisuse(const char* message) {
  std::fprintf(stderr, "%s\n", message);
  std::abort();
}

}  // namespace standin
