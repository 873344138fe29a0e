#pragma once

#include <string_view>

#include "collect/label_table.h"
#include "collect/line_scanner.h"

// Reads the lines that follow, one label a line, in the table's order. A label out of order is not found.
template <class Record>
void ReadInOrder(CollectedData& text, Record& record, LabelTable<Record> table) {
  for (const auto& row : table) {
    const std::string_view value = text.NextLineValueIf(row.label);
    record.*row.field = value;
    if (value.empty() && row.miss == Miss::kCostsNothing) text.StepBack();
  }
}

// Reads each label's first line in the whole text, wherever it is.
template <class Record>
void ReadAnywhere(CollectedData& text, Record& record, LabelTable<Record> table) {
  for (const auto& row : table) record.*row.field = text.FindValue(row.label);
}

// The value of a label's first occurrence: from the second character after the next colon, so without the blank, to
// the last but one before the next line feed, so without the carriage return. The colon may be on a later line.
// Label, colon, line feed or a section's mark missing, or nothing between the two cuts: "".
std::string_view GetSectionValue(std::string_view label, std::string_view text, const Section& section = {});
