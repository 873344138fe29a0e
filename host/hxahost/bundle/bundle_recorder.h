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

// Keeps everything that a collection receives: outputs and the log in a file, as they may take a lot of memory.
class BundleRecorder {
 public:
  // Records what is passed to the plug-in about the system, which does not come through the services. The directory is
  // UTF-8. The file is in the scratch folder. Throws std::filesystem::filesystem_error if it cannot be created.
  BundleRecorder(std::optional<std::uint16_t> osType, std::string directory,
                 const std::filesystem::path& scratchFolder = std::filesystem::temp_directory_path());

  // The services, with every answer recorded; this must outlive them.
  NKVRHXA20::HostServices Wrap(NKVRHXA20::HostServices services);

  // A command that was not run any more, and what the plug-in received instead of an answer.
  void AddNotAsked(const std::string& path, const std::vector<std::string>& arguments, const std::string& message);

  void AddQuery(double seconds) { bundle_.querySeconds.push_back(seconds); }

  // All of it, in memory. Throws std::runtime_error where the disk had no room for it.
  Bundle Recorded() const;

  // Writes it as a bundle, with one output in memory at a time. Throws as Recorded.
  void Write(std::ostream& out) const;

 private:
  NKVRHXA20::SpawnResult Spawn(const NKVRHXA20::SpawnFunction& spawn, RecordedRun run);
  std::string Capture(const std::function<std::string(const std::string&)>& capture, const std::string& path);
  void ReadLogEntry(const std::string& text);
  void AddTime(const NKVRHXA20::TCIMDateTime& time);

  Bundle bundle_;  // without outputs and the bytes of the log
  ScratchFile scratch_;
  std::vector<ScratchFile::Piece> outputs_;  // of the runs, by their places
  ScratchFile::Piece log_;
};

}  // namespace hxahost
