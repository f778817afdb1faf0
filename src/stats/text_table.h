// Rows of cells as lines of plain text in columns: the first column to the left, the others to the
// right, each as wide as its widest cell.
#pragma once

#include <string>
#include <vector>

namespace tessarel {

using TextRows = std::vector<std::vector<std::string>>;

// Cells are UTF-8; a character counts as one column. Rows may have fewer cells than others.
std::string TextTable(const TextRows& rows);

}  // namespace tessarel
