#include <gtest/gtest.h>

#include <functional>
#include <thread>

#include "ZRKICVSManager.h"
#include "component/manager/CVSStage.h"
#include "support/CapturedOutput.h"
#include "support/DialogRecorder.h"
#include "support/HandleCount.h"
#include "windows/WindowsControl.h"

namespace {

// A child that has ended may hold a descriptor until it is collected.
int HandlesWithoutChildren() {
  while (standin::LiveChildCount() > 0) std::this_thread::yield();
  return CountOpenHandles();
}

}  // namespace

TEST(AnOperationOfTheInterface, LeavesNoHandleOpen) {
  CVSStage stage;
  stage.Products.Add("car", "proj/car");
  stage.Client.When("status -v").Out(zrk::sample::StatusBlock("proj/car", "1.1"));
  stage.Client.When("unedit").Out("car has been modified; revert changes? ").Read();
  const CapturedOutput quiet;
  const DialogRecorder dialogs;
  const CATBaseUnknown_var car = stage.Products.At("car");
  const ZRKICVSManager_var manager(car);
  ZRKCVSStatus record;
  const std::function<void()> operations[] = {
      [&] { manager->RefreshStatus(car); },
      [&] { manager->PrintCommTime(); },
      [&] { manager->GetFileStatus(car, record); },
      [&] { manager->Edit(); },
      [&] { manager->Unedit(); },
      [&] { manager->CVSRemove(stage.Folder.Host("proj/car").c_str()); },
      [&] { manager->SVNDelete(stage.Folder.Host("proj/car").c_str()); },
  };
  // What the first run of a process opens for good is open from here on.
  manager->RefreshStatus(car);
  const int before = HandlesWithoutChildren();
  for (std::size_t i = 0; i < std::size(operations); ++i) {
    operations[i]();
    EXPECT_EQ(standin::OpenHandleCount(), 0) << i;
    EXPECT_EQ(HandlesWithoutChildren(), before) << i;
  }
}
