#include <algorithm>
#include <cstddef>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "host/hxacore/value_reader.h"
#include "tests/support/fake_namespace.h"
#include "tests/support/fault_matrix.h"
#include "tests/support/thoroughness.h"

// Every command of the sample machine with every fault, without a process.
namespace {

using namespace NKVRHXA20;
using namespace fault_matrix;

Instance InstanceOf(const TPublishedInstance& published) {
  Instance instance{std::string(published.Class().name), {}};
  for (const auto& [name, value] : published.Properties()) {
    instance.text.append("\n").append(name).append(" = ").append(Rendered(value));
  }
  return instance;
}

Texts ElementTexts(const TCIMValue& array) {
  Texts texts;
  for (const TCIMValue& element : TCIMValueReader::Elements(array)) texts.push_back(element);
  return texts;
}

void Add(Published& published, const TPublishedInstance& instance) {
  if (instance.Class().name != kRawData) {
    published.instances.push_back(InstanceOf(instance));
    return;
  }
  const std::string command = instance.Properties().at(0).value;
  published.rawData[command] = ElementTexts(instance.Properties().at(1).value);
}

void ReadAll(const QueryHost& host, Published& published) {
  for (const auto& instance : host.repository->Published()) Add(published, *instance);
}

Published Query(const Machine& machine) { return QueryScripted(machine, ReadAll); }

FaultMatrix& Matrix() {
  static FaultMatrix matrix(Query);
  return matrix;
}

std::vector<Command> Commands() { return CommandsOf(Matrix().OfWholeMachine()); }

// The raw data of the command itself: what it printed. For a legacy utility that could not be run, the plug-in
// records a text of its own, without a line end; it records the silence of hrconf, but not that of the others.
void ExpectOwnRawData(const Command& command, const Behaviour& behaviour, const Published& published) {
  const bool isLegacy = command.tool == "qcmdrun";
  const bool isRecorded = command.tool == "hrconf_64" || !behaviour.text.empty() || (isLegacy && behaviour.failure);
  const auto record = published.rawData.find(command.PublishedKey());
  ASSERT_EQ(record != published.rawData.end(), isRecorded) << command.PublishedKey();
  if (isRecorded) {
    EXPECT_EQ(record->second, ZenxRawData("", "", 0, "", behaviour.text).RawResults);
  }
}

void ExpectRawData(const Command& command, const Behaviour& behaviour, const Published& published) {
  if (command.controller != nullptr) ExpectOwnRawData(command, behaviour, published);
  // If the number now seems to have a controller, its commands are recorded, too.
  const std::string mark = " " + std::to_string(command.number) + " ";
  const auto isOwn = [&](const std::string& recorded) {
    if (command.controller != nullptr) return recorded == command.PublishedKey();
    return recorded.find(command.tool) != recorded.npos && recorded.find(mark) != recorded.npos;
  };
  std::map<std::string, Texts> actual = published.rawData;
  std::map<std::string, Texts> expected = Matrix().OfWholeMachine().rawData;
  std::erase_if(actual, [&](const auto& record) { return isOwn(record.first); });
  std::erase_if(expected, [&](const auto& record) { return isOwn(record.first); });
  EXPECT_EQ(actual, expected);
}

void ExpectCost(const Command& command, std::size_t column, const Behaviour& behaviour) {
  Machine faulty = WholeMachine();
  faulty[command.Key()] = behaviour;
  const Published published = Query(faulty);
  EXPECT_EQ(Matrix().Misfit(command, column, published), "");
  const Cost cost = Matrix().CostOf(command, published);
  if (cost == kEverything) {
    EXPECT_TRUE(published.rawData.empty());
  } else if (cost != kMore && cost != kTool) {
    ExpectRawData(command, behaviour, published);
  }
}

TEST(FaultMatrix, EveryFaultOfEveryCommandHasTheCostInItsColumn) {
  std::size_t number = 0;
  for (const Command& command : Commands()) {
    for (std::size_t column = 0; column < Faults().size(); ++column) {
      if (number++ % CasesForOneTry() != 0) continue;
      SCOPED_TRACE(command.Key() + ": " + Faults()[column].name);
      ExpectCost(command, kFirstFault + column, Faults()[column].Make(command, WholeMachine()));
    }
  }
  EXPECT_EQ(number, Commands().size() * Faults().size());
}

TEST(FaultMatrix, EveryAnswerCutOffAfterEachLineHasTheCostInItsColumn) {
  std::size_t number = 0;
  for (const Command& command : Commands()) {
    const std::string text = WholeMachine().at(command.Key()).text;
    for (std::size_t end = text.find('\n'); end != text.npos; end = text.find('\n', end + 1)) {
      if (number++ % CasesForOneTry() != 0) continue;
      SCOPED_TRACE(command.Key() + " cut off after " + text.substr(0, end).substr(text.substr(0, end).rfind('\n') + 1));
      ExpectCost(command, kCutOff, {text.substr(0, end + 1)});
    }
  }
  EXPECT_GT(number, 1000U);
}

// Otherwise the tables above would be compared with an empty machine.
TEST(FaultMatrix, TheWholeMachineHasFiveControllersWithNumbersOfTheirOwn) {
  const std::vector<Instance>& whole = Matrix().OfWholeMachine().instances;
  EXPECT_EQ(ControllerCount(whole), Controllers().size());
  for (const Moved& controller : Controllers()) {
    EXPECT_TRUE(
        std::ranges::any_of(whole, [&](const Instance& instance) { return IsOf(instance, controller.publishedAs); }));
    EXPECT_EQ(ControllerCount(Matrix().WithoutController(controller)), Controllers().size() - 1);
  }
  EXPECT_EQ(Matrix().OfWholeMachine().rawData.size(), 2U * 8U + 3U + 2U * 5U);
}

}  // namespace
