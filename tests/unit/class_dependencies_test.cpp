#include "host/hxahost/collection/class_dependencies.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

#include "host/hxacore/schema.h"

namespace {

using namespace hxahost;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::UnorderedElementsAreArray;

TEST(ClassDependencies, NameTheTwoEndsOfEveryAssociationThatIsPublished) {
  for (const auto& declaration : NKVRHXA20::PublishedClasses()) {
    const bool isNeverPublished =
        declaration.name == "KVRSG_zxDriveInDiskGroup" || declaration.name == "KVRSG_zxExtenInDiskGroup";
    if (!declaration.isAssociation || isNeverPublished) continue;
    std::vector<std::string_view> ends;
    for (const auto& property : declaration.properties) ends.push_back(property.referencedClass);
    const auto found = std::ranges::find(ClassDependencies(), declaration.name, &ClassDependency::name);
    ASSERT_NE(found, ClassDependencies().end()) << declaration.name;
    EXPECT_THAT(found->builtFrom, UnorderedElementsAreArray(ends)) << declaration.name;
  }
}

TEST(ClassDependencies, AreAllMetByTheOrderOfTheCatalogue) {
  std::vector<std::string> catalogue;
  for (const auto& declaration : NKVRHXA20::PublishedClasses()) catalogue.emplace_back(declaration.name);
  EXPECT_THAT(MissingDependencies(catalogue), IsEmpty());
}

TEST(ClassDependencies, NameClassesThatAreMissingOrTooLate) {
  EXPECT_THAT(MissingDependencies({"KVRSG_zxDiskDrive"}), IsEmpty());
  EXPECT_THAT(MissingDependencies({"KVRSG_BadStripeData"}),
              ElementsAre("KVRSG_BadStripeData is built from other instances: give --class KVRSG_zxLogicalDisk before "
                          "it."));
  EXPECT_THAT(MissingDependencies({"KVRSG_zxLogicalDisk", "KVRSG_BadStripeData"}), IsEmpty());
  EXPECT_THAT(
      MissingDependencies({"KVRSG_zxDiskDrive", "KVRSG_ElementZxScsiDeviceData", "KVRSG_zxSCSIDeviceData"}),
      ElementsAre("KVRSG_ElementZxScsiDeviceData is built from other instances: give --class KVRSG_zxSCSIDeviceData "
                  "before it."));
  EXPECT_THAT(MissingDependencies({"KVRSG_zxBiosOnController"}),
              ElementsAre("KVRSG_zxBiosOnController is built from other instances: give --class "
                          "KVRSG_zxSCSIProtocolController --class KVRSG_zxBiosVersion before it."));
}

}  // namespace
