#pragma once

#include <filesystem>
#include <map>
#include <nlohmann/json.hpp>
#include <string>
#include <vector>

#include "support/Command.h"

using Json = nlohmann::json;

// An assembly and one of its parts, in a folder of its own; the part's product.
inline const std::string kCar = "Auto größe.CATProduct";
inline const std::string kWheel = "Räder vorn/Rad links größe.CATPart";
inline const std::string kWheelProduct = "\"" + kCar + "/" + kWheel + "\"";

// A command's part of a report.
inline const Json& CommandOf(const Json& report, std::size_t position = 0) {
  return report.at("commands").at(position);
}

// The events of one kind of a command, such as "launch", in order.
std::vector<Json> EventsOf(const Json& command, const std::string& kind);

// Texts of a member of each event, such as "commandLine".
std::vector<std::string> TextsOf(const std::vector<Json>& events, const std::string& member);

// Somebody who works with zrkhost, with a home and a name of their own. The clients behind it are those of
// this system, through the adapters.
class User {
public:
  // The home, a new folder, marks every process that is started on the user's behalf: see
  // WaitUntilNoProcessIsLeft.
  User(std::string name, const std::filesystem::path& home);

  const std::string& Name() const { return name_; }

  // The report of zrkhost's call. Expects that it ends with `status`.
  Json Host(const std::vector<std::string>& arguments, int status = 0) const;

  // The same of console commands on the products made from a folder.
  Json HostOn(const std::filesystem::path& folder, const std::vector<std::string>& commands,
              int status) const;

  // Calls an adapter, such as "svn.exe".
  CommandResult Adapter(const std::string& program, const std::vector<std::string>& arguments) const;

  // Has the Subversion client take this name from here on for the repository of the file; else it takes that
  // of the account that runs it.
  void SignOn(const std::string& fileURL) const;

  // Adds a variable to those that the user's programs start with.
  void Set(const std::string& variable, const std::string& value) { environment_[variable] = value; }

  // From here on the modes of files hold for the user's programs, also when it is root who runs the tests.
  void ObeyFileModes();

  // Waits for the end of every process that has the user's home; false when one is there for long.
  bool WaitUntilNoProcessIsLeft() const;

private:
  std::string name_;
  std::filesystem::path home_;
  std::map<std::string, std::string> environment_;
  // Stands before every call of zrkhost.
  std::vector<std::string> starter_;
};

// The attributes of each product by its document's path below the folder, with "/"; null where the product
// has none.
std::map<std::string, Json> AttributesByFile(const Json& report, const std::filesystem::path& folder);
