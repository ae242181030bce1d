#include "product/StatusInstance.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "attributes/AttributeDictionary.h"
#include "component/product/RecordingCarrier.h"
#include "support/Assembly.h"
#include "support/Session.h"

using testing::ElementsAre;
using namespace zrk::product;

namespace {

class TheStatusInstance : public testing::Test {
protected:
  TheStatusInstance() {
    assembly_.AddWithoutDocument("car").Add({.Name = "fixed", .Document = {}, .Extendable = false});
  }

  Session session_;
  TemporaryFolder folder_;
  Assembly assembly_{folder_};
};

const StatusValues kValues{"1.5", "Edit", "release", "comment"};
const StatusAttributes kWritten{"1.5", "Edit", "release", "comment"};

}  // namespace

TEST_F(TheStatusInstance, IsAddedWhenItIsMissing) {
  EXPECT_FALSE(FindInstance(assembly_.At("car"), StatusClass()));
  EXPECT_TRUE(FindOrAddInstance(assembly_.At("car"), StatusClass()));
  EXPECT_TRUE(FindInstance(assembly_.At("car"), StatusClass()));
}

TEST_F(TheStatusInstance, ThatIsThereIsTakenAsItIs) {
  WriteStatusAttributes(assembly_.At("car"), kWritten);
  const ZRKIAttInstance_var instance = FindOrAddInstance(assembly_.At("car"), StatusClass());
  EXPECT_STREQ(CATICkeParm_var(instance->GetParameter("Revision"))->AsText().ConvertToChar(), "1.5");
}

TEST_F(TheStatusInstance, IsMissingWhenItCannotBeAdded) {
  standin::RefuseNewInstances(true);
  EXPECT_FALSE(FindOrAddInstance(assembly_.At("car"), StatusClass()));
  WriteStatusValues(assembly_.At("car"), StatusClass(), kValues);
  EXPECT_EQ(ReadStatusAttributes(assembly_.At("car")), std::nullopt);
}

TEST_F(TheStatusInstance, IsMissingOnAProductThatCannotCarryOne) {
  EXPECT_FALSE(FindOrAddInstance(assembly_.At("fixed"), StatusClass()));
  WriteStatusValues(assembly_.At("fixed"), StatusClass(), kValues);
  RemoveInstance(assembly_.At("fixed"), StatusClass());
}

TEST_F(TheStatusInstance, IsMissingWithoutAClass) {
  EXPECT_FALSE(FindInstance(assembly_.At("car"), nullptr));
  EXPECT_FALSE(FindOrAddInstance(assembly_.At("car"), nullptr));
  WriteStatusValues(assembly_.At("car"), nullptr, kValues);
  RemoveInstance(assembly_.At("car"), nullptr);
  EXPECT_EQ(ReadStatusAttributes(assembly_.At("car")), std::nullopt);
}

TEST_F(TheStatusInstance, IsTakenOff) {
  WriteStatusAttributes(assembly_.At("car"), kWritten);
  RemoveInstance(assembly_.At("car"), StatusClass());
  EXPECT_EQ(ReadStatusAttributes(assembly_.At("car")), std::nullopt);
}

TEST_F(TheStatusInstance, CarriesTheFourValues) {
  WriteStatusValues(assembly_.At("car"), StatusClass(), kValues);
  EXPECT_EQ(ReadStatusAttributes(assembly_.At("car")), kWritten);
}

TEST_F(TheStatusInstance, IsWrittenInTheOrderRevisionStatusReleaseComment) {
  RecordingCarrier carrier;
  WriteStatusValues(carrier.Object(), StatusClass(), kValues);
  EXPECT_THAT(carrier.Written(),
              ElementsAre("Revision=1.5", "Status=Edit", "Release=release", "Comment=comment"));
}

TEST_F(TheStatusInstance, IsAddedWithoutAModel) {
  RecordingCarrier carrier;
  WriteStatusValues(carrier.Object(), StatusClass(), kValues);
  EXPECT_EQ(carrier.Additions(), 1);
  EXPECT_FALSE(carrier.LastModelGiven());
}

TEST_F(TheStatusInstance, KeepsOnlyTheParametersThatItsClassHas) {
  standin::InstallAttributeDictionary({{"ZRKCVS", {"Comment", "Status", "Other"}}});
  WriteStatusValues(assembly_.At("car"), StatusClass(), kValues);
  EXPECT_EQ(ReadStatusAttributes(assembly_.At("car")), (StatusAttributes{"", "Edit", "", "comment"}));
  const ZRKIAttInstance_var instance = FindInstance(assembly_.At("car"), StatusClass());
  EXPECT_FALSE(GetParameter(instance, "Other")->HasValue());
}

TEST_F(TheStatusInstance, HasNoParameterWhenItIsMissing) {
  EXPECT_FALSE(GetParameter(nullptr, "Status"));
  SetParameter(nullptr, "Status", "Edit");
}

TEST_F(TheStatusInstance, SkipsWhatIsNotAParameter) {
  RecordingCarrier carrier;
  carrier.MakeNoParameter("Status");
  WriteStatusValues(carrier.Object(), StatusClass(), kValues);
  EXPECT_THAT(carrier.Written(), ElementsAre("Revision=1.5", "Release=release", "Comment=comment"));
}
