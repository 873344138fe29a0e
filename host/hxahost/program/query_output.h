#pragma once

#include <optional>
#include <ostream>

#include "host/hxahost/program/options.h"
#include "host/hxahost/system/output_file.h"
#include "host/hxahost/terminal/ascii_output.h"
#include "host/hxahost/terminal/terminal_layout.h"

namespace hxahost {

// The layout options of the command line.
LayoutWishes WishesOf(const QueryOptions& options);

// The output of a query.
class QueryOutput {
 public:
  // The output in the options; otherwise out, unless the bundle is written there. Throws ProgramError if the file
  // cannot be written.
  QueryOutput(const QueryOptions& options, std::ostream& out);
  QueryOutput(const QueryOutput&) = delete;
  QueryOutput& operator=(const QueryOutput&) = delete;

  std::ostream& Stream() { return *stream_; }
  bool IsFile() const { return file_.has_value(); }

  // Replaces the previous file, which otherwise stays unchanged. Throws ProgramError.
  void Finish();

 private:
  std::optional<OutputFile> file_;
  std::ostream nowhere_{nullptr};
  std::ostream& shown_;
  TAsciiBuffer asciiBuffer_;
  std::ostream ascii_;
  std::ostream* stream_;
};

}  // namespace hxahost
