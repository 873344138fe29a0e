#include "host/hxacore/instance.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "host/hxacore/repository.h"
#include "host/hxacore/value_reader.h"
#include "plugin/host_interface/exception.h"

namespace {

using namespace NKVRHXA20;
using testing::AllOf;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::ThrowsMessage;

boost::shared_ptr<ICIMInstance> NewInstance(TRepository& repository, const std::string& className) {
  return repository.GetClass(className, {})->CreateInstance({});
}

class Instance : public testing::Test {
 protected:
  boost::shared_ptr<ICIMInstance> New(const std::string& className) { return NewInstance(*repository, className); }

  // Commits the instance and returns its names and values as they were set.
  std::vector<std::pair<std::string, std::string>> Committed(ICIMInstance& instance) {
    instance.Commit({});
    std::vector<std::pair<std::string, std::string>> properties;
    for (const auto& [name, value] : repository->Published().back()->Properties()) properties.emplace_back(name, value);
    return properties;
  }

  std::string Path(ICIMInstance& instance) { return TCIMReferenceFactory::ObjectPath(instance.GetReference({})); }

  boost::shared_ptr<TRepository> repository = TRepository::Make({});
  boost::shared_ptr<ICIMInstance> disk = New("KVRSG_zxLogicalDisk");
};

TEST_F(Instance, KeepsPropertiesInTheOrderAndSpellingInWhichTheyWereSet) {
  disk->SetProperty("RaidLevel", "5", {});
  disk->SetProperty("CreationClassname", "KVRSG_zxLogicalDisk", {});
  disk->SetProperty("DeviceID", "", {});
  EXPECT_THAT(Committed(*disk),
              ElementsAre(std::pair("RaidLevel", "5"), std::pair("CreationClassname", "KVRSG_zxLogicalDisk"),
                          std::pair("DeviceID", "")));
}

TEST_F(Instance, NamesItselfByTheDeclaredKeysHoweverTheyWereSpelledWhenSet) {
  disk->SetProperty("deviceid", "Zentraxis1LD1", {});
  disk->SetProperty("CreationClassname", "KVRSG_zxLogicalDisk", {});
  disk->SetProperty("RaidLevel", "5", {});
  disk->SetProperty("SystemName", "SERVER", {});
  EXPECT_EQ(Path(*disk),
            "KVRSG_zxLogicalDisk.CreationClassName=\"KVRSG_zxLogicalDisk\",DeviceID=\"Zentraxis1LD1\","
            "SystemName=\"SERVER\"");
}

TEST_F(Instance, BelongsToTheMachineOfItsRepositoryUnlessAPropertyNamesOne) {
  repository = TRepository::Make({}, "SERVER");
  const auto group = New("KVRSG_zxDiskGroup");
  group->SetProperty("CollectionID", "A", {});
  EXPECT_EQ(Path(*group),
            "KVRSG_zxDiskGroup.CollectionID=\"A\",SystemCreationClassName=\"KVRSG_ComputerSystem\","
            "SystemName=\"SERVER\"");
  EXPECT_THAT(Committed(*group), ElementsAre(std::pair("CollectionID", "A")));
  EXPECT_THROW(New("KVRSG_zxDiskGroup")->SetProperty("SystemName", "OTHER", {}), THXAException);
}

TEST_F(Instance, ReplacesAValueThatIsSetAgainInItsPlace) {
  disk->SetProperty("DeviceID", "1", {});
  disk->SetProperty("Size", "old", {});
  disk->SetProperty("DEVICEID", "2", {});
  EXPECT_THAT(Committed(*disk), ElementsAre(std::pair("DEVICEID", "2"), std::pair("Size", "old")));
}

TEST_F(Instance, LeavesAKeyWithoutAValueOutOfItsName) {
  disk->SetProperty("CreationClassName", TCIMValue(), {});
  disk->SetProperty("DeviceID", "", {});
  EXPECT_EQ(Path(*disk), "KVRSG_zxLogicalDisk.DeviceID=\"\"");
  EXPECT_EQ(Path(*New("KVRSG_zxLogicalDisk")), "KVRSG_zxLogicalDisk");
}

TEST_F(Instance, ReturnsAnEmptyValueForAPropertyThatWasNeverSet) {
  EXPECT_EQ(TCIMValueReader::Kind(disk->GetProperty("Size", {})->GetValue({})), ValueKind::kNone);
}

TEST_F(Instance, ReturnsTheValueAtTheTimeOfTheCallWithoutRegardToCase) {
  disk->SetProperty("Size", "1", {});
  const auto size = disk->GetProperty("SIZE", {});
  disk->SetProperty("Size", "2", {});
  EXPECT_EQ(std::string(size->GetValue({})), "1");
  EXPECT_EQ(std::string(disk->GetProperty("size", {})->GetValue({})), "2");
}

TEST_F(Instance, RefusesPropertiesThatItsClassDoesNotDeclare) {
  const auto names = AllOf(HasSubstr("KVRSG_zxLogicalDisk"), HasSubstr("Colour"));
  EXPECT_THAT([&] { disk->SetProperty("Colour", "red", {}); }, ThrowsMessage<THXAException>(names));
  EXPECT_THAT([&] { disk->GetProperty("Colour", {}); }, ThrowsMessage<THXAException>(names));
}

TEST_F(Instance, RefusesAValueOfAnotherTypeAndDoesNotChange) {
  EXPECT_THAT([&] { disk->SetProperty("size", 5U, {}); },
              ThrowsMessage<THXAException>("\"KVRSG_zxLogicalDisk.Size\" is string, which the value set is not."));
  EXPECT_THAT(Committed(*disk), ElementsAre());
}

TEST_F(Instance, DoesNotChangeAfterTheCommit) {
  disk->SetProperty("DeviceID", "1", {});
  disk->Commit({});
  EXPECT_THROW(disk->SetProperty("DeviceID", "2", {}), THXAException);
  EXPECT_THROW(disk->Commit({}), THXAException);
  EXPECT_EQ(repository->Published().size(), 1U);
  EXPECT_EQ(std::string(disk->GetProperty("DeviceID", {})->GetValue({})), "1");
}

TEST_F(Instance, NamesALinkByItsEnds) {
  disk->SetProperty("DeviceID", "a\"b\\c", {});
  const auto link = New("KVRSG_ElementBadStripeData");
  link->SetProperty("ManagedElement", disk->GetReference({}), {});
  EXPECT_EQ(Path(*link), R"(KVRSG_ElementBadStripeData.ManagedElement="KVRSG_zxLogicalDisk.DeviceID=\"a\\\"b\\\\c\"")");
}

}  // namespace
