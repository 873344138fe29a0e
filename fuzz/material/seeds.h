#pragma once

#include <filesystem>
#include <string>
#include <vector>

// Initial inputs, made from the outputs and published instances of the sample machine.

using Seeds = std::vector<std::string>;

class SeedMaker {
 public:
  // The top of the sources.
  explicit SeedMaker(std::filesystem::path sources) : sources_(std::move(sources)) {}

  Seeds LineScanner() const;
  Seeds Qcmdrun() const;
  Seeds Hrconf() const;
  Seeds Arcconf() const;
  // Each is a report on one controller.
  Seeds QcmdrunParsers() const;
  Seeds HrconfParsers() const;
  Seeds ArcconfParsers() const;
  Seeds RaidManagerLog() const;
  Seeds LogParsers() const;
  Seeds DateTimes() const;
  Seeds Plugin() const;
  Seeds Views() const;
  Seeds Bundles() const;
  Seeds Texts() const;
  Seeds Results() const;

 private:
  std::filesystem::path sources_;
};
