#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <map>
#include <set>

#include "host/hxacore/schema.h"
#include "host/hxacore/value_reader.h"
#include "tests/support/one_of_everything.h"
#include "tests/support/query_host.h"
#include "tests/support/raid_log_machine.h"

namespace {

using namespace NKVRHXA20;
using Names = std::set<std::string_view>;

// The classes that are accepted but always empty.
const Names kEmptyClasses = {"KVRSG_DiskGroup", "KVRSG_zxDriveInDiskGroup", "KVRSG_zxExtenInDiskGroup"};

Names PublishingClasses() {
  Names names;
  for (const CatalogueEntry& entry : Catalogue()) {
    if (!kEmptyClasses.contains(entry.name)) names.insert(entry.name);
  }
  return names;
}

// A query for all classes on a machine that has one of everything.
struct FullQuery {
  FullQuery() {
    host.Hold({ControllerWithEverything(&host.log, "1"), ControllerWithEverything(&host.log, "2")},
              {std::make_shared<ZenxRawData>("tool", "command", 1, "", "output\r\n")});
    std::vector<std::string> names;
    for (const CatalogueEntry& entry : Catalogue()) names.emplace_back(entry.name);
    host.Query(names);
  }

  ScriptedServices services;
  RaidLogMachine machine{services, "2007/03/05 11:02:03 PST\tINF\tSERVER\tText.\r\n"};
  QueryHost host;
};

// The type of a value, for an array the type of its elements.
ECIMType TypeOf(const TCIMValue& value) {
  switch (TCIMValueReader::Kind(value)) {
    case ValueKind::kString: return kCIMString;
    case ValueKind::kUInt16: return kCIMUInt16;
    case ValueKind::kUInt32: return kCIMUInt32;
    case ValueKind::kDateTime: return kCIMDateTime;
    case ValueKind::kReference: return kCIMReference;
    case ValueKind::kArray: return TCIMValueReader::ElementType(value);
    case ValueKind::kNone: break;
  }
  return kCIMEmpty;
}

TEST(PublicationContract, EveryPublishingClassPublishesAndNoOther) {
  const FullQuery query;
  Names published;
  for (const auto& instance : query.host.repository->Published()) published.insert(instance->Class().name);
  EXPECT_EQ(published, PublishingClasses());
}

TEST(PublicationContract, EverythingPublishedIsDeclaredWithItsTypeInItsOrder) {
  const FullQuery query;
  for (const auto& instance : query.host.repository->Published()) {
    const PropertyDeclaration* last = nullptr;
    for (const auto& [name, value] : instance->Properties()) {
      SCOPED_TRACE(std::string(instance->Class().name) + "." + std::string(name));
      const PropertyDeclaration* const declared = FindProperty(instance->Class(), name);
      ASSERT_NE(declared, nullptr);
      EXPECT_EQ(TypeOf(value), declared->type);
      EXPECT_EQ(TCIMValueReader::Kind(value) == ValueKind::kArray, declared->isArray);
      EXPECT_LT(last, declared);
      last = declared;
    }
  }
}

TEST(PublicationContract, EveryDeclaredPropertyOfAPublishingClassIsPublished) {
  const FullQuery query;
  std::map<const ClassDeclaration*, std::set<const PropertyDeclaration*>> published;
  for (const auto& instance : query.host.repository->Published()) {
    for (const auto& [name, value] : instance->Properties()) {
      published[&instance->Class()].insert(FindProperty(instance->Class(), name));
    }
  }
  EXPECT_EQ(published.size(), PublishingClasses().size());
  for (const auto& [declaration, properties] : published) {
    for (const PropertyDeclaration& property : declaration->properties) {
      EXPECT_TRUE(properties.contains(&property)) << declaration->name << "." << property.name;
    }
  }
}

TEST(PublicationContract, ReferencesNameInstancesOfTheDeclaredClassThatWerePublished) {
  const FullQuery query;
  std::set<std::string> paths;
  for (const auto& instance : query.host.repository->Published()) {
    paths.insert(TCIMReferenceFactory::ObjectPath(instance->Reference()));
  }
  std::size_t references = 0;
  for (const auto& instance : query.host.repository->Published()) {
    for (const auto& [name, value] : instance->Properties()) {
      if (TCIMValueReader::Kind(value) != ValueKind::kReference) continue;
      const TCIMReference& reference = TCIMValueReader::Reference(value);
      EXPECT_EQ(TCIMReferenceFactory::ClassName(reference), FindProperty(instance->Class(), name)->referencedClass);
      EXPECT_TRUE(paths.contains(TCIMReferenceFactory::ObjectPath(reference)))
          << instance->Class().name << "." << name << ": " << TCIMReferenceFactory::ObjectPath(reference);
      ++references;
    }
  }
  // Nine associations, two controllers with one of everything, two ends.
  EXPECT_EQ(references, 9U * 2U * 2U);
}

}  // namespace
