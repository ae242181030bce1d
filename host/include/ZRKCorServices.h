#pragma once

#include "CATUnicodeString.h"

class ZRKCorEnvVarManager {
public:
  // Looks for `file` in the folders that the environment variable lists, in order: separated by ";" on
  // Windows, by ":" on Linux, empty ones skipped. True with the full path, separated by "\", of the
  // first file found (on Linux it must be executable); false with an empty path otherwise.
  static bool GetRuntimeFilePath(const char* variable, const CATUnicodeString& file, CATUnicodeString& path);
};

class ZRKCorParserServices {
public:
  // Splits at the last "\": the folder without it, but for a root ("C:\", "\"), and the name behind it.
  // Without any "\" the folder is empty and the name is the whole path.
  static void SplitFilePath(const CATUnicodeString& path, CATUnicodeString& folder, CATUnicodeString& name);
};
