// Bundles: the input is read as the text of one, unchanged and with correct checksums; and as the contents to record,
// its texts being those of the machine and then the runs.
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "fuzz/support/bundle_checksums.h"
#include "fuzz/support/fuzzer.h"
#include "fuzz/support/require.h"
#include "fuzz/support/sections.h"
#include "fuzz/support/text_checks.h"
#include "host/hxahost/bundle/bundle.h"
#include "host/hxahost/bundle/bundle_encoding.h"
#include "host/hxahost/bundle/bundle_mask.h"
#include "host/hxahost/bundle/read_bundle.h"
#include "host/hxahost/bundle/write_bundle.h"
#include "host/hxahost/text/escaping.h"

using namespace hxahost;

namespace {

// Whether some line has what older programs wrote unescaped, and this one does not.
bool HasUnsafeLines(std::string_view text) {
  return std::ranges::any_of(Split(text, '\n'), [](const std::string& line) { return EscapeControls(line) != line; });
}

void TryText(std::string_view text) {
  try {
    const Bundle bundle = ReadBundle(text);
    const std::string written = WriteBundle(bundle);
    Require(written == text || HasUnsafeLines(text), "a bundle that is read is written the same way");
    Require(WriteBundle(ReadBundle(written)) == written, "a bundle is written the same way from then on");
    Require(LooksLikeBundle(text), "a bundle is recognised");
  } catch (const BundleError& error) {
    RequirePlainLines(error.what());
    Require(std::string_view(error.what()).find('\n') == std::string_view::npos, "a reason has one line", error.what());
  }
}

void TryEscapes(const std::string& bytes) {
  const std::string escaped = EscapeBytes(bytes);
  RequirePlainLines(escaped);
  Require(UnescapeBytes(escaped) == bytes, "unescaping returns the same bytes", escaped);
  Require(Unquote(Quote(bytes)) == bytes, "unquoting returns the same bytes", escaped);
  const auto unescaped = UnescapeBytes(bytes);
  if (!unescaped) return;
  Require(EscapeBytes(*unescaped) == bytes || HasUnsafeLines(bytes), "there is one way to escape a text", bytes);
  Require(UnescapeBytes(EscapeBytes(*unescaped)) == unescaped, "the way of older programs has the same bytes", bytes);
}

// "0getconfig\toutput": the first character decides the outcome.
RecordedRun RunOf(const std::string& text) {
  const std::vector<std::string> parts = Split(text, '\t');
  const std::string how = parts[0].substr(0, 1);
  RecordedRun run;
  run.path = "zenx//arcconf.exe";
  run.arguments = {parts[0], "1"};
  run.limitSeconds = 300;
  run.result.seconds = static_cast<double>(parts.size()) / 3;
  if (how >= "0" && how <= "4") {
    run.failure = RecordedFailure{static_cast<FailureKind>(how[0] - '0'), text};
    return run;
  }
  run.result.output = text.substr(parts[0].size());
  if (how == "s") run.result.ending = parts[0];
  if (how != "s") run.result.exitStatus = -static_cast<std::int64_t>(text.size());
  return run;
}

Bundle BundleOf(const Sections& input) {
  Bundle bundle;
  bundle.program = "1.0.0";
  bundle.machine = input.TextAt(0).substr(0, 1000);
  bundle.directory = EscapeBytes(input.TextAt(1));
  bundle.raidLogDir = input.At(2);
  bundle.localTimes.push_back({NKVRHXA20::TCIMDateTime(2026, 3, 5, 12, 30, 15, 250000, 60), 2});
  for (std::size_t index = 4; index < input.Count(); ++index) bundle.runs.push_back(RunOf(input.TextAt(index)));
  if (input.Count() > 3) bundle.raidLog = RecordedLog{input.TextAt(2), input.TextAt(3), {}};
  return bundle;
}

void TryRoundTrip(const Bundle& bundle) {
  const std::string text = WriteBundle(bundle);
  RequirePlainLines(text);
  Require(WithChecksums(text) == text, "checksums are those of the text");
  const Bundle read = ReadBundle(text);
  Require(WriteBundle(read) == text, "reading a bundle returns the one that was written");
  Require(read.machine == bundle.machine && read.runs.size() == bundle.runs.size(),
          "reading a bundle returns all of its runs");
  for (std::size_t index = 0; index < read.runs.size(); ++index) {
    Require(read.runs[index].result.output == bundle.runs[index].result.output, "an output is read back unchanged");
  }
}

void TryMask(const Bundle& bundle) {
  std::uint32_t number = 1;
  const Bundle masked = MaskBundle(bundle, [&number] { return number = number * 1664525U + 1013904223U; });
  Require(masked.isMasked, "a masked bundle is marked as masked");
  Require(ItemCount(masked) == ItemCount(bundle), "masking leaves every item");
  for (std::size_t index = 0; index < masked.runs.size(); ++index) {
    Require(masked.runs[index].result.output.size() == bundle.runs[index].result.output.size(),
            "masking leaves lengths as they are");
  }
  TryRoundTrip(masked);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string text(AsText(data, size));
  TryText(text);
  TryText(WithChecksums(text));
  TryEscapes(text);
  const Bundle bundle = BundleOf(Sections(data, size));
  TryRoundTrip(bundle);
  TryMask(bundle);
  return 0;
}
