// Each object of the host that is made during an operation cannot be, one after the other: the operation
// ends all the same, and the next is as ever.

#include <gtest/gtest.h>

#include <ostream>

#include "component/faults/FaultedOperations.h"
#include "dialogs/UserInterface.h"
#include "framework/FrameworkControl.h"
#include "windows/WindowsControl.h"

namespace faults {
namespace {

struct NamedOperation {
  Operation Wanted;
};

void PrintTo(const NamedOperation& operation, std::ostream* stream) {
  *stream << operation.Wanted.Name;
}

struct Object final : CATBaseUnknown {};

// Whether the failure that was ordered behind so many successes has come; if not, it is called off.
bool HasFailed(int successes) {
  bool failed = true;
  for (int use = 0; use <= successes && failed; ++use) {
    const CATBaseUnknown_var object = CATBaseUnknown_var::Adopt(new Object);
    failed = object != nullptr;
  }
  standin::FailObjectAllocation(-1);
  return failed;
}

class EveryAllocation : public testing::TestWithParam<NamedOperation> {
protected:
  ~EveryAllocation() override { standin::FailObjectAllocation(-1); }

  // False when the operation was over before an allocation could fail.
  bool PerformWithFailureAfter(int successes) {
    FaultStage stage(operation_.Kind);
    operation_.Prepare(stage);
    standin::FailObjectAllocation(successes);
    operation_.Perform(stage);
    const bool failed = HasFailed(successes);
    EXPECT_EQ(standin::OpenHandleCount(), 0);
    EXPECT_TRUE(AllClientsEnd());
    EXPECT_EQ(standin::LiveDialogCount(), 0);
    EXPECT_TRUE(stage.Messages().empty());
    return failed;
  }

  const Operation operation_ = GetParam().Wanted;
};

std::vector<NamedOperation> Named() {
  std::vector<NamedOperation> named;
  for (const Operation& operation : Operations()) named.push_back({operation});
  return named;
}

std::string OperationName(const testing::TestParamInfo<NamedOperation>& info) {
  return info.param.Wanted.Name;
}

}  // namespace

TEST_P(EveryAllocation, ThatFailsDuringAnOperationLeavesNothingBehind) {
  constexpr int kMostAllocations = 200;
  const long objects = standin::LiveObjectCount();
  int allocations = 0;
  while (allocations < kMostAllocations && PerformWithFailureAfter(allocations)) {
    EXPECT_EQ(standin::LiveObjectCount(), objects) << "after " << allocations << " successes";
    ++allocations;
  }
  EXPECT_LT(allocations, kMostAllocations);
}

TEST(AllocationFaults, DuringARefreshDoesNotKeepTheNextFromBeingComplete) {
  for (const Operation& operation : Operations()) {
    if (!operation.Name.starts_with("RefreshStatus")) continue;
    bool failed = true;
    for (int allocations = 0; failed; ++allocations) {
      SCOPED_TRACE(operation.Name + " after " + std::to_string(allocations) + " successes");
      FaultStage stage(operation.Kind);
      operation.Prepare(stage);
      standin::FailObjectAllocation(allocations);
      operation.Perform(stage);
      failed = HasFailed(allocations);
      operation.Expect(stage, operation.Perform(stage), {});
    }
  }
}

INSTANTIATE_TEST_SUITE_P(, EveryAllocation, testing::ValuesIn(Named()), OperationName);

}  // namespace faults
