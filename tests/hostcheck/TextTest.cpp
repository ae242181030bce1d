#include "CATListVal.h"
#include "CheckedHost.h"
#include "TextChecks.h"

namespace {

// The host's text, to be altered in one point.
class OtherText : public CATUnicodeString {
public:
  using CATUnicodeString::CATUnicodeString;
  OtherText() = default;
  OtherText(const CATUnicodeString& text) : CATUnicodeString(text) {}
};

template <class Text>
CheckRows Checked() {
  CheckRows rows;
  zrk::hostcheck::Table table(&CheckRows::Report, &rows);
  zrk::hostcheck::CheckText<Text>(table);
  return rows;
}

TEST(TextCheck, FindsLettersThatAreLost) {
  struct Narrow : OtherText {
    using OtherText::OtherText;
    std::wstring ConvertToWideChar() const { return L"T?r"; }
  };
  Checked<Narrow>().ExpectFails("CATUnicodeString: 8-bit and wide text", "a u with dots came back as");
}

TEST(TextCheck, FindsBlanksThatAreLost) {
  struct Trimmed : OtherText {
    using OtherText::OtherText;
    const char* ConvertToChar() const { return CATUnicodeString::ConvertToChar() + 1; }
  };
  Checked<Trimmed>().ExpectFails("CATUnicodeString: 8-bit and wide text", "blanks are not kept");
}

TEST(TextCheck, FindsTextsComparedWithoutCase) {
  struct Folded : OtherText {
    using OtherText::OtherText;
    bool operator==(const Folded&) const { return true; }
  };
  Checked<Folded>().ExpectFails("CATUnicodeString: 8-bit and wide text", "compared otherwise");
}

TEST(TextCheck, FindsLengthsOfTheOtherKind) {
  struct Doubled : OtherText {
    using OtherText::OtherText;
    int GetLengthInByte() const { return 2 * GetLengthInChar(); }
    int GetLengthInChar() const { return 4; }
  };
  const CheckRows rows = Checked<Doubled>();
  rows.ExpectFails("CATUnicodeString: lengths in characters and bytes", "3 characters count as 4");
  rows.ExpectFails("CATUnicodeString: lengths in characters and bytes", " bytes count as 8");
  rows.ExpectFails("CATUnicodeString: lengths in characters and bytes", "the empty text has a length");
}

TEST(TextCheck, FindsPiecesThatAreNotJoined) {
  struct Forgetful : OtherText {
    using OtherText::OtherText;
    Forgetful& operator+=(const Forgetful&) { return *this; }
    Forgetful& operator+=(const char*) { return *this; }
  };
  const CheckRows rows = Checked<Forgetful>();
  rows.ExpectFails("CATUnicodeString: +, += and BuildFromNum", "a, b and c are \"a\", and d \"ad\"");
  rows.ExpectFails("CATUnicodeString: a character whose bytes come in two pieces", "it became \"\"");
}

TEST(TextCheck, FindsNumbersWrittenOtherwise) {
  struct German : OtherText {
    using OtherText::OtherText;
    static CATUnicodeString BuildFromNum(double, const char*) { return "0,25"; }
  };
  Checked<German>().ExpectFails("CATUnicodeString: +, += and BuildFromNum", "0.25 with %g is \"0,25\"");
}

TEST(TextCheck, FindsEveryOccurrenceReplaced) {
  struct Thorough : OtherText {
    using OtherText::OtherText;
    void ReplaceSubString(const CATUnicodeString& searched, const CATUnicodeString& by) {
      CATUnicodeString::ReplaceSubString(searched, by);
      CATUnicodeString::ReplaceSubString(searched, by);
    }
  };
  Checked<Thorough>().ExpectFails("CATUnicodeString: ReplaceSubString", "\"/a\" in \"/a/a/\" by \"\": \"/\"");
}

TEST(ListCheck, FindsAListCountedFromZero) {
  class FromZero : public CATListValCATUnicodeString {
  public:
    CATUnicodeString operator[](int position) {
      return position < Size() ? CATListValCATUnicodeString::operator[](position + 1) : CATUnicodeString();
    }
  };
  CheckRows rows;
  zrk::hostcheck::Table table(&CheckRows::Report, &rows);
  zrk::hostcheck::CheckList<FromZero>(table);
  rows.ExpectFails("CATListVal: counted from 1", "is not at 1 and 2");
}

}  // namespace
