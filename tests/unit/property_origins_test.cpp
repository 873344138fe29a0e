#include "host/hxahost/schema/property_origins.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <set>
#include <string>
#include <variant>
#include <vector>

#include "tools/known_tools.h"

namespace {

using hxahost::OriginLines;
using namespace NKVRHXA20;
using testing::ElementsAre;
using testing::IsEmpty;

std::vector<std::string> LinesOf(const char* className, const char* property) {
  return OriginLines(className, *FindProperty(*FindClass(className), property));
}

TEST(PropertyOrigins, AreThereForEachPropertyOfAClassThatIsPublished) {
  const std::set<std::string_view> neverPublished = {"KVRSG_DiskGroup", "KVRSG_zxDriveInDiskGroup",
                                                     "KVRSG_zxExtenInDiskGroup"};
  for (const ClassDeclaration& declaration : PublishedClasses()) {
    for (const PropertyDeclaration& property : declaration.properties) {
      EXPECT_EQ(OriginLines(declaration.name, property).empty(), neverPublished.contains(declaration.name))
          << declaration.name << "." << property.name;
    }
  }
}

TEST(PropertyOrigins, AreALineForEachToolAndOneInWords) {
  EXPECT_THAT(LinesOf("KVRSG_zxDiskDrive", "State"),
              ElementsAre("qcmdrun: \"State\"", "hrconf_64: \"State\"", "arcconf: \"State\", \"Assigned Spare for\""));
  EXPECT_THAT(LinesOf("KVRSG_zxBiosVersion", "Version"),
              ElementsAre("qcmdrun: \"Actual BIOS version\"", "hrconf_64: \"BIOS\"", "arcconf: \"BIOS\"",
                          "hrconf_64 is asked with getversion"));
  EXPECT_THAT(LinesOf("KVRSG_zxDiskDrive", "SystemName"), ElementsAre("host: name of the machine"));
  EXPECT_THAT(LinesOf("KVRSG_DiskGroup", "InstanceID"), IsEmpty());
}

// Format, body that defines it, and the mapping: no other bar or point may come before the mapping.
TEST(PropertyOrigins, AreMappingStringsInTheGeneralForm) {
  const auto mappings = [](const char* className, const char* property) {
    return hxahost::MappingStrings(className, *FindProperty(*FindClass(className), property));
  };
  EXPECT_THAT(mappings("KVRSG_zxDiskDrive", "State"),
              ElementsAre("Label.KVRSG|qcmdrun|State", "Label.KVRSG|hrconf_64|State", "Label.KVRSG|arcconf|State",
                          "Label.KVRSG|arcconf|Assigned Spare for"));
  EXPECT_THAT(mappings("KVRSG_zxDiskDrive", "SystemName"), ElementsAre("Words.KVRSG|host: name of the machine"));
  EXPECT_THAT(mappings("KVRSG_DiskGroup", "InstanceID"), IsEmpty());
}

TEST(PropertyOrigins, NameEveryLabelButThoseThatFeedNoProperty) {
  std::string lines;
  for (const ClassDeclaration& declaration : PublishedClasses()) {
    for (const PropertyDeclaration& property : declaration.properties) {
      for (const std::string& line : OriginLines(declaration.name, property)) lines += line + "\n";
    }
  }
  std::set<std::string_view> unnamed;
  for (const KnownTool& known : kKnownTools) {
    for (const AnswerLabels& any : known.labels) {
      std::visit(
          [&](const auto& table) {
            for (const auto& row : table) {
              if (lines.find("\"" + std::string(row.label) + "\"") == lines.npos) unnamed.insert(row.label);
            }
          },
          any.labels);
    }
  }
  EXPECT_THAT(unnamed, ElementsAre("Additional information", "Defunct stripes", "Status of RAID 5EE"))
      << "publish the field of a further label, and name it in host/hxahost/schema/property_origins.cpp";
}

}  // namespace
