#include "host/hxahost/program/query_output.h"

#include "host/hxahost/terminal/layout.h"
#include "host/hxahost/terminal/terminal_layout.h"
#include "host/hxahost/views/views.h"

namespace hxahost {

namespace {

std::ostream& Opened(std::optional<OutputFile>& file, const std::filesystem::path& path, std::ostream& out) {
  return path.empty() ? out : file.emplace(path).Stream();
}

}  // namespace

QueryOutput::QueryOutput(const QueryOptions& options, const std::filesystem::path& file, std::ostream& out)
    : shown_(Opened(file_, file, out)), asciiBuffer_(shown_), ascii_(&asciiBuffer_), page_(&shown_) {
  if (options.format != Views().front().format) return;
  if (IsAsciiPage(options)) page_ = &ascii_;
  SetPage(*page_, PageFor(options));
}

void QueryOutput::Finish() {
  if (file_) file_->Finish();
}

}  // namespace hxahost
