// The host's XML documents, as the reports of `svn status --xml` need them.

#include "CATIDOM.h"
#include "Checks.h"

namespace zrk::hostcheck {
namespace {

// Bytes as a client writes them: in UTF-8, whatever the host's 8-bit text is.
constexpr auto kReport =
    "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
    "<status>\n"
    "<target path=\".\">\n"
    "<entry path=\"T\xc3\xbcr &amp; &quot;Tor&quot;\"><lock><owner>J\xc3\xbcrgen</owner></lock></entry>\n"
    "<list><entry path=\"b\" empty=\"\"><owner>a &lt;<deep>b</deep>c</owner></entry></list>\n"
    "</target>\n"
    "<entry path=\"c\"/>\n"
    "</status>\n";

// The report's elements of that name; null when there are none to be had.
CATIDOMNodeList_var Elements(const HostFunctions& host, const char* name) {
  CATIDOMDocument_var document;
  host.CreateXMLDOMFromString(kReport, document);
  const CATIDOMElement_var root(document ? document->GetDocumentElement() : nullptr);
  return root ? root->GetElementsByTagName(name) : nullptr;
}

int LengthOf(const CATIDOMNodeList_var& list) {
  return list ? list->GetLength() : 0;
}

CATIDOMNode_var ItemOf(const CATIDOMNodeList_var& list, int position) {
  return position < LengthOf(list) ? list->Item(position) : nullptr;
}

}  // namespace

void CheckDom(Table& table, const HostFunctions& host) {
  table.Row("ZRKAttModelerServices: CreateXMLDOMFromString", [&](Expectations& expect) {
    for (const char* text : {kReport, "", "<a><b></a>", "<a>", "<a/> svn: E170013", "svn: warning\n<a/>"}) {
      const bool wellFormed = text == kReport;
      CATIDOMDocument_var document;
      const HRESULT result = host.CreateXMLDOMFromString(text, document);
      expect((result >= 0) == wellFormed && !document != wellFormed, "\"", text, "\" gives ", result,
             document ? " and a document" : " and none");
    }
  });
  table.Row("CATIDOM: elements in document order", [&](Expectations& expect) {
    const CATIDOMNodeList_var entries = Elements(host, "entry");
    expect(LengthOf(entries) == 3, "3 elements at any depth are ", LengthOf(entries));
    expect(LengthOf(Elements(host, "none")) == 0, "there are elements of a name that does not occur");
    // In document order the first two hold an owner and the last none.
    for (int i = 0; i < 3; ++i) {
      const CATIDOMElement_var entry(ItemOf(entries, i));
      expect(entry && LengthOf(entry->GetElementsByTagName("owner")) == (i < 2 ? 1 : 0), "the element at ", i,
             " is null or out of order");
    }
  });
  table.Row("ZRKAttPackageBaseServices: GetNodeText", [&](Expectations& expect) {
    const auto reads = [&](int position, const CATUnicodeString& expected) {
      const CATIDOMNode_var owner = ItemOf(Elements(host, "owner"), position);
      CATUnicodeString text("left over");
      if (owner) host.GetNodeText(owner, text);
      expect(text == expected, expected, " is read as ", text);
    };
    reads(0, CATUnicodeString(L"J\u00fcrgen"));
    reads(1, "a <bc");
  });
  table.Row("CATIDOM: GetAttribute", [&](Expectations& expect) {
    const auto reads = [&](int position, const char* name, const CATUnicodeString& expected) {
      const CATIDOMElement_var entry(ItemOf(Elements(host, "entry"), position));
      const CATUnicodeString value(entry ? entry->GetAttribute(name) : "no element");
      expect(value == expected, name, "=", expected, " is read as ", value);
    };
    reads(0, "path", CATUnicodeString(L"T\u00fcr & \"Tor\""));
    reads(1, "path", "b");
    reads(1, "empty", "");
    reads(2, "none", "");
  });
}

}  // namespace zrk::hostcheck
