#pragma once

#include <span>
#include <string>
#include <string_view>
#include <type_traits>
#include <variant>

#include "collect/records.h"
#include "collect/tool.h"

// Tables of the labels that tools print: constants alone, which the parsers read with and the host looks labels up in.

// What a label that is not on its line costs.
enum class Miss {
  kCostsNothing,  // the next label is tried on the same line
  kTakesLine,     // the line is used up
};

// A label as the tool prints it, and the field that its value goes to.
template <class Record>
struct LabelledField {
  std::string_view label;
  std::string Record::*field;
  Miss miss = Miss::kCostsNothing;
};

template <class Record>
using LabelTable = std::span<const LabelledField<std::type_identity_t<Record>>>;

// A table of any record, in the list of all tables of a tool.
using AnyLabelTable =
    std::variant<LabelTable<ZenxController>, LabelTable<ZenxLogicalDevice>, LabelTable<ZenxPhysicalDevice>,
                 LabelTable<ArrayStripeOrder>, LabelTable<ZenxHrConfBios>, LabelTable<ZenxBstData>,
                 LabelTable<ZenxSubStatData>, LabelTable<ZenxEventSoftData>, LabelTable<ZenxEventHardData>>;

// Where in a text a label counts. Empty: anywhere.
struct Section {
  std::string_view start = {};  // the search for the label begins here
  std::string_view end = {};    // must occur after the label's first character
};

// How much of what a line says goes to the field.
enum class Extent {
  kWhole,
  kWords,    // some words: what follows "Device is a", one side of a comma
  kCut,      // characters at fixed places
  kHeading,  // the line heads several records: it is above theirs
};

// A table with the answers that it is read in.
struct AnswerLabels {
  AnyLabelTable labels;
  ToolCommand command = kGetConfig;
  Extent extent = Extent::kWhole;
  Section section = {};
};
