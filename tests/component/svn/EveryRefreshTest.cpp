// What holds of every refresh in a Subversion working copy: of a tree of products and of a single one, from
// text entries and from a database.

#include <gtest/gtest.h>

#include <ostream>

#include "DatabaseStage.h"
#include "attributes/AttributeDictionary.h"
#include "component/product/AlteredProduct.h"
#include "component/product/RecordingCarrier.h"
#include "svn/DatabaseStatus.h"
#include "svn/StatusReaders.h"

namespace {

using zrk::svn::SVNContext;
using Paths = std::vector<std::string>;
using Names = std::vector<std::string>;

struct Refresh {
  std::string Name;
  bool OfATree;
  bool OfADatabase;
  // For one product.
  std::size_t Runs;
  std::int32_t (*Do)(const SVNContext& context, const CATBaseUnknown_var& product);
};

std::int32_t RefreshTextTree(const SVNContext& context, const CATBaseUnknown_var& product) {
  zrk::svn::SVNTimes times;
  return zrk::svn::RefreshSVNStatusTree(context, product, times);
}
std::int32_t RefreshTextDocument(const SVNContext& context, const CATBaseUnknown_var& product) {
  return zrk::svn::RefreshSVNStatus(context, product);
}
std::int32_t RefreshDatabaseTree(const SVNContext& context, const CATBaseUnknown_var& product) {
  zrk::svn::SVNTimes times;
  return zrk::svn::RefreshDatabaseTree(context, product, times);
}
std::int32_t RefreshDatabaseDocument(const SVNContext& context, const CATBaseUnknown_var& product) {
  return zrk::svn::RefreshDatabaseDocument(context, product);
}

const Refresh kTextTree{"TextTree", true, false, 2, RefreshTextTree};
const Refresh kTextDocument{"TextDocument", false, false, 1, RefreshTextDocument};
const Refresh kDatabaseTree{"DatabaseTree", true, true, 1, RefreshDatabaseTree};
const Refresh kDatabaseDocument{"DatabaseDocument", false, true, 1, RefreshDatabaseDocument};

std::ostream& operator<<(std::ostream& stream, const Refresh& refresh) {
  return stream << refresh.Name;
}

class EveryRefresh : public DatabaseStage, public testing::WithParamInterface<Refresh> {
protected:
  EveryRefresh() {
    Products.Add("car", "wc/car").Add("wheel", "wc/wheel").Place("car", "wheel.1", "wheel");
    List({"car", "wheel"});
  }

  // These the working copy holds, at revision 9 and the next ones, and nobody locks them.
  void List(const Names& names) {
    std::string text;
    std::vector<reports::Entry> entries;
    int revision = 9;
    for (const std::string& name : names) {
      text += entries::File(10, name, std::to_string(revision), "bert");
      entries.insert(entries.begin(), {.Path = name, .Revision = std::to_string(revision)});
      ++revision;
    }
    if (GetParam().OfADatabase) {
      Report(entries);
    } else {
      WriteEntries("wc", text);
    }
  }

  void Refresh(const CATBaseUnknown_var& product) { EXPECT_EQ(GetParam().Do(Context(), product), 0); }
  void Refresh(const std::string& product) { Refresh(Products.At(product)); }

  // Of a tree all of them, and else the first.
  static Paths Reached(const Paths& products) {
    return GetParam().OfATree ? products : Paths{products.front()};
  }
  // In the shape of a tree or of a single document.
  static std::string Comment(const std::string& owner = "") {
    if (!GetParam().OfATree) return owner + "\n";
    return owner.empty() ? "" : "Locked by: \n" + owner + "\n-------------\n";
  }
};

TEST_P(EveryRefresh, OfNoProductDoesNothing) {
  Refresh(CATBaseUnknown_var());
  Refresh(CATBaseUnknown_var(AttributeClass));
  EXPECT_TRUE(Client.Runs().empty());
}

TEST_P(EveryRefresh, ReachesTheChildrenOnlyInATree) {
  Refresh("car");
  EXPECT_EQ(Redrawn.Paths(), Reached({"car", "car/wheel.1"}));
  EXPECT_EQ(Shown("car/wheel.1").has_value(), GetParam().OfATree);
}

TEST_P(EveryRefresh, WritesOntoTheInstanceAndNotOntoItsReference) {
  Refresh("car/wheel.1");
  EXPECT_EQ(Shown("car/wheel.1"), (StatusAttributes{"10", "ReadOnly", "", Comment()}));
  EXPECT_EQ(Shown("wheel"), std::nullopt);
  EXPECT_EQ(Shown("car"), std::nullopt);
  EXPECT_EQ(Redrawn.Paths(), Paths{"car/wheel.1"});
}

TEST_P(EveryRefresh, ReplacesAllFourAttributesThatWereThere) {
  WriteStatusAttributes(Products.At("car"), kOld);
  Refresh("car");
  EXPECT_EQ(Shown("car"), (StatusAttributes{"9", "ReadOnly", "", Comment()}));
}

TEST_P(EveryRefresh, AFileThatIsNotListedLosesItsAttributesAndIsRedrawnAsAreItsChildren) {
  WriteStatusAttributes(Products.At("car"), kOld);
  List({"wheel"});
  Refresh("car");
  EXPECT_EQ(Shown("car"), std::nullopt);
  EXPECT_EQ(Redrawn.Paths(), Reached({"car", "car/wheel.1"}));
  EXPECT_EQ(Shown("car/wheel.1").has_value(), GetParam().OfATree);
}

TEST_P(EveryRefresh, AProductThatIsNotLinkableLosesItsAttributesWithoutARedrawAndNothingBelowIsReached) {
  Products.AddNotLinkable("group").Place("group", "wheel.1", "wheel").Place("car", "group.1", "group");
  for (const char* product : {"group", "car/group.1", "car/group.1/wheel.1"}) {
    WriteStatusAttributes(Products.At(product), kOld);
  }
  Refresh("car/group.1");
  EXPECT_EQ(Shown("car/group.1"), std::nullopt);
  EXPECT_EQ(Shown("group"), kOld);
  EXPECT_EQ(Shown("car/group.1/wheel.1"), kOld);
  EXPECT_EQ(Redrawn.Paths(), Paths{});
  EXPECT_TRUE(Client.Runs().empty());
}

TEST_P(EveryRefresh, AProductWithoutADocumentOrReferenceIsLeftUntouchedAndNothingBelowIsReached) {
  Products.AddWithoutDocument("plain").Place("plain", "wheel.1", "wheel").Place("car", "plain.1", "plain");
  Products.Place("car", "gone.1", std::nullopt);
  WriteStatusAttributes(Products.At("car/plain.1/wheel.1"), kOld);
  for (const std::string product : {"car/plain.1", "car/gone.1"}) {
    WriteStatusAttributes(Products.At(product), kOld);
    Refresh(product);
    EXPECT_EQ(Shown(product), kOld) << product;
  }
  EXPECT_EQ(Shown("car/plain.1/wheel.1"), kOld);
  EXPECT_EQ(Redrawn.Paths(), Paths{});
  EXPECT_TRUE(Client.Runs().empty());
}

TEST_P(EveryRefresh, AProductThatCannotCarryAttributesIsRedrawnAsAreItsChildren) {
  Products.Add({.Name = "fixed", .Document = Folder.Host("wc/car"), .Extendable = false});
  Products.Place("fixed", "wheel.1", "wheel");
  Refresh("fixed");
  EXPECT_EQ(Redrawn.Paths(), Reached({"fixed", "fixed/wheel.1"}));
  EXPECT_EQ(Shown("fixed/wheel.1").has_value(), GetParam().OfATree);
}

TEST_P(EveryRefresh, AProductThatTakesNoInstanceIsRedrawn) {
  standin::RefuseNewInstances(true);
  Refresh("car");
  EXPECT_EQ(Shown("car"), std::nullopt);
  EXPECT_EQ(Redrawn.Paths(), Reached({"car", "car/wheel.1"}));
}

TEST_P(EveryRefresh, WithoutAnAttributeClassStillAsksAndRedraws) {
  AttributeClass = nullptr;
  Refresh("car/wheel.1");
  EXPECT_EQ(Client.Runs().size(), GetParam().Runs);
  EXPECT_EQ(Redrawn.Paths(), Paths{"car/wheel.1"});
}

TEST_P(EveryRefresh, WritesRevisionStatusReleaseCommentAndThenRedraws) {
  RecordingCarrier carrier;
  std::vector<Names> atRedraws;
  standin::SetRedrawListener([&](const CATBaseUnknown_var&) { atRedraws.push_back(carrier.Written()); });
  const auto wheel = CATBaseUnknown_var::Adopt(
      new AlteredProduct(Products.At("car/wheel.1"), ZRKIAttExtendable::ClassId(), carrier.Object()));
  const Names written{"Revision=10", "Status=ReadOnly", "Release=", "Comment=" + Comment()};
  Refresh(wheel);
  EXPECT_EQ(atRedraws, std::vector<Names>{written});
  Refresh(wheel);
  EXPECT_EQ(carrier.Additions(), 1) << "an instance that was there was added again";
}

TEST_P(EveryRefresh, OfAFileThatIsNotListedTakesTheInstanceOffAndThenRedraws) {
  std::vector<bool> atRedraws;
  standin::SetRedrawListener(
      [&](const CATBaseUnknown_var&) { atRedraws.push_back(Shown("wheel").has_value()); });
  WriteStatusAttributes(Products.At("wheel"), kOld);
  List({"car"});
  Refresh("wheel");
  EXPECT_EQ(atRedraws, std::vector<bool>{false});
}

const auto kRefreshName = [](const auto& refresh) { return refresh.param.Name; };
INSTANTIATE_TEST_SUITE_P(Of, EveryRefresh,
                         testing::Values(kTextTree, kTextDocument, kDatabaseTree, kDatabaseDocument),
                         kRefreshName);

// Of a tree.

class EveryTreeRefresh : public EveryRefresh {
protected:
  // car with two axles of two wheels each.
  EveryTreeRefresh() {
    Products.Add("all", "wc/all").Add("axle", "wc/axle");
    Products.Place("axle", "wheel.1", "wheel").Place("axle", "wheel.2", "wheel");
    Products.Place("all", "axle.1", "axle").Place("all", "axle.2", "axle");
    List({"wheel", "all", "axle"});
  }
};

TEST_P(EveryTreeRefresh, RedrawsEachProductOnceParentsFirst) {
  Refresh("all");
  EXPECT_EQ(Redrawn.Paths(), (Paths{"all", "all/axle.1", "all/axle.1/wheel.1", "all/axle.1/wheel.2",
                                    "all/axle.2", "all/axle.2/wheel.1", "all/axle.2/wheel.2"}));
}

TEST_P(EveryTreeRefresh, WritesOntoEachInstanceWhatItsDocumentHas) {
  Refresh("all");
  EXPECT_EQ(Shown("all"), (StatusAttributes{"10", "ReadOnly", "", ""}));
  for (const std::string axle : {"all/axle.1", "all/axle.2"}) {
    EXPECT_EQ(Shown(axle), (StatusAttributes{"11", "ReadOnly", "", ""}));
    EXPECT_EQ(Shown(axle + "/wheel.1"), (StatusAttributes{"9", "ReadOnly", "", ""}));
    EXPECT_EQ(Shown(axle + "/wheel.2"), (StatusAttributes{"9", "ReadOnly", "", ""}));
  }
  EXPECT_EQ(Shown("axle"), std::nullopt);
  EXPECT_EQ(Shown("wheel"), std::nullopt);
}

TEST_P(EveryTreeRefresh, MayStartAtAnInstance) {
  Refresh("all/axle.2");
  EXPECT_EQ(Redrawn.Paths(), (Paths{"all/axle.2", "all/axle.2/wheel.1", "all/axle.2/wheel.2"}));
  EXPECT_NE(Shown("all/axle.2/wheel.1"), std::nullopt);
  EXPECT_EQ(Shown("all"), std::nullopt);
}

TEST_P(EveryTreeRefresh, GoesOnBehindProductsWithoutADocument) {
  Products.AddNotLinkable("group").AddWithoutDocument("plain").Add("top", "wc/all");
  Products.Place("top", "group.1", "group").Place("top", "plain.1", "plain");
  Products.Place("top", "gone.1", std::nullopt).Place("top", "wheel.1", "wheel");
  Refresh("top");
  EXPECT_EQ(Redrawn.Paths(), (Paths{"top", "top/wheel.1"}));
  EXPECT_EQ(Shown("top/wheel.1")->Revision, "9");
}

INSTANTIATE_TEST_SUITE_P(Of, EveryTreeRefresh, testing::Values(kTextTree, kDatabaseTree), kRefreshName);

// From text entries.

class EveryTextRefresh : public EveryRefresh {
protected:
  void ListLockedHere() const {
    WriteEntries("wc", entries::File(10, "car", "9", "bert", {entries::kToken, "anna", "", ""}));
  }
  const std::string Path = Folder.Host("wc/car");
};

TEST_P(EveryTextRefresh, WithoutAnEntriesFileAProductLosesItsAttributesAndIsRedrawn) {
  std::filesystem::remove(Folder / "wc/.svn/entries");
  WriteStatusAttributes(Products.At("wheel"), kOld);
  Refresh("wheel");
  EXPECT_EQ(Shown("wheel"), std::nullopt);
  EXPECT_EQ(Redrawn.Paths(), Paths{"wheel"});
  EXPECT_EQ(Client.Runs().size(), GetParam().Runs);
}

TEST_P(EveryTextRefresh, ADocumentThatWasNeverStoredIsAskedAboutWithoutAName) {
  Products.Add({.Name = "new", .Document = ""}).Place("new", "wheel.1", "wheel");
  WriteStatusAttributes(Products.At("new"), kOld);
  Refresh("new");
  EXPECT_EQ(Arguments().at(0), (Texts{"status", "-v", "-u", ""}));
  if (GetParam().OfATree) {
    EXPECT_EQ(Arguments().at(1), (Texts{"status", "-v", "-u", "--xml", ""}));
  }
  EXPECT_EQ(Shown("new"), std::nullopt);
  EXPECT_EQ(Redrawn.Paths(), Reached({"new", "new/wheel.1"}));
}

TEST_P(EveryTextRefresh, ReadsTheEntriesFileBeforeTheClientRuns) {
  Client.When("status").Store(".svn/entries", entries::Format(10) + entries::File(10, "wheel", "12", "anna"));
  Refresh("wheel");
  EXPECT_EQ(Shown("wheel")->Revision, "10");
}

TEST_P(EveryTextRefresh, AClientThatCannotBeStartedLeavesWhatTheEntriesFileSays) {
  ListLockedHere();
  SVNExePath = "";
  Refresh("car");
  EXPECT_EQ(Shown("car"), (StatusAttributes{"9", "Edit", "", Comment("anna")}));
  EXPECT_TRUE(Client.Runs().empty());
}

TEST_P(EveryTextRefresh, OwnLockWinsOverTheMark) {
  ListLockedHere();
  Client.When("status").Out(ForeignLockReport(Path));
  Refresh("car");
  EXPECT_EQ(Shown("car"), (StatusAttributes{"9", "Edit", "", Comment("anna")}));
}

TEST_P(EveryTextRefresh, TheMarkCountsInTheLineOfAnotherFile) {
  Client.When("status").Out(UnlockedReport(Path) + ForeignLockReport("other.CATPart"));
  Refresh("car");
  EXPECT_EQ(Shown("car"), (StatusAttributes{"9", "Locked", "", Comment()}));
}

INSTANTIATE_TEST_SUITE_P(Of, EveryTextRefresh, testing::Values(kTextTree, kTextDocument), kRefreshName);

}  // namespace
