#include "host/hxahost/program/query_output.h"

namespace hxahost {

namespace {

std::ostream& Opened(std::optional<OutputFile>& file, const std::filesystem::path& path, std::ostream& out) {
  return path.empty() ? out : file.emplace(path).Stream();
}

}  // namespace

LayoutWishes WishesOf(const QueryOptions& options) {
  return {!options.output.empty(), options.width, options.color, options.isAscii};
}

QueryOutput::QueryOutput(const QueryOptions& options, std::ostream& out)
    : shown_(Opened(file_, options.output, out)), asciiBuffer_(shown_), ascii_(&asciiBuffer_), stream_(&shown_) {
  if (options.format != QueryOptions().format) return;
  if (IsAsciiOnly(WishesOf(options))) stream_ = &ascii_;
}

void QueryOutput::Finish() {
  if (file_) file_->Finish();
}

}  // namespace hxahost
