#include "terminal/TreePrinter.h"

#include <algorithm>

#include "terminal/DisplayText.h"

namespace zrkhost {

namespace {

constexpr int kGap = 2;
constexpr const char* kPlain = "\x1b[0m";

const char* ColourOf(const std::string& column, const std::string& value) {
  if (column != "Status") return "";
  if (value == "Edit") return "\x1b[32m";
  if (value == "Locked") return "\x1b[31m";
  if (value == "ReadOnly") return "\x1b[2m";
  return "\x1b[33m";
}

// A row's cells, ready to be shown.
using Cells = std::vector<std::string>;

Cells CellsOf(const TreeRow& row, std::size_t columns) {
  Cells cells = {std::string(2 * row.Depth, ' ') + DisplayText(row.Product)};
  for (const auto& value : row.Values) cells.push_back(DisplayText(value));
  cells.resize(columns);
  return cells;
}

}  // namespace

std::string PrintTree(const std::vector<TreeRow>& rows, const std::vector<std::string>& columns,
                      const TreeStyle& style) {
  Cells header = {"Product"};
  for (const auto& column : columns) header.push_back(DisplayText(column));

  std::vector<Cells> table = {header};
  for (const auto& row : rows) table.push_back(CellsOf(row, header.size()));
  std::vector<int> widths(header.size());
  for (const auto& cells : table) {
    for (std::size_t i = 0; i < cells.size(); ++i) widths[i] = std::max(widths[i], DisplayWidth(cells[i]));
  }

  std::string text;
  for (std::size_t row = 0; row < table.size(); ++row) {
    int column = 0;
    int blanks = 0;
    for (std::size_t i = 0; i < header.size(); ++i) {
      auto cell = table[row][i];
      if (style.Width > 0) cell = CutToWidth(cell, style.Width - column - blanks);
      if (cell.empty()) {
        blanks += widths[i] + kGap;
        continue;
      }
      // Blanks are written when something follows, so that no line ends in them.
      text.append(static_cast<std::size_t>(blanks), ' ');
      column += blanks;
      const std::string colour = !style.Colours ? ""
                                 : row == 0     ? "\x1b[1m"
                                 : i == 0       ? ""
                                                : ColourOf(header[i], cell);
      text += colour + cell + (colour.empty() ? "" : kPlain);
      const int width = DisplayWidth(cell);
      column += width;
      blanks = widths[i] + kGap - width;
    }
    text += '\n';
  }
  return text;
}

}  // namespace zrkhost
