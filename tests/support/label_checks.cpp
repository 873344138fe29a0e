#include "tests/support/label_checks.h"

#include <gtest/gtest.h>

#include <numeric>

namespace {

std::string Line(const std::string& label, std::size_t row) {
  return "   " + label + "   : v" + std::to_string(row) + "\r\n";
}

std::string LinesInOrder(const Labels& labels, const std::vector<std::size_t>& order) {
  std::string lines;
  for (const std::size_t row : order) lines += LabelLine(labels, row);
  return lines;
}

std::vector<std::size_t> Rows(const Labels& labels) {
  std::vector<std::size_t> rows(labels.size());
  std::iota(rows.begin(), rows.end(), std::size_t{0});
  return rows;
}

void ExpectOthersWithoutARow(const Labels& labels, const ParseLines& parse, std::size_t takesLine) {
  for (std::size_t missing = 0; missing < labels.size(); ++missing) {
    std::vector<std::size_t> order = Rows(labels);
    order.erase(order.begin() + static_cast<std::ptrdiff_t>(missing));
    const auto isFilled = [&](std::size_t row) {
      return row != missing && !(missing == takesLine && row == takesLine + 1);
    };
    EXPECT_EQ(parse(LinesInOrder(labels, order)), FilledBy(labels, isFilled)) << "without " << labels[missing].label;
  }
}

// The misspelt line stays in the way of all that follow, unless its row takes the line.
void ExpectNothingBehindAMisspeltRow(const Labels& labels, const ParseLines& parse, std::size_t takesLine) {
  for (std::size_t wrong = 0; wrong < labels.size(); ++wrong) {
    for (const bool atFront : {true, false}) {
      std::string label = labels[wrong].label;
      (atFront ? label.front() : label.back()) = '~';
      std::string lines;
      for (const std::size_t row : Rows(labels)) lines += row == wrong ? Line(label, row) : LabelLine(labels, row);
      const auto isFilled = [&](std::size_t row) { return row < wrong || (wrong == takesLine && row > wrong); };
      EXPECT_EQ(parse(lines), FilledBy(labels, isFilled)) << "with " << label;
    }
  }
}

// The first of the two is passed by when it comes, and then stays in the way.
void ExpectOnlyTheSecondOfTwoSwappedRows(const Labels& labels, const ParseLines& parse, std::size_t takesLine) {
  for (std::size_t first = 0; first + 1 < labels.size(); ++first) {
    std::vector<std::size_t> order = Rows(labels);
    std::swap(order[first], order[first + 1]);
    const auto isFilled = [&](std::size_t row) { return row < first || (row == first + 1 && first != takesLine); };
    EXPECT_EQ(parse(LinesInOrder(labels, order)), FilledBy(labels, isFilled)) << "swapped " << labels[first].label;
  }
}

}  // namespace

std::string LabelLine(const Labels& labels, std::size_t row) { return Line(labels[row].label, row); }

std::string LabelLines(const Labels& labels) { return LinesInOrder(labels, Rows(labels)); }

std::set<std::string> FilledBy(const Labels& labels, const std::function<bool(std::size_t row)>& isFilled) {
  std::set<std::string> filled;
  for (const std::size_t row : Rows(labels)) {
    if (isFilled(row)) filled.insert(labels[row].field + "= v" + std::to_string(row) + "\r\n");
  }
  return filled;
}

void ExpectReadInOrder(const Labels& labels, const ParseLines& parse, std::size_t takesLine) {
  EXPECT_EQ(parse(LabelLines(labels)), FilledBy(labels, [](std::size_t) { return true; }));
  ExpectOthersWithoutARow(labels, parse, takesLine);
  ExpectNothingBehindAMisspeltRow(labels, parse, takesLine);
  ExpectOnlyTheSecondOfTwoSwappedRows(labels, parse, takesLine);
}
