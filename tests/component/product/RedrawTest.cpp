#include "product/Redraw.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "component/product/ProductEvents.h"
#include "support/Assembly.h"
#include "support/TemporaryFolder.h"

using testing::ElementsAre;
using zrk::product::Redraw;

TEST(ARedraw, ReachesTheProductItIsAskedOf) {
  TemporaryFolder folder;
  Assembly assembly(folder);
  assembly.AddWithoutDocument("car").AddWithoutDocument("axle").Place("car", "a", "axle");
  const RedrawnProducts redrawn;
  Redraw(assembly.At("car/a"));
  EXPECT_THAT(redrawn.Paths(), ElementsAre("car/a"));
}

TEST(ARedraw, OfNothingIsNone) {
  const RedrawnProducts redrawn;
  Redraw(nullptr);
  EXPECT_TRUE(redrawn.Paths().empty());
}
