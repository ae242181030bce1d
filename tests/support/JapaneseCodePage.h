#pragma once

// The code page 932 for 8-bit text, as long as this lives. The second byte of some of its letters is that
// of "\". A process of Windows has the page of the system's locale; there this changes nothing.
class JapaneseCodePage {
public:
  JapaneseCodePage();
  JapaneseCodePage(const JapaneseCodePage&) = delete;
  JapaneseCodePage& operator=(const JapaneseCodePage&) = delete;
  ~JapaneseCodePage();

  // False on a Windows with another locale.
  static bool IsActive();

private:
  unsigned int before_;
};
