#pragma once

#include <gtest/gtest.h>

#include <iterator>
#include <string>

#include "collect/ascii_text.h"

// "   Label : v<n>" for the first rows of a parser's table; n is the row.
template <class Table>
std::string LabelLines(const Table& table, std::size_t count) {
  std::string lines;
  for (std::size_t row = 0; row < count; ++row) {
    lines.append("   ").append(table[row].label).append(" : v").append(std::to_string(row)).append("\r\n");
  }
  return lines;
}

template <class Table>
std::string LabelLines(const Table& table) {
  return LabelLines(table, std::size(table));
}

// The fields of the first rows contain the values of LabelLines, and those of all other rows are empty.
template <class Record, class Table>
void ExpectFilled(const Record& record, const Table& table, std::size_t count) {
  for (std::size_t row = 0; row < std::size(table); ++row) {
    EXPECT_EQ(Trimmed(record.*table[row].field), row < count ? "v" + std::to_string(row) : "") << table[row].label;
  }
}
