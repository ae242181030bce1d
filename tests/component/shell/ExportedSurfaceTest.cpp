#include "component/shell/ExportedSurface.h"

#include <gtest/gtest.h>

TEST(ExportedSurface, IsTheStatusRecordThePredicatesAndTheTieCreationFunctions) {
  // The record's constructors and destructor have two names each: for a whole object and for the part of a
  // derived one.
  const std::set<std::string> expected = {
      "CreateTIEZRKICVSManagerZRKECVSManager",
      "CreateTIEZRKICVSModifiableZRKECVSModifiable",
      "CreateTIEZRKICVSZRKECVS",
      "IsCVSModifiable",
      "IsCVSable",
      "_ZN12ZRKCVSStatusC1ERKS_",
      "_ZN12ZRKCVSStatusC1Ev",
      "_ZN12ZRKCVSStatusC2ERKS_",
      "_ZN12ZRKCVSStatusC2Ev",
      "_ZN12ZRKCVSStatusD1Ev",
      "_ZN12ZRKCVSStatusD2Ev",
      "_ZN12ZRKCVSStatusaSERKS_",
  };
  EXPECT_EQ(ExportedNames(), expected);
}
