#include "host/hxacore/schema.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

#include "host/hxacore/ignore_case.h"

namespace {

using namespace NKVRHXA20;
using testing::ElementsAre;

std::vector<ClassDeclaration> AllClasses() {
  std::vector<ClassDeclaration> all(PublishedClasses().begin(), PublishedClasses().end());
  all.push_back(*FindClass("KVRSG_OperatingSystem"));
  return all;
}

std::vector<std::string_view> KeysOf(const char* className) {
  std::vector<std::string_view> keys;
  for (const PropertyDeclaration& property : FindClass(className)->properties) {
    if (property.isKey) keys.push_back(property.name);
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

// The keys of all other classes are in the paths of what the sample machine publishes.
TEST(Schema, ClassesThatAreNeverPublishedHaveKeysToo) {
  EXPECT_THAT(KeysOf("KVRSG_DiskGroup"), ElementsAre("InstanceID"));
  EXPECT_THAT(KeysOf("KVRSG_zxDriveInDiskGroup"), ElementsAre("Antecedent", "Dependent"));
  EXPECT_THAT(KeysOf("KVRSG_zxExtenInDiskGroup"), ElementsAre("Antecedent", "Dependent"));
  EXPECT_THAT(KeysOf("KVRSG_OperatingSystem"), ElementsAre("Name"));
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

TEST(Schema, SaysInOneLineWhatEachClassAndPropertyIs) {
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
}

}  // namespace
