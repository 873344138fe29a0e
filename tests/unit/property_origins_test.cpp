#include "host/hxahost/schema/property_origins.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <map>
#include <regex>
#include <set>
#include <string>

#include "host/hxacore/schema.h"
#include "tests/support/file_text.h"
#include "tests/support/source_folder.h"

namespace {

namespace fs = std::filesystem;
using namespace hxahost;
using namespace NKVRHXA20;
using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

const std::set<std::string_view> kNeverPublished = {"KVRSG_DiskGroup", "KVRSG_zxDriveInDiskGroup",
                                                    "KVRSG_zxExtenInDiskGroup"};

// A tool's folder, its column of the table of origins, and that column's name.
struct Tool {
  const char* name;
  std::string_view PropertyOrigin::*cell;
};

constexpr Tool kTools[] = {
    {"qcmdrun", &PropertyOrigin::qcmdrun},
    {"hrconf",  &PropertyOrigin::hrconf },
    {"arcconf", &PropertyOrigin::arcconf},
};

fs::path Sources() { return SourceFile(""); }

// Everything that the folder's sources say.
std::string SourceText(const fs::path& folder) {
  std::string text;
  for (const auto& entry : fs::directory_iterator(Sources() / folder)) {
    const fs::path& file = entry.path();
    if (file.extension() == ".cpp" || file.extension() == ".h") text += FileText(file);
  }
  return text;
}

// A row {"label", &Record::Field of a parser's table.
struct ParserRow {
  std::string label;
  std::string field;
};

std::vector<ParserRow> RowsOf(const fs::path& file) {
  const std::string text = FileText(Sources() / file);
  const std::regex row("\\{\"([^\"]+)\",\\s*&(?:\\w+::)+(\\w+)");
  std::vector<ParserRow> rows;
  for (std::sregex_iterator each(text.begin(), text.end(), row), end; each != end; ++each) {
    rows.push_back({(*each)[1], (*each)[2]});
  }
  return rows;
}

// What a parser's fields feed: of the class, the property that is named like the field, unless said otherwise.
struct Parser {
  const char* file;
  const char* className;
};

constexpr Parser kParsers[] = {
    {"controller_parser.cpp",      "KVRSG_zxSCSIProtocolController"},
    {"status_parser.cpp",          "KVRSG_zxSCSIProtocolController"},
    {"version_parser.cpp",         "KVRSG_zxSCSIProtocolController"},
    {"logical_drive_parser.cpp",   "KVRSG_zxLogicalDisk"           },
    {"physical_device_parser.cpp", "KVRSG_zxDiskDrive"             },
};

struct Fed {
  std::string className;
  std::string property;
};

const std::map<std::string, Fed> kFedElsewhere = {
    {"FirmwareVersion",  {"KVRSG_zxFirmwareVersion", "Version"}                   },
    {"BootBlockVersion", {"KVRSG_zxBootBlockVersion", "Version"}                  },
    {"BiosVersion",      {"KVRSG_zxBiosVersion", "Version"}                       },
    {"BIOS",             {"KVRSG_zxBiosVersion", "Version"}                       },
    {"Driver",           {"KVRSG_zxSCSIProtocolController", "DeviceDriverVersion"}},
    {"DeviceIdSuffix",   {"KVRSG_zxDiskDrive", "DeviceID"}                        },
};

// Read, so that what follows them is found, and published nowhere.
const std::set<std::string> kFeedNothing = {"AdditionalInformation", "Raid5EEStatus", "DefunctStripes", "Temperature"};

const PropertyOrigin* FindOrigin(const Fed& fed) {
  const auto origins = OriginsOf(fed.className);
  const auto found = std::ranges::find(origins, fed.property, &PropertyOrigin::property);
  return found == origins.end() ? nullptr : &*found;
}

TEST(PropertyOrigins, AreThereForEachPropertyInItsOrderAndForNoOther) {
  for (const ClassDeclaration& declaration : PublishedClasses()) {
    const auto origins = OriginsOf(declaration.name);
    if (kNeverPublished.contains(declaration.name)) {
      EXPECT_THAT(origins, IsEmpty()) << declaration.name;
      continue;
    }
    ASSERT_EQ(origins.size(), declaration.properties.size()) << declaration.name;
    for (std::size_t index = 0; index < origins.size(); ++index) {
      EXPECT_EQ(origins[index].property, declaration.properties[index].name) << declaration.name;
    }
  }
}

TEST(PropertyOrigins, SayOfEachPropertyWhereItComesFrom) {
  for (const ClassDeclaration& declaration : PublishedClasses()) {
    for (const PropertyOrigin& origin : OriginsOf(declaration.name)) {
      EXPECT_FALSE(OriginLines(origin).empty()) << declaration.name << "." << origin.property;
    }
  }
}

TEST(PropertyOrigins, NameEveryLabelThatAParserReadsForAProperty) {
  std::size_t rows = 0;
  for (const Tool& tool : kTools) {
    for (const Parser& parser : kParsers) {
      const fs::path file = fs::path("tools") / tool.name / parser.file;
      if (!fs::exists(Sources() / file)) continue;
      for (const auto& [label, field] : RowsOf(file)) {
        ++rows;
        if (kFeedNothing.contains(field)) continue;
        const auto elsewhere = kFedElsewhere.find(field);
        const Fed fed = elsewhere == kFedElsewhere.end() ? Fed{parser.className, field} : elsewhere->second;
        const PropertyOrigin* const origin = FindOrigin(fed);
        ASSERT_NE(origin, nullptr) << file << ": " << label << " feeds " << field << ", which has no origin";
        EXPECT_THAT(LabelsOf(origin->*tool.cell), Contains(label))
            << file << ": " << label << " feeds " << fed.className << "." << fed.property;
      }
    }
  }
  EXPECT_GT(rows, 100U) << "the parsers' tables were not found";
}

TEST(PropertyOrigins, NameNoLabelThatTheToolsParsersDoNotHave) {
  const std::string shared = SourceText("collect") + SourceText("logs");
  for (const Tool& tool : kTools) {
    const std::string source = SourceText(fs::path("tools") / tool.name) + shared;
    for (const ClassDeclaration& declaration : PublishedClasses()) {
      for (const PropertyOrigin& origin : OriginsOf(declaration.name)) {
        for (const std::string_view label : LabelsOf(origin.*tool.cell)) {
          EXPECT_NE(source.find('"' + std::string(label)), source.npos)
              << declaration.name << "." << origin.property << ": " << tool.name << " does not read " << label;
        }
      }
    }
  }
}

// A label that moved from a drive to the controller is still in the tool's folder: a row of the parsers' tables under
// which it stands must feed the property that names it.
TEST(PropertyOrigins, NameLabelsOfTheTablesForWhatTheyFeedAlone) {
  for (const Tool& tool : kTools) {
    std::set<std::pair<std::string, std::string>> fed;  // label, class.property
    std::set<std::string> labels;
    for (const Parser& parser : kParsers) {
      const fs::path file = fs::path("tools") / tool.name / parser.file;
      if (!fs::exists(Sources() / file)) continue;
      for (const auto& [label, field] : RowsOf(file)) {
        const auto elsewhere = kFedElsewhere.find(field);
        const Fed to = elsewhere == kFedElsewhere.end() ? Fed{parser.className, field} : elsewhere->second;
        fed.emplace(label, to.className + "." + to.property);
        labels.insert(label);
      }
    }
    // Cut out of another value, or read by a function of its own beside the table.
    const std::set<std::string> cut = {"DeviceCode", "DeviceSerialNum", "Firmware", "Model", "Channel", "ScsiId"};
    for (const char* const name : {"KVRSG_zxSCSIProtocolController", "KVRSG_zxLogicalDisk", "KVRSG_zxDiskDrive"}) {
      for (const PropertyOrigin& origin : OriginsOf(name)) {
        for (const std::string_view label : LabelsOf(origin.*tool.cell)) {
          const std::string property(origin.property);
          if (!labels.contains(std::string(label)) || cut.contains(property)) continue;
          EXPECT_TRUE(fed.contains({std::string(label), std::string(name) + "." + property}))
              << tool.name << ": " << label << " does not feed " << name << "." << property;
        }
      }
    }
  }
}

TEST(PropertyOrigins, AreALineForEachToolAndOneInWords) {
  EXPECT_THAT(OriginLines({"State", "State", "", "State|Assigned Spare for", "and more"}),
              ElementsAre("qcmdrun: \"State\"", "arcconf: \"State\", \"Assigned Spare for\"", "and more"));
  EXPECT_THAT(OriginLines({"Size", "", "Size", "", ""}), ElementsAre("hrconf_64: \"Size\""));
  EXPECT_THAT(OriginLines("KVRSG_zxRawData", "RawResults"), ElementsAre(HasSubstr("the whole answer")));
  EXPECT_THAT(OriginLines("KVRSG_zxRawData", "Nothing"), IsEmpty());
  EXPECT_THAT(OriginLines("KVRSG_DiskGroup", "InstanceID"), IsEmpty());
}

}  // namespace
