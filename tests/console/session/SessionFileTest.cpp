#include "session/SessionFile.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <array>

#include "base/CallError.h"
#include "console/SessionSchema.h"
#include "support/Files.h"
#include "support/Platform.h"

namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::Pair;
using testing::StartsWith;

const std::filesystem::path kFolder = ExecutableFolder().root_path() / "home" / "u";

// What is taken fits the schema too.
zrkhost::SessionDescription Parse(const std::string& text) {
  auto session = zrkhost::ParseSession(text, "car.json", kFolder);
  EXPECT_EQ(SchemaComplaint(text), "") << text;
  return session;
}

// Whether a complaint is about what a schema can say: types, keys, and names that must be there.
bool IsAboutForm(const std::string& complaint) {
  constexpr std::array kWords = {
      "must be ",     "must not be empty", "is missing", "is not a key known here", "a product needs a name",
      "a second time"};
  return std::ranges::any_of(kWords,
                             [&](const char* words) { return complaint.find(words) != std::string::npos; });
}

// What is said about a session that is wrong.
std::string Complaint(const std::string& text) {
  try {
    Parse(text);
  } catch (const zrkhost::CallError& error) {
    if (IsAboutForm(error.what())) {
      EXPECT_NE(SchemaComplaint(text), "") << text;
    }
    return error.what();
  }
  return "nothing";
}

// The same of a session whose root is the one product given.
std::string ProductComplaint(const std::string& product, const std::string& more = "") {
  return Complaint(R"({"root": "car", "products": {"car": )" + product + more + "}}");
}

TEST(SessionFile, HasDefaultsForAllThatIsNotSaid) {
  const auto session = Parse(R"({"root": "car", "products": {"car": {}}})");
  EXPECT_TRUE(session.Window);
  EXPECT_TRUE(session.Dictionary);
  ASSERT_TRUE(session.Class);
  EXPECT_THAT(session.Class->Parameters, ElementsAre("Revision", "Status", "Release", "Comment"));
  EXPECT_TRUE(session.Class->Modifiable);
  EXPECT_TRUE(session.Catalogs.empty());
  EXPECT_EQ(session.Root, "car");
  ASSERT_EQ(session.Products.size(), 1u);
  const auto& car = session.Products[0];
  EXPECT_EQ(car.Name, "car");
  EXPECT_FALSE(car.Document);
  EXPECT_TRUE(car.Linkable);
  EXPECT_TRUE(car.Extendable);
  EXPECT_FALSE(car.Attributes);
  EXPECT_TRUE(car.Children.empty());
}

TEST(SessionFile, TakesEveryKey) {
  const auto session = Parse(R"({
    "documents": "wc", "window": false, "dictionary": false,
    "attributeClass": {"parameters": ["Status", "Other"], "modifiable": false},
    "catalogs": {"A": {"k": "text /P1"}, "B": {}},
    "root": "car",
    "products": {
      "axle": {"document": "axle.CATPart", "linkable": false, "extendable": false, "attributes": {}},
      "car": {"attributes": {"Other": "x"},
              "children": [{"name": "axle.1", "reference": "axle", "attributes": {"Status": "Edit"}},
                           {"name": "gone", "reference": null}]}
    }})");
  EXPECT_FALSE(session.Window);
  EXPECT_FALSE(session.Dictionary);
  EXPECT_THAT(session.Class->Parameters, ElementsAre("Status", "Other"));
  EXPECT_FALSE(session.Class->Modifiable);
  EXPECT_EQ(session.Catalogs.at("A").at("k"), "text /P1");
  EXPECT_TRUE(session.Catalogs.at("B").empty());
  const auto& axle = session.Products[0];
  EXPECT_EQ(axle.Document, kFolder / "wc" / "axle.CATPart");
  EXPECT_FALSE(axle.Linkable);
  EXPECT_FALSE(axle.Extendable);
  EXPECT_TRUE(axle.Attributes && axle.Attributes->empty());
  const auto& car = session.Products[1];
  EXPECT_THAT(*car.Attributes, ElementsAre(Pair("Other", "x")));
  ASSERT_EQ(car.Children.size(), 2u);
  EXPECT_EQ(car.Children[0].Name, "axle.1");
  EXPECT_EQ(car.Children[0].Reference, "axle");
  EXPECT_THAT(*car.Children[0].Attributes, ElementsAre(Pair("Status", "Edit")));
  EXPECT_EQ(car.Children[1].Name, "gone");
  EXPECT_FALSE(car.Children[1].Reference);
  EXPECT_FALSE(car.Children[1].Attributes);
}

TEST(SessionFile, KeepsTheOtherDefaultOfAnAttributeClassWithOneKey) {
  EXPECT_FALSE(Parse(R"({"attributeClass": {"modifiable": false}, "root": "a", "products": {"a": {}}})")
                   .Class->Modifiable);
  EXPECT_EQ(Parse(R"({"attributeClass": {"modifiable": false}, "root": "a", "products": {"a": {}}})")
                .Class->Parameters.size(),
            4u);
  EXPECT_TRUE(Parse(R"({"attributeClass": {"parameters": []}, "root": "a", "products": {"a": {}}})")
                  .Class->Modifiable);
}

TEST(SessionFile, HasNoClassWhereItIsNull) {
  EXPECT_FALSE(Parse(R"({"attributeClass": null, "root": "a", "products": {"a": {}}})").Class);
}

TEST(SessionFile, AllowsAnyStartingAttributesWithoutAClass) {
  const auto session =
      Parse(R"({"attributeClass": null, "root": "a", "products": {"a": {"attributes": {"Any": "1"}}}})");
  EXPECT_THAT(*session.Products[0].Attributes, ElementsAre(Pair("Any", "1")));
}

TEST(SessionFile, StartsDocumentsFromTheSessionsFolder) {
  const auto session = Parse(R"({"root": "a", "products": {"a": {"document": "sub/a.CATPart"}}})");
  EXPECT_EQ(session.Products[0].Document, kFolder / "sub" / "a.CATPart");
}

TEST(SessionFile, MakesDocumentsLexicallyNormal) {
  const auto session = Parse(
      R"({"documents": "./wc/../other", "root": "a", "products": {"a": {"document": "x/../a.CATPart"}}})");
  EXPECT_EQ(session.Products[0].Document, kFolder / "other" / "a.CATPart");
}

TEST(SessionFile, TakesEitherSeparator) {
  const auto session =
      Parse(R"({"documents": "wc\\proj", "root": "a", "products": {"a": {"document": "sub\\a.CATPart"}}})");
  EXPECT_EQ(session.Products[0].Document, kFolder / "wc" / "proj" / "sub" / "a.CATPart");
}

TEST(SessionFile, LeavesAbsoluteDocumentsWhereTheyAre) {
  const auto absolute = (kFolder / "elsewhere" / "a.CATPart").generic_string();
  const auto session =
      Parse(R"({"documents": "wc", "root": "a", "products": {"a": {"document": ")" + absolute + R"("}}})");
  EXPECT_EQ(session.Products[0].Document, kFolder / "elsewhere" / "a.CATPart");
}

TEST(SessionFile, TakesAnEmptyDocumentForOneThatWasNeverStored) {
  const auto session = Parse(R"({"root": "a", "products": {"a": {"document": ""}}})");
  EXPECT_EQ(session.Products[0].Document, std::filesystem::path());
}

TEST(SessionFile, NamesTheLineAndColumnOfWhatIsNotJson) {
  EXPECT_THAT(Complaint("{\n  \"root\": nonsense\n}"), StartsWith("car.json: not JSON: "));
  EXPECT_THAT(Complaint("{\n  \"root\": nonsense\n}"), HasSubstr("line 2, column 12"));
  EXPECT_THAT(Complaint(""), HasSubstr("line 1"));
  EXPECT_THAT(Complaint("{} {}"), HasSubstr("line 1"));
  EXPECT_THAT(Complaint("{\"root\": \"\xff\"}"), HasSubstr("line 1, column 11"));
}

TEST(SessionFile, NamesThePlaceOfANumberThatIsTooLarge) {
  EXPECT_EQ(Complaint(R"({"root": "car", "products": {"car": {"children": [{}, {"name": 1e999}]}}})"),
            "car.json: /products/car/children/1/name: the number 1e999 is too large");
  EXPECT_EQ(Complaint("-1e999"), "car.json: the whole document: the number -1e999 is too large");
}

TEST(SessionFile, RefusesKeysThatStandTwice) {
  EXPECT_THAT(Complaint(R"({"root": "a", "root": "b", "products": {}})"), StartsWith("car.json: /root: "));
  EXPECT_THAT(Complaint(R"({"products": {"a/b": {"children": [{}, {"name": "x", "name": "y"}]}}})"),
              StartsWith("car.json: /products/a~1b/children/1/name: "));
  EXPECT_THAT(Complaint(R"({"x": [[], [1, {"a": 1}, {"a": 1, "b": 2, "a": 3}]]})"),
              StartsWith("car.json: /x/1/2/a: "));
}

TEST(SessionFile, AllowsTheSameKeyInDifferentObjects) {
  EXPECT_NO_THROW(Parse(R"({"root": "a", "products": {"a": {"document": "x"}, "b": {"document": "x"}}})"));
}

TEST(SessionFile, RefusesAbsurdlyDeepNesting) {
  EXPECT_THAT(Complaint(std::string(1'000'000, '[')), HasSubstr("nested too deeply"));
  EXPECT_THAT(Complaint("{\"root\": " + std::string(200'000, '[') + std::string(200'000, ']') + "}"),
              StartsWith("car.json: /root/0/0"));
}

TEST(SessionFile, RefusesUnknownKeysWithTheirPlace) {
  EXPECT_THAT(Complaint(R"({"root": "a", "products": {"a": {}}, "colour": 1})"),
              StartsWith("car.json: /colour: "));
  EXPECT_THAT(ProductComplaint(R"({"colour": 1})"), StartsWith("car.json: /products/car/colour: "));
  EXPECT_THAT(ProductComplaint(R"({"children": [{"name": "x", "reference": null, "colour": 1}]})"),
              StartsWith("car.json: /products/car/children/0/colour: "));
  EXPECT_THAT(Complaint(R"({"attributeClass": {"colour": 1}, "root": "a", "products": {"a": {}}})"),
              StartsWith("car.json: /attributeClass/colour: "));
}

TEST(SessionFile, EscapesPointers) {
  EXPECT_THAT(Complaint(R"({"root": "a", "products": {"a/b~c": {"x/y~z": 1}, "a": {}}})"),
              StartsWith("car.json: /products/a~1b~0c/x~1y~0z: "));
}

TEST(SessionFile, RefusesWrongTypesWithTheirPlace) {
  EXPECT_THAT(Complaint("[]"), StartsWith("car.json: the whole document: must be an object, not array"));
  const std::string rest = R"(, "root": "a", "products": {"a": {}}})";
  EXPECT_THAT(Complaint(R"({"documents": 1)" + rest),
              StartsWith("car.json: /documents: must be a string, not number"));
  EXPECT_THAT(Complaint(R"({"window": "yes")" + rest),
              StartsWith("car.json: /window: must be true or false"));
  EXPECT_THAT(Complaint(R"({"dictionary": null)" + rest), StartsWith("car.json: /dictionary: "));
  EXPECT_THAT(Complaint(R"({"attributeClass": [])" + rest), StartsWith("car.json: /attributeClass: "));
  EXPECT_THAT(Complaint(R"({"attributeClass": {"parameters": {}})" + rest),
              StartsWith("car.json: /attributeClass/parameters: must be an array"));
  EXPECT_THAT(Complaint(R"({"attributeClass": {"parameters": ["a", 1]})" + rest),
              StartsWith("car.json: /attributeClass/parameters/1: "));
  EXPECT_THAT(Complaint(R"({"attributeClass": {"modifiable": 1})" + rest),
              StartsWith("car.json: /attributeClass/modifiable: "));
  EXPECT_THAT(Complaint(R"({"catalogs": [])" + rest), StartsWith("car.json: /catalogs: "));
  EXPECT_THAT(Complaint(R"({"catalogs": {"A": "x"})" + rest), StartsWith("car.json: /catalogs/A: "));
  EXPECT_THAT(Complaint(R"({"catalogs": {"A": {"k": 1}})" + rest), StartsWith("car.json: /catalogs/A/k: "));
  EXPECT_THAT(Complaint(R"({"root": "a", "products": []})"), StartsWith("car.json: /products: "));
  EXPECT_THAT(Complaint(R"({"root": null, "products": {}})"), StartsWith("car.json: /root: "));
  EXPECT_THAT(ProductComplaint("null"), StartsWith("car.json: /products/car: "));
  EXPECT_THAT(ProductComplaint(R"({"document": null})"), StartsWith("car.json: /products/car/document: "));
  EXPECT_THAT(ProductComplaint(R"({"linkable": 0})"), StartsWith("car.json: /products/car/linkable: "));
  EXPECT_THAT(ProductComplaint(R"({"extendable": 0})"), StartsWith("car.json: /products/car/extendable: "));
  EXPECT_THAT(ProductComplaint(R"({"attributes": []})"), StartsWith("car.json: /products/car/attributes: "));
  EXPECT_THAT(ProductComplaint(R"({"attributes": {"Status": 1}})"),
              StartsWith("car.json: /products/car/attributes/Status: "));
  EXPECT_THAT(ProductComplaint(R"({"children": {}})"), StartsWith("car.json: /products/car/children: "));
  EXPECT_THAT(ProductComplaint(R"({"children": ["x"]})"), StartsWith("car.json: /products/car/children/0: "));
  EXPECT_THAT(ProductComplaint(R"({"children": [{"name": 1, "reference": null}]})"),
              StartsWith("car.json: /products/car/children/0/name: "));
  EXPECT_THAT(ProductComplaint(R"({"children": [{"name": "x", "reference": 1}]})"),
              StartsWith("car.json: /products/car/children/0/reference: "));
}

TEST(SessionFile, RefusesWhatIsMissing) {
  EXPECT_THAT(Complaint(R"({"products": {"a": {}}})"), StartsWith("car.json: /root: is missing"));
  EXPECT_THAT(Complaint(R"({"root": "a"})"), StartsWith("car.json: /products: is missing"));
  EXPECT_THAT(ProductComplaint(R"({"children": [{"reference": null}]})"),
              StartsWith("car.json: /products/car/children/0/name: is missing"));
  EXPECT_THAT(ProductComplaint(R"({"children": [{"name": "x"}]})"),
              StartsWith("car.json: /products/car/children/0/reference: is missing"));
}

TEST(SessionFile, RefusesNamesThatAreEmptyAndTextsWithTheCharacter0) {
  EXPECT_THAT(ProductComplaint(R"({"children": [{"name": "", "reference": null}]})"),
              StartsWith("car.json: /products/car/children/0/name: "));
  EXPECT_THAT(Complaint(R"({"root": "", "products": {"": {}}})"), StartsWith("car.json: /products/: "));
  EXPECT_THAT(ProductComplaint(R"({"document": "a\u0000b"})"),
              StartsWith("car.json: /products/car/document: "));
}

TEST(SessionFile, RefusesARootThatIsNoProduct) {
  EXPECT_THAT(Complaint(R"({"root": "b", "products": {"a": {}}})"), StartsWith("car.json: /root: "));
  EXPECT_THAT(Complaint(R"({"root": "b", "products": {"a": {}}})"), HasSubstr("\"b\""));
}

TEST(SessionFile, RefusesAReferenceThatIsNoProduct) {
  EXPECT_THAT(ProductComplaint(
                  R"({"children": [{"name": "x", "reference": null}, {"name": "y", "reference": "gone"}]})"),
              StartsWith("car.json: /products/car/children/1/reference: there is no product \"gone\""));
}

TEST(SessionFile, RefusesTwoChildrenOfOneName) {
  EXPECT_THAT(ProductComplaint(
                  R"({"children": [{"name": "x", "reference": null}, {"name": "x", "reference": null}]})"),
              StartsWith("car.json: /products/car/children/1/name: "));
}

TEST(SessionFile, RefusesStartingAttributesWithoutAParameter) {
  EXPECT_THAT(ProductComplaint(R"({"attributes": {"Status": "x", "Colour": "red"}})"),
              StartsWith("car.json: /products/car/attributes/Colour: "));
  EXPECT_THAT(ProductComplaint(
                  R"({"children": [{"name": "x", "reference": null, "attributes": {"Colour": "red"}}]})"),
              StartsWith("car.json: /products/car/children/0/attributes/Colour: "));
  EXPECT_THAT(Complaint(R"({"attributeClass": {"parameters": ["Colour"]}, "root": "a",
                            "products": {"a": {"attributes": {"Status": "x"}}}})"),
              StartsWith("car.json: /products/a/attributes/Status: "));
}

TEST(SessionFile, RefusesAParameterNamedTwice) {
  EXPECT_THAT(
      Complaint(R"({"attributeClass": {"parameters": ["a", "a"]}, "root": "a", "products": {"a": {}}})"),
      StartsWith("car.json: /attributeClass/parameters/1: "));
}

TEST(SessionFile, RefusesAProductThatContainsItself) {
  EXPECT_THAT(ProductComplaint(R"({"children": [{"name": "x", "reference": "car"}]})"),
              StartsWith("car.json: /products/car/children/0/reference: "));
  EXPECT_THAT(ProductComplaint(R"({"children": [{"name": "x", "reference": "axle"}]})",
                               R"(, "axle": {"children": [{"name": "y", "reference": "car"}]})"),
              HasSubstr("would contain itself"));
}

TEST(SessionFile, RefusesAProductThatContainsItselfWhereTheRootDoesNotReach) {
  EXPECT_THAT(ProductComplaint("{}", R"(, "wheel": {"children": [{"name": "y", "reference": "wheel"}]})"),
              StartsWith("car.json: /products/wheel/children/0/reference: "));
}

TEST(SessionFile, AllowsAProductInSeveralPlaces) {
  EXPECT_NO_THROW(Parse(R"({"root": "a", "products": {
      "a": {"children": [{"name": "1", "reference": "c"}, {"name": "2", "reference": "b"}]},
      "b": {"children": [{"name": "1", "reference": "c"}]}, "c": {}}})"));
}

// Products that each hold the next one `times` times.
std::string Chain(int length, int times) {
  std::string products;
  for (int i = 0; i < length; ++i) {
    products += "\"p" + std::to_string(i) + "\": {\"children\": [";
    for (int child = 0; child < times; ++child) {
      products += (child ? ", " : "") + (R"({"name": ")" + std::to_string(child)) + R"(", "reference": "p)" +
                  std::to_string(i + 1) + "\"}";
    }
    products += "]}, ";
  }
  return R"({"root": "p0", "products": {)" + products + "\"p" + std::to_string(length) + "\": {}}}";
}

TEST(SessionFile, RefusesATreeOfMorePlacesThanAnyMemoryHolds) {
  EXPECT_THAT(Complaint(Chain(64, 2)),
              HasSubstr("/root: the tree below \"p0\" has more than 2000000 places"));
  EXPECT_THAT(Complaint(Chain(400, 3)), HasSubstr("/root: "));
}

TEST(SessionFile, RefusesATreeThatIsTooDeep) {
  EXPECT_THAT(Complaint(Chain(20'000, 1)),
              HasSubstr("/root: the tree below \"p0\" has more than 10000 levels"));
}

TEST(SessionFile, TakesADeepTree) {
  EXPECT_NO_THROW(Parse(Chain(9'999, 1)));
}

// The session files that the fuzzer grows its own from.
TEST(SessionFile, FitsTheSchemaInTheFuzzersCorpus) {
  int count = 0;
  for (const auto& file : std::filesystem::directory_iterator(ExecutableFolder() / "sessions")) {
    ExpectSchemaTakesWhatZrkhostTakes(ReadFile(file.path()));
    ++count;
  }
  EXPECT_GT(count, 0);
}

}  // namespace
