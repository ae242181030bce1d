#include "CATIDOM.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "ZRKAttModelerServices.h"
#include "ZRKAttPackageBaseServices.h"
#include "framework/FrameworkControl.h"
#include "support/Files.h"
#include "support/TemporaryFolder.h"

namespace {

CATIDOMDocument_var Parse(const std::string& text) {
  CATIDOMDocument_var document;
  const HRESULT result = ZRKAttModelerServices::CreateXMLDOMFromString(text.c_str(), document);
  EXPECT_EQ(result >= 0, static_cast<bool>(document));
  return document;
}

std::string TextOf(const CATIDOMNode_var& node) {
  CATUnicodeString text("left from before");
  ZRKAttPackageBaseServices::GetNodeText(node, text);
  return text.ConvertToChar();
}

// Texts of all elements of that name below the document element.
std::vector<std::string> Texts(const CATIDOMDocument_var& document, const char* name) {
  std::vector<std::string> texts;
  const CATIDOMNodeList_var nodes = document->GetDocumentElement()->GetElementsByTagName(name);
  for (int position = 0; position < nodes->GetLength(); ++position)
    texts.push_back(TextOf(nodes->Item(position)));
  return texts;
}

using Strings = std::vector<std::string>;

TEST(CATIDOM, FindsElementsAtAnyDepthInDocumentOrder) {
  const auto document = Parse("<r><a>1<a>2</a></a><b><c><a>3</a></c></b><a/></r>");
  ASSERT_TRUE(document);
  EXPECT_EQ(Texts(document, "a"), (Strings{"12", "2", "3", ""}));
  EXPECT_EQ(Texts(document, "none"), Strings{});
  EXPECT_EQ(Texts(document, "A"), Strings{});
}

TEST(CATIDOM, FindsOnlyWhatIsBelowTheElementAsked) {
  const auto document = Parse("<a><b><a>in</a></b><a>behind</a></a>");
  EXPECT_EQ(Texts(document, "a"), (Strings{"in", "behind"}));
  const CATIDOMNodeList_var found = document->GetDocumentElement()->GetElementsByTagName("b");
  const CATIDOMElement_var b(found->Item(0));
  ASSERT_TRUE(b);
  EXPECT_EQ(b->GetElementsByTagName("a")->GetLength(), 1);
  EXPECT_EQ(b->GetElementsByTagName("b")->GetLength(), 0);
}

TEST(CATIDOM, GivesTheValueOfAnAttribute) {
  const auto document = Parse("<r name=\"a &amp; &lt;b&gt;\" other='2'><a name=\"inner\"/><a/></r>");
  const CATIDOMElement_var root = document->GetDocumentElement();
  EXPECT_EQ(root->GetAttribute("name"), "a & <b>");
  EXPECT_EQ(root->GetAttribute("other"), "2");
  const CATIDOMNodeList_var found = root->GetElementsByTagName("a");
  EXPECT_EQ(CATIDOMElement_var(found->Item(0))->GetAttribute("name"), "inner");
}

TEST(CATIDOM, AnAttributeThatIsNotThereIsEmpty) {
  const auto document = Parse("<r name=\"1\"><a Name=\"2\"/></r>");
  const CATIDOMElement_var a(document->GetDocumentElement()->GetElementsByTagName("a")->Item(0));
  EXPECT_EQ(a->GetAttribute("name"), "");
  EXPECT_EQ(a->GetAttribute(""), "");
}

TEST(CATIDOM, CountsItemsFromZeroAndHasNoneOutside) {
  const auto document = Parse("<r><a>x</a></r>");
  const CATIDOMNodeList_var nodes = document->GetDocumentElement()->GetElementsByTagName("a");
  EXPECT_EQ(nodes->GetLength(), 1);
  EXPECT_TRUE(nodes->Item(0));
  EXPECT_FALSE(nodes->Item(1));
  EXPECT_FALSE(nodes->Item(-1));
}

TEST(CATIDOM, JoinsAllTextBelowANode) {
  const auto document = Parse("<r><t>a&lt;&#65;<u>b</u><!-- no -->c<![CDATA[<d>]]><?pi no?>\r\ne</t></r>");
  EXPECT_EQ(Texts(document, "t"), Strings{"a<Abc<d>\ne"});
}

TEST(CATIDOM, GivesNoTextOfNoNode) {
  EXPECT_EQ(TextOf(CATIDOMNode_var()), "");
}

TEST(CATIDOM, KeepsTheDocumentWhileANodeIsHeld) {
  const long before = standin::LiveObjectCount();
  {
    CATIDOMNode_var node;
    node = Parse("<r><a>kept</a></r>")->GetDocumentElement()->GetElementsByTagName("a")->Item(0);
    EXPECT_EQ(TextOf(node), "kept");
  }
  EXPECT_EQ(standin::LiveObjectCount(), before);
}

TEST(CATIDOM, RefusesWhatIsNotOneWellFormedDocument) {
  for (const char* text :
       {"", " ", "text", "<a>", "<a></b>", "<a/><b/>", "<a/>text", "svn: warning\n<a/>", "<a b=c/>",
        "<a>&none;</a>", "<a b='1' b='2'/>", "<a><b></a></b>", "<?xml version='1.0'?>",
        "warning\n<?xml version='1.0'?><a/>", "\n<?xml version='1.0'?><a/>", "<a>\xFF</a>", "<a>&#0;</a>",
        "<a>\x01</a>", "<?xml version='1.0' encoding='unheard-of'?><a/>"}) {
    EXPECT_FALSE(Parse(text)) << text;
  }
}

TEST(CATIDOM, TakesBlanksAroundTheDocumentElement) {
  EXPECT_TRUE(Parse("<?xml version='1.0'?>\r\n<a/>\r\n\r\n"));
}

TEST(CATIDOM, ForgetsTheDocumentThatStoodThere) {
  CATIDOMDocument_var document = Parse("<a/>");
  EXPECT_LT(ZRKAttModelerServices::CreateXMLDOMFromString("<a>", document), 0);
  EXPECT_FALSE(document);
}

TEST(CATIDOM, ReadsTheEncodingThatTheDocumentDeclares) {
  EXPECT_EQ(Texts(Parse("<?xml version='1.0' encoding='ISO-8859-1'?><r><t>\xE9</t></r>"), "t"),
            Texts(Parse("<?xml version='1.0' encoding='UTF-8'?><r><t>\xC3\xA9</t></r>"), "t"));
}

TEST(CATIDOM, DoesNotReadExternalEntities) {
  const TemporaryFolder folder;
  WriteFile(folder / "secret.txt", "secret");
  const std::string file = "file://" + (folder / "secret.txt").generic_string();
  const auto document = Parse("<!DOCTYPE r [<!ENTITY x SYSTEM '" + file + "'>]><r><t>a&x;b</t></r>");
  ASSERT_TRUE(document);
  EXPECT_EQ(Texts(document, "t"), Strings{"ab"});
}

TEST(CATIDOM, PutsItsOwnEntitiesIn) {
  EXPECT_EQ(Texts(Parse("<!DOCTYPE r [<!ENTITY x 'y'>]><r><t>a&x;b</t></r>"), "t"), Strings{"ayb"});
}

// Without a limit this one comes to ten thousand million texts.
TEST(CATIDOM, RefusesADocumentThatEntitiesBlowUp) {
  std::string bomb = "<!DOCTYPE r [<!ENTITY e0 '0123456789'>";
  for (int level = 1; level <= 10; ++level) {
    bomb += "<!ENTITY e" + std::to_string(level) + " '";
    for (int copy = 0; copy < 10; ++copy) bomb += "&e" + std::to_string(level - 1) + ";";
    bomb += "'>";
  }
  EXPECT_FALSE(Parse(bomb + "]><r>&e10;</r>"));
}

TEST(CATIDOM, TakesADocumentOfAnyDepth) {
  constexpr int kDepth = 300000;
  std::string text;
  for (int level = 0; level < kDepth; ++level) text += "<a>";
  text += "x";
  for (int level = 0; level < kDepth; ++level) text += "</a>";
  const auto document = Parse(text);
  ASSERT_TRUE(document);
  EXPECT_EQ(TextOf(CATIDOMNode_var(document->GetDocumentElement())), "x");
  EXPECT_EQ(document->GetDocumentElement()->GetElementsByTagName("a")->GetLength(), kDepth - 1);
}

TEST(CATIDOM, TakesALongReport) {
  std::string text = "<status>";
  constexpr int kEntries = 200000;
  for (int entry = 0; entry < kEntries; ++entry) text += "<entry path='a'><owner>somebody</owner></entry>";
  text += "</status>";
  ASSERT_GT(text.size(), 8u << 20);
  const auto document = Parse(text);
  ASSERT_TRUE(document);
  const CATIDOMNodeList_var owners = document->GetDocumentElement()->GetElementsByTagName("owner");
  EXPECT_EQ(owners->GetLength(), kEntries);
  EXPECT_EQ(TextOf(owners->Item(kEntries - 1)), "somebody");
}

TEST(CATIDOM, GivesNothingWhenMemoryIsExhausted) {
  standin::FailObjectAllocation(0);
  EXPECT_FALSE(Parse("<r/>"));
  const auto document = Parse("<r><a/></r>");
  standin::FailObjectAllocation(0);
  EXPECT_FALSE(document->GetDocumentElement());
  const CATIDOMElement_var root = document->GetDocumentElement();
  standin::FailObjectAllocation(0);
  EXPECT_FALSE(root->GetElementsByTagName("a"));
  const CATIDOMNodeList_var nodes = root->GetElementsByTagName("a");
  standin::FailObjectAllocation(0);
  EXPECT_FALSE(nodes->Item(0));
}

}  // namespace
