// Texts in the formats that the program writes.
#include <cstddef>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

#include <nlohmann/json.hpp>

#include "fuzz/support/fuzzer.h"
#include "fuzz/support/require.h"
#include "fuzz/support/sections.h"
#include "fuzz/support/text_checks.h"
#include "host/hxahost/result/raw_text_values.h"
#include "host/hxahost/result/tool_answer.h"
#include "host/hxahost/terminal/ascii_output.h"
#include "host/hxahost/text/display_width.h"
#include "host/hxahost/text/escaping.h"
#include "host/hxahost/text/utf8.h"
#include "host/hxahost/views/report/script_data.h"

using namespace hxahost;

namespace {

void TryEscapes(std::string_view bytes) {
  RequireUtf8(AsUtf8(bytes));
  const std::string escaped = EscapeControls(bytes);
  RequirePlainLines(escaped);
  Require(escaped.find('\n') == escaped.npos, "printable text is one line", escaped);
  Require(EscapeControls(escaped) == escaped, "printable text does not change again", escaped);
}

void TryWidths(std::string_view bytes) {
  const std::string text = Printable(bytes);
  for (const std::size_t columns : {0U, 1U, 2U, 7U, 30U}) {
    const std::string cut = CutToWidth(text, columns);
    Require(DisplayWidth(cut) <= columns, "a text that is cut fits", cut);
    RequireUtf8(cut);
  }
  const std::string ascii = ToAscii(text);
  Require(ascii.size() == DisplayWidth(text), "ASCII has the same width", text);
}

// A script reads the same text, and it contains no markup.
void TryScriptData(std::string_view bytes) {
  const std::string json = nlohmann::json(AsUtf8(bytes)).dump();
  std::ostringstream page;
  {
    ScriptData buffer(page);
    std::ostream data(&buffer);
    data << json;
  }
  Require(page.str().find('<') == std::string::npos, "no element begins in a script's data", page.str());
  Require(nlohmann::json::parse(page.str()) == nlohmann::json::parse(json), "a script reads the written text", json);
}

void TryAnswers(const std::string& text) {
  const std::vector<std::string> lines = Split(text, '\n');
  std::size_t last = 0;
  for (const RawValues& values : ReadRawValues(lines)) {
    Require(values.firstLine >= last && values.firstLine + values.lineCount <= lines.size(), "lines come in order");
    Require(!values.values.empty(), "lines with values have at least one");
    last = values.firstLine + values.lineCount;
  }
  for (const std::string_view tool : KnownTools()) {
    for (const char* const command : {"getconfig", "getlogs", "getstatus"}) {
      const ReadAnswer answer = ReadToolAnswer(tool, {command, "1", "al"}, text);
      Require((answer.outcome == Outcome::kOk) == answer.reason.empty(), "every outcome except kOk has a reason", text);
      RequirePlainLines(answer.reason);
    }
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string text(AsText(data, size));
  TryEscapes(text);
  TryWidths(text);
  TryScriptData(text);
  TryAnswers(text);
  return 0;
}
