#include "SVNStatus.h"

#include <expat.h>
#include <gtest/gtest.h>

#include <memory>
#include <set>
#include <stdexcept>
#include <string_view>
#include <vector>

#include "core/HostPath.h"
#include "support/Command.h"

namespace fs = std::filesystem;

namespace {

// The elements of a report as they open and close.
class Reader {
public:
  explicit Reader(SVNAnswer& answer) : answer_(answer) {}

  void Open(std::string_view element, const XML_Char** attributes) {
    text_.clear();
    if (element == "entry") {
      path_ = Attribute(attributes, "path");
      entry_ = {};
    } else if (element == "wc-status") {
      inRepository_ = false;
      entry_.Item = Attribute(attributes, "item");
    } else if (element == "repos-status") {
      inRepository_ = true;
    } else if (element == "commit" && !inRepository_) {
      entry_.Revision = Attribute(attributes, "revision");
    } else if (element == "lock") {
      (inRepository_ ? entry_.RepositoryLock : entry_.OwnLock).emplace();
    }
  }

  void Close(std::string_view element) {
    auto& lock = inRepository_ ? entry_.RepositoryLock : entry_.OwnLock;
    if (element == "token") lock.value().Token = text_;
    if (element == "owner") lock.value().Owner = text_;
    if (element == "comment") lock.value().Comment = text_;
    if (element != "entry") return;
    SVNEntry& known = answer_.Entries[path_];
    if (known.Item.empty() || known.Item == "external") known = entry_;
  }

  void Read(std::string_view characters) { text_ += characters; }

private:
  static std::string Attribute(const XML_Char** attributes, std::string_view name) {
    for (; *attributes; attributes += 2) {
      if (*attributes == name) return attributes[1];
    }
    return {};
  }

  SVNAnswer& answer_;
  std::string path_;
  SVNEntry entry_;
  bool inRepository_ = false;
  std::string text_;
};

bool Read(const std::string& report, SVNAnswer& answer) {
  const std::unique_ptr<XML_ParserStruct, decltype(&XML_ParserFree)> parser(XML_ParserCreate(nullptr),
                                                                            XML_ParserFree);
  Reader reader(answer);
  XML_SetUserData(parser.get(), &reader);
  XML_SetElementHandler(
      parser.get(),
      [](void* data, const XML_Char* name, const XML_Char** attributes) {
        static_cast<Reader*>(data)->Open(name, attributes);
      },
      [](void* data, const XML_Char* name) { static_cast<Reader*>(data)->Close(name); });
  XML_SetCharacterDataHandler(parser.get(), [](void* data, const XML_Char* characters, int size) {
    static_cast<Reader*>(data)->Read({characters, static_cast<std::size_t>(size)});
  });
  return XML_Parse(parser.get(), report.data(), static_cast<int>(report.size()), 1) == XML_STATUS_OK;
}

// The report without the client's warnings.
std::string Status(const fs::path& workingCopy, const std::vector<std::string>& options) {
  std::vector<std::string> command = {
      "sh", "-c", "exec svn \"$@\" 2>/dev/null", "sh", "status", "--xml", "--non-interactive"};
  command.insert(command.end(), options.begin(), options.end());
  command.push_back(workingCopy.string() + "@");
  return RunCommand(command, {.Folder = {}, .Input = "", .Environment = {{"LC_ALL", "C.UTF-8"}}}).Output;
}

}  // namespace

SVNAnswer SVNAnswer::And(const SVNAnswer& other) const {
  SVNAnswer both = *this;
  both.Entries.insert(other.Entries.begin(), other.Entries.end());
  return both;
}

SVNAnswer AskSVN(const fs::path& workingCopy) {
  SVNAnswer answer;
  if (Read(Status(workingCopy, {"-v", "-u"}), answer)) return answer;
  answer = {.Entries = {}, .RepositoryAsked = false};
  const std::string report = Status(workingCopy, {"-v"});
  if (!Read(report, answer)) throw std::runtime_error(report);
  return answer;
}

Json ExpectedAttributes(const SVNEntry& entry, bool repositoryAsked, CommentForm form) {
  static const std::set<std::string> notHeld = {"unversioned", "ignored", "external", "none"};
  if (notHeld.contains(entry.Item)) return nullptr;

  const std::optional<SVNLock>& own = entry.OwnLock;
  const std::optional<SVNLock>& held = repositoryAsked ? entry.RepositoryLock : own;
  const bool isTree = form == CommentForm::Tree;
  Json attributes = {
      {"Revision", entry.Revision}, {"Status", "ReadOnly"}, {"Release", ""}, {"Comment", isTree ? "" : "\n"}};
  if (held) {
    attributes["Status"] = own && own->Token == held->Token ? "Edit" : "Locked";
    attributes["Comment"] =
        (isTree ? "Locked by: \n" : "") + held->Owner + (isTree ? "\n-------------\n" : "\n") + held->Comment;
  }
  return attributes;
}

void ExpectWhatSVNSays(const Json& report, const SVNAnswer& answer, CommentForm form) {
  std::map<std::string, Json> expected;
  for (const auto& [path, entry] : answer.Entries) {
    expected[standin::HostPath(path)] = ExpectedAttributes(entry, answer.RepositoryAsked, form);
  }
  for (const Json& product : report.at("products")) {
    if (product.at("document").is_null()) continue;
    const std::string document = product.at("document");
    EXPECT_EQ(product.at("attributes"), expected[document]) << document;
  }
}
