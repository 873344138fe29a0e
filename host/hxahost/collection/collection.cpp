#include "host/hxahost/collection/collection.h"

#include <chrono>
#include <filesystem>
#include <set>
#include <string>
#include <system_error>
#include <utility>
#include <vector>

#include "host/hxacore/host_services.h"
#include "host/hxacore/whole_file.h"
#include "host/hxahost/bundle/bundle_file.h"
#include "host/hxahost/bundle/bundle_mask.h"
#include "host/hxahost/bundle/write_bundle.h"
#include "host/hxahost/collection/writable_tools.h"
#include "host/hxahost/system/file_place.h"
#include "host/hxahost/system/input_file.h"
#include "host/hxahost/system/terminal.h"
#include "host/hxahost/system/this_program.h"
#include "host/hxahost/terminal/terminal_layout.h"
#include "host/hxahost/text/utf8.h"

using namespace NKVRHXA20;
namespace fs = std::filesystem;

namespace hxahost {

namespace {

std::optional<BundleReplay> OpenReplay(const CollectionOptions& options) {
  if (options.replay.empty()) return std::nullopt;
  return BundleReplay(ReadBundleFile(options.replay, options.inputLimit));
}

std::set<std::string> InstalledTools() {
  std::set<std::string> installed;
  std::error_code ignored;
  for (const std::string_view tool : KnownTools()) {
    if (fs::exists(fs::path("zenx") / (std::string(tool) + ".exe"), ignored)) installed.emplace(tool);
  }
  return installed;
}

// A tool that was installed when the collection began is not "not installed" if it disappears later.
SpawnFunction NoticingLostTools(SpawnFunction spawn) {
  return [spawn = std::move(spawn), installed = InstalledTools()](
             const std::string& path, const std::vector<std::string>& arguments, int limitSeconds) {
    try {
      return spawn(path, arguments, limitSeconds);
    } catch (const TSpawnException& failure) {
      if (failure.Failure() != SpawnFailure::kNotInstalled || !installed.contains(ToolName(path))) throw;
      throw TSpawnException(SpawnFailure::kNotStarted, failure.what(), failure.Seconds());
    }
  };
}

// Limits the size of files that are captured.
HostServices ServicesUpTo(std::uint64_t largestFile) {
  HostServices services = RealServices();
  services.spawn = NoticingLostTools(std::move(services.spawn));
  services.capture = [largestFile](const std::string& path) { return CaptureFile(path, largestFile); };
  return services;
}

std::optional<OutputFile> OpenRecord(const fs::path& bundle) {
  if (bundle.empty() || bundle == kStandardStream) return std::nullopt;
  return std::optional<OutputFile>(std::in_place, bundle, "--record");
}

// A replay runs no tool.
std::optional<CollectionLock> TakeLock(const CollectionOptions& options, std::ostream& err) {
  if (!options.replay.empty()) return std::nullopt;
  return std::optional<CollectionLock>(std::in_place, "zenx", options.longestWait, err);
}

// The folder of the bundle, which has room for it; the system's folder if the bundle is not written to a file.
fs::path ScratchFolder(const fs::path& bundle) {
  const bool isFile = bundle != kStandardStream && !IsDevice(bundle);
  return isFile ? bundle.parent_path() : fs::temp_directory_path();
}

}  // namespace

Collection::Collection(const CollectionOptions& options, std::ostream& err)
    : err_(err),
      mask_(options.mask),
      replay_(OpenReplay(options)),
      osType_(replay_ && !options.hasOsType ? replay_->Recorded().osType : options.osType),
      recordFile_(OpenRecord(options.record)),
      recorder_(MakeRecorder(options)),
      log_(options.log),
      lock_(TakeLock(options, err)),
      progress_(options.showProgress && StandardErrorIsTerminal() ? std::make_unique<Progress>(err, ProgressWidth())
                                                                  : nullptr),
      services_(replay_ ? replay_->Services() : ServicesUpTo(options.inputLimit), options, log_, runs_, progress_.get(),
                recorder_.get()),
      plugin_(options.plugin.empty() ? ProgramFolder() / "zenx.pi" : options.plugin),
      repository_(TRepository::Make(osType_, CurrentServices().machineName())) {
  if (replay_) {
    plugin_.AnswerAs(SystemOf(replay_->SharedBundle()));
    return;
  }
  plugin_.SetLargestRaidLog(options.inputLimit);
}

std::unique_ptr<BundleRecorder> Collection::MakeRecorder(const CollectionOptions& options) const {
  if (options.record.empty()) return nullptr;
  return std::make_unique<BundleRecorder>(osType_, ToolDirectory(), ScratchFolder(options.record));
}

// The folder in which the tools run, or ran when they were recorded.
std::string Collection::ToolDirectory() const {
  return replay_ ? replay_->Recorded().directory : Utf8FromPath(fs::current_path());
}

QueryHeader Collection::Header(std::vector<std::string> classes) const {
  const HostServices& services = CurrentServices();
  QueryHeader header;
  header.machine = services.machineName();
  header.system = repository_->System();
  header.directory = ToolDirectory();
  header.time = services.localTime();
  header.classes = std::move(classes);
  header.isReplayed = replay_.has_value();
  header.isMasked = replay_ && replay_->Recorded().isMasked;
  return header;
}

void Collection::WarnOfWritableTools() {
  for (const std::string& line : WritableToolsWarnings(fs::current_path())) err_ << "hxahost: " << line << std::endl;
}

QueryResult Collection::Query(const QueryHeader& header, unsigned number, TRepository::TKeeps keeps) {
  if (lock_ && number == 1) WarnOfWritableTools();
  using Clock = std::chrono::steady_clock;
  std::vector<boost::shared_ptr<ICIMClass>> classes;
  for (const std::string& name : header.classes) classes.push_back(repository_->GetClass(name, {}));
  repository_->BeginQuery(classes);
  repository_->OnCommit(std::move(keeps));
  const auto begin = Clock::now();
  plugin_.Query(repository_, classes);
  double seconds = std::chrono::duration<double>(Clock::now() - begin).count();
  if (replay_) seconds = replay_->QuerySeconds(number);
  if (recorder_) recorder_->AddQuery(seconds);
  if (progress_) progress_->Clear();  // or the tables would continue its line
  return {number,  repository_->Published(),         log_.Take(), std::exchange(runs_, {}),
          seconds, replay_ ? replay_->Missing() : ""};
}

void Collection::Finish() {
  progress_.reset();
  log_.Finish();
}

void Collection::SaveRecording(std::ostream& out) {
  if (!recorder_) return;
  std::ostream& written = recordFile_ ? recordFile_->Stream() : out;
  if (!replay_ && !mask_) {
    recorder_->Write(written);
    if (recordFile_) recordFile_->Finish();
    return;
  }
  Bundle bundle = recorder_->Recorded();
  if (replay_) {
    // The system and the log are those of the machine that was recorded.
    const Bundle& played = replay_->Recorded();
    bundle.osVersion = played.osVersion;
    bundle.raidLogDir = played.raidLogDir;
    if (bundle.raidLog) bundle.raidLog = played.raidLog;
    bundle.isMasked = played.isMasked;
  }
  if (mask_) bundle = MaskBundle(std::move(bundle), SystemRandom(), *mask_);
  WriteBundle(written, bundle);
  if (recordFile_) recordFile_->Finish();
}

}  // namespace hxahost
