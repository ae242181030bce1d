#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <map>
#include <string>

#include "User.h"
#include "support/Files.h"
#include "support/SVNRepository.h"
#include "support/TemporaryFolder.h"

// A repository and a working copy of it for Anna and for Ben.
class SVNWorkingCopies : public testing::Test {
protected:
  void CheckOut(const std::map<std::string, std::string>& files) {
    repository_.Import(files);
    const std::string some = repository_.URL() + "/" + files.begin()->first;
    for (const User* user : {&anna_, &ben_}) user->SignOn(some + "@");
    for (const auto& copy : {annasCopy_, bensCopy_}) repository_.Checkout(copy);
  }

  // No client is left behind, whatever the test did.
  void TearDown() override {
    EXPECT_TRUE(anna_.WaitUntilNoProcessIsLeft());
    EXPECT_TRUE(ben_.WaitUntilNoProcessIsLeft());
  }

  // The report of commands on the files of the working copy.
  Json Anna(const std::vector<std::string>& commands, int status = 0) const {
    return anna_.HostOn(annasCopy_, commands, status);
  }
  Json Ben(const std::vector<std::string>& commands, int status = 0) const {
    return ben_.HostOn(bensCopy_, commands, status);
  }

  // The path as the component sends it to the client.
  std::string Sent(const std::string& file) const { return '"' + folder_.Host(annasCopy_ / file) + '"'; }

  static constexpr const char* kTreeStatus = " status -v -u --xml --non-interactive --ignore-externals";

  TemporaryFolder folder_;
  SVNRepository repository_{folder_ / "repository"};
  const std::filesystem::path annasCopy_ = folder_ / "ännas documents";
  const std::filesystem::path bensCopy_ = folder_ / "bens documents";
  User anna_{"anna", folder_ / "anna"};
  User ben_{"ben", folder_ / "ben"};
};
