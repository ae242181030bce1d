// What a record shows on a product, whatever it was read from.

#include "svn/ProductStatus.h"

#include "SVNStage.h"

using SVNProductStatus = SVNStage;

TEST_F(SVNProductStatus, AnEntryOfNoVersionIsUnversionedAlsoWhenItIsLocked) {
  Products.Add("car", "wc/car.CATProduct");
  ZRKCVSStatus record;
  record.IsInEntries = 1;
  record.IsLockedHere = 1;
  zrk::svn::ShowOnProduct(Context(), Products.At("car"), record, "comment");
  EXPECT_EQ(ReadStatusAttributes(Products.At("car")), (StatusAttributes{"", "Unversioned", "", "comment"}));
}

TEST_F(SVNProductStatus, TheCommentOfALockWithoutAnOwnerStandsAlone) {
  ZRKCVSStatus record;
  record.AuxText = "new tread";
  EXPECT_EQ(zrk::svn::TreeComment(record), "new tread");
}
