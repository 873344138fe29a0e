#include "host/hxahost/result/unique_paths.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/support/filled_repository.h"

namespace {

using namespace hxahost;
using testing::ElementsAre;
using testing::IsEmpty;

// The first property of each instance.
std::vector<std::string> Shown(const InstanceList& instances) {
  std::vector<std::string> values;
  for (const auto& instance : instances) values.emplace_back(instance->Properties().front().value);
  return values;
}

QueryResult Result(const FilledRepository& repository) { return {1, repository.Instances(), {}}; }

TEST(UniquePaths, KeepTheFirstOfAPathDropItsEqualsAndLeaveOutTheOthers) {
  FilledRepository repository;
  repository.Publish("KVRSG_zxRawData", "RawResults", Texts({"a", "b"}), "Command", "1");
  repository.Publish("KVRSG_zxDiskGroup", "Array", "A", "CollectionID", "1");
  repository.Publish("KVRSG_zxDiskGroup", "Array", "A", "CollectionID", "1");
  repository.Publish("KVRSG_zxDiskGroup", "Array", "B", "CollectionID", "1");
  repository.Publish("KVRSG_zxDiskGroup", "Array", "C", "CollectionID", "2");
  const QueryResult unique = UniquePaths().Of({}, Result(repository));
  EXPECT_THAT(Shown(unique.instances), ElementsAre("", "A", "C"));
  EXPECT_THAT(Shown(unique.leftOut), ElementsAre("B"));
  EXPECT_EQ(LeftOutText(*unique.leftOut.front()),
            "Left out, as another instance has its path: KVRSG_zxDiskGroup.CollectionID=\"1\","
            "SystemCreationClassName=\"KVRSG_ComputerSystem\",SystemName=\"M\"");
}

TEST(UniquePaths, SeeADifferenceOfOneElementOrOfAPropertyThatIsNotThere) {
  FilledRepository repository;
  repository.Publish("KVRSG_zxRawData", "Command", "1", "RawResults", Texts({"a", "b"}));
  repository.Publish("KVRSG_zxRawData", "Command", "1", "RawResults", Texts({"a", "c"}));
  repository.Publish("KVRSG_zxRawData", "Command", "1");
  EXPECT_EQ(UniquePaths().Of({}, Result(repository)).leftOut.size(), 2U);
}

TEST(UniquePaths, AreUniqueOverAllQueriesWithTheMachineFirst) {
  FilledRepository repository;
  repository.Publish("KVRSG_zxDiskGroup", "CollectionID", "1");
  QueryHeader header;
  header.system = repository.System();
  UniquePaths paths;
  EXPECT_THAT(Shown(paths.Of(header, Result(repository)).instances), ElementsAre("KVRSG_ComputerSystem", "1"));
  const QueryResult second = paths.Of(header, Result(repository));
  EXPECT_THAT(second.instances, IsEmpty());
  EXPECT_THAT(second.leftOut, IsEmpty());
}

// XML shows both as the picture of the control character.
TEST(UniquePaths, AreUniqueAsDocumentsShowThem) {
  FilledRepository repository;
  repository.Publish("KVRSG_zxDiskGroup", "CollectionID", "\x07");
  repository.Publish("KVRSG_zxDiskGroup", "CollectionID", "\xe2\x90\x87");
  EXPECT_EQ(UniquePaths().Of({}, Result(repository)).leftOut.size(), 1U);
}

}  // namespace
