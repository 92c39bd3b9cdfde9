#include "host/cli/tree_text.h"

#include <algorithm>
#include <array>

#include "host/cli/text_layout.h"

namespace headless::cli {

namespace {

struct Row {
  /// Object with its guides, colour, appearance, source, material.
  std::array<std::string, 5> cells;
  std::string block;
};

constexpr std::size_t colourCell = 1;

void addRows(const TreeNode& node, const std::string& guide, const std::string& childGuide, std::vector<Row>& rows) {
  Row row;
  row.cells = {guide + node.label, node.shows ? hexText(node.shows->colour) : "", node.shows ? node.shows->name : "",
               node.from, node.material};
  row.block = node.shows ? swatch(node.shows->colour) : "  ";
  rows.push_back(std::move(row));
  for (const TreeNode& child : node.children) {
    const bool isLast = &child == &node.children.back();
    addRows(child, childGuide + (isLast ? "└─ " : "├─ "), childGuide + (isLast ? "   " : "│  "), rows);
  }
}

std::string lineOf(const Row& row, const std::array<std::size_t, 5>& widths, bool withColours) {
  std::string line;
  for (std::size_t i = 0; i < row.cells.size(); ++i) {
    if (i == colourCell && withColours) {
      line += row.block + " ";
    }
    line += padded(row.cells[i], widths[i]) + "  ";
  }
  return line.substr(0, line.find_last_not_of(' ') + 1) + "\n";
}

}  // namespace

std::string treeText(const TreeNode& root, bool withColours) {
  std::vector<Row> rows{{{"Object", "Shows", "", "From", "Material"}, "  "}};
  addRows(root, "", "", rows);
  std::array<std::size_t, 5> widths{};
  for (const Row& row : rows) {
    for (std::size_t i = 0; i < widths.size(); ++i) {
      widths[i] = std::max(widths[i], widthOf(row.cells[i]));
    }
  }
  std::string text;
  for (const Row& row : rows) {
    text += lineOf(row, widths, withColours);
  }
  return text;
}

}  // namespace headless::cli
