#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>

#include "host/hxacore/host_services.h"
#include "host/hxahost/bundle/bundle_recorder.h"
#include "host/hxahost/bundle/bundle_replay.h"
#include "host/hxahost/bundle/replayed_platform.h"
#include "host/hxahost/system/output_file.h"

namespace hxahost {

// What a session is to take its answers from, and where it is to keep them. Both are optional. It outlives the session.
class SessionTape {
 public:
  // Neither plays nor records.
  SessionTape() = default;
  SessionTape(const SessionTape&) = delete;
  SessionTape& operator=(const SessionTape&) = delete;

  // From here on plug-ins are told what a bundle says. Throws ProgramError for a file that is no bundle.
  void Play(const std::filesystem::path& file);

  // From here on all that plug-ins are told is kept. Throws ProgramError where the file cannot be written.
  void Record(const std::filesystem::path& file, std::optional<std::uint16_t> osType, const std::string& directory);

  const Bundle* Played() const { return replay_ ? &replay_->Recorded() : nullptr; }

  // The services that answer: those of the bundle, or the system's.
  NKVRHXA20::HostServices Services();
  // The services with all that they say kept, where it is to be.
  NKVRHXA20::HostServices Recorded(NKVRHXA20::HostServices services);

  // A query came to its end: gives how long it took, as it is played or as it was measured. Throws ProgramError where
  // the bundle lacks what the query asked for.
  double EndQuery(unsigned number, double measuredSeconds);

  // Writes what was kept.
  void Save(bool isMasked);

 private:
  std::optional<BundleReplay> replay_;
  std::optional<ReplayedPlatform> platform_;
  std::optional<OutputFile> file_;
  std::optional<BundleRecorder> recorder_;
};

}  // namespace hxahost
