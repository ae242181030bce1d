#include "support/BinaryFiles.h"

#include <fcntl.h>
#include <stdlib.h>

BinaryFiles::BinaryFiles() {
  _fmode = _O_BINARY;
}

BinaryFiles::~BinaryFiles() {
  _fmode = _O_TEXT;
}
