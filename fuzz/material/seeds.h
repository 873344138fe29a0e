#pragma once

#include <filesystem>
#include <string>
#include <vector>

// Inputs to begin with, made of what the sample machine prints and of what is published of it.

using Seeds = std::vector<std::string>;

class SeedMaker {
 public:
  // The top of the sources.
  explicit SeedMaker(std::filesystem::path sources) : sources_(std::move(sources)) {}

  Seeds LineScanner() const;
  Seeds Qcmdrun() const;
  Seeds Hrconf() const;
  Seeds Arcconf() const;
  // Of one report on a controller each.
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
