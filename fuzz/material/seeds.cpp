#include "fuzz/material/seeds.h"

#include <algorithm>
#include <map>
#include <set>
#include <string_view>

#include <nlohmann/json.hpp>

#include "fuzz/support/sections.h"
#include "fuzz/support/utilities.h"
#include "host/hxacore/schema.h"
#include "tests/support/file_text.h"
#include "tests/support/tool_text.h"

namespace {

namespace fs = std::filesystem;
using Json = nlohmann::ordered_json;

constexpr const char* kAnswers = "samples/machine/zenx/answers";

std::string Answer(const fs::path& file) { return CrLf(FileText(file)); }

// The answers of the utility, each after a separator, for the controllers that are kept; the others are missing.
std::string AnswersOf(const fs::path& answers, const Utility& utility, const std::vector<std::size_t>& kept) {
  const std::string none = Answer(answers / utility.name / "other.txt");
  std::string text;
  for (std::size_t number = 1; number <= kAnsweredControllers; ++number) {
    const fs::path folder = answers / utility.name / std::to_string(number);
    const bool isThere = std::ranges::find(kept, number) != kept.end() && fs::is_directory(folder);
    for (const std::string_view command : utility.commands) {
      const bool isAsked = isThere || command == utility.commands.front();
      text += kSeparator;
      if (isAsked) text += isThere ? Answer(folder / (std::string(command) + ".txt")) : none;
    }
  }
  return text;
}

// One input for each controller, one for all, and one in which the utility has none.
Seeds ForEachController(const fs::path& answers, const Utility& utility) {
  Seeds seeds;
  for (const auto& kept : std::vector<std::vector<std::size_t>>{
           {1 },
           {2 },
           {3 },
           {1,  2, 3},
           { }
  }) {
    seeds.push_back(AnswersOf(answers, utility, kept).substr(1));
  }
  return seeds;
}

// The reports on the utility's controllers, in pieces of whole lines that are as short as the inputs of parsers.
Seeds PiecesOfReports(const fs::path& answers, const Utility& utility) {
  constexpr std::size_t kLongestPiece = 4096;
  Seeds pieces;
  for (const auto& folder : fs::directory_iterator(answers / utility.name)) {
    if (!folder.is_directory()) continue;
    const std::string report = Answer(folder.path() / "getconfig-al.txt");
    for (std::size_t begin = 0; begin < report.size(); begin += pieces.back().size()) {
      pieces.push_back(report.substr(begin, kLongestPiece));
      pieces.back().resize(pieces.back().rfind('\n') + 1);
    }
  }
  std::ranges::sort(pieces);
  return pieces;
}

std::vector<std::string> AllAnswers(const fs::path& answers) {
  std::vector<std::string> texts;
  for (const auto& file : fs::recursive_directory_iterator(answers)) {
    if (file.is_regular_file()) texts.push_back(Answer(file));
  }
  std::ranges::sort(texts);
  return texts;
}

std::string ValueText(const Json& value) {
  if (!value.is_array()) return value.is_string() ? value.get<std::string>() : value.dump();
  std::string text;
  for (const Json& element : value) text += (text.empty() ? "" : "\r") + ValueText(element);
  return text;
}

Json Property(const Json& properties, std::string_view name) {
  const auto isIt = [name](const auto& item) {
    return std::ranges::equal(item.key(), name, [](char left, char right) { return (left | 32) == (right | 32); });
  };
  const auto items = properties.items();
  const auto found = std::find_if(items.begin(), items.end(), isIt);
  return found == items.end() ? Json("") : Json(found.value());
}

// A published instance as the views' fuzzer reads it.
std::string InstancePart(const Json& instance) {
  const auto classes = NKVRHXA20::PublishedClasses();
  const std::string name = instance["class"];
  const auto declaration = std::ranges::find(classes, name, &NKVRHXA20::ClassDeclaration::name);
  std::string part(1, static_cast<char>('A' + (declaration - classes.begin())));
  std::string separator;
  for (const auto& property : declaration->properties) {
    part += separator + ValueText(Property(instance["properties"], property.name));
    separator = "\n";
  }
  return part;
}

// Instances of the sample machine: the first two of each class.
Json SamplePublished(const fs::path& sources) {
  const Json golden = Json::parse(FileText(sources / "tests/golden/sample-machine.json"));
  Json some = Json::array();
  std::map<std::string, int> counts;
  for (const Json& instance : golden["queries"].front()["instances"]) {
    if (++counts[instance["class"]] <= 2) some.push_back(instance);
  }
  return some;
}

std::string ResultOf(const Json& instances) {
  Json query = Json::object();
  query["instances"] = instances;
  query["log"] = Json::array();
  Json result = Json::object();
  result["format"] = 1;
  result["machine"] = "MACHINE";
  result["queries"] = Json::array({query});
  return result.dump();
}

}  // namespace

Seeds SeedMaker::LineScanner() const {
  Seeds seeds;
  for (const std::string& text : AllAnswers(sources_ / kAnswers)) {
    seeds.push_back("fvnvicbnnnnnnivb" + (kSeparator + text) + kSeparator + "Status" + kSeparator + "information");
  }
  return seeds;
}

Seeds SeedMaker::Qcmdrun() const { return ForEachController(sources_ / kAnswers, kQcmdrun); }
Seeds SeedMaker::Hrconf() const { return ForEachController(sources_ / kAnswers, kHrconf); }
Seeds SeedMaker::Arcconf() const { return ForEachController(sources_ / kAnswers, kArcconf); }
Seeds SeedMaker::QcmdrunParsers() const { return PiecesOfReports(sources_ / kAnswers, kQcmdrun); }
Seeds SeedMaker::HrconfParsers() const { return PiecesOfReports(sources_ / kAnswers, kHrconf); }
Seeds SeedMaker::ArcconfParsers() const { return PiecesOfReports(sources_ / kAnswers, kArcconf); }

Seeds SeedMaker::RaidManagerLog() const {
  const std::string log = FileText(sources_ / "samples/machine/raid-manager/KVR/Zentraxis Manager/RaidEvtA.log");
  Seeds seeds = {log};
  for (const std::string& line : Split(log, '\n')) seeds.push_back(line + "\n");
  return seeds;
}

Seeds SeedMaker::LogParsers() const { return AllAnswers(sources_ / kAnswers / "qcmdrun"); }

Seeds SeedMaker::DateTimes() const {
  Seeds seeds = {"20260305123015.250000+060", "20000229000000.000000-000", "5.2-0 (12345)"};
  for (const std::string& line : RaidManagerLog()) seeds.push_back(line.substr(0, line.find('\t')));
  return seeds;
}

Seeds SeedMaker::Plugin() const {
  const fs::path answers = sources_ / kAnswers;
  const std::string log = RaidManagerLog().front();
  const auto machine = [&](const std::string& system, const std::vector<std::size_t>& qcmdrun,
                           const std::vector<std::size_t>& hrconf, const std::vector<std::size_t>& arcconf) {
    return system + kSeparator + log.substr(0, 300) + AnswersOf(answers, kQcmdrun, qcmdrun) +
           AnswersOf(answers, kHrconf, hrconf) + AnswersOf(answers, kArcconf, arcconf);
  };
  return {machine("18 6.1", {1, 3}, {1}, {1, 2}), machine("18 6.1", {3}, {}, {}), machine("x", {}, {1}, {}),
          machine("82 6.0", {}, {1}, {2}), machine("18 5.2", {}, {}, {2})};
}

Seeds SeedMaker::Views() const {
  Seeds seeds;
  std::string all = "MACHINE";
  for (const Json& instance : SamplePublished(sources_)) {
    all += kSeparator + InstancePart(instance);
    seeds.push_back(std::string("MACHINE") + kSeparator + InstancePart(instance));
  }
  const std::string run = std::string(1, kSeparator) + "?zenx//arcconf.exe\nControllers found: 0\ngetconfig\n1\nal";
  seeds.push_back(all + run + kSeparator + "@qcmdrun aborted");
  return seeds;
}

// The document's example, and the sample machine's texts as the output of runs.
Seeds SeedMaker::Bundles() const {
  const std::string page = FileText(sources_ / "docs/bundles.md");
  const std::size_t begin = page.find("hxahost bundle 1\n");
  Seeds seeds = {page.substr(begin, page.find("```", begin) - begin)};
  for (const std::string& text : AllAnswers(sources_ / kAnswers)) {
    seeds.push_back(std::string("MACHINE") + kSeparator + "C:\\tools" + kSeparator + "C:\\ZXM" + kSeparator +
                    "day\tINF" + kSeparator + "getconfig\t" + text + kSeparator + "1not here" + kSeparator +
                    "signal 11\t");
  }
  return seeds;
}

Seeds SeedMaker::Texts() const {
  Seeds seeds = AllAnswers(sources_ / kAnswers);
  seeds.insert(seeds.end(), {"\xc3\xbc\xe2\x80\xae\xf0\x9f\x92\xbe", "\x1b[2J\x07", "</script><!--", "\xe2\x80\xa8"});
  return seeds;
}

Seeds SeedMaker::Results() const {
  const Json published = SamplePublished(sources_);
  Seeds seeds = {ResultOf(Json::array())};
  Json before = Json::array();
  for (const Json& instance : published) {
    const Json only = Json::array({instance});
    seeds.push_back(ResultOf(only) + kSeparator + ResultOf(before));
    before = only;
  }
  seeds.push_back(ResultOf(published) + kSeparator + ResultOf(before));
  return seeds;
}
