#pragma once

#include <chrono>
#include <filesystem>
#include <string>
#include <vector>

// A program that has a person's terminal for its standard input, output and error, and the person.
class PseudoTerminal {
public:
  // Whether the system gives any; tests that need one are skipped where it does not.
  static bool Available();

  PseudoTerminal(const std::filesystem::path& program, std::vector<std::string> arguments,
                 unsigned short columns);
  ~PseudoTerminal();
  PseudoTerminal(const PseudoTerminal&) = delete;
  PseudoTerminal& operator=(const PseudoTerminal&) = delete;

  void Type(const std::string& text);
  // Reads on until the text appears behind the last one that was waited for. False when the program ends
  // without it, or within a minute.
  bool WaitFor(const std::string& text);
  // The same within a time of one's own: for what should not appear.
  bool AppearsWithin(const std::string& text, std::chrono::milliseconds time);
  // Reads to the end of the program and gives its exit status; 128 and more: it was ended by a signal.
  int Finish();

  // All that was written to the terminal up to now, with what was typed, as the program sent it.
  const std::string& Written() const { return written_; }
  // What is to be seen of it: one text for each line, without blanks at its end. Sequences that move the
  // cursor and erase are carried out, all others leave no trace.
  std::vector<std::string> Screen() const;

private:
  // False at the end, or when nothing came in time.
  bool ReadMore(std::chrono::milliseconds time);

  unsigned short columns_;
  int terminal_ = -1;
  int process_ = -1;
  bool ended_ = false;
  std::string written_;
  std::size_t waitedTo_ = 0;
};
