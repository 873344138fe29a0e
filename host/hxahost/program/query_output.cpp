#include "host/hxahost/program/query_output.h"

#include "host/hxahost/system/input_file.h"

namespace hxahost {

namespace {

std::ostream& Shown(const QueryOptions& options, std::optional<OutputFile>& file, std::ostream& nowhere,
                    std::ostream& out) {
  if (!options.output.empty()) return file.emplace(options.output).Stream();
  return options.collection.record == kStandardStream ? nowhere : out;
}

}  // namespace

LayoutWishes WishesOf(const QueryOptions& options) {
  return {!options.output.empty(), options.width, options.color, options.isAscii};
}

QueryOutput::QueryOutput(const QueryOptions& options, std::ostream& out)
    : shown_(Shown(options, file_, nowhere_, out)), asciiBuffer_(shown_), ascii_(&asciiBuffer_), stream_(&shown_) {
  if (options.format != QueryOptions().format) return;
  if (IsAsciiOnly(WishesOf(options))) stream_ = &ascii_;
}

void QueryOutput::Finish() {
  if (file_) file_->Finish();
}

}  // namespace hxahost
