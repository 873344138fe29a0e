#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>
#include <optional>
#include <ostream>
#include <string>
#include <utility>
#include <vector>

#include "host/hxacore/host_services.h"
#include "host/hxahost/bundle/bundle.h"
#include "host/hxahost/system/scratch_file.h"

namespace hxahost {

// Keeps everything that a collection receives. Outputs and the log are in a file, because they may take a lot of
// memory.
class BundleRecorder {
 public:
  // Records what is passed to the plug-in about the system, which does not come through the services. The directory is
  // UTF-8. The file is in the scratch folder. Throws ProgramError if it cannot be created.
  BundleRecorder(std::optional<std::uint16_t> osType, std::string directory,
                 const std::filesystem::path& scratchFolder = std::filesystem::temp_directory_path());

  // The services, with every answer recorded; this must outlive them.
  NKVRHXA20::HostServices Wrap(NKVRHXA20::HostServices services);

  // Adds a command that was no longer run, with the message that the plug-in received.
  void AddNotAsked(const std::string& path, const std::vector<std::string>& arguments, const std::string& message);

  void AddQuery(double seconds) { bundle_.querySeconds.push_back(seconds); }

  // The whole bundle, in memory. Throws ProgramError if the file could not be written.
  Bundle Recorded() const;

  // Writes the bundle, with one output in memory at a time. Throws like Recorded.
  void Write(std::ostream& out) const;

 private:
  NKVRHXA20::SpawnResult Spawn(const NKVRHXA20::SpawnFunction& spawn, RecordedRun run);
  std::string Capture(const std::function<std::string(const std::string&)>& capture, const std::string& path);
  void ReadLogEntry(const std::string& text);
  void AddTime(const NKVRHXA20::TCIMDateTime& time);

  Bundle bundle_;  // without outputs and the bytes of the log
  ScratchFile scratch_;
  std::vector<ScratchFile::Piece> outputs_;  // in the order of the runs
  ScratchFile::Piece log_;
};

}  // namespace hxahost
