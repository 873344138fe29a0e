#include "host/hxahost/bundle/read_bundle.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <iterator>

#include <fmt/core.h>

#include "host/hxahost/bundle/bundle_encoding.h"
#include "host/hxahost/bundle/bundle_format.h"
#include "host/hxahost/system/machine_name.h"

using namespace NKVRHXA20;

namespace hxahost {

namespace {

using namespace bundle_format;

// Returns nothing unless the whole text is a number.
template <class Number>
std::optional<Number> ReadNumber(std::string_view text, int base = 10) {
  Number number{};
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number, base);
  if (error != std::errc() || end != text.data() + text.size()) return std::nullopt;
  return number;
}

// As this program writes it: "7", not "07".
template <class Number>
std::optional<Number> ReadWhole(std::string_view text) {
  const auto number = ReadNumber<Number>(text);
  if (!number || std::to_string(*number) != text) return std::nullopt;
  return number;
}

std::optional<double> ReadSeconds(std::string_view text) {
  constexpr double kMost = 1e9;  // 30 years
  double seconds = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), seconds);
  if (error != std::errc() || end != text.data() + text.size()) return std::nullopt;
  return !std::signbit(seconds) && seconds <= kMost ? std::optional<double>(seconds) : std::nullopt;
}

// Reads the lines of a bundle, one after the other. Every line ends in a line feed.
class BundleLines {
 public:
  explicit BundleLines(std::string_view text) : rest_(text), size_(text.size()) {}

  [[noreturn]] void Reject(const std::string& why) const {
    throw BundleError(fmt::format("is damaged: line {} {}", number_, why));
  }

  std::string_view Peek() const { return rest_.substr(0, rest_.find('\n')); }

  // The number of bytes before the next line.
  std::size_t Position() const { return size_ - rest_.size(); }

  bool IsAtEnd() const { return rest_.empty(); }

  std::string_view Take() {
    ++number_;
    const std::size_t end = rest_.find('\n');
    if (end == rest_.npos) Reject("is where it ends, before its closing line");
    const std::string_view line = rest_.substr(0, end);
    rest_.remove_prefix(end + 1);
    return line;
  }

  bool IsNext(std::string_view label) const {
    return Peek().starts_with(label) && Peek().substr(label.size()).starts_with(": ");
  }

  // The value of the line "label: value", which must be the next.
  std::string_view Value(std::string_view label) {
    const std::string_view line = Take();
    if (!line.starts_with(label) || !line.substr(label.size()).starts_with(": ")) {
      Reject(fmt::format("has no \"{}\"", label));
    }
    return line.substr(label.size() + 2);
  }

  // The same, converted by a function that returns nothing for an invalid value.
  template <class Read>
  auto Value(std::string_view label, const Read& read) {
    auto value = read(Value(label));
    if (!value) Reject(fmt::format("has a \"{}\" that cannot be", label));
    return *std::move(value);
  }

 private:
  std::string_view rest_;
  std::size_t size_;
  std::size_t number_ = 0;
};

// Reads "none" as an empty value; returns nothing for an invalid one.
template <class Read>
auto OrNone(const Read& read) {
  return [read](std::string_view text) {
    using Value = decltype(read(text));
    if (text == kNone) return std::optional<Value>(std::in_place);
    auto value = read(text);
    return value ? std::optional<Value>(std::move(value)) : std::optional<Value>();
  };
}

std::optional<bool> ReadYesNo(std::string_view text) {
  if (text != "yes" && text != "no") return std::nullopt;
  return text == "yes";
}

std::optional<OsVersion> ReadVersion(std::string_view text) {
  if (text == kNone) return OsVersion{};
  const std::size_t dot = text.find('.');
  if (dot == text.npos) return std::nullopt;
  const auto major = ReadWhole<unsigned>(text.substr(0, dot));
  const auto minor = ReadWhole<unsigned>(text.substr(dot + 1));
  if (!major || !minor) return std::nullopt;
  return OsVersion{true, *major, *minor};
}

std::optional<RecordedTime> ReadTimes(std::string_view text) {
  const std::size_t blank = text.find(' ');
  if (blank == text.npos) return std::nullopt;
  const auto count = ReadWhole<std::size_t>(text.substr(blank + 1));
  if (!count || *count == 0) return std::nullopt;
  try {
    return RecordedTime{TCIMDateTime(std::string(text.substr(0, blank))), *count};
  } catch (const THXAException&) {
    return std::nullopt;
  }
}

std::optional<RecordedFailure> ReadFailure(std::string_view text) {
  const std::size_t blank = text.find(' ');
  if (blank == text.npos) return std::nullopt;
  const auto* const word = std::ranges::find(kFailureWords, text.substr(0, blank));
  const auto message = Unquote(text.substr(blank + 1));
  if (word == std::end(kFailureWords) || !message) return std::nullopt;
  return RecordedFailure{static_cast<FailureKind>(word - std::begin(kFailureWords)), *message};
}

struct Digest {
  std::size_t size = 0;
  std::uint32_t crc = 0;
};

std::optional<std::uint32_t> ReadCrc(std::string_view text) {
  const auto crc = ReadNumber<std::uint32_t>(text, 16);
  if (!crc || HexText(*crc) != text) return std::nullopt;
  return crc;
}

std::optional<Digest> ReadDigest(std::string_view text) {
  const std::size_t middle = text.find(kCrc);
  if (middle == text.npos) return std::nullopt;
  const auto size = ReadWhole<std::size_t>(text.substr(0, middle));
  const auto crc = ReadCrc(text.substr(middle + kCrc.size()));
  if (!size || !crc) return std::nullopt;
  return Digest{*size, *crc};
}

std::string ReadBytes(BundleLines& lines, std::string_view label) {
  const Digest digest = lines.Value(label, ReadDigest);
  std::string bytes;
  while (bytes.size() < digest.size) {
    const std::string_view line = lines.Take();
    if (line.empty() || (line.front() != kLine && line.front() != kUnendedLine))
      lines.Reject("is not one of its bytes");
    const auto part = UnescapeBytes(line.substr(1));
    if (!part) lines.Reject("has what is no text of a bundle");
    bytes += *part;
    if (line.front() == kUnendedLine) break;
    bytes += '\n';
  }
  if (bytes.size() != digest.size) lines.Reject("ends bytes that are not as many as they should be");
  if (Crc32(bytes) != digest.crc) lines.Reject("ends bytes that were changed: their checksum is another");
  return bytes;
}

void ReadStart(BundleLines& lines) {
  const std::string_view first = lines.Peek();
  if (!first.starts_with(kMagic)) throw BundleError("is no bundle of \"hxahost query --record\"");
  if (first.ends_with('\r')) {
    throw BundleError("is damaged: something gave its lines other ends; copy it as bytes, not as text");
  }
  const auto version = ReadWhole<unsigned>(first.substr(kMagic.size()));
  if (!version) throw BundleError("is damaged: line 1 names no format");
  if (*version != kVersion) {
    throw BundleError(
        fmt::format("has the format {}, and this hxahost reads {}: take the hxahost that wrote it, or a newer one",
                    *version, kVersion));
  }
  lines.Take();
}

std::string ReadMachineName(BundleLines& lines) {
  std::string name = lines.Value("machine", Unquote);
  if (name.size() > kLongestMachineName) {
    lines.Reject(fmt::format("has a name of more than {} bytes", kLongestMachineName));
  }
  return name;
}

// Returns the number of items that must follow.
std::size_t ReadHeader(BundleLines& lines, Bundle& bundle) {
  ReadStart(lines);
  bundle.program = lines.Value("program", Unquote);
  bundle.isMasked = lines.Value("masked", ReadYesNo);
  bundle.machine = ReadMachineName(lines);
  bundle.directory = lines.Value("directory", Unquote);
  bundle.osType = lines.Value("os-type", OrNone(ReadWhole<std::uint16_t>));
  bundle.osVersion = lines.Value("os-version", ReadVersion);
  bundle.raidLogDir = lines.Value("raid-log-dir", OrNone(Unquote));
  while (lines.IsNext("local-time")) bundle.localTimes.push_back(lines.Value("local-time", ReadTimes));
  while (lines.IsNext("query-seconds")) bundle.querySeconds.push_back(lines.Value("query-seconds", ReadSeconds));
  return lines.Value("items", ReadWhole<std::size_t>);
}

RecordedRun ReadRecordedRun(BundleLines& lines) {
  RecordedRun run;
  run.path = lines.Value("path", Unquote);
  while (lines.IsNext("argument")) run.arguments.push_back(lines.Value("argument", Unquote));
  run.limitSeconds = lines.Value("limit", ReadWhole<int>);
  run.result.seconds = lines.Value("seconds", ReadSeconds);
  if (lines.IsNext("failure")) {
    run.failure = lines.Value("failure", ReadFailure);
    return run;
  }
  run.result.exitStatus = lines.Value("exit-status", OrNone(ReadWhole<std::int64_t>));
  run.result.ending = lines.Value("ending", Unquote);
  run.result.output = ReadBytes(lines, "output");
  return run;
}

RecordedLog ReadLog(BundleLines& lines) {
  RecordedLog log;
  log.path = lines.Value("path", Unquote);
  if (lines.IsNext("failure")) log.failure = lines.Value("failure", ReadFailure);
  log.bytes = ReadBytes(lines, "content");
  return log;
}

void ReadItem(BundleLines& lines, Bundle& bundle) {
  const std::string number = std::to_string(ItemCount(bundle) + 1);
  const std::string_view heading = lines.Take();
  if (heading == "run " + number && !bundle.raidLog) {
    bundle.runs.push_back(ReadRecordedRun(lines));
  } else if (heading == "raid-log " + number && !bundle.raidLog) {
    bundle.raidLog = ReadLog(lines);
  } else {
    lines.Reject("is not the beginning of item " + number);
  }
}

void TakeBlankLine(BundleLines& lines) {
  if (!lines.Take().empty()) lines.Reject("should be empty");
}

void ReadEnd(BundleLines& lines, std::string_view text) {
  const std::string_view closed = text.substr(0, lines.Position());
  const std::string_view line = lines.Take();
  const auto crc = line.starts_with(kEnd) ? ReadCrc(line.substr(kEnd.size())) : std::nullopt;
  if (!crc) lines.Reject("is not its closing line");
  if (!lines.IsAtEnd()) lines.Reject("is its closing line, and something follows it");
  if (*crc != Crc32(closed)) throw BundleError("is damaged: something in it was changed, as its checksum is another");
}

}  // namespace

bool LooksLikeBundle(std::string_view text) { return text.starts_with(kMagic); }

Bundle ReadBundle(std::string_view text) {
  Bundle bundle;
  BundleLines lines(text);
  const std::size_t count = ReadHeader(lines, bundle);
  TakeBlankLine(lines);
  while (ItemCount(bundle) < count) {
    ReadItem(lines, bundle);
    TakeBlankLine(lines);
  }
  ReadEnd(lines, text);
  return bundle;
}

}  // namespace hxahost
