#pragma once

#include <optional>
#include <ostream>

#include "host/hxahost/program/options.h"
#include "host/hxahost/system/output_file.h"
#include "host/hxahost/terminal/ascii_output.h"
#include "host/hxahost/terminal/terminal_layout.h"

namespace hxahost {

// The layout that the command line asks for.
LayoutWishes WishesOf(const QueryOptions& options);

// Where a query is shown.
class QueryOutput {
 public:
  // To the output that the options name, or to out unless that is taken by the bundle. Throws ProgramError where the
  // file cannot be written.
  QueryOutput(const QueryOptions& options, std::ostream& out);
  QueryOutput(const QueryOutput&) = delete;
  QueryOutput& operator=(const QueryOutput&) = delete;

  std::ostream& Stream() { return *stream_; }
  bool IsFile() const { return file_.has_value(); }

  // The file takes its place; without this what was there before stays. Throws ProgramError.
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
