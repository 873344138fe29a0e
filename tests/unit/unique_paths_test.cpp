#include "host/hxahost/result/unique_paths.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/support/filled_repository.h"

namespace {

using namespace hxahost;
using testing::ElementsAre;

using Path = UniquePaths::Path;

// The outcome for each instance of the repository, in their order.
std::vector<Path> Added(const FilledRepository& repository, UniquePaths paths = {}) {
  std::vector<Path> added;
  for (const auto& instance : repository.Instances()) added.push_back(paths.Add(*instance));
  return added;
}

TEST(UniquePaths, KeepTheFirstOfAPathDropItsEqualsAndLeaveOutTheOthers) {
  FilledRepository repository;
  repository.Publish("KVRSG_zxRawData", "RawResults", Texts({"a", "b"}), "Command", "1");
  repository.Publish("KVRSG_zxDiskGroup", "Array", "A", "CollectionID", "1");
  repository.Publish("KVRSG_zxDiskGroup", "Array", "A", "CollectionID", "1");
  repository.Publish("KVRSG_zxDiskGroup", "Array", "B", "CollectionID", "1");
  repository.Publish("KVRSG_zxDiskGroup", "Array", "C", "CollectionID", "2");
  EXPECT_THAT(Added(repository), ElementsAre(Path::kNew, Path::kNew, Path::kEqual, Path::kTaken, Path::kNew));
  EXPECT_EQ(LeftOutText(*repository.Instances()[3]),
            "Left out, as another instance has its path: KVRSG_zxDiskGroup.CollectionID=\"1\","
            "SystemCreationClassName=\"KVRSG_ComputerSystem\",SystemName=\"M\"");
}

TEST(UniquePaths, SeeADifferenceOfOneElementOrOfAPropertyThatIsNotThere) {
  FilledRepository repository;
  repository.Publish("KVRSG_zxRawData", "Command", "1", "RawResults", Texts({"a", "b"}));
  repository.Publish("KVRSG_zxRawData", "Command", "1", "RawResults", Texts({"a", "c"}));
  repository.Publish("KVRSG_zxRawData", "Command", "1", "RawResults", Texts({"ab"}));
  repository.Publish("KVRSG_zxRawData", "Command", "1");
  EXPECT_THAT(Added(repository), ElementsAre(Path::kNew, Path::kTaken, Path::kTaken, Path::kTaken));
}

TEST(UniquePaths, KnowEachOfManyPaths) {
  UniquePaths paths;
  const auto add = [&paths](int number, const char* name) {
    FilledRepository repository;
    repository.Publish("KVRSG_zxDiskGroup", "CollectionID", std::to_string(number), "Array", name);
    return paths.Add(*repository.Instances().front());
  };
  constexpr int kPaths = 5000;
  for (int number = 0; number < kPaths; ++number) ASSERT_EQ(add(number, "A"), Path::kNew) << number;
  for (int number = 0; number < kPaths; ++number) {
    ASSERT_EQ(add(number, "A"), Path::kEqual) << number;
    ASSERT_EQ(add(number, "B"), Path::kTaken) << number;
  }
}

// XML shows both as the symbol of the control character.
TEST(UniquePaths, AreUniqueAsDocumentsShowThem) {
  FilledRepository repository;
  repository.Publish("KVRSG_zxDiskGroup", "CollectionID", "\x07");
  repository.Publish("KVRSG_zxDiskGroup", "CollectionID", "\xe2\x90\x87");
  EXPECT_THAT(Added(repository), ElementsAre(Path::kNew, Path::kTaken));
}

}  // namespace
