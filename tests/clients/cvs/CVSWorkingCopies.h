#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <map>
#include <string>

#include "User.h"
#include "support/CVSRepository.h"
#include "support/Files.h"
#include "support/TemporaryFolder.h"

// A repository with one module whose files are watched, and a working copy of it for Anna and, where a test
// wants it, for Ben. The parameter is what stands in front of the repository's path in the root.
class CVSWorkingCopies : public testing::TestWithParam<const char*> {
protected:
  // The keys are paths below the module.
  void CheckOut(const std::map<std::string, std::string>& files) {
    repository_.Import(kModule, files);
    repository_.WatchOn(kModule);
    repository_.Checkout(kModule, annasParent_, Root());
  }
  void CheckOutForBen() { repository_.Checkout(kModule, bensParent_, Root()); }

  // No client is left behind, whatever the test did.
  void TearDown() override {
    EXPECT_TRUE(anna_.WaitUntilNoProcessIsLeft());
    EXPECT_TRUE(ben_.WaitUntilNoProcessIsLeft());
  }

  std::string Root() const { return GetParam() + repository_.LocalRoot(); }

  // The report of commands on the files of the working copy.
  Json Anna(const std::vector<std::string>& commands, int status = 0) const {
    return anna_.HostOn(annasCopy_, commands, status);
  }
  Json Ben(const std::vector<std::string>& commands, int status = 0) const {
    return ben_.HostOn(bensCopy_, commands, status);
  }

  // Has Ben take the file for editing with his client.
  void BenEdits(const std::string& file) const { repository_.Edit(bensCopy_, file, ben_.Name()); }

  static constexpr const char* kModule = "Straßen räder";

  TemporaryFolder folder_;
  CVSRepository repository_{folder_ / "repository"};
  const std::filesystem::path annasParent_ = folder_ / "ännas documents";
  const std::filesystem::path annasCopy_ = annasParent_ / kModule;
  const std::filesystem::path bensParent_ = folder_ / "bens documents";
  const std::filesystem::path bensCopy_ = bensParent_ / kModule;
  User anna_{"anna", folder_ / "anna"};
  User ben_{"ben", folder_ / "ben"};
};

#define ZRK_THROUGH_BOTH_ROOTS(suite)                                            \
  INSTANTIATE_TEST_SUITE_P(Through, suite, testing::Values("", ":fork:"),        \
                           [](const testing::TestParamInfo<const char*>& root) { \
                             return *root.param ? "AServer" : "ALocalRoot";      \
                           })
