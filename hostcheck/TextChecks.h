#pragma once

#include <cstring>
#include <string>

#include "CATListVal.h"
#include "Table.h"

// The host's text and lists. Templates, so that the checks can be seen to fail with other classes.
namespace zrk::hostcheck {

template <class Text>
void CheckText(Table& table) {
  table.Row("CATUnicodeString: 8-bit and wide text", [](Expectations& expect) {
    const Text text(L"T\u00fcr");
    const Text again(text.ConvertToChar());
    expect(again.ConvertToWideChar() == L"T\u00fcr", "a u with dots came back as ", again);
    expect(again == text && !(Text("a") == Text("A")), "texts are compared otherwise");
    const Text blanks(" a \r\n\t ");
    expect(std::strcmp(blanks.ConvertToChar(), " a \r\n\t ") == 0, "blanks are not kept: ", blanks);
  });
  table.Row("CATUnicodeString: lengths in characters and bytes", [](Expectations& expect) {
    const Text text(L"T\u00fcr");
    const int bytes = static_cast<int>(std::strlen(text.ConvertToChar()));
    expect(text.GetLengthInChar() == 3, "3 characters count as ", text.GetLengthInChar());
    expect(text.GetLengthInByte() == bytes, bytes, " bytes count as ", text.GetLengthInByte());
    expect(Text().GetLengthInChar() == 0, "the empty text has a length");
  });
  table.Row("CATUnicodeString: +, += and BuildFromNum", [](Expectations& expect) {
    Text text("a");
    text += Text("b");
    text += "c";
    const Text sum(text + Text("d"));
    expect(text == Text("abc") && sum == Text("abcd"), "a, b and c are ", text, ", and d ", sum);
    const Text number(Text::BuildFromNum(0.25, "%g"));
    expect(number == Text("0.25"), "0.25 with %g is ", number);
  });
  // A client's output is read in blocks, which end anywhere.
  table.Row("CATUnicodeString: a character whose bytes come in two pieces", [](Expectations& expect) {
    const Text whole(L"\u00fc");
    Text pieces;
    for (const char* byte = whole.ConvertToChar(); *byte; ++byte) pieces += std::string(1, *byte).c_str();
    expect(pieces == whole && pieces.GetLengthInChar() == 1, "it became ", pieces);
  });
  table.Row("CATUnicodeString: ReplaceSubString", [](Expectations& expect) {
    const auto gives = [&](const char* text, const char* searched, const char* by, const char* expected) {
      Text result(text);
      result.ReplaceSubString(Text(searched), Text(by));
      expect(result == Text(expected), "\"", searched, "\" in \"", text, "\" by \"", by, "\": ", result);
    };
    gives("/a/a/", "/a", "", "/a/");
    gives("abc", "x", "y", "abc");
    gives("abc", "", "y", "abc");
  });
}

template <class List>
void CheckList(Table& table) {
  table.Row("CATListVal: counted from 1", [](Expectations& expect) {
    List list;
    expect(list.Size() == 0, "a new list has a size");
    list.Append("a");
    list.Append("b");
    expect(list.Size() == 2 && list[1] == "a" && list[2] == "b", "what was appended is not at 1 and 2");
  });
}

}  // namespace zrk::hostcheck
