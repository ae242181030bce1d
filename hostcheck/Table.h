#pragma once

#include <exception>
#include <sstream>
#include <string>

#include "ZRKHostCheck.h"

namespace zrk::hostcheck {

// What a check expects, and what it found instead.
class Expectations {
public:
  // Keeps the parts of `found`, joined, unless the expectation holds. Texts of the host are put into quotes.
  template <class Condition, class... Parts>
  bool operator()(const Condition& holds, const Parts&... found) {
    if (holds) return true;
    std::ostringstream text;
    text << found_ << (found_.empty() ? "" : "; ");
    (Write(text, found), ...);
    found_ = text.str();
    return false;
  }
  const std::string& Found() const { return found_; }

private:
  template <class Part>
  static void Write(std::ostream& text, const Part& part) {
    if constexpr (requires { part.ConvertToChar(); }) {
      text << '"' << part.ConvertToChar() << '"';
    } else {
      text << part;
    }
  }

  std::string found_;
};

// Carries out checks and tells of each.
class Table {
public:
  Table(ZRKHostCheckReport report, void* context) : report_(report), context_(context) {}

  // Calls `check` with the expectations; that it throws is not expected.
  template <class Check>
  bool Row(const char* name, Check check) {
    Expectations expect;
    try {
      check(expect);
    } catch (const std::exception& error) {
      expect(false, "exception: ", error.what());
    } catch (...) {
      expect(false, "an exception");
    }
    return Tell(name, expect.Found().empty() ? ZRKHostCheckHolds : ZRKHostCheckFails, expect.Found().c_str());
  }
  // Not when there is nothing to look at: then `missing` says what would be needed.
  template <class Check>
  bool RowUnless(const char* missing, const char* name, Check check) {
    return missing ? Tell(name, ZRKHostCheckNotSeen, missing) : Row(name, check);
  }

  int NotHolding() const { return notHolding_; }

private:
  bool Tell(const char* name, ZRKHostCheckResult result, const char* found) {
    report_(context_, name, result, found);
    if (result != ZRKHostCheckHolds) ++notHolding_;
    return result == ZRKHostCheckHolds;
  }

  ZRKHostCheckReport report_;
  void* context_;
  int notHolding_ = 0;
};

}  // namespace zrk::hostcheck
