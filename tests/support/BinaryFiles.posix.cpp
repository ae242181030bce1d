#include "support/BinaryFiles.h"
#include "windows/WindowsControl.h"

BinaryFiles::BinaryFiles() {
  standin::OpenFilesInBinary(true);
}

BinaryFiles::~BinaryFiles() {
  standin::OpenFilesInBinary(false);
}
