#include "host/hxacore/schema.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

#include "host/hxacore/ignore_case.h"

namespace {

using namespace NKVRHXA20;
using testing::Contains;
using testing::ElementsAre;
using testing::IsSupersetOf;
using testing::Not;

std::vector<ClassDeclaration> AllClasses() {
  std::vector<ClassDeclaration> all(ExportedClasses().begin(), ExportedClasses().end());
  all.push_back(*FindClass("KVRSG_OperatingSystem"));
  return all;
}

std::vector<std::string_view> KeysOf(const char* className) {
  std::vector<std::string_view> keys;
  for (const auto properties : {FindClass(className)->systemKeys, FindClass(className)->properties}) {
    for (const PropertyDeclaration& property : properties) {
      if (property.isKey) keys.push_back(property.name);
    }
  }
  std::ranges::sort(keys);
  return keys;
}

TEST(Schema, EveryClassHasAKeyAndAllKeysAreSingleValues) {
  for (const ClassDeclaration& declaration : AllClasses()) {
    EXPECT_TRUE(std::ranges::any_of(declaration.properties, &PropertyDeclaration::isKey)) << declaration.name;
    for (const PropertyDeclaration& property : declaration.properties) {
      EXPECT_FALSE(property.isKey && property.isArray) << declaration.name << "." << property.name;
    }
  }
}

// The keys of all other classes occur in the paths of the sample machine.
TEST(Schema, ClassesThatAreNeverPublishedHaveKeysToo) {
  EXPECT_THAT(KeysOf("KVRSG_DiskGroup"), ElementsAre("InstanceID"));
  EXPECT_THAT(KeysOf("KVRSG_zxDriveInDiskGroup"), ElementsAre("Antecedent", "Dependent"));
  EXPECT_THAT(KeysOf("KVRSG_zxExtenInDiskGroup"), ElementsAre("Antecedent", "Dependent"));
  EXPECT_THAT(KeysOf("KVRSG_OperatingSystem"), ElementsAre("Name"));
  EXPECT_THAT(KeysOf("KVRSG_ComputerSystem"), ElementsAre("CreationClassName", "Name"));
}

TEST(Schema, TheObjectsOfTwoMachinesHaveNoPathInCommon) {
  for (const ClassDeclaration& declaration : PublishedClasses()) {
    if (declaration.isAssociation || declaration.name == "KVRSG_DiskGroup") continue;
    EXPECT_THAT(KeysOf(std::string(declaration.name).c_str()), IsSupersetOf({"SystemCreationClassName", "SystemName"}))
        << declaration.name;
  }
}

TEST(Schema, DevicesHaveTheKeysOfALogicalDeviceAndDefunctDrivesAreOfAController) {
  for (const char* const device : {"KVRSG_zxSCSIProtocolController", "KVRSG_zxLogicalDisk", "KVRSG_zxDiskDrive"}) {
    EXPECT_THAT(KeysOf(device), ElementsAre("CreationClassName", "DeviceID", "SystemCreationClassName", "SystemName"));
  }
  EXPECT_THAT(KeysOf("KVRSG_LogRecord_zxDDD"), Contains("Controller"));
  // A time of that log can be impossible, and a key needs a value.
  EXPECT_THAT(KeysOf("KVRSG_LogRecord_RAIDMgrEvent"), Not(Contains("MessageTimestamp")));
}

TEST(Schema, NoTwoNamesDifferOnlyInCase) {
  const auto isNotUnique = [](const auto& range, const auto& item) {
    return std::ranges::count_if(range, [&](const auto& other) { return EqualIgnoringCase(other.name, item.name); }) !=
           1;
  };
  const auto all = AllClasses();
  for (const ClassDeclaration& declaration : all) {
    EXPECT_FALSE(isNotUnique(all, declaration)) << declaration.name;
    for (const PropertyDeclaration& property : declaration.properties) {
      EXPECT_FALSE(isNotUnique(declaration.properties, property)) << declaration.name << "." << property.name;
    }
  }
}

TEST(Schema, DescribesEachClassAndPropertyInOneLine) {
  const auto isOneSentence = [](std::string_view text) {
    return text.size() > 10 && text.ends_with('.') && text.find_first_of("\r\n\t") == text.npos && text.size() <= 100;
  };
  for (const ClassDeclaration& declaration : AllClasses()) {
    EXPECT_TRUE(isOneSentence(declaration.description)) << declaration.name << ": " << declaration.description;
    for (const PropertyDeclaration& property : declaration.properties) {
      EXPECT_TRUE(isOneSentence(property.description))
          << declaration.name << "." << property.name << ": " << property.description;
    }
  }
}

TEST(Schema, AssociationsAreTheClassesMadeOfReferencesToKnownClasses) {
  for (const ClassDeclaration& declaration : AllClasses()) {
    for (const PropertyDeclaration& property : declaration.properties) {
      EXPECT_EQ(property.type == kCIMReference, declaration.isAssociation) << declaration.name << "." << property.name;
      EXPECT_EQ(property.type == kCIMReference, !property.referencedClass.empty()) << property.name;
      const bool isKnown = FindClass(property.referencedClass) != nullptr;
      EXPECT_EQ(isKnown, declaration.isAssociation) << declaration.name << "." << property.name;
    }
  }
}

TEST(Schema, FindsClassesAndPropertiesWithoutRegardToCase) {
  const ClassDeclaration* const disk = FindClass("kvrsg_ZXlogicalDISK");
  ASSERT_NE(disk, nullptr);
  EXPECT_EQ(disk->name, "KVRSG_zxLogicalDisk");
  ASSERT_NE(FindProperty(*disk, "CREATIONCLASSNAME"), nullptr);
  EXPECT_EQ(FindProperty(*disk, "CreationClassname")->name, "CreationClassName");
}

TEST(Schema, FindsNothingUnderAnyOtherName) {
  EXPECT_EQ(FindClass("KVRSG_zxLogicalDis"), nullptr);
  EXPECT_EQ(FindClass("KVRSG_zxLogicalDisks"), nullptr);
  EXPECT_EQ(FindClass(""), nullptr);
  EXPECT_EQ(FindProperty(*FindClass("KVRSG_zxLogicalDisk"), "Siz"), nullptr);
}

TEST(Schema, TheOperatingSystemIsKnownAndNotPublished) {
  const ClassDeclaration* const system = FindClass("KVRSG_OperatingSystem");
  ASSERT_NE(system, nullptr);
  EXPECT_EQ(FindProperty(*system, "OSType")->type, kCIMUInt16);
  EXPECT_EQ(std::ranges::count(PublishedClasses(), system->name, &ClassDeclaration::name), 0);
  EXPECT_EQ(PublishedClasses().size(), 29U);
  EXPECT_EQ(ExportedClasses().size(), 30U);
  EXPECT_EQ(ExportedClasses().back().name, "KVRSG_ComputerSystem");
}

}  // namespace
