#include "host/hxahost/bundle/write_bundle.h"

#include <cstdint>
#include <iterator>
#include <sstream>
#include <string_view>
#include <utility>

#include <fmt/core.h>
#include <boost/crc.hpp>

#include "host/hxahost/bundle/bundle_encoding.h"
#include "host/hxahost/bundle/bundle_format.h"

namespace hxahost {

namespace {

using namespace bundle_format;

static_assert(std::size(kFailureWords) == static_cast<std::size_t>(FailureKind::kOther) + 1);

// Writes each part at once: the outputs of a collection may fill most of the memory.
class BundleText {
 public:
  explicit BundleText(std::ostream& out) : out_(out) {}

  BundleText& operator+=(std::string_view part) {
    out_ << part;
    crc_.process_bytes(part.data(), part.size());
    return *this;
  }

  std::uint32_t Crc() const { return crc_.checksum(); }

 private:
  std::ostream& out_;
  boost::crc_32_type crc_;
};

void Add(BundleText& text, std::string_view label, std::string_view value) {
  text += fmt::format("{}: {}\n", label, value);
}

void AddBytes(BundleText& text, std::string_view label, std::string_view bytes) {
  Add(text, label, fmt::format("{}{}{}", bytes.size(), kCrc, HexText(Crc32(bytes))));
  while (!bytes.empty()) {
    const std::size_t end = bytes.find('\n');
    text += std::string_view(end == bytes.npos ? &kUnendedLine : &kLine, 1);
    text += EscapeBytes(bytes.substr(0, end));
    text += "\n";
    bytes.remove_prefix(end == bytes.npos ? bytes.size() : end + 1);
  }
}

void AddFailure(BundleText& text, const RecordedFailure& failure) {
  const std::string_view word = kFailureWords[static_cast<std::size_t>(failure.kind)];
  Add(text, "failure", fmt::format("{} {}", word, Quote(failure.message)));
}

std::string VersionLine(const OsVersion& version) {
  if (!version.isWindowsNt) return std::string(kNone);
  return fmt::format("{}.{}", version.major, version.minor);
}

void AddHeader(BundleText& text, const Bundle& bundle) {
  text += fmt::format("{}{}\n", kMagic, kVersion);
  Add(text, "program", Quote(bundle.program));
  Add(text, "masked", bundle.isMasked ? "yes" : "no");
  Add(text, "machine", Quote(bundle.machine));
  Add(text, "directory", Quote(bundle.directory));
  Add(text, "os-type", bundle.osType ? std::to_string(*bundle.osType) : std::string(kNone));
  Add(text, "os-version", VersionLine(bundle.osVersion));
  Add(text, "raid-log-dir", bundle.raidLogDir ? Quote(*bundle.raidLogDir) : std::string(kNone));
  for (const RecordedTime& recorded : bundle.localTimes) {
    Add(text, "local-time", fmt::format("{} {}", recorded.time.ToString(), recorded.count));
  }
  for (const double seconds : bundle.querySeconds) Add(text, "query-seconds", DecimalText(seconds));
  Add(text, "items", std::to_string(ItemCount(bundle)));
}

void AddRun(BundleText& text, const RecordedRun& run, const std::string& output) {
  Add(text, "path", Quote(run.path));
  for (const std::string& argument : run.arguments) Add(text, "argument", Quote(argument));
  Add(text, "limit", std::to_string(run.limitSeconds));
  Add(text, "seconds", DecimalText(run.result.seconds));
  if (run.failure) return AddFailure(text, *run.failure);
  Add(text, "exit-status", run.result.exitStatus ? std::to_string(*run.result.exitStatus) : std::string(kNone));
  Add(text, "ending", Quote(run.result.ending));
  AddBytes(text, "output", output);
}

void AddLog(BundleText& text, const RecordedLog& log, const std::string& bytes) {
  Add(text, "path", Quote(log.path));
  if (log.failure) AddFailure(text, *log.failure);
  AddBytes(text, "content", bytes);
}

}  // namespace

void WriteBundle(std::ostream& out, const Bundle& bundle) {
  WriteBundle(
      out, bundle, [&](std::size_t run) { return bundle.runs[run].result.output; },
      [&] { return bundle.raidLog->bytes; });
}

void WriteBundle(std::ostream& out, const Bundle& bundle, const std::function<std::string(std::size_t run)>& output,
                 const std::function<std::string()>& log) {
  BundleText text(out);
  AddHeader(text, bundle);
  std::size_t number = 0;
  for (const RecordedRun& run : bundle.runs) {
    text += fmt::format("\nrun {}\n", ++number);
    AddRun(text, run, output(number - 1));
  }
  if (bundle.raidLog) {
    text += fmt::format("\nraid-log {}\n", ++number);
    AddLog(text, *bundle.raidLog, log());
  }
  text += "\n";
  out << kEnd << HexText(text.Crc()) << '\n';
}

std::string WriteBundle(const Bundle& bundle) {
  std::ostringstream out;
  WriteBundle(out, bundle);
  return std::move(out).str();
}

}  // namespace hxahost
