#pragma once

#include <string>
#include <vector>

// A run of the Subversion client.
struct SVNCall {
  // Without the program's name.
  std::vector<std::string> Arguments;
  // Whether the command line said "--non-interactive" itself: it was made for today's client.
  bool IsForTodaysClient;
};

// From a command line made for the Windows client to one for the Subversion of this system. In one for
// today's client only the "\" in its paths become "/". In any other
//
// - "--non-interactive" comes first: nobody sits in front of the client to type a password;
// - "\" in a path becomes "/", and a path that holds "@" ends in "@": the client would take what follows
//   its last "@" for a revision. URLs, option values and messages stay as they are;
// - `delete` of paths loses its message, which the client takes for URLs only, where it commits at once.
SVNCall TranslateSVNCall(const std::vector<std::string>& arguments);
