#include "page/PageParts.h"

#include <algorithm>
#include <cstdio>
#include <map>
#include <nlohmann/json.hpp>

#include "page/PageText.h"
#include "terminal/DisplayText.h"

namespace zrkhost {

using Json = nlohmann::ordered_json;

namespace {

// A text that keeps its direction of writing, and its marks for that, to itself.
std::string Isolated(std::string_view text) {
  return text.empty() ? "" : "<bdi>" + HtmlText(text) + "</bdi>";
}

std::string StatusMarkup(std::string_view status, const std::string& kind) {
  if (status.empty()) return {};
  std::string classes = "status";
  if (!kind.empty()) classes += " " + kind;
  if (status == "Locked") classes += " locked";
  if (status == "Edit") classes += " edit";
  if (status == "ReadOnly") classes += " readonly";
  return "<span class=\"" + classes + "\">" + Isolated(status) + "</span>";
}

std::string Count(std::size_t number, const std::string& one, const std::string& more) {
  return std::to_string(number) + " " + (number == 1 ? one : more);
}

// With two digits at least.
std::string Digits(unsigned number) {
  return (number < 10 ? "0" : "") + std::to_string(number);
}

std::string RowId(std::size_t position) {
  return "p" + std::to_string(position + 1);
}

// Where Locked, Edit and ReadOnly stand among the statuses; others follow by name, and then what has none.
int Rank(std::string_view status) {
  if (status == "Locked") return 0;
  if (status == "Edit") return 1;
  if (status == "ReadOnly") return 2;
  return status.empty() ? 4 : 3;
}

std::string_view FileName(std::string_view document) {
  return document.substr(document.rfind('\\') + 1);
}

// How wide a column is for values that take so many characters at most.
std::string ColumnWidth(const std::string& parameter, int characters) {
  if (parameter == "Comment") return "minmax(14rem, 3fr)";
  constexpr int kWidest = 30;
  constexpr int kPadding = 3;
  const int width = std::min(std::max(characters, DisplayWidth(parameter)), kWidest) + kPadding;
  // A status does not break into lines.
  const int least = parameter == "Status" ? width + kPadding : std::min(width, 12);
  return "minmax(" + std::to_string(least) + "ch, " + std::to_string(std::max(width, least)) + "ch)";
}

}  // namespace

PageParts::PageParts(const std::vector<ProductRecord>& products, const std::vector<std::string>& parameters)
    : products_(products),
      parameters_(parameters),
      holders_(HoldersOf(products)),
      positions_(products.size()) {
  // By depth, the products of the row of siblings that is being gone through.
  std::vector<std::vector<std::size_t>> siblings;
  const auto finish = [&](std::size_t depth) {
    for (; siblings.size() > depth; siblings.pop_back()) {
      for (const std::size_t product : siblings.back()) positions_[product].Places = siblings.back().size();
    }
  };
  for (std::size_t i = 0; i < products.size(); ++i) {
    const std::size_t depth = products[i].Depth;
    finish(depth + 1);
    if (siblings.size() <= depth) siblings.resize(depth + 1);
    siblings[depth].push_back(i);
    positions_[i].Place = siblings[depth].size();
    positions_[i].HasChildren = i + 1 < products.size() && products[i + 1].Depth > depth;
  }
  finish(0);
  for (const Holder& holder : holders_) {
    for (const HeldFile& file : holder.Files) positions_[file.Products.front()].IsHeld = true;
  }
}

std::string PageParts::Title() const {
  return "<title>" + HtmlText(products_.front().Name) + " \u2013 who holds what</title>";
}

std::string PageParts::Heading(std::chrono::system_clock::time_point made) const {
  const auto day = std::chrono::floor<std::chrono::days>(made);
  const std::chrono::year_month_day date(day);
  const std::chrono::hh_mm_ss time(std::chrono::floor<std::chrono::seconds>(made - day));
  const std::string dateText = std::to_string(static_cast<int>(date.year())) + "-" +
                               Digits(static_cast<unsigned>(date.month())) + "-" +
                               Digits(static_cast<unsigned>(date.day()));
  const std::string minutes = Digits(static_cast<unsigned>(time.hours().count())) + ":" +
                              Digits(static_cast<unsigned>(time.minutes().count()));
  const std::string instant =
      dateText + "T" + minutes + ":" + Digits(static_cast<unsigned>(time.seconds().count())) + "Z";
  return "\n<h1>" + Isolated(products_.front().Name) + "</h1>\n<p class=\"soft\"><time datetime=\"" +
         instant + "\">" + dateText + " " + minutes + " UTC</time>, " +
         Count(products_.size(), "product", "products") + "<span role=\"status\"></span></p>\n";
}

std::vector<PageParts::StatusCount> PageParts::CountStatuses() const {
  std::map<std::pair<int, std::string_view>, std::size_t> counted;
  for (const ProductRecord& product : products_) {
    const std::string_view status = AttributeOf(product, "Status");
    ++counted[{Rank(status), status}];
  }
  std::vector<StatusCount> counts;
  counts.reserve(counted.size());
  for (const auto& [key, products] : counted) counts.push_back({key.second, products});
  return counts;
}

std::string PageParts::Counts() const {
  // The script switches the buttons on.
  const auto button = [](const std::string& attributes, std::size_t number, const std::string& label) {
    return "<button type=\"button\" disabled " + attributes + "><b>" + std::to_string(number) + "</b> " +
           label + "</button>\n";
  };
  std::string markup = "\n" + button("class=\"all\" aria-pressed=\"true\"", products_.size(), "All");
  for (const auto& [status, number] : CountStatuses()) {
    markup +=
        button("aria-pressed=\"false\"", number, status.empty() ? "No status" : StatusMarkup(status, ""));
  }
  return markup;
}

std::string PageParts::Columns() const {
  std::string columns = "minmax(14rem, 2fr)";
  for (const std::string& parameter : parameters_) {
    int widest = 0;
    for (const ProductRecord& product : products_) {
      widest = std::max(widest, DisplayWidth(AttributeOf(product, parameter)));
    }
    columns += " " + ColumnWidth(parameter, widest);
  }
  return columns;
}

std::string PageParts::Row(std::size_t position) const {
  const ProductRecord& product = products_[position];
  const Position& place = positions_[position];
  const std::string level = std::to_string(product.Depth + 1);
  std::string row = "<tr role=\"row\"";
  if (place.IsHeld) row += " id=\"" + RowId(position) + "\"";
  row += " aria-level=\"" + level + "\" aria-posinset=\"" + std::to_string(place.Place) +
         "\" aria-setsize=\"" + std::to_string(place.Places) + "\"";
  if (place.HasChildren) row += " aria-expanded=\"true\"";
  row += " style=\"--level:" + level + "\"><th role=\"rowheader\"><i></i>" + Isolated(product.Name) + "</th>";
  for (const std::string& parameter : parameters_) {
    const std::string_view value = AttributeOf(product, parameter);
    row += parameter == "Status"
               ? "<td role=\"gridcell\" class=\"state\">" + StatusMarkup(value, "chip") + "</td>"
               : "<td role=\"gridcell\">" + Isolated(value) + "</td>";
  }
  return row + "</tr>\n";
}

std::string PageParts::Tree() const {
  // From here on the browser takes time over rows that are not in view.
  constexpr std::size_t kMany = 1'000;
  const std::string many = products_.size() > kMany ? " class=\"many\"" : "";
  std::string tree = "\n<table role=\"treegrid\" aria-label=\"Product tree\"" + many +
                     " style=\"--columns: " + Columns() +
                     "\">\n<thead role=\"rowgroup\"><tr role=\"row\"><th role=\"columnheader\">Product</th>";
  for (const std::string& parameter : parameters_) {
    tree += "<th role=\"columnheader\">" + Isolated(parameter) + "</th>";
  }
  tree += "</tr></thead>\n<tbody role=\"rowgroup\">\n";
  for (std::size_t i = 0; i < products_.size(); ++i) tree += Row(i);
  return tree + "</tbody>\n</table>\n";
}

std::string PageParts::Holders() const {
  if (holders_.empty()) return "\n<p class=\"soft\">Nobody holds a file.</p>\n";
  std::string markup = "\n";
  for (const Holder& holder : holders_) {
    const std::string name = holder.IsHere          ? "This working copy"
                             : holder.Owner.empty() ? "Not named"
                                                    : Isolated(holder.Owner);
    markup += "<h3><span>" + name + "</span><b>" + std::to_string(holder.Files.size()) + "</b></h3>\n<ul>\n";
    for (const HeldFile& file : holder.Files) {
      const ProductRecord& first = products_[file.Products.front()];
      const std::size_t more = file.Products.size() - 1;
      markup += "<li><a href=\"#" + RowId(file.Products.front()) + "\">" +
                Isolated(first.Document ? FileName(*first.Document) : first.Name) + "</a>" +
                StatusMarkup(AttributeOf(first, "Status"), "") + "<small>" + Isolated(first.Path) +
                (more > 0 ? " and " + Count(more, "more place", "more places") : "") + "</small></li>\n";
    }
    markup += "</ul>\n";
  }
  return markup;
}

std::string PageParts::Data() const {
  // Every text was made well-formed when it was taken over; should one not be, it is still written.
  const auto text = [](const Json& json) {
    return json.dump(-1, ' ', false, Json::error_handler_t::replace);
  };
  Json fields = {"level", "product"};
  for (const std::string& parameter : parameters_) fields.push_back(parameter);
  Json statuses = Json::array();
  for (const StatusCount& count : CountStatuses()) statuses.push_back(count.Status);
  std::string json = "{\"fields\":" + text(fields) + ",\"statuses\":" + text(statuses) + ",\"products\":[";
  for (std::size_t i = 0; i < products_.size(); ++i) {
    Json product = {products_[i].Depth + 1, products_[i].Name};
    if (products_[i].Attributes) {
      for (const std::string& parameter : parameters_)
        product.push_back(AttributeOf(products_[i], parameter));
    }
    json += (i == 0 ? "\n" : ",\n") + text(product);
  }
  return "<script type=\"application/json\" id=\"data\">" + JsonForScript(json + "]}") + "</script>";
}

}  // namespace zrkhost
