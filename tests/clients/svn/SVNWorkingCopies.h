#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <map>
#include <string>
#include <utility>
#include <vector>

#include "User.h"
#include "support/Files.h"
#include "support/SVNRepository.h"
#include "support/TemporaryFolder.h"

// A repository and Anna's working copy of it.
class SVNWorkingCopy : public testing::Test {
protected:
  void CheckOut(const std::map<std::string, std::string>& files) {
    repository_.Import(files);
    repository_.Checkout(annasCopy_);
  }
  // Each file holds its own path.
  void CheckOutFiles(const std::vector<std::string>& files) {
    std::map<std::string, std::string> contents;
    for (const std::string& file : files) contents[file] = file + "\n";
    CheckOut(contents);
  }

  // No client is left behind, whatever the test did.
  void TearDown() override { EXPECT_TRUE(anna_.WaitUntilNoProcessIsLeft()); }

  // The report of commands on the files of the working copy.
  Json Anna(const std::vector<std::string>& commands, int status = 0) const {
    return anna_.HostOn(annasCopy_, commands, status);
  }

  // The same on products of these documents, paths from the working copy, which need not exist: the first is
  // that of the root "all", each other that of a child which it names.
  Json AnnaOn(const std::vector<std::string>& documents, const std::vector<std::string>& commands,
              int status = 0) const {
    Json products;
    Json children = Json::array();
    for (const std::string& document : documents) {
      const bool isRoot = document == documents.front();
      const std::string product = isRoot ? "all" : document;
      products[product]["document"] = (annasCopy_ / document).lexically_normal().string();
      if (!isRoot) children.push_back({{"name", document}, {"reference", document}});
    }
    products["all"]["children"] = children;
    const std::filesystem::path session = folder_ / "session.json";
    WriteFile(session, Json({{"root", "all"}, {"products", products}}).dump());
    std::vector<std::string> arguments = {session.string()};
    for (const std::string& command : commands) arguments.insert(arguments.end(), {"-c", command});
    return anna_.Host(arguments, status);
  }

  // A console command on a product's path or a file's.
  static std::string Command(const std::string& command, const std::string& path) {
    std::string quoted;
    for (const char character : path) quoted.append(character == '"' ? 2 : 1, character);
    return command + " \"" + quoted + '"';
  }

  // "Status" of each product by its document's path below Anna's working copy; "-" without attributes.
  std::map<std::string, std::string> Statuses(const Json& report) const {
    std::map<std::string, std::string> statuses;
    for (const auto& [file, attributes] : AttributesByFile(report, annasCopy_)) {
      statuses[file] = attributes.is_null() ? "-" : std::string(attributes.at("Status"));
    }
    return statuses;
  }

  // The client runs of a command: folder and command line.
  using Runs = std::vector<std::pair<std::string, std::string>>;
  static Runs RunsOf(const Json& command) {
    Runs runs;
    for (const Json& event : EventsOf(command, "launch")) {
      runs.emplace_back(event.at("folder"), event.at("commandLine"));
    }
    return runs;
  }

  // `svn ARGUMENTS` on Anna's working copy, the last of them a path below it.
  std::string Client(std::vector<std::string> arguments) const {
    arguments.back() = (annasCopy_ / arguments.back()).string() + "@";
    return repository_.Run(arguments);
  }
  // The same on the repository, for somebody who works elsewhere.
  std::string Elsewhere(std::vector<std::string> arguments, const std::string& user = "ben") const {
    arguments.back() = repository_.URL() + "/" + arguments.back() + "@";
    return repository_.Run(arguments, user);
  }

  // The path as the component sends it to the client.
  std::string Sent(const std::string& file) const { return '"' + folder_.Host(annasCopy_ / file) + '"'; }

  static constexpr const char* kTreeStatus = " status -v -u --xml --non-interactive --ignore-externals";
  // When the repository is out of reach.
  static constexpr const char* kTreeStatusHere = " status -v --xml --non-interactive --ignore-externals";

  TemporaryFolder folder_;
  SVNRepository repository_{folder_ / "repository"};
  const std::filesystem::path annasCopy_ = folder_ / "ännas documents";
  User anna_{"anna", folder_ / "anna"};
};

// One for Ben too, and both are known to the repository by their names.
class SVNWorkingCopies : public SVNWorkingCopy {
protected:
  void CheckOut(const std::map<std::string, std::string>& files) {
    SVNWorkingCopy::CheckOut(files);
    repository_.Checkout(bensCopy_);
    const std::string some = repository_.URL() + "/" + files.begin()->first;
    for (const User* user : {&anna_, &ben_}) user->SignOn(some + "@");
  }

  void TearDown() override {
    SVNWorkingCopy::TearDown();
    EXPECT_TRUE(ben_.WaitUntilNoProcessIsLeft());
  }

  Json Ben(const std::vector<std::string>& commands, int status = 0) const {
    return ben_.HostOn(bensCopy_, commands, status);
  }

  const std::filesystem::path bensCopy_ = folder_ / "bens documents";
  User ben_{"ben", folder_ / "ben"};
};
