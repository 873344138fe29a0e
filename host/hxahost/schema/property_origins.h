#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace hxahost {

// Where a property's value comes from. A tool's cell holds the labels, as the tool prints them, that the value stands
// behind; several have a '|' between them. An empty cell: the tool does not print it.
struct PropertyOrigin {
  std::string_view property;
  std::string_view qcmdrun;
  std::string_view hrconf;
  std::string_view arcconf;
  std::string_view otherwise;  // what is no label, in words; "" where the labels say it all
};

// The origins of all properties of a class, in the order of its declaration. Empty for a class of which nothing is ever
// published.
std::span<const PropertyOrigin> OriginsOf(std::string_view className);

// One line for each tool and one for the words: qcmdrun: "State"; arcconf: "State", "Assigned Spare for".
std::vector<std::string> OriginLines(const PropertyOrigin& origin);

// The lines of a property of a class; none where nothing is ever published.
std::vector<std::string> OriginLines(std::string_view className, std::string_view property);

// Labels of a cell.
std::vector<std::string_view> LabelsOf(std::string_view cell);

}  // namespace hxahost
