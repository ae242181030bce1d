// The host's functions that are called without an object.

#include "CheckedHost.h"
#include "support/EnvironmentVariable.h"

namespace {

using ServiceCheck = CheckedHost;

HRESULT ParseAlways(const CATUnicodeString&, CATIDOMDocument_var& document) {
  return ZRKAttModelerServices::CreateXMLDOMFromString("<a/>", document);
}

HRESULT ParseNever(const CATUnicodeString&, CATIDOMDocument_var& document) {
  document = nullptr;
  return E_FAIL;
}

// Parses the text with the first of one text in it exchanged for another.
template <const char* const& From, const char* const& To>
HRESULT ParseChanged(const CATUnicodeString& text, CATIDOMDocument_var& document) {
  CATUnicodeString changed(text);
  changed.ReplaceSubString(From, To);
  return ZRKAttModelerServices::CreateXMLDOMFromString(changed, document);
}

TEST_F(ServiceCheck, FindsAParserThatTakesEveryText) {
  Host.CreateXMLDOMFromString = &ParseAlways;
  Check().ExpectFails("ZRKAttModelerServices: CreateXMLDOMFromString", "\"<a>\" gives 0 and a document");
}

TEST_F(ServiceCheck, FindsAParserThatTakesNone) {
  Host.CreateXMLDOMFromString = &ParseNever;
  const CheckRows rows = Check();
  rows.ExpectFails("ZRKAttModelerServices: CreateXMLDOMFromString",
                   "</status>\n\" gives -2147467259 and none");
  rows.ExpectFails("CATIDOM: GetAttribute", "is read as \"no element\"");
}

const char* const kLastEntry = "<entry path=\"c\"/>";
const char* const kNothing = "";
TEST_F(ServiceCheck, FindsElementsThatAreMissing) {
  Host.CreateXMLDOMFromString = &ParseChanged<kLastEntry, kNothing>;
  Check().ExpectFails("CATIDOM: elements in document order", "3 elements at any depth are 2");
}

const char* const kFirst = "<target path=\".\">";
const char* const kFirstEmpty = "<target path=\".\"><entry/>";
const char* const kLast = "<entry path=\"c\"/>";
TEST_F(ServiceCheck, FindsElementsInAnotherOrder) {
  Host.CreateXMLDOMFromString = [](const CATUnicodeString& text, CATIDOMDocument_var& document) {
    CATUnicodeString changed(text);
    changed.ReplaceSubString(kLast, "");
    return ParseChanged<kFirst, kFirstEmpty>(changed, document);
  };
  Check().ExpectFails("CATIDOM: elements in document order", "the element at 0 is null or out of order");
}

TEST_F(ServiceCheck, FindsTextThatIsNotRead) {
  Host.GetNodeText = [](const CATIDOMNode_var&, CATUnicodeString& text) { text = "a "; };
  Check().ExpectFails("ZRKAttPackageBaseServices: GetNodeText", "\"a <bc\" is read as \"a \"");
}

const char* const kUtf8 = "encoding=\"UTF-8\"";
const char* const kLatin1 = "encoding=\"ISO-8859-1\"";
TEST_F(ServiceCheck, FindsLettersReadInAnotherEncoding) {
  Host.CreateXMLDOMFromString = &ParseChanged<kUtf8, kLatin1>;
  const CheckRows rows = Check();
  rows.ExpectFails("ZRKAttPackageBaseServices: GetNodeText", "rgen\" is read as");
  rows.ExpectFails("CATIDOM: GetAttribute", "is read as");
}

TEST_F(ServiceCheck, FindsADefaultTextThatIsFilledIn) {
  Host.BuildMessage = [](const CATUnicodeString&, const CATUnicodeString&, const CATUnicodeString* parameters,
                         int, const CATUnicodeString& text) {
    CATUnicodeString filled(text);
    filled.ReplaceSubString("/P1", parameters[0]);
    return filled;
  };
  Check().ExpectFails("CATMsgCatalog: the default text",
                      "\"as /P1 it stands\" becomes \"as file it stands\"");
}

TEST_F(ServiceCheck, FindsFilesThatAreNotFound) {
  Host.GetRuntimeFilePath = [](const char*, const CATUnicodeString&, CATUnicodeString& path) {
    path = "";
    return false;
  };
  Check().ExpectFails("ZRKCorEnvVarManager: GetRuntimeFilePath", "is found as \"\"");
}

TEST_F(ServiceCheck, FindsFilesThatAreFoundWithoutBeingThere) {
  Host.GetRuntimeFilePath = [](const char*, const CATUnicodeString& file, CATUnicodeString& path) {
    path = CATUnicodeString("\\bin\\") + file;
    return true;
  };
  Check().ExpectFails("ZRKCorEnvVarManager: GetRuntimeFilePath",
                      "a file that does not exist is found as \"\\bin\\ZRKHostCheck.none\"");
}

TEST_F(ServiceCheck, NeedsAProgramToFind) {
  const EnvironmentVariable path("PATH", folder_.Path().string());
  Check().ExpectNotSeen("ZRKCorEnvVarManager: GetRuntimeFilePath", "a program along PATH");
}

TEST_F(ServiceCheck, FindsFoldersThatKeepTheirSeparator) {
  Host.SplitFilePath = [](const CATUnicodeString& path, CATUnicodeString& folder, CATUnicodeString& name) {
    ZRKCorParserServices::SplitFilePath(path, folder, name);
    folder += "\\";
  };
  Check().ExpectFails("ZRKCorParserServices: SplitFilePath", "is \"C:\\wc\\\" and \"car.1.CATPart\"");
}

TEST_F(ServiceCheck, TakesAnExceptionForAFinding) {
  Host.SplitFilePath = [](const CATUnicodeString&, CATUnicodeString&, CATUnicodeString&) {
    throw std::runtime_error("out of reach");
  };
  Check().ExpectFails("ZRKCorParserServices: SplitFilePath", "exception: out of reach");
}

}  // namespace
