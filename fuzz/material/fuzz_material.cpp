// Writes the initial material of the fuzzers: fuzz_material SOURCES FOLDER writes FOLDER/NAME/seeds and
// FOLDER/NAME/dictionary for each of them.
#include <filesystem>
#include <iostream>
#include <set>
#include <string>
#include <vector>

#include "fuzz/material/dictionary.h"
#include "fuzz/material/seeds.h"
#include "fuzz/support/sections.h"
#include "tests/support/file_text.h"

namespace {

namespace fs = std::filesystem;

struct Fuzzer {
  const char* name;
  Seeds (SeedMaker::*seeds)() const;
  std::vector<const char*> literalsFrom;
};

const std::vector<Fuzzer> kFuzzers = {
    {"line_scanner",     &SeedMaker::LineScanner,    {"tools", "collect"}                                       },
    {"qcmdrun",          &SeedMaker::Qcmdrun,        {"tools/qcmdrun", "collect", "logs"}                       },
    {"hrconf",           &SeedMaker::Hrconf,         {"tools/hrconf", "collect"}                                },
    {"arcconf",          &SeedMaker::Arcconf,        {"tools/arcconf", "collect"}                               },
    {"qcmdrun_parsers",  &SeedMaker::QcmdrunParsers, {"tools/qcmdrun", "collect"}                               },
    {"hrconf_parsers",   &SeedMaker::HrconfParsers,  {"tools/hrconf", "collect"}                                },
    {"arcconf_parsers",  &SeedMaker::ArcconfParsers, {"tools/arcconf", "collect"}                               },
    {"raid_manager_log", &SeedMaker::RaidManagerLog, {"logs/raid_mgr_zones.cpp", "logs/raid_mgr_event_time.cpp"}},
    {"log_parsers",      &SeedMaker::LogParsers,     {"logs", "tools/qcmdrun"}                                  },
    {"date_times",       &SeedMaker::DateTimes,      {"logs/raid_mgr_zones.cpp"}                                },
    {"plugin",           &SeedMaker::Plugin,         {"tools", "collect", "logs", "publish"}                    },
    {"views",            &SeedMaker::Views,          {"host/hxahost/machine/health_rules.cpp", "tools"}         },
    {"bundles",
     &SeedMaker::Bundles,
     {"host/hxahost/bundle/read_bundle.cpp", "host/hxahost/bundle/write_bundle.cpp",
      "host/hxahost/bundle/bundle_mask.cpp"}                                                                    },
    {"texts",            &SeedMaker::Texts,          {"host/hxahost/result/raw_text_values.cpp", "tools"}       },
    {"results",
     &SeedMaker::Results,
     {"host/hxahost/result/json_result.cpp", "host/hxahost/diff/result_diff.cpp",
      "host/hxahost/diff/result_matching.cpp"}                                                                  },
};

void Write(const Fuzzer& fuzzer, const fs::path& sources, const fs::path& folder) {
  fs::create_directories(folder / fuzzer.name / "seeds");
  std::size_t number = 0;
  for (const std::string& seed : (SeedMaker(sources).*fuzzer.seeds)()) {
    WriteFileText(folder / fuzzer.name / "seeds" / std::to_string(++number), seed);
  }
  std::vector<fs::path> files;
  for (const char* const file : fuzzer.literalsFrom) files.push_back(sources / file);
  std::set<std::string> words = LiteralsOf(files);
  words.insert(std::string(1, kSeparator));
  WriteFileText(folder / fuzzer.name / "dictionary", DictionaryText(words));
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 3) {
    std::cerr << "fuzz_material SOURCES FOLDER" << std::endl;
    return 2;
  }
  for (const Fuzzer& fuzzer : kFuzzers) Write(fuzzer, argv[1], argv[2]);
  return 0;
}
