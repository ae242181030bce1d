#include "page/Page.h"

#include "page/PageParts.h"
#include "page/PageSource.h"
#include "page/PageText.h"

namespace zrkhost {

std::string PageOf(const std::vector<ProductRecord>& products, const std::vector<std::string>& parameters,
                   std::chrono::system_clock::time_point made) {
  const PageParts parts(products, parameters);
  return FillPage(PageSource(), {{"about", ""},
                                 {"title", parts.Title()},
                                 {"heading", parts.Heading(made)},
                                 {"counts", parts.Counts()},
                                 {"tree", parts.Tree()},
                                 {"holders", parts.Holders()},
                                 {"data", parts.Data()}});
}

Page::Page(const std::filesystem::path& file) : file_(file, "page") {}

bool Page::Write(const HostSession& session) {
  return file_.Write(PageOf(RecordsOf(session), session.Parameters(), std::chrono::system_clock::now()));
}

}  // namespace zrkhost
