#pragma once

#include <algorithm>
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include <boost/shared_ptr.hpp>

#include "host/hxacore/repository.h"
#include "host/hxahost/result/expectations.h"
#include "host/hxahost/result/limits.h"
#include "host/hxahost/result/tool_run.h"
#include "host/hxahost/terminal/layout.h"
#include "plugin/host_interface/date_time.h"

namespace hxahost {

// The facts that all queries of one program run share.
struct QueryHeader {
  std::string machine;
  std::string directory;  // the working directory of the tools, in full, UTF-8
  NKVRHXA20::TCIMDateTime time;
  std::vector<std::string> classes;  // queried, in their order, with their declared names
  unsigned queryCount = 1;
  bool withRuns = false;          // formats for programs contain the runs of the tools
  bool withUnread = false;        // lines of the raw texts that no property shows are listed
  bool isReplayed = false;        // everything comes from a bundle
  bool isMasked = false;          // names and serial numbers in the bundle are masked
  bool withSuperclasses = false;  // MOF declares the classes, under those of the DMTF
  bool showAll = false;           // tables contain versions, counts and numbers of instances, too
  bool isVerbose = false;         // tables contain the short forms of states, too
  Layout layout = {};             // of the tables
  Limits limits = {};             // of counts
  Expectations expectations = {};
  boost::shared_ptr<const NKVRHXA20::TPublishedInstance> system = {};  // the machine, as exports name it
};

// A sentence for people if the result does not describe the machine as it is now; otherwise "".
inline std::string_view SourceNote(const QueryHeader& header) {
  if (header.isMasked) return "Replayed from a bundle in which names and serial numbers are masked.";
  return header.isReplayed ? "Replayed from a bundle." : "";
}

inline bool IsAskedFor(const QueryHeader& header, std::string_view className) {
  return std::ranges::find(header.classes, className) != header.classes.end();
}

// One entry of the plug-in's log.
struct LoggedEntry {
  int level = 0;
  std::string text;
  std::size_t count = 1;  // with equal entries that followed and were not kept
};

using InstanceList = std::vector<boost::shared_ptr<const NKVRHXA20::TPublishedInstance>>;

// The place of an instance: the query is counted from 1, the instance in it from 0.
struct InstancePlace {
  unsigned query = 1;
  std::size_t instance = 0;
};

// The outcome of one query.
struct QueryResult {
  unsigned number = 1;  // counted from 1
  InstanceList instances;
  std::vector<LoggedEntry> log;  // since the previous query ended
  ToolRunList runs = {};         // since the previous query ended
  double seconds = 0;            // its duration
  std::string notRecorded = {};  // the missing request that ended a replay; "" if nothing was missing
  std::vector<std::string> leftOut =
      {};                   // messages on instances that a format leaves out, because their path was taken
  std::size_t written = 0;  // instances that are already written and not in the list
  std::size_t events = 0;   // events of the RAID manager's log that were published; 0 if the list has all of them
};

}  // namespace hxahost
