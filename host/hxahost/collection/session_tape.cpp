#include "host/hxahost/collection/session_tape.h"

#include <utility>

#include "host/hxahost/bundle/bundle_file.h"
#include "host/hxahost/bundle/bundle_format.h"
#include "host/hxahost/bundle/bundle_mask.h"

using namespace NKVRHXA20;

namespace hxahost {

void SessionTape::Play(const std::filesystem::path& file) {
  replay_.emplace(ReadBundleFile(file));
  platform_.emplace(replay_->Recorded());
}

void SessionTape::Record(const std::filesystem::path& file, std::optional<std::uint16_t> osType,
                         const std::string& directory) {
  file_.emplace(file, "--record");
  recorder_.emplace(osType, directory);
}

HostServices SessionTape::Services() { return replay_ ? replay_->Services() : RealServices(); }

HostServices SessionTape::Recorded(HostServices services) {
  return recorder_ ? recorder_->Wrap(std::move(services)) : services;
}

double SessionTape::EndQuery(unsigned number, double measuredSeconds) {
  if (replay_) replay_->CheckNothingWasMissing();
  const double seconds = replay_ ? replay_->QuerySeconds(number) : measuredSeconds;
  if (recorder_) recorder_->AddQuery(seconds);
  return seconds;
}

void SessionTape::Save(bool isMasked) {
  if (!recorder_) return;
  Bundle bundle = recorder_->Recorded();
  if (replay_) {
    // What the plug-in was given in the log's place is nobody's log.
    if (bundle.raidLog) bundle.raidLog = replay_->Recorded().raidLog;
    bundle.isMasked = replay_->Recorded().isMasked;
  }
  if (isMasked) bundle = MaskBundle(bundle, SystemRandom());
  file_->Stream() << WriteBundle(bundle);
  file_->Finish();
}

}  // namespace hxahost
