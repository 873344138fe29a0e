#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

// Finds the secrets in the texts of a machine.
namespace hxahost {

// A piece of a text.
struct Span {
  std::size_t begin = 0;
  std::size_t length = 0;
};

// The texts that count as secrets: names and serial numbers, or the part numbers of FRUs, too. These identify the part
// to order, not its owner.
enum class MaskScope { kNames, kAll };

struct SecretPlaces {
  std::vector<Span> secrets;  // in their order
  std::vector<Span> prose;    // sentences, which may quote any secret; the other text is searched by its words
};

// In the output of a tool: the values of the labels in the table of mask_places.cpp, and of the attribute serialNumber
// in its logs.
SecretPlaces FindInToolText(std::string_view text, MaskScope scope);

// In the RAID manager's log: the column with the machine's name, and the values of the labels. Its messages are prose.
SecretPlaces FindInRaidLog(std::string_view text, MaskScope scope);

}  // namespace hxahost
