#include "host/hxahost/machine/object_search.h"

#include <algorithm>
#include <cctype>
#include <iterator>
#include <map>
#include <optional>

#include <fmt/core.h>

#include "host/hxahost/result/property_values.h"
#include "host/hxahost/result/tool_answer.h"
#include "host/hxahost/schema/class_names.h"
#include "host/hxahost/text/ascii.h"
#include "host/hxahost/text/nearest_word.h"

using NKVRHXA20::TPublishedInstance;

namespace hxahost {

namespace {

// A place in words and numbers: {"controller": "4", "slot": "8"}.
using PlaceWords = std::map<std::string_view, std::string>;

struct PlaceWord {
  std::string_view typed;
  std::string_view meant;  // "": has no meaning
};

constexpr PlaceWord kPlaceWords[] = {
    {"c",          "controller"},
    {"controller", "controller"},
    {"ld",         "drive"     },
    {"drive",      "drive"     },
    {"array",      "array"     },
    {"enclosure",  "enclosure" },
    {"slot",       "slot"      },
    {"ch",         "channel"   },
    {"channel",    "channel"   },
    {"id",         "id"        },
    {"device",     "device"    },
    {"logical",    ""          },
    {"of",         ""          },
};

// Words and numbers, lower case: "C4 slot 8" is c, 4, slot, 8.
std::vector<std::string> TokensOf(std::string_view text) {
  const auto isDigit = [](char character) { return std::isdigit(static_cast<unsigned char>(character)) != 0; };
  std::vector<std::string> tokens;
  bool isInside = false;
  for (const char character : Lower(text)) {
    const bool isKnown = std::isalnum(static_cast<unsigned char>(character)) != 0;
    if (isKnown && isInside && isDigit(tokens.back().back()) == isDigit(character)) {
      tokens.back() += character;
    } else if (isKnown) {
      tokens.emplace_back(1, character);
    }
    isInside = isKnown;
  }
  return tokens;
}

// Returns nothing if a word is not part of a place or has no number after it. An array may have a letter instead.
std::optional<PlaceWords> ReadPlace(std::string_view text) {
  const std::vector<std::string> tokens = TokensOf(text);
  PlaceWords words;
  for (std::size_t index = 0; index < tokens.size(); ++index) {
    const auto* const word = std::ranges::find(kPlaceWords, tokens[index], &PlaceWord::typed);
    if (word == std::end(kPlaceWords)) return std::nullopt;
    if (word->meant.empty()) continue;
    if (++index == tokens.size()) return std::nullopt;
    if (!IsDigits(tokens[index]) && word->meant != "array") return std::nullopt;
    words[word->meant] = tokens[index];
  }
  return words;
}

// An object with every name that finds it.
struct Candidate {
  NamedObject named;
  std::string_view tool;
  PlaceWords place;
  std::vector<std::string> names;
};

// How many of the words are part of the object's place.
std::size_t CountShared(const PlaceWords& asked, const PlaceWords& place) {
  return static_cast<std::size_t>(std::ranges::count_if(asked, [&](const auto& word) {
    const auto found = place.find(word.first);
    return found != place.end() && found->second == word.second;
  }));
}

bool IsCalled(const Candidate& candidate, std::string_view name) {
  return std::ranges::any_of(candidate.names, [&](const std::string& each) { return Lower(each) == Lower(name); });
}

// A number without other words is a controller's.
bool IsAt(const Candidate& candidate, const PlaceWords& asked) {
  if (asked.empty() || CountShared(asked, candidate.place) < asked.size()) return false;
  return candidate.place.size() == 1 || asked.size() > 1 || !asked.contains("controller");
}

class Catalogue {
 public:
  Catalogue(const Machine& machine, const InstanceList& instances) : instances_(instances) {
    for (const Controller& controller : machine.controllers) Add(controller);
  }

  const std::vector<Candidate>& All() const { return candidates_; }

 private:
  void Add(const Controller& controller) {
    const std::string owner = "C" + controller.label;
    for (const ControllerUnit& unit : controller.units) {
      Add(controller, kControllerClass, unit, owner, "", {"SerialNum", "ControllerName"});
    }
    for (const LogicalDrive& drive : controller.logicalDrives) {
      Add(controller, kLogicalDiskClass, drive, owner + " LD" + drive.number, "drive " + drive.number,
          {"LogicalDriveName"});
    }
    for (const DiskGroup& group : controller.groups) {
      const std::string array = "array " + ArrayOf(controller, group);
      Add(controller, kDiskGroupClass, group, owner + " " + array, array, {"CollectionID"});
    }
    for (const Device& device : controller.devices) {
      const std::string place = fmt::format("{} channel {} id {}", device.location, device.channel, device.id);
      Add(controller, kDiskDriveClass, device,
          device.location.empty() ? device.identifier : owner + " " + device.location,
          device.id.empty() || device.channel.empty() ? device.location : place, {"DeviceSerialNum", "WorldWideName"});
    }
  }

  void Add(const Controller& controller, std::string_view className, const Object& object, const std::string& handle,
           const std::string& place, const std::vector<std::string_view>& nameProperties) {
    Candidate& candidate = candidates_.emplace_back();
    candidate.named = {className, &object, handle};
    candidate.tool = controller.tool;
    candidate.place = ReadPlace(place).value_or(PlaceWords());
    candidate.place["controller"] = controller.number;
    candidate.names = {object.identifier, object.name, handle};
    for (const std::string_view property : nameProperties) {
      candidate.names.push_back(RawText(*instances_[object.instance], property));
    }
    std::erase(candidate.names, "");
  }

  // An array has a letter, or belongs to one logical drive.
  std::string ArrayOf(const Controller& controller, const DiskGroup& group) const {
    const std::string letter = RawText(*instances_[group.instance], "Array");
    const auto place = static_cast<std::size_t>(&group - controller.groups.data());
    for (const LogicalDrive& drive : controller.logicalDrives) {
      const bool isIts = std::ranges::find(drive.groups, place) != drive.groups.end();
      if (letter.empty() && isIts) return drive.number;
    }
    return letter;
  }

  const InstanceList& instances_;
  std::vector<Candidate> candidates_;
};

// "C3 (arcconf)": takes the tool out of the text.
std::string_view TakeTool(std::string& text) {
  for (const std::string_view tool : KnownTools()) {
    const std::size_t found = Lower(text).find(tool);
    if (found == text.npos) continue;
    text.erase(found, tool.size());
    return tool;
  }
  return {};
}

template <class Fits>
std::vector<NamedObject> Choose(const std::vector<Candidate>& candidates, const Fits& fits) {
  std::vector<NamedObject> chosen;
  for (const Candidate& each : candidates) {
    if (fits(each)) chosen.push_back(each.named);
  }
  return chosen;
}

// Matches part of a name, all words of a place except one, or a name with a typing error.
std::vector<NamedObject> NearTo(const std::vector<Candidate>& candidates, std::string_view what,
                                const std::optional<PlaceWords>& place) {
  constexpr std::size_t kFewestLetters = 3;
  const std::string lowered = Lower(what);
  const auto isPart = [&](const Candidate& each) {
    return lowered.size() >= kFewestLetters && std::ranges::any_of(each.names, [&](const std::string& name) {
             return Lower(name).find(lowered) != std::string::npos;
           });
  };
  if (auto parts = Choose(candidates, isPart); !parts.empty()) return parts;
  if (place && place->size() > 1) {
    return Choose(candidates, [&](const Candidate& each) {
      const auto has = [&](const auto& word) { return each.place.contains(word.first); };
      return std::ranges::all_of(*place, has) && CountShared(*place, each.place) + 1 == place->size();
    });
  }
  std::vector<std::string> names;
  for (const Candidate& each : candidates) std::ranges::copy(each.names, std::back_inserter(names));
  const std::string nearest = NearestWord(what, names);
  return Choose(candidates, [&](const Candidate& each) { return !nearest.empty() && IsCalled(each, nearest); });
}

}  // namespace

ObjectSearch FindObjects(const Machine& machine, const InstanceList& instances, std::string_view what) {
  const Catalogue catalogue(machine, instances);
  const std::string_view name = Trim(what);
  ObjectSearch search;
  search.found = Choose(catalogue.All(), [&](const Candidate& each) { return IsCalled(each, name); });
  if (!search.found.empty()) return search;
  std::string text(name);
  const std::string_view tool = TakeTool(text);
  const auto place = ReadPlace(text);
  search.found = Choose(catalogue.All(), [&](const Candidate& each) {
    return place && (tool.empty() || tool == each.tool) && IsAt(each, *place);
  });
  if (search.found.empty()) search.near = NearTo(catalogue.All(), name, place);
  return search;
}

}  // namespace hxahost
