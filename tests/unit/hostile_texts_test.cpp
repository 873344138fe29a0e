// The same hostile texts as names, states, raw texts, log entries and names of machines, in every output of the
// program. Each output is checked by the rules of its own format: read back, the texts are unchanged, and the output
// around them equals that around harmless texts.

#include <algorithm>
#include <functional>
#include <optional>
#include <set>
#include <sstream>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include <boost/locale/encoding_utf.hpp>
#include <boost/property_tree/ptree.hpp>
#include <boost/property_tree/xml_parser.hpp>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include "host/hxahost/bundle/read_bundle.h"
#include "host/hxahost/bundle/write_bundle.h"
#include "host/hxahost/collection/query_log.h"
#include "host/hxahost/machine/health.h"
#include "host/hxahost/program/bundle_command.h"
#include "host/hxahost/program/fleet_command.h"
#include "host/hxahost/program/formats.h"
#include "host/hxahost/result/json_result.h"
#include "host/hxahost/terminal/layout.h"
#include "host/hxahost/text/display_width.h"
#include "host/hxahost/text/escaping.h"
#include "host/hxahost/text/utf8.h"
#include "host/hxahost/views/tables/tool_summary.h"
#include "tests/support/file_text.h"
#include "tests/support/healthy_machine.h"
#include "tests/support/temporary_folder.h"

namespace hostile_texts_test {

using namespace hxahost;
using namespace std::string_literals;
using Json = nlohmann::ordered_json;

std::string EveryByte() {
  std::string bytes;
  for (int byte = 0; byte < 256; ++byte) bytes += static_cast<char>(byte);
  return bytes;
}

// On a Latin and on a Thai letter.
std::string LongRunsOfMarks() {
  std::string text = "a";
  for (int mark = 0; mark < 50; ++mark) text += "\u0301";
  text += "\u0e01";
  for (int mark = 0; mark < 50; ++mark) text += "\u0e49";
  return text + "z";
}

struct HostileText {
  const char* name;
  std::string bytes;
};

const HostileText kTexts[] = {
    {"element",                     "<img src=x onerror=alert(1)>"                                          },
    {"end of a script",             "</script><script>alert(1)</script>"                                    },
    {"comment",                     "<!-- a --> <!--<script"                                                },
    {"end of CDATA",                "a]]>b<![CDATA[c"                                                       },
    {"instructions",                "<?xml version='9'?><!DOCTYPE a [<!ENTITY b 'c'>]>"                     },
    {"references",                  "&lt;b&gt; &amp; &#13; &unknown; &"                                     },
    {"link",                        "javascript:alert(1)"                                                   },
    {"attribute",                   "\" onload=\"alert(1)\" a='"                                            },
    {"terminal commands",           "a\x1b[2J\x1b]0;title\x07\x1b[31m\x08\x7fz"                             },
    {"C1 command in UTF-8",         "a\u009b2Jz"                                                            },
    {"C1 command, one byte",        "a\x9bz"                                                                },
    {"line feeds",                  "a\nb\r\nc\rd"                                                          },
    {"other line ends",             "a\u0085b\u2028c\u2029d\ve\ff"                                          },
    {"quotes",                      "\"a\" 'b' `c`"                                                         },
    {"backslashes",                 "\\ \\\\ \\n \\x41 \\u202e \\\" \\"                                     },
    {"end of a statement",          "\"; }; instance of KVRSG_zxRawData { Command = \"x"                    },
    {"MOF comments",                "*/ // /* #pragma include (\"x\")"                                      },
    {"end of a label",              "\"} 1\nhxahost_health{machine=\"x"                                     },
    {"line of a bundle",            "a\n|b\nend of bundle, crc32 00000000\n"                                },
    {"high surrogate",              "a\xed\xa0\xbdz"                                                        },
    {"low surrogate",               "a\xed\xb8\x80z"                                                        },
    {"surrogates as bytes",         "a\xed\xa0\xbd\xed\xb8\x80z"                                            },
    {"turned text",                 "a\u202etxt.exe\u202c \u2066b\u2069"                                    },
    {"direction marks",             "a\u200e\u200f\u061cb"                                                  },
    {"invisible",                   "a\u200b\u00ad\ufeff\u2060b"                                            },
    {"invisible copies of letters", "a\u180e\U000e0041\U000e007fb"                                          },
    {"nothing to be seen",          "a\u034f\u115f\u1160\u180b\u2800\u3164\ufe0f\uffa0\U0001bca0\U000e0100b"},
    {"long runs of marks",          LongRunsOfMarks()                                                       },
    {"no characters",               "a\ufffe\uffffb"                                                        },
    {"NUL",                         "a\0b"s                                                                 },
    {"no UTF-8",                    "a\xff\xfe\xc3\x28\xf8z"                                                },
    {"every byte",                  "a" + EveryByte() + "z"                                                 },
    {"placeholders",                "%s %n {} {0} @QUERY_DATA@ @SCRIPT@ $& ${x} $1"                         },
    {"name of a prototype",         "__proto__"                                                             },
};

// A machine with one text in every place that can contain a text from outside.
class Machine {
 public:
  explicit Machine(const std::string& text) : text_(text) {
    machine_.SetOf("Zentraxis2LD1", "LogicalDriveName", text);
    machine_.SetOf("Zentraxis2LD1", "LogicalDriveStatus", text);
    machine_.SetOf("Zentraxis2", "ControllerType", text);
    machine_.Set("KVRSG_zxDiskDrive", "State", text);
    machine_.Set("KVRSG_zxDiskDrive", "DeviceID", text);
    machine_.devices.push_back({
        "KVRSG_zxRawData", {{"Command", text}, {"RawResults", Texts({text})}}
    });
    machine_.log = {
        {1, text}
    };
    header_ = machine_.Header();
    header_.machine = text.substr(0, 400);  // a longer name is refused when it is read
    header_.layout.width = kWidestLayout;
    result_ = machine_.Result();
  }

  std::string Query(const char* format) const {
    std::ostringstream out;
    const auto& view = WriterOf<QueryWriter>("query", format);
    view.Begin(out, header_);
    view.Query(out, header_, result_);
    view.End(out, header_);
    return out.str();
  }

  std::string Health(const char* format) const {
    std::ostringstream out;
    WriterOf<HealthWriter>("health", format)(out, {header_, result_, BuildMachine(header_, result_), 1});
    return out.str();
  }

  std::string Status(const char* format) const {
    std::ostringstream out;
    WriterOf<HealthWriter>("status", format)(out, {header_, result_, BuildMachine(header_, result_), 1});
    return out.str();
  }

  // With a file beside its result that holds none.
  std::string Fleet(const char* format) const {
    const TemporaryFolder folder;
    folder.Write("damaged.json", "{");
    folder.Write("result.json", Query("json"));
    FleetCommandOptions options;
    options.paths = {folder.Path()};
    options.shown.format = format;
    std::ostringstream out;
    std::ostringstream err;
    EXPECT_EQ(RunFleetCommand(options, out, err), ExitStatus::kDone) << err.str();
    return out.str();
  }

  // Compares it with a machine without a fault.
  std::string Diff(const char* format) const {
    std::ostringstream out;
    const JsonResult before = ParseJsonResult(Machine("Optimal").Query("json"), "");
    const JsonResult after = ParseJsonResult(Query("json"), "");
    WriterOf<DiffWriter>("diff", format)(out, {"before", before.machine}, {text_, after.machine},
                                         CompareResults(before, after), false);
    return out.str();
  }

 private:
  std::string text_;
  HealthyMachine machine_;
  QueryHeader header_;
  QueryResult result_;
};

Bundle BundleWith(const std::string& text) {
  Bundle bundle;
  bundle.program = "1";
  bundle.machine = text;
  bundle.directory = "/tools";
  bundle.localTimes.push_back({NKVRHXA20::TCIMDateTime("20261121093000.000000+060"), 1});
  RecordedRun run;
  run.path = "zenx//arcconf.exe";
  run.arguments = {text};
  run.result.output = text;
  run.result.exitStatus = 0;
  bundle.runs.push_back(run);
  run.result = {};
  run.failure = RecordedFailure{FailureKind::kNotStarted, text};
  bundle.runs.push_back(run);
  bundle.raidLog = RecordedLog{text, text, {}};
  return bundle;
}

std::string ShownBundle(const std::string& text, std::vector<std::size_t> items) {
  const TemporaryFolder folder;
  BundleOptions options;
  options.file = Utf8FromPath(folder.Write("bundle", WriteBundle(BundleWith(text))));
  for (const std::size_t item : items) options.items.push_back(static_cast<unsigned>(item));
  std::ostringstream out;
  ListBundle(options, out);
  ShowBundle(options, out);
  return out.str();
}

// An entry of the log, without its level and the tab after that.
std::string Log(const std::string& text) {
  const TemporaryFolder folder;
  QueryLog log(folder.Path() / "log");
  log.Add(3, text);
  log.Finish();
  return FileText(folder.Path() / "log").substr(2);
}

// Whether the character acts on a terminal, or hides or changes what is shown; a line end does not.
bool ActsOnATerminal(char32_t code) {
  const auto isIn = [code](char32_t first, char32_t last) { return code >= first && code <= last; };
  if (code == '\n') return false;
  return isIn(0, 0x1f) || isIn(0x7f, 0x9f) || code == 0xad || code == 0x61c || isIn(0x180b, 0x180f) ||
         isIn(0xfe00, 0xfe0f) || isIn(0x1bca0, 0x1bca3) || isIn(0x200b, 0x200f) || isIn(0x2028, 0x202e) ||
         isIn(0x2060, 0x2069) || code == 0xfeff || isIn(0xfffe, 0xffff) || isIn(0xe0000, 0xe0fff) || code == 0x34f ||
         isIn(0x115f, 0x1160) || code == 0x2800 || code == 0x3164 || code == 0xffa0;
}

bool IsMark(char32_t code) { return (code >= 0x300 && code <= 0x36f) || (code >= 0xe47 && code <= 0xe4e); }

void ExpectSafeOnATerminal(const std::string& written) {
  constexpr int kMostMarks = 4;
  std::string_view rest = written;
  int marks = 0;
  while (!rest.empty()) {
    const Character character = NextCharacter(rest);
    const std::size_t at = written.size() - rest.size();
    marks = IsMark(character.code) ? marks + 1 : 0;
    ASSERT_FALSE(ActsOnATerminal(character.code) || marks > kMostMarks)
        << std::hex << static_cast<unsigned>(character.code) << " in "
        << EscapeControls(written.substr(at < 50 ? 0 : at - 50, 100));
    rest.remove_prefix(character.length);
  }
}

auto LineCount(const std::string& written) { return std::ranges::count(written, '\n'); }

// Lines for people: safe, as many as for a harmless text of the same width, and the text can be recognised.
void ExpectLinesForPeople(const std::string& written, const std::string& text,
                          const std::function<std::string(const std::string&)>& write) {
  ExpectSafeOnATerminal(written);
  const std::string printable = Printable(text);
  EXPECT_EQ(LineCount(written), LineCount(write(std::string(DisplayWidth(printable), 'x')))) << written;
  EXPECT_THAT(written, testing::HasSubstr(printable.substr(0, 12)));
}

TEST(HostileTexts, AreSafeLinesInEveryFormatForPeople) {
  struct Output {
    const char* name;
    std::string (*Write)(const std::string& text);
  };
  const Output outputs[] = {
      {"tables",           [](const std::string& text) { return Machine(text).Query("table"); }},
      {"health",           [](const std::string& text) { return Machine(text).Health("text"); }},
      {"differences",      [](const std::string& text) { return Machine(text).Diff("text"); }  },
      {"log",              Log                                                                 },
      {"list of a bundle", [](const std::string& text) { return ShownBundle(text, {}); }       },
  };
  for (const Output& output : outputs) {
    for (const HostileText& each : kTexts) {
      SCOPED_TRACE(output.name + ": "s + each.name);
      ExpectLinesForPeople(output.Write(each.bytes), each.bytes, output.Write);
    }
  }
}

// Tabs and the ends of lines are data of CSV.
TEST(HostileTexts, AreSafeOnATerminalInEveryFormatOfEveryCommand) {
  struct Written {
    const char* command;
    std::string (Machine::*Write)(const char* format) const;
  };
  constexpr Written kCommands[] = {
      {"query",  &Machine::Query },
      {"health", &Machine::Health},
      {"status", &Machine::Status},
      {"diff",   &Machine::Diff  },
      {"fleet",  &Machine::Fleet },
  };
  std::string texts;  // one after the other
  for (const HostileText& each : kTexts) texts += AsUtf8(each.bytes) + ' ';
  const Machine machine(texts);
  for (const Written& each : kCommands) {
    for (const Format& format : FormatsOf(each.command)) {
      SCOPED_TRACE(each.command + " "s + std::string(format.name));
      std::string written = (machine.*each.Write)(std::string(format.name).c_str());
      const bool hasTabs = format.name == "csv" || format.name == "cim-xml";
      if (hasTabs) std::erase_if(written, [](char character) { return character == '\t' || character == '\r'; });
      ExpectSafeOnATerminal(written);
    }
  }
}

// The line ends of the text are shown as such here.
TEST(HostileTexts, AreSafeOnATerminalAsItemsOfABundle) {
  for (const HostileText& each : kTexts) {
    SCOPED_TRACE(each.name);
    ExpectSafeOnATerminal(ShownBundle(each.bytes, {1, 2, 3}));
  }
}

// Every text of a JSON, at any depth.
void CollectTexts(const Json& json, std::vector<std::string>& texts) {
  if (json.is_string()) texts.push_back(json);
  if (json.is_structured()) {
    for (const Json& member : json) CollectTexts(member, texts);
  }
}

// The same JSON with types instead of values.
Json Shape(const Json& json) {
  if (json.is_primitive()) return json.type_name();
  Json shape = json;
  for (Json& member : shape) member = Shape(member);
  return shape;
}

// The shape equals that of a harmless text; each text equals the harmless one, except for the hostile text in it.
void ExpectJson(const std::string& written, const std::string& text, const std::string& harmless) {
  ExpectSafeOnATerminal(written);
  const Json json = Json::parse(written);
  const Json other = Json::parse(harmless);
  EXPECT_EQ(Json::diff(Shape(other), Shape(json)), Json::array());
  std::vector<std::string> texts;
  CollectTexts(json, texts);
  EXPECT_THAT(texts, testing::Contains(AsUtf8(text)));
}

constexpr const char* kHarmless = "harmless";

TEST(HostileTexts, AreTextsInEveryJsonAndNothingMore) {
  for (const HostileText& each : kTexts) {
    SCOPED_TRACE(each.name);
    const Machine machine(each.bytes);
    const Machine harmless(kHarmless);
    ExpectJson(machine.Query("json"), each.bytes, harmless.Query("json"));
    ExpectJson(machine.Health("json"), each.bytes, harmless.Health("json"));
    ExpectJson(machine.Diff("json"), each.bytes, harmless.Diff("json"));
  }
}

// Removes the part between the marks from the HTML report and returns it.
std::string Take(std::string& page, std::string_view begin, std::string_view end) {
  const std::size_t first = page.find(begin) + begin.size();
  const std::size_t length = page.find(end, first) - first;
  std::string taken = page.substr(first, length);
  page.erase(first, length);
  return taken;
}

// The beginnings of the tags of HTML: "</p", "<li".
std::set<std::string> TagsOf(const std::string& html) {
  std::set<std::string> tags;
  for (std::size_t at = html.find('<'); at != html.npos; at = html.find('<', at + 1)) {
    tags.insert(html.substr(at, html.find_first_of(" >", at) - at));
  }
  return tags;
}

// Removes the report's own HTML: the title, the origin, and the summary.
std::string TakeHtml(std::string& page) {
  constexpr std::pair<std::string_view, std::string_view> kParts[] = {
      {"<title>",                                                        "</title>"  },
      {"<h1>",                                                           "</header>" },
      {"<h2 id=\"health\" class=\"unseen\" tabindex=\"-1\">Health</h2>", "</section>"},
  };
  std::string html;
  for (const auto& [begin, end] : kParts) html += Take(page, begin, end);
  return html;
}

TEST(HostileTexts, AreDataOfThePageWhichIsTheSameAroundThem) {
  constexpr std::string_view kQuery = "<script type=\"application/json\" id=\"query-data\">";
  constexpr std::string_view kReport = "<script type=\"application/json\" id=\"report-data\">";
  std::string harmless = Machine(kHarmless).Query("html");
  Take(harmless, kQuery, "</script>");
  Take(harmless, kReport, "</script>");
  const std::set<std::string> tags = TagsOf(TakeHtml(harmless));
  for (const HostileText& each : kTexts) {
    SCOPED_TRACE(each.name);
    const Machine machine(each.bytes);
    std::string page = machine.Query("html");
    const std::string query = Take(page, kQuery, "</script>");
    const std::string report = Take(page, kReport, "</script>");
    const std::string html = TakeHtml(page);
    EXPECT_THAT(tags, testing::IsSupersetOf(TagsOf(html)));
    ExpectSafeOnATerminal(html);
    EXPECT_TRUE(page == harmless);
    EXPECT_EQ(Json::parse(query), Json::parse(machine.Query("json")));
    EXPECT_TRUE(Json::accept(report));
    for (const std::string& data : {query, report}) {
      ExpectSafeOnATerminal(data);
      EXPECT_EQ(data.find('<'), data.npos);
    }
  }
}

using Tree = boost::property_tree::ptree;

// The names of the elements and of their attributes, in order, and all texts.
void Walk(const Tree& tree, std::string& shape, std::vector<std::string>& texts) {
  for (const auto& [name, child] : tree) {
    shape += "(" + name;
    if (child.empty()) texts.push_back(child.data());
    Walk(child, shape, texts);
    shape += ")";
  }
}

// Characters that XML cannot contain are written differently.
std::string XmlText(const std::string& bytes) {
  std::string text;
  ForEachCharacter(AsUtf8(bytes), [&text](char32_t code, std::string_view character) {
    if (code < 0x20 && code != '\t' && code != '\n' && code != '\r') {
      text += "\xe2\x90" + std::string(1, static_cast<char>(0x80 + code));
    } else if (code == 0xfffe || code == 0xffff) {
      text += "\xef\xbf\xbd";
    } else {
      text += character;
    }
  });
  return text;
}

TEST(HostileTexts, AreTextsInCimXmlAndNothingMore) {
  const auto read = [](const std::string& document, std::vector<std::string>& texts) {
    std::istringstream in(document);
    Tree tree;
    boost::property_tree::read_xml(in, tree);
    std::string shape;
    Walk(tree, shape, texts);
    return shape;
  };
  std::vector<std::string> ignored;
  const std::string shape = read(Machine(kHarmless).Query("cim-xml"), ignored);
  for (const HostileText& each : kTexts) {
    SCOPED_TRACE(each.name);
    const std::string document = Machine(each.bytes).Query("cim-xml");
    std::vector<std::string> texts;
    EXPECT_EQ(read(document, texts), shape);
    EXPECT_GE(std::ranges::count(texts, XmlText(each.bytes)), 4);
    std::string lines = document;
    std::erase(lines, '\t');
    ExpectSafeOnATerminal(lines);
  }
}

// A MOF document: the text outside of its strings and comments, and the strings, parts put together.
struct Mof {
  std::string outside;
  std::vector<std::string> strings;
};

// The text begins after a backslash. A character written by its number is one or two code units of UTF-16.
std::string UnescapedMof(std::string_view& rest) {
  constexpr std::string_view kLetters = "btnfr\"\\";
  constexpr std::string_view kMeant = "\b\t\n\f\r\"\\";
  const char letter = rest.front();
  const std::size_t known = kLetters.find(letter);
  if (known != kLetters.npos) {
    rest.remove_prefix(1);
    return {kMeant[known]};
  }
  EXPECT_EQ(letter, 'x');
  std::u16string units;
  for (bool isMore = true; isMore;) {
    units += static_cast<char16_t>(std::stoul(std::string(rest.substr(1, 4)), nullptr, 16));
    rest.remove_prefix(5);
    isMore = rest.starts_with("\\x");
    if (isMore) rest.remove_prefix(1);
  }
  return boost::locale::conv::utf_to_utf<char>(units, boost::locale::conv::stop);
}

std::string TakeMofString(std::string_view& rest) {
  std::string text;
  while (rest.front() != '"') {
    const char character = rest.front();
    EXPECT_NE(character, '\n');
    rest.remove_prefix(1);
    text += character == '\\' ? UnescapedMof(rest) : std::string(1, character);
  }
  rest.remove_prefix(1);
  return text;
}

Mof ReadMof(std::string_view rest) {
  Mof mof;
  bool isContinued = false;  // only blanks since the last string
  while (!rest.empty()) {
    if (rest.starts_with("//")) {
      rest.remove_prefix(rest.find('\n'));
      continue;
    }
    const char character = rest.front();
    rest.remove_prefix(1);
    if (character == '"') {
      const std::string part = TakeMofString(rest);
      isContinued ? void(mof.strings.back() += part) : mof.strings.push_back(part);
      isContinued = true;
    } else if (character != ' ' && character != '\n') {
      mof.outside += character;
      isContinued = false;
    }
  }
  return mof;
}

std::string WithPicturesOfNul(std::string text) {
  for (std::size_t at = text.find('\0'); at != text.npos; at = text.find('\0')) text.replace(at, 1, "\xe2\x90\x80");
  return text;
}

TEST(HostileTexts, AreStringsInMofAndNothingMore) {
  const Mof harmless = ReadMof(Machine(kHarmless).Query("mof"));
  for (const HostileText& each : kTexts) {
    SCOPED_TRACE(each.name);
    const std::string document = Machine(each.bytes).Query("mof");
    ExpectSafeOnATerminal(document);
    const Mof mof = ReadMof(document);
    EXPECT_EQ(mof.outside, harmless.outside);
    EXPECT_EQ(mof.strings.size(), harmless.strings.size());
    EXPECT_GE(std::ranges::count(mof.strings, WithPicturesOfNul(AsUtf8(each.bytes))), 4);
  }
}

// A line of metrics without the values of its labels; those are checked and collected.
std::string MetricShape(std::string_view line, std::vector<std::string>& values) {
  std::string shape;
  while (!line.empty()) {
    shape += line.front();
    const bool isValue = line.front() == '"';
    line.remove_prefix(1);
    if (!isValue) continue;
    std::string value;
    for (; !line.empty() && line.front() != '"'; line.remove_prefix(1)) {
      if (line.front() != '\\') {
        value += line.front();
        continue;
      }
      line.remove_prefix(1);
      EXPECT_TRUE(line.front() == '\\' || line.front() == '"' || line.front() == 'n') << line;
      value += line.front() == 'n' ? '\n' : line.front();
    }
    EXPECT_FALSE(line.empty()) << "a value without an end";
    values.push_back(value);
    shape += '"';
    line.remove_prefix(1);
  }
  return shape;
}

std::vector<std::string> MetricShapes(const std::string& metrics, std::vector<std::string>& values) {
  std::vector<std::string> shapes;
  std::istringstream lines(metrics);
  for (std::string line; std::getline(lines, line);) {
    shapes.push_back(line.starts_with('#') ? line : MetricShape(line, values));
  }
  return shapes;
}

TEST(HostileTexts, AreValuesOfLabelsInMetricsAndNothingMore) {
  std::vector<std::string> ignored;
  const std::vector<std::string> harmless = MetricShapes(Machine(kHarmless).Health("prometheus"), ignored);
  for (const HostileText& each : kTexts) {
    SCOPED_TRACE(each.name);
    const std::string metrics = Machine(each.bytes).Health("prometheus");
    ExpectSafeOnATerminal(metrics);
    std::vector<std::string> values;
    EXPECT_EQ(MetricShapes(metrics, values), harmless);
    const std::string begin = Printable(each.bytes.substr(0, each.bytes.find('\n')));
    EXPECT_TRUE(std::ranges::any_of(values, [&](const std::string& value) { return value.starts_with(begin); }));
  }
}

TEST(HostileTexts, AreTheSameBytesAgainWhenABundleIsRead) {
  for (const HostileText& each : kTexts) {
    SCOPED_TRACE(each.name);
    const std::string written = WriteBundle(BundleWith(each.bytes));
    ExpectSafeOnATerminal(written);
    const Bundle bundle = ReadBundle(written);
    EXPECT_EQ(bundle.machine, each.bytes);
    ASSERT_EQ(bundle.runs.size(), 2U);
    EXPECT_EQ(bundle.runs[0].arguments, std::vector<std::string>{each.bytes});
    EXPECT_EQ(bundle.runs[0].result.output, each.bytes);
    EXPECT_EQ(bundle.runs[1].failure->message, each.bytes);
    EXPECT_EQ(bundle.raidLog->path, each.bytes);
    EXPECT_EQ(bundle.raidLog->bytes, each.bytes);
  }
}

}  // namespace hostile_texts_test
