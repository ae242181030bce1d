#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

// What a scripted client does, read from a text file. Every line is one action; a line without action and
// one that begins with "#" are skipped. PATH is a path of the file system, relative to the client's
// folder; TEXT and PATH are written with the escapes of Escapes.h, PATH without a blank.
//
//   when TEXT         begins a rule, for runs whose arguments, joined by blanks, hold TEXT
//   program NAME      the rule is only for that client, such as cvs.exe
//   once              the rule is for one run only
//   out TEXT          writes to standard output, without a line end
//   err TEXT          the same to standard error
//   repeat COUNT TEXT writes TEXT that many times to standard output
//   file PATH         writes the bytes of a file to standard output
//   read              reads standard input up to a 0, a line end or the end, and logs it
//   readall           reads standard input to the end and logs it
//   writable PATH     gives the owner leave to write a file
//   readonly PATH     takes it from everybody
//   store PATH TEXT   writes a file
//   remove PATH       removes a file
//   closeout          closes standard output and standard error
//   closein           closes standard input
//   hang              waits until standard input ends
//   hangforever       waits for a minute: to be killed, or not to be waited for
//   console           writes what console the client is attached to
//   exit NUMBER       ends with that status
//   crash             ends as a fault would
//
// The first rule that fits is played. Behind its last action, and without a rule, the client ends with 0.

struct Action {
  std::string Verb;
  std::string Text;
};

struct Rule {
  std::string Arguments;
  std::string Program;
  bool Once = false;
  std::vector<Action> Actions;
};

std::vector<Rule> ParseScript(std::string_view script);
