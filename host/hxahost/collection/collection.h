#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <ostream>
#include <string>
#include <vector>

#include "host/hxacore/repository.h"
#include "host/hxahost/bundle/bundle_recorder.h"
#include "host/hxahost/bundle/bundle_replay.h"
#include "host/hxahost/collection/collection_lock.h"
#include "host/hxahost/collection/collection_options.h"
#include "host/hxahost/collection/collection_services.h"
#include "host/hxahost/collection/plugin.h"
#include "host/hxahost/collection/query_log.h"
#include "host/hxahost/result/query_result.h"
#include "host/hxahost/system/output_file.h"
#include "host/hxahost/terminal/progress.h"

namespace hxahost {

// One collection in the working directory: everything that a query needs, in the order of its setup.
class Collection {
 public:
  // Waits until no other program collects there; messages for people go to err. Throws ProgramError.
  Collection(const CollectionOptions& options, std::ostream& err);
  Collection(const Collection&) = delete;
  Collection& operator=(const Collection&) = delete;

  // The header of all queries of these classes.
  QueryHeader Header(std::vector<std::string> classes) const;

  // Lets the plug-in publish the classes of the header. Queries are counted from 1. Calls keeps, if it is not empty,
  // for each instance when it is published; the result contains the instances for which it returns true. Exceptions of
  // the plug-in are passed on.
  QueryResult Query(const QueryHeader& header, unsigned number, NKVRHXA20::TRepository::TKeeps keeps);

  // Call it after the last query. Throws ProgramError if the log lacks entries.
  void Finish();

  // Writes the recording, also of a failed query; to out if the file is "-". Throws ProgramError.
  void SaveRecording(std::ostream& out);

 private:
  std::string ToolDirectory() const;
  std::unique_ptr<BundleRecorder> MakeRecorder(const CollectionOptions& options) const;
  // Called as late as possible, because waiting for the lock may take minutes.
  void WarnOfWritableTools();

  std::ostream& err_;
  std::optional<MaskScope> mask_;
  std::optional<BundleReplay> replay_;
  std::optional<std::uint16_t> osType_;
  std::optional<OutputFile> recordFile_;  // empty for standard output
  std::unique_ptr<BundleRecorder> recorder_;
  QueryLog log_;
  ToolRunList runs_;
  std::optional<CollectionLock> lock_;  // before the time of the collection begins
  std::unique_ptr<Progress> progress_;
  CollectionServices services_;
  Plugin plugin_;
  boost::shared_ptr<NKVRHXA20::TRepository> repository_;
};

}  // namespace hxahost
