#include "host/hxacore/repository.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <boost/make_shared.hpp>

#include "host/hxacore/value_reader.h"
#include "plugin/host_interface/exception.h"
#include "plugin/query.h"

namespace {

using namespace NKVRHXA20;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::ThrowsMessage;

constexpr const char* kDisk = "KVRSG_zxLogicalDisk";
constexpr const char* kGroup = "KVRSG_zxDiskGroup";
const std::string kOfMachine = ",SystemCreationClassName=\"KVRSG_ComputerSystem\",SystemName=\"M\"";

using Instances = std::vector<boost::shared_ptr<ICIMInstance>>;

Instances Enumerate(ICIMNamespace& nameSpace, const std::string& className) {
  Instances instances;
  nameSpace.GetClass(className, {})
      ->EnumerateInstances(
          TCallbackHolder<ICIMInstance>(boost::make_shared<TAddToVectorCallback<ICIMInstance>>(instances)), true, {});
  return instances;
}

std::string Get(ICIMInstance& instance, const std::string& name) {
  return instance.GetProperty(name, {})->GetValue({});
}

boost::shared_ptr<ICIMInstance> NewInstance(ICIMNamespace& nameSpace, const std::string& className) {
  return nameSpace.GetClass(className, {})->CreateInstance({});
}

void Publish(ICIMNamespace& nameSpace, const std::string& className, const std::string& key, const std::string& value) {
  const auto instance = NewInstance(nameSpace, className);
  instance->SetProperty(key, value, {});
  instance->Commit({});
}

std::vector<std::string> Paths(const TRepository& repository) {
  std::vector<std::string> paths;
  for (const auto& instance : repository.Published()) {
    paths.push_back(TCIMReferenceFactory::ObjectPath(instance->Reference()));
  }
  return paths;
}

class Repository : public testing::Test {
 protected:
  boost::shared_ptr<TRepository> repository = TRepository::Make(18, "M");
};

TEST_F(Repository, KeepsInstancesInTheOrderInWhichTheyWereCommitted) {
  const auto later = NewInstance(*repository, kDisk);
  later->SetProperty("DeviceID", "made first", {});
  Publish(*repository, kDisk, "DeviceID", "b");
  Publish(*repository, kGroup, "CollectionID", "g");
  Publish(*repository, kDisk, "DeviceID", "a");
  later->Commit({});
  EXPECT_THAT(Paths(*repository),
              ElementsAre("KVRSG_zxLogicalDisk.DeviceID=\"b\"", "KVRSG_zxDiskGroup.CollectionID=\"g\"" + kOfMachine,
                          "KVRSG_zxLogicalDisk.DeviceID=\"a\"", "KVRSG_zxLogicalDisk.DeviceID=\"made first\""));
  const Instances disks = Enumerate(*repository, kDisk);
  ASSERT_EQ(disks.size(), 3U);
  EXPECT_EQ(Get(*disks[0], "DeviceID"), "b");
  EXPECT_EQ(Get(*disks[2], "DeviceID"), "made first");
}

TEST_F(Repository, KeepsInstancesWithEqualKeys) {
  Publish(*repository, kDisk, "DeviceID", "same");
  Publish(*repository, kDisk, "DeviceID", "same");
  EXPECT_EQ(Enumerate(*repository, kDisk).size(), 2U);
  EXPECT_EQ(repository->Published().size(), 2U);
}

TEST_F(Repository, EnumeratesNothingThatIsNotCommitted) {
  const auto open = NewInstance(*repository, kDisk);
  open->SetProperty("DeviceID", "open", {});
  EXPECT_THAT(Enumerate(*repository, kDisk), IsEmpty());
  EXPECT_THAT(repository->Published(), IsEmpty());
}

TEST_F(Repository, AQueryDropsTheInstancesOfItsClassesAndOfNoOther) {
  Publish(*repository, kDisk, "DeviceID", "old");
  Publish(*repository, kGroup, "CollectionID", "old");
  Publish(*repository, "KVRSG_zxRawData", "Command", "kept");
  repository->BeginQuery({repository->GetClass(kGroup, {}), repository->GetClass(kDisk, {})});
  EXPECT_THAT(Enumerate(*repository, kDisk), IsEmpty());
  EXPECT_THAT(Enumerate(*repository, kGroup), IsEmpty());
  EXPECT_EQ(Enumerate(*repository, "KVRSG_zxRawData").size(), 1U);
}

TEST_F(Repository, ShowsAsPublishedOnlyWhatTheQueryCommitted) {
  Publish(*repository, kDisk, "DeviceID", "earlier");
  repository->BeginQuery({repository->GetClass(kGroup, {})});
  Publish(*repository, kGroup, "CollectionID", "now");
  EXPECT_THAT(Paths(*repository), ElementsAre("KVRSG_zxDiskGroup.CollectionID=\"now\"" + kOfMachine));
  EXPECT_EQ(Enumerate(*repository, kDisk).size(), 1U);
}

TEST(RepositoryLimit, KeepsSoManyInstancesOfAQueryAndRefusesMore) {
  const auto repository = TRepository::Make(18, "M", 2);
  Publish(*repository, kDisk, "DeviceID", "0");
  Publish(*repository, kDisk, "DeviceID", "1");
  EXPECT_THAT([&] { Publish(*repository, kDisk, "DeviceID", "2"); },
              ThrowsMessage<THXAException>(HasSubstr("more than 2 objects were published")));
  EXPECT_EQ(repository->Published().size(), 2U);
  repository->BeginQuery({repository->GetClass(kDisk, {})});
  Publish(*repository, kDisk, "DeviceID", "3");
  EXPECT_EQ(repository->Published().size(), 1U);
}

TEST_F(Repository, ReportsCommittedInstancesAndKeepsThoseThatAreWanted) {
  std::vector<std::string> shown;
  repository->OnCommit([&shown](const boost::shared_ptr<const TPublishedInstance>& committed) {
    shown.emplace_back(committed->Class().name);
    return committed->Class().name != kGroup;
  });
  Publish(*repository, kDisk, "DeviceID", "kept");
  Publish(*repository, kGroup, "CollectionID", "not kept");
  EXPECT_THAT(shown, ElementsAre(kDisk, kGroup));
  EXPECT_EQ(Enumerate(*repository, kDisk).size(), 1U);
  EXPECT_THAT(Enumerate(*repository, kGroup), IsEmpty());
  EXPECT_EQ(repository->Published().size(), 1U);
  repository->OnCommit({});
  Publish(*repository, kGroup, "CollectionID", "kept");
  EXPECT_EQ(Enumerate(*repository, kGroup).size(), 1U);
}

TEST_F(Repository, FindsClassesWithoutRegardToCaseAndGivesTheDeclaredName) {
  EXPECT_EQ(repository->GetClass("kvrsg_ZXLOGICALDISK", {})->GetName({}), kDisk);
  Publish(*repository, "kvrsg_zxlogicaldisk", "deviceid", "1");
  EXPECT_EQ(Enumerate(*repository, kDisk).size(), 1U);
}

TEST_F(Repository, RefusesUnknownClassesByName) {
  EXPECT_THAT([&] { repository->GetClass("KVRSG_zxNothing", {}); },
              ThrowsMessage<THXAException>("There is no class \"KVRSG_zxNothing\"."));
  EXPECT_THROW(repository->GetClass("", {}), THXAException);
}

TEST_F(Repository, ACallbackMayCommitFurtherInstances) {
  struct TCommitOneMore final : ICallback<ICIMInstance> {
    explicit TCommitOneMore(ICIMNamespace& filled) : nameSpace(filled) {}
    void Call(const boost::shared_ptr<ICIMInstance>&) override {
      ++calls;
      Publish(nameSpace, kDisk, "DeviceID", "further");
    }
    ICIMNamespace& nameSpace;
    int calls = 0;
  };
  Publish(*repository, kDisk, "DeviceID", "1");
  Publish(*repository, kDisk, "DeviceID", "2");
  const auto callback = boost::make_shared<TCommitOneMore>(*repository);
  repository->GetClass(kDisk, {})->EnumerateInstances(TCallbackHolder<ICIMInstance>(callback), true, {});
  EXPECT_EQ(callback->calls, 2);
  EXPECT_EQ(Enumerate(*repository, kDisk).size(), 4U);
}

TEST_F(Repository, HasItsOwnOperatingSystemInstanceThatIsNotPublishedAndStaysForEveryQuery) {
  const auto systems = repository->GetClass("KVRSG_OperatingSystem", {});
  repository->BeginQuery({systems});
  const Instances own = Enumerate(*repository, "KVRSG_OperatingSystem");
  ASSERT_EQ(own.size(), 1U);
  EXPECT_EQ(static_cast<unsigned short>(own.front()->GetProperty("OSType", {})->GetValue({})), 18);
  EXPECT_THAT(repository->Published(), IsEmpty());
}

TEST_F(Repository, LetsNobodyElseMakeInstancesOfTheHost) {
  for (const char* const own : {"KVRSG_OperatingSystem", "KVRSG_ComputerSystem"}) {
    EXPECT_THAT([&] { NewInstance(*repository, own); }, ThrowsMessage<THXAException>(HasSubstr(own)));
  }
}

TEST_F(Repository, HasOneInstanceOfTheMachineThatIsNotPublishedAndStaysForEveryQuery) {
  repository->BeginQuery({repository->GetClass("KVRSG_ComputerSystem", {})});
  const Instances own = Enumerate(*repository, "KVRSG_ComputerSystem");
  ASSERT_EQ(own.size(), 1U);
  EXPECT_EQ(Get(*own.front(), "Name"), "M");
  EXPECT_EQ(TCIMReferenceFactory::ObjectPath(repository->System()->Reference()),
            "KVRSG_ComputerSystem.CreationClassName=\"KVRSG_ComputerSystem\",Name=\"M\"");
  EXPECT_THAT(repository->Published(), IsEmpty());
}

TEST_F(Repository, WithoutAnOperatingSystemTypeTheClassIsKnownAndEmpty) {
  EXPECT_THAT(Enumerate(*TRepository::Make({}), "KVRSG_OperatingSystem"), IsEmpty());
}

TEST_F(Repository, InstancesOutliveIt) {
  Publish(*repository, kDisk, "deviceid", "1");
  const auto open = NewInstance(*repository, kDisk);
  const auto published = repository->Published();
  repository.reset();
  EXPECT_EQ(published.front()->Properties().front().name, "deviceid");
  open->Commit({});
}

TEST_F(Repository, ALinkBetweenItsInstancesDoesNotKeepItAlive) {
  Publish(*repository, kDisk, "DeviceID", "1");
  const auto link = NewInstance(*repository, "KVRSG_zxProtocolControllerForUnit");
  link->SetProperty("Dependent", Enumerate(*repository, kDisk).front()->GetReference({}), {});
  link->Commit({});
  const boost::weak_ptr<TRepository> observer = repository;
  repository.reset();
  EXPECT_TRUE(observer.expired());
}

TEST(RepositoryClasses, AreThoseOfThePlugInsCatalogueInItsOrder) {
  std::vector<std::string_view> declared;
  std::vector<std::string_view> published;
  for (const ClassDeclaration& declaration : PublishedClasses()) declared.push_back(declaration.name);
  for (const CatalogueEntry& entry : Catalogue()) published.push_back(entry.name);
  EXPECT_EQ(declared, published);
}

}  // namespace
