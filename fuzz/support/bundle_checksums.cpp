#include "fuzz/support/bundle_checksums.h"

#include <cstddef>
#include <vector>

#include "fuzz/support/sections.h"
#include "host/hxahost/bundle/bundle_encoding.h"
#include "host/hxahost/bundle/bundle_format.h"

using namespace hxahost;

namespace {

bool IsContent(const std::string& line) {
  return line.starts_with(bundle_format::kLine) || line.starts_with(bundle_format::kUnendedLine);
}

// The bytes in the lines from there on.
std::string ContentOf(const std::vector<std::string>& lines, std::size_t first) {
  std::string content;
  for (std::size_t index = first; index < lines.size() && IsContent(lines[index]); ++index) {
    content += UnescapeBytes(std::string_view(lines[index]).substr(1)).value_or("");
    if (lines[index].starts_with(bundle_format::kLine)) content += '\n';
  }
  return content;
}

std::string SizeLine(const std::string& line, const std::string& content) {
  const std::size_t label = line.find(": ");
  const std::size_t size = label == line.npos ? line.npos : line.find_first_not_of("0123456789", label + 2);
  if (size == line.npos || line.compare(size, bundle_format::kCrc.size(), bundle_format::kCrc) != 0) return line;
  return line.substr(0, label + 2) + std::to_string(content.size()) + std::string(bundle_format::kCrc) +
         HexText(Crc32(content));
}

}  // namespace

std::string WithChecksums(std::string_view text) {
  const std::size_t end = text.rfind(bundle_format::kEnd);
  const bool isEnded = end != text.npos;
  const std::vector<std::string> lines = Split(text.substr(0, end), '\n');
  std::string repaired;
  for (std::size_t index = 0; index < lines.size(); ++index) {
    if (index > 0) repaired += '\n';
    repaired += IsContent(lines[index]) ? lines[index] : SizeLine(lines[index], ContentOf(lines, index + 1));
  }
  if (!isEnded) return repaired;
  return repaired + std::string(bundle_format::kEnd) + HexText(Crc32(repaired)) + "\n";
}
