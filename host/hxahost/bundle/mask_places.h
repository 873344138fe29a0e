#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

// Where in the texts of a machine secrets stand.
namespace hxahost {

// A piece of a text.
struct Span {
  std::size_t begin = 0;
  std::size_t length = 0;
};

// What counts as a secret: names and serial numbers, or the part numbers of FRUs, too. These say which part to order,
// and nothing of whose it is.
enum class MaskScope { kNames, kAll };

struct SecretPlaces {
  std::vector<Span> secrets;  // in their order, none inside another
  std::vector<Span> prose;    // sentences, in which any secret may be quoted; what is outside is read by its words
};

// Of what a tool printed: the values of the labels that stand in the table of mask_places.cpp, and of the attribute
// serialNumber in its logs.
SecretPlaces FindInToolText(std::string_view text, MaskScope scope);

// Of the RAID manager's log: the column that names the machine. Its messages are prose.
SecretPlaces FindInRaidLog(std::string_view text);

}  // namespace hxahost
