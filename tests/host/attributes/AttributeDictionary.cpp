#include "attributes/AttributeDictionary.h"

#include <gtest/gtest.h>

#include "CATICkeParm.h"
#include "ZRKAttPackageBaseServices.h"
#include "framework/FrameworkControl.h"
#include "host/framework/TestObjects.h"
#include "product/ProductModel.h"

namespace {

using standin::ProductModel;

class AttributeDictionary : public testing::Test {
protected:
  AttributeDictionary() {
    standin::InstallAttributeDictionary(
        {{.Package = "ZRKCVS", .Parameters = {"Revision", "Status"}},
         {.Package = "Frozen", .Parameters = {"Status"}, .Modifiable = false}});
    model_.AddReference({.Name = "part", .Document = std::nullopt});
    part_ = model_.Reference("part");
    class_ = Class("ZRKCVS");
  }
  ~AttributeDictionary() override {
    standin::RefuseNewInstances(false);
    standin::RemoveAttributeDictionary();
  }

  static ZRKIAttClass_var Class(const char* package) {
    return ZRKAttPackageBaseServices::GetDicoLookUp()->LookUpClass(package);
  }
  ZRKIAttInstance_var Instance(const ZRKIAttClass_var& attributeClass) const {
    return ZRKIAttExtendable_var(part_)->FindInstance(attributeClass);
  }
  HRESULT Add(const ZRKIAttClass_var& attributeClass, const ZRKIAttInstance_var& model = nullptr) const {
    return ZRKIAttExtendable_var(part_)->AddInstance(attributeClass, model);
  }
  static CATICkeParm_var Parameter(const ZRKIAttInstance_var& instance, const char* name) {
    return instance->GetParameter(name);
  }

  ProductModel model_;
  CATBaseUnknown_var part_;
  ZRKIAttClass_var class_;
};

TEST_F(AttributeDictionary, IsThereOnlyWhileItIsInstalled) {
  EXPECT_TRUE(ZRKAttPackageBaseServices::GetDicoLookUp());
  standin::RemoveAttributeDictionary();
  EXPECT_FALSE(ZRKAttPackageBaseServices::GetDicoLookUp());
}

TEST_F(AttributeDictionary, KnowsItsClassesByPackage) {
  EXPECT_STREQ(class_->GetPackageName().ConvertToChar(), "ZRKCVS");
  EXPECT_EQ(Class("ZRKCVS")->GetImpl(), class_->GetImpl());
  EXPECT_FALSE(Class("zrkcvs"));
  EXPECT_FALSE(Class(""));
}

TEST_F(AttributeDictionary, HasClassesThatSayWhetherAnObjectMayBeModified) {
  const CATISpecObject_var part(part_);
  const ZRKIAttStatus_var status(class_);
  ASSERT_TRUE(status);
  EXPECT_NE(status->IsModifiable(part), 0);
  EXPECT_EQ(ZRKIAttStatus_var(Class("Frozen"))->IsModifiable(part), 0);
  EXPECT_TRUE(ZRKIAttClass_var(status));
  EXPECT_FALSE(ZRKIAttExtendable_var(class_));
}

TEST_F(AttributeDictionary, PutsOneInstanceOfAClassOntoAnObject) {
  EXPECT_FALSE(Instance(class_));
  EXPECT_EQ(Add(class_), 0);
  const ZRKIAttInstance_var instance = Instance(class_);
  ASSERT_TRUE(instance);
  EXPECT_LT(Add(class_), 0);
  EXPECT_EQ(Instance(class_)->GetImpl(), instance->GetImpl());
}

TEST_F(AttributeDictionary, KeepsTheInstancesOfTwoClassesApart) {
  Add(class_);
  EXPECT_FALSE(Instance(Class("Frozen")));
  Add(Class("Frozen"));
  Parameter(Instance(class_), "Status")->Valuate("Edit");
  EXPECT_FALSE(Parameter(Instance(Class("Frozen")), "Status")->HasValue());
  ZRKIAttExtendable_var(part_)->RemoveInstance(Class("Frozen"));
  EXPECT_TRUE(Instance(class_));
  EXPECT_FALSE(Instance(Class("Frozen")));
}

TEST_F(AttributeDictionary, KeepsTheInstancesOfTwoObjectsApart) {
  model_.AddReference({.Name = "other", .Document = std::nullopt});
  Add(class_);
  EXPECT_FALSE(ZRKIAttExtendable_var(model_.Reference("other"))->FindInstance(class_));
}

TEST_F(AttributeDictionary, HasInstancesWithTheParametersOfTheirClass) {
  Add(class_);
  const ZRKIAttInstance_var instance = Instance(class_);
  EXPECT_EQ(standin::ParameterNames(instance), (std::vector<std::string>{"Revision", "Status"}));
  EXPECT_TRUE(Parameter(instance, "Revision"));
  EXPECT_EQ(Parameter(instance, "Revision")->GetImpl(), Parameter(instance, "Revision")->GetImpl());
  EXPECT_FALSE(instance->GetParameter("revision"));
  EXPECT_FALSE(instance->GetParameter("Comment"));
  EXPECT_TRUE(standin::ParameterNames(ZRKIAttInstance_var()).empty());
}

TEST_F(AttributeDictionary, HasParametersThatKeepWhatTheyWereSetTo) {
  Add(class_);
  EXPECT_FALSE(Parameter(Instance(class_), "Status")->HasValue());
  EXPECT_EQ(Parameter(Instance(class_), "Status")->AsText().GetLengthInByte(), 0);
  Parameter(Instance(class_), "Status")->Valuate("Locked\nby x");
  EXPECT_STREQ(Parameter(Instance(class_), "Status")->AsText().ConvertToChar(), "Locked\nby x");
  EXPECT_FALSE(Parameter(Instance(class_), "Revision")->HasValue());
  Parameter(Instance(class_), "Status")->Valuate("");
  EXPECT_TRUE(Parameter(Instance(class_), "Status")->HasValue());
}

TEST_F(AttributeDictionary, CopiesTheValuesOfAModel) {
  Add(Class("Frozen"));
  const ZRKIAttInstance_var model = Instance(Class("Frozen"));
  Parameter(model, "Status")->Valuate("Edit");
  EXPECT_EQ(Add(class_, model), 0);
  EXPECT_STREQ(Parameter(Instance(class_), "Status")->AsText().ConvertToChar(), "Edit");
  EXPECT_FALSE(Parameter(Instance(class_), "Revision")->HasValue());
  Parameter(model, "Status")->Valuate("changed");
  EXPECT_STREQ(Parameter(Instance(class_), "Status")->AsText().ConvertToChar(), "Edit");
}

TEST_F(AttributeDictionary, ForgetsTheValuesOfAnInstanceTakenOff) {
  Add(class_);
  const ZRKIAttInstance_var old = Instance(class_);
  Parameter(old, "Status")->Valuate("Edit");
  ZRKIAttExtendable_var(part_)->RemoveInstance(class_);
  EXPECT_FALSE(Instance(class_));
  ZRKIAttExtendable_var(part_)->RemoveInstance(class_);
  Add(class_);
  EXPECT_FALSE(Parameter(Instance(class_), "Status")->HasValue());
  EXPECT_STREQ(Parameter(old, "Status")->AsText().ConvertToChar(), "Edit");
}

using AttributeDictionaryDeathTest = AttributeDictionary;

TEST_F(AttributeDictionaryDeathTest, MustNotBeAskedForInstancesOfNoClass) {
  GTEST_FLAG_SET(death_test_style, "threadsafe");
  EXPECT_DEATH(Add(nullptr), "no class");
  EXPECT_DEATH(Instance(nullptr), "no class");
  EXPECT_DEATH(ZRKIAttExtendable_var(part_)->RemoveInstance(nullptr), "no class");
}

TEST_F(AttributeDictionaryDeathTest, MustNotBeAskedWhetherNothingMayBeModified) {
  GTEST_FLAG_SET(death_test_style, "threadsafe");
  EXPECT_DEATH(ZRKIAttStatus_var(class_)->IsModifiable(CATISpecObject_var()), "Nothing");
}

TEST_F(AttributeDictionary, RefusesNewInstancesWhenToldTo) {
  Add(Class("Frozen"));
  standin::RefuseNewInstances(true);
  EXPECT_LT(Add(class_), 0);
  EXPECT_FALSE(Instance(class_));
  EXPECT_TRUE(Instance(Class("Frozen")));
  standin::RefuseNewInstances(false);
  EXPECT_EQ(Add(class_), 0);
}

TEST_F(AttributeDictionary, AddsNothingWhenMemoryIsExhausted) {
  const long before = standin::LiveObjectCount();
  for (const int successes : {0, 1, 2}) {
    standin::FailObjectAllocation(successes);
    EXPECT_LT(Add(class_), 0);
    EXPECT_FALSE(Instance(class_));
    EXPECT_EQ(standin::LiveObjectCount(), before);
  }
  EXPECT_EQ(Add(class_), 0);
}

TEST_F(AttributeDictionary, EndsItsInstancesWithTheirObject) {
  const long before = standin::LiveObjectCount();
  {
    ProductModel model;
    model.AddReference({.Name = "part", .Document = std::nullopt});
    ZRKIAttExtendable_var(model.Reference("part"))->AddInstance(class_, nullptr);
    EXPECT_GT(standin::LiveObjectCount(), before);
  }
  EXPECT_EQ(standin::LiveObjectCount(), before);
}

TEST_F(AttributeDictionary, LeavesNothingBehindWhenItGoes) {
  class_ = nullptr;
  Add(Class("ZRKCVS"));
  ZRKIAttExtendable_var(part_)->RemoveInstance(Class("ZRKCVS"));
  const long before = standin::LiveObjectCount();
  standin::RemoveAttributeDictionary();
  EXPECT_EQ(standin::LiveObjectCount(), before - 3);
}

}  // namespace
