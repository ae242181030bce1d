#pragma once

#include <string>
#include <vector>

// A run of the CVS client.
struct CVSCall {
  // Without the program's name.
  std::vector<std::string> Arguments;
  // The command among them, such as "status"; empty when there is none.
  std::string Command;
};

// From a command line made for the Windows client to one that GNU CVS understands:
//
// - the global option "-x" goes: GNU CVS knows encryption for Kerberos roots only and refuses it for others;
// - "edit -z" goes: that option of `edit` is unknown to GNU CVS, whose own global "-z LEVEL" stays;
// - "-n edit FILES" becomes "-n editors FILES": it asks who edits the files, and GNU CVS prints nothing
//   for it;
// - "\" in a file argument becomes "/". Roots and the values of other options stay as they are.
CVSCall TranslateCVSCall(const std::vector<std::string>& arguments);
