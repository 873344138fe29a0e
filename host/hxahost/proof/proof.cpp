#include "host/hxahost/proof/proof.h"

#include <algorithm>
#include <optional>
#include <string>
#include <utility>

#include "host/hxacore/schema.h"
#include "host/hxahost/result/property_values.h"
#include "host/hxahost/text/ascii.h"

using namespace NKVRHXA20;

namespace hxahost {

namespace {

// Lines with a label, and their value together.
struct Reading {
  std::vector<std::size_t> lines;
  std::string value;  // with single blanks
  bool isEqual = false;
};

// A value with single blanks, and whether it may begin with more text than the line contains.
struct Sought {
  std::string value;
  bool isIdentifier = false;
};

bool Contains(std::string_view line, std::string_view part) { return line.find(part) != line.npos; }

std::optional<std::size_t> FindLine(const Place& place, std::string_view part, std::size_t from,
                                    std::string_view after = "") {
  for (std::size_t index = from; index < place.end; ++index) {
    const std::string_view line = place.text->lines[index];
    const std::size_t found = line.find(part);
    if (found != line.npos && line.find(after, found) != line.npos) return index;
  }
  return std::nullopt;
}

// The line that the parsers read: the first with the label, within the section if the label belongs to one. Labels that
// are whole words need no colon after them.
std::optional<std::size_t> LineOf(const Place& place, const LabelSource& source) {
  if (source.answers->extent == Extent::kHeading) return place.heading;
  const auto& [start, end] = source.answers->section;
  const auto from = start.empty() ? place.first : FindLine(place, start, place.first);
  const std::string_view mark = source.answers->extent == Extent::kWords ? "" : ":";
  const auto line = from ? FindLine(place, source.label, *from, mark) : std::nullopt;
  return line && !end.empty() && !FindLine(place, end, *line) ? std::nullopt : line;
}

// The text after the colon; without a colon, the text that begins with the label: "Device #8".
std::string ValueOn(const std::string& line, std::string_view label) {
  const std::string_view rest = std::string_view(line).substr(std::min(line.find(label), line.size()));
  const std::size_t colon = rest.find(':');
  return WithSingleBlanks(colon == rest.npos ? rest : rest.substr(colon + 1));
}

bool IsModel(const KnownTool& tool, const std::string& said, const std::string& name) {
  return std::ranges::any_of(
      tool.models, [&](const ModelName& model) { return model.name == name && Contains(said, model.search); });
}

bool ContainsValue(const Place& place, const LabelSource& source, const Reading& reading, const Sought& sought) {
  if (reading.value == sought.value) return true;
  if (sought.isIdentifier && !reading.value.empty() && sought.value.ends_with(reading.value)) return true;
  const std::string& line = place.text->lines[reading.lines.front()];
  switch (source.answers->extent) {
    case Extent::kWhole: return IsModel(*place.text->tool, reading.value, sought.value);
    case Extent::kHeading:
    case Extent::kWords: return FindWords(WithSingleBlanks(line), sought.value) != std::string::npos;
    case Extent::kCut: return Contains(reading.value, sought.value);
  }
  return false;
}

// A list may continue on the next lines, each of which begins with a digit.
bool ContainsOverLines(const Place& place, Reading& reading, const Sought& sought) {
  Reading longer = reading;
  for (std::size_t next = longer.lines.back() + 1; next < place.end; ++next) {
    const std::string words = WithSingleBlanks(place.text->lines[next]);
    if (words.empty() || !IsDigits(words.substr(0, 1)) || Contains(words, ":")) return false;
    longer.lines.push_back(next);
    longer.value += " " + words;
    if (longer.value != sought.value) continue;
    reading = longer;
    return true;
  }
  return false;
}

std::vector<Reading> ReadAll(const Place& place, const std::vector<LabelSource>& sources, const Sought& sought) {
  std::vector<Reading> readings;
  for (const LabelSource& source : sources) {
    if (!Answers(*place.text, source.answers->command)) continue;
    const auto line = LineOf(place, source);
    if (!line) continue;
    Reading reading{{*line}, ValueOn(place.text->lines[*line], source.label)};
    reading.isEqual = ContainsValue(place, source, reading, sought) || ContainsOverLines(place, reading, sought);
    readings.push_back(std::move(reading));
  }
  return readings;
}

// One line, or two whose values are joined: "Hot Spare" and, below it, the drive that it is assigned to.
Reading BestOf(const std::vector<Reading>& readings, const Sought& sought) {
  const auto equal = std::ranges::find(readings, true, &Reading::isEqual);
  if (equal != readings.end()) return *equal;
  Reading both = readings.front();
  if (readings.size() < 2 || readings[1].lines == both.lines) return both;
  both.lines.push_back(readings[1].lines.front());
  both.isEqual = both.value + " for " + readings[1].value == sought.value;
  return both;
}

// Without a text that could contain the row, the proof claims nothing.
void FindRow(Proof& proof, const std::vector<Place>& places) {
  if (places.empty()) return;
  proof.evidence = Evidence::kNoLine;
  if (places.front().first == places.front().end) return;
  proof.evidence = Evidence::kLine;
  proof.text = places.front().text->instance;
  proof.lines = {places.front().first};
}

}  // namespace

Proofs::Proofs(const Machine& machine, const InstanceList& instances)
    : instances_(instances), texts_(ReadToolTexts(instances)), places_(FindPlaces(machine, instances, texts_)) {}

std::vector<Proof> Proofs::Of(std::size_t instance) {
  const TPublishedInstance& published = *instances_[instance];
  const ClassDeclaration& declaration = published.Class();
  const RowClass* const rows = FindRowClass(declaration.name);
  std::vector<Proof> proofs;
  for (const PublishedProperty& property : published.Properties()) {
    if (ShownText(published, property.name).empty()) continue;
    const PropertyDeclaration* const declared = FindProperty(declaration, property.name);
    Proof& proof = proofs.emplace_back();
    proof.property = property.name;
    if (declared != nullptr) proof.origin = declared->origin;
    if (rows != nullptr) {
      const bool isColumn = std::ranges::find(rows->columns, property.name) != rows->columns.end();
      if (isColumn) FindRow(proof, places_[instance]);
      continue;
    }
    const std::string value = WithSingleBlanks(RawText(published, property.name));
    if (declared != nullptr && !value.empty()) Find(proof, instance, declaration.name, value, declared->isKey);
  }
  return proofs;
}

// Searches all places of the instance; lines that contain the value have priority over lines that differ.
void Proofs::Find(Proof& proof, std::size_t instance, std::string_view className, const std::string& value,
                  bool isKey) {
  const Sought sought{value, isKey};
  for (const Place& place : places_[instance]) {
    const auto readings = ReadAll(place, LabelsFor(*place.text->tool, className, proof.property), sought);
    if (readings.empty()) continue;
    Reading best = BestOf(readings, sought);
    if (!best.isEqual && proof.evidence == Evidence::kDiffers) continue;
    proof.evidence = best.isEqual ? Evidence::kLine : Evidence::kDiffers;
    proof.text = place.text->instance;
    proof.lines = std::move(best.lines);
    if (best.isEqual) return;
  }
  const bool hasLabels = std::ranges::any_of(
      kKnownTools, [&](const KnownTool& known) { return !LabelsFor(known, className, proof.property).empty(); });
  if (hasLabels && proof.evidence == Evidence::kMade) proof.evidence = Evidence::kNoLine;
}

const std::vector<LabelSource>& Proofs::LabelsFor(const KnownTool& tool, std::string_view className,
                                                  std::string_view property) {
  const auto [found, isNew] = labels_.try_emplace({&tool, className, property});
  if (!isNew) return found->second;
  for (const LabelSource& source : LabelsOf(tool, className, property)) {
    const bool isKnown = std::ranges::any_of(found->second, [&](const LabelSource& each) {
      return each.label == source.label && each.answers->extent == source.answers->extent;
    });
    if (!isKnown) found->second.push_back(source);
  }
  return found->second;
}

}  // namespace hxahost
