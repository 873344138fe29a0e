// All views of published instances: tables, JSON, the HTML report, health in all formats. The first text of the input
// is the machine's name, the others are the published data.
#include <algorithm>
#include <cstddef>
#include <sstream>
#include <string>

#include <boost/property_tree/ptree.hpp>
#include <boost/property_tree/xml_parser.hpp>
#include <nlohmann/json.hpp>

#include "fuzz/support/fuzzer.h"
#include "fuzz/support/instance_texts.h"
#include "fuzz/support/published_input.h"
#include "fuzz/support/require.h"
#include "fuzz/support/sections.h"
#include "fuzz/support/text_checks.h"
#include "host/hxacore/value_reader.h"
#include "host/hxahost/diff/result_diff.h"
#include "host/hxahost/machine/health.h"
#include "host/hxahost/program/formats.h"
#include "host/hxahost/result/json_result.h"
#include "host/hxahost/terminal/ascii_output.h"
#include "host/hxahost/terminal/layout.h"
#include "host/hxahost/text/utf8.h"

using Json = nlohmann::ordered_json;
using namespace hxahost;

namespace {

std::string Shown(std::string_view format, const QueryHeader& header, const QueryResult& result,
                  std::size_t width = 100) {
  QueryHeader laidOut = header;
  laidOut.layout.width = width;
  std::ostringstream out;
  const auto& view = WriterOf<QueryWriter>("query", format);
  view.Begin(out, laidOut);
  view.Query(out, laidOut, result);
  view.End(out, laidOut);
  return out.str();
}

// JSON that is read back equals the published data.
void CheckJson(const QueryHeader& header, const QueryResult& result) {
  const std::string text = Shown("json", header, result);
  Require(text == Shown("json", header, result), "the same result is written the same way twice");
  const Json json = Json::parse(text);
  Require(json["machine"] == AsUtf8(header.machine), "the machine's name is read back");
  const Json& query = json["queries"][0];
  Require(query["instances"].size() == result.instances.size(), "every instance is read back");
  for (std::size_t index = 0; index < result.instances.size(); ++index) {
    const Json& properties = query["instances"][index]["properties"];
    for (const auto& [name, value] : result.instances[index]->Properties()) {
      if (NKVRHXA20::TCIMValueReader::Kind(value) != NKVRHXA20::ValueKind::kString) continue;
      Require(properties[std::string(name)] == AsUtf8(std::string(value)), "every text is read back", name);
    }
  }
  for (std::size_t index = 0; index < result.log.size(); ++index) {
    Require(query["log"][index]["text"] == AsUtf8(result.log[index].text), "every log entry is read back");
  }
  const JsonResult read = ParseJsonResult(text, "result");
  Require(IsSame(CompareResults(read, read)), "a result equals itself");
}

struct Input {
  QueryHeader header;
  QueryResult result;
};

Input ReadInput(const std::string& text) {
  const std::size_t nameEnd = std::min(text.find(kSeparator), text.size());
  return {HeaderOf(text.substr(0, nameEnd)), ReadPublished(text.substr(std::min(nameEnd + 1, text.size())))};
}

// No text ends the script or begins another element: all markup is the report's own. The number of tags is the same if
// the texts have another character, which no rule contains either, instead of the one that begins an element.
void CheckPage(const Input& input, const std::string& text) {
  constexpr char kOther = '^';
  const std::string page = Shown("html", input.header, input.result);
  RequireUtf8(page);
  if (text.find(kOther) != text.npos) return;
  std::string harmless = text;
  std::ranges::replace(harmless, '<', kOther);
  const Input other = ReadInput(harmless);
  const std::string expected = Shown("html", other.header, other.result);
  for (const char* const markup : {"<", "</script", "<!--", "]]>"}) {
    Require(CountOf(page, markup) == CountOf(expected, markup), "no markup is made of data", markup);
  }
}

// CIM-XML is well-formed, contains every instance, and does not act on a terminal.
void CheckCimXml(const QueryHeader& header, const QueryResult& result) {
  const std::string text = Shown("cim-xml", header, result);
  std::string withoutTabs = text;
  std::ranges::replace(withoutTabs, '\t', ' ');
  RequirePlainLines(withoutTabs);
  std::istringstream file(text);
  boost::property_tree::ptree tree;
  try {
    boost::property_tree::read_xml(file, tree);
  } catch (const boost::property_tree::xml_parser_error& error) {
    Require(false, "XML is well-formed", error.what());
  }
  Require(CountOf(text, "<INSTANCE ") == result.instances.size(), "every instance occurs once");
}

// Quotation marks within strings are escaped, so each line has an even number of unescaped ones.
void CheckMof(const QueryHeader& header, const QueryResult& result) {
  const std::string text = Shown("mof", header, result);
  RequirePlainLines(text);
  Require(CountOf(text, "\ninstance of ") == result.instances.size(), "every instance occurs once");
  for (const std::string& line : Split(text, '\n')) {
    if (line.starts_with("//")) continue;
    bool isInString = false;
    for (std::size_t at = 0; at < line.size(); ++at) {
      if (line[at] == '\\' && isInString) {
        ++at;
      } else if (line[at] == '"') {
        isInString = !isInString;
      }
    }
    Require(!isInString, "every string ends on its line", line);
  }
}

void CheckTables(const QueryHeader& header, const QueryResult& result) {
  for (const std::size_t width : {kNarrowestLayout, std::size_t{100}, kWidestLayout}) {
    const std::string tables = Shown("table", header, result, width);
    RequirePlainLines(tables);
    const std::string ascii = ToAscii(tables);
    Require(ascii.find_first_not_of("\n !\"#$%&'()*+,-./0123456789:;<=>?@ABCDEFGHIJKLMNOPQRSTUVWXYZ[\\]^_`"
                                    "abcdefghijklmnopqrstuvwxyz{|}~") == ascii.npos,
            "ASCII is ASCII");
  }
}

void CheckHealth(const QueryHeader& header, const QueryResult& result) {
  const HealthReport report{header, result, BuildMachine(header, result), 1.5};
  for (const Format& format : FormatsOf("health")) {
    std::ostringstream out;
    std::get<HealthWriter>(format.writer)(out, report);
    if (format.name == "json") {
      Require(Json::parse(out.str())["findings"].size() == report.machine.findings.size(),
              "every finding is read back");
    } else if (format.name == "prometheus") {
      RequireMetrics(out.str());
    } else {
      RequirePlainLines(out.str());
    }
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string text(AsText(data, size));
  const Input input = ReadInput(text);
  const auto& [header, result] = input;
  CheckJson(header, result);
  CheckPage(input, text);
  CheckCimXml(header, result);
  CheckMof(header, result);
  CheckTables(header, result);
  CheckHealth(header, result);
  return 0;
}
