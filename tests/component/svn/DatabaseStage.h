#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "component/svn/SVNStage.h"
#include "support/ClientReports.h"

// A Subversion working copy "wc" with a database, without a client.
class DatabaseStage : public SVNStage {
protected:
  DatabaseStage() { WriteDatabase("wc"); }

  // What marks the top of a working copy: the client writes one line into `entries`.
  void WriteDatabase(const std::string& folder) const {
    WriteFile(Folder / folder / ".svn" / "wc.db", "SQLite format 3");
    WriteFile(Folder / folder / ".svn" / "entries", "12\n");
  }
  void WriteCVS(const std::string& folder) const {
    WriteFile(Folder / folder / "CVS" / "Repository", folder + "\n");
    WriteFile(Folder / folder / "CVS" / "Root", "/cvs/root\n");
  }

  // What every status report is from here on.
  void Report(const std::vector<reports::Entry>& entries) {
    Client.ClearRules();
    Client.When("status").Out(reports::Report(entries));
  }
  // The repository is out of reach, and the working copy alone says this.
  void ReportOutOfReach(const std::vector<reports::Entry>& entries) {
    Client.ClearRules();
    Client.When("status -v -u").Out(reports::kUnreachable).Exit(1);
    Client.When("status -v --xml").Out(reports::Report(entries));
  }

  std::optional<StatusAttributes> Shown(const std::string& product) const {
    return ReadStatusAttributes(Products.At(product));
  }

  using Lists = std::vector<std::vector<std::string>>;
  using Texts = std::vector<std::string>;
  const Texts StatusOfBoth{"status", "-v", "-u", "--xml", "--non-interactive", "--ignore-externals"};
  const Texts StatusOfWorkingCopy{"status", "-v", "--xml", "--non-interactive", "--ignore-externals"};

  static Texts With(Texts arguments, const std::string& last) {
    arguments.push_back(last);
    return arguments;
  }
  // Of the runs so far.
  Texts RunFolders() const {
    Texts folders;
    for (const ClientRun& run : Client.Runs()) folders.push_back(run.Folder);
    return folders;
  }
};
