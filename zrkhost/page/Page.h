#pragma once

#include <chrono>
#include <filesystem>
#include <string>
#include <vector>

#include "base/OutputFile.h"
#include "session/HostSession.h"
#include "session/ProductRecords.h"

namespace zrkhost {

// The HTML page of the products, which has a column for each of `parameters` and says when it was made. The
// tree has at least its root. All that stands in the page besides the products is page.html.
std::string PageOf(const std::vector<ProductRecord>& products, const std::vector<std::string>& parameters,
                   std::chrono::system_clock::time_point made);

// The page of a call.
class Page {
public:
  // Opens the file. Throws CallError.
  explicit Page(const std::filesystem::path& file);

  // Writes the products as they are now. False when the file does not take it.
  bool Write(const HostSession& session);

private:
  OutputFile file_;
};

}  // namespace zrkhost
