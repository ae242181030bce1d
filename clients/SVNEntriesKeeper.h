#pragma once

#include <functional>
#include <string>
#include <vector>

// Runs Subversion with the arguments and gives what it printed.
using SVNCapture = std::function<std::string(const std::vector<std::string>& arguments)>;

// Subversion keeps its entries in a database since 1.7; up to 1.6 every folder had them as text in
// `.svn/entries`, which is what the component reads. This brings those texts up to date for the working
// copy paths that a command was run for: of a file for its folder, unless the database is the same since; of
// a folder for itself and all folders below it, always. A text is replaced as a whole or not at all.
//
// Subversion itself is not disturbed: below the working copy's root it takes a `.svn` whose entries do not
// begin with a number for none of its own, and at the root it looks at the database alone.
void KeepSVNEntries(const std::vector<std::string>& paths, const SVNCapture& runSVN);
