#pragma once

#include <gtest/gtest.h>

#include <deque>
#include <optional>
#include <string>
#include <vector>

#include "manager/ZRKECVSManager.h"
#include "product/ProductModel.h"
#include "support/Assembly.h"
#include "support/CVSFolder.h"
#include "support/CapturedOutput.h"
#include "support/ClientReports.h"
#include "support/DialogRecorder.h"
#include "support/Files.h"
#include "support/ScriptedClient.h"
#include "support/Session.h"
#include "support/TemporaryFolder.h"

// A product "car" whose document "car body.CATProduct" lies in the folder "proj/sub" of a CVS working copy,
// with scripted clients and a user who answers questions with no.
class OperationTest : public testing::Test {
protected:
  explicit OperationTest(InstalledClients installed = InstalledClients::Both) : Client(installed) {
    WriteCVSFolder(Folder / "proj/sub", "/cvs/root", "proj/sub");
    Products.Add("car", kDocument);
    standin::SetRedrawListener(
        [this](const CATBaseUnknown_var& product) { Redraws.push_back(standin::ProductPath(product)); });
  }
  ~OperationTest() override { standin::SetRedrawListener({}); }

  // Made on the first call, and the same from then on.
  ZRKECVSManager& Manager() {
    if (!manager_) UseManagerOf("car");
    return *manager_;
  }
  ZRKECVSManager& UseManagerOf(const std::string& product) {
    manager_.reset();
    product_ = Products.At(product);
    return manager_.emplace(*product_);
  }

  // The "Status" attribute; "no instance" when the product carries none.
  std::string StatusOf(const std::string& product) const {
    const auto attributes = ReadStatusAttributes(Products.At(product));
    return attributes ? attributes->Status : "no instance";
  }

  CATBaseUnknown_var Car() const { return Products.At("car"); }
  std::filesystem::path Document() const { return Folder / kDocument; }

  void AnswerQuestions(std::deque<standin::DialogAnswer> answers) {
    dialogs_.reset();
    dialogs_.emplace(std::move(answers));
  }
  const std::vector<standin::DialogRequest>& Dialogs() const { return dialogs_->Requests(); }
  DialogRecorder& User() { return *dialogs_; }

  // The arguments of all runs, joined by blanks.
  std::vector<std::string> Runs() const {
    std::vector<std::string> runs;
    for (const ClientRun& run : Client.Runs()) runs.push_back(run.Joined());
    return runs;
  }

  // What the client reports of the document, with CR LF as Windows clients write.
  static std::string StatusReport(const std::string& revision = "1.4", const std::string& tag = "") {
    std::vector<std::string> tags;
    if (!tag.empty()) tags = {tag + "\t(revision: 1.4)", "OLD\t(revision: 1.1)"};
    return zrk::sample::kSeparatorLine +
           zrk::sample::StatusBlock("proj/sub/car body.CATProduct", revision, "Up-to-date", tags);
  }

  static constexpr char kDocument[] = "proj/sub/car body.CATProduct";
  static constexpr char kUpdate[] = "-d /cvs/root -n -q update proj\\sub\\car body.CATProduct";
  static constexpr char kEdit[] = "-d /cvs/root -q -x edit -z -c proj\\sub\\car body.CATProduct";
  static constexpr char kUnedit[] = "-d /cvs/root -q -x unedit proj\\sub\\car body.CATProduct";
  static constexpr char kStatus[] = "-d /cvs/root status -v proj\\sub\\car body.CATProduct";
  static constexpr char kEditors[] = "-d /cvs/root -n edit proj\\sub\\car body.CATProduct";

  Session Host;
  ScriptedClient Client;
  TemporaryFolder Folder;
  Assembly Products{Folder};
  std::vector<std::string> Redraws;

private:
  std::optional<DialogRecorder> dialogs_{std::in_place};
  CATBaseUnknown_var product_;
  std::optional<ZRKECVSManager> manager_;
};

using TextLines = std::vector<std::string>;
