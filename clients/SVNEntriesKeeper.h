#pragma once

#include <functional>
#include <string>
#include <vector>

// Runs Subversion with the arguments and gives what it printed.
using SVNCapture = std::function<std::string(const std::vector<std::string>& arguments)>;

// Subversion keeps its entries in a database since 1.7; up to 1.6 every folder had them as text in
// `.svn/entries`, which is what the component reads. This brings those texts up to date for the working
// copy paths among the arguments of a command that was run: of a file for its folder, of a folder for all
// folders below it. Nothing is done where the database has not changed since.
//
// Subversion itself is not disturbed: below the working copy's root it takes a `.svn` whose entries do not
// begin with a number for none of its own, and at the root it looks at the database alone.
void KeepSVNEntries(const std::vector<std::string>& arguments, const SVNCapture& runSVN);
