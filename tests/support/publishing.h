#pragma once

#include <algorithm>
#include <memory>
#include <string>
#include <vector>

#include "collect/collection_driver.h"
#include "host/hxacore/ignore_case.h"
#include "host/hxacore/schema.h"
#include "logs/collect_raid_mgr_data.h"
#include "publish/publish_context.h"
#include "tests/support/fake_namespace.h"
#include "tests/support/record_fields.h"
#include "tests/support/same_lines.h"
#include "tests/support/scripted_services.h"

using Properties = std::vector<std::string>;
using Instances = std::vector<Properties>;
using Entries = std::vector<LogEntry>;

// Publishes hand-made records into a fake namespace.
struct Publishing {
  // Calls the routine of a class as a query of the class would.
  void Run(PublishRoutine routine, const std::string& className) {
    ZenxCollectData collector(&log, controllers, rawData);
    CollectRaidMgrData raidManagerLog(&log);
    const NKVRHXA20::TPropertyMap lookupContext;
    log.entries.clear();
    routine({nameSpace, lookupContext, collector, raidManagerLog, &log}, *nameSpace.GetClass(className, {}));
  }

  // The routine publishes nothing and logs this.
  void ExpectNothing(PublishRoutine routine, const std::string& className, const Entries& logged) {
    Run(routine, className);
    EXPECT_TRUE(nameSpace.Published(className).empty()) << className;
    EXPECT_EQ(log.entries, logged) << className;
  }

  // A new controller at the end of the list.
  ZenxController& AddController(const std::string& number) {
    controllers.push_back(std::make_shared<ZenxController>(&log));
    controllers.back()->ControllerNum = number;
    return *controllers.back();
  }

  ScriptedServices services;
  RecordingLog log;
  FakeNamespace nameSpace;
  ControllerList controllers;
  RawDataList rawData;
};

// A new record at the end of a controller's list.
template <class Record>
Record& Add(std::vector<std::shared_ptr<Record>>& records) {
  return *records.emplace_back(std::make_shared<Record>(nullptr));
}

// A field's own name, in the blanks and line ends that tools put around a value.
inline std::string AsPrinted(const std::string& name) { return " " + name + " \r\n"; }

// Sets every text of the record to its own name, as printed.
template <class Record>
void NameFields(Record& record) {
  for (const auto& [name, field] : FieldsOf(record)) record.*field = AsPrinted(name);
}

// A new record at the end of a controller's list, with its fields named.
template <class Record>
Record& AddNamed(std::vector<std::shared_ptr<Record>>& records) {
  Record& record = Add(records);
  NameFields(record);
  return record;
}

// Whether the only instance of a class has the declared properties in their order, each with its own name as value,
// except the given rows.
inline testing::AssertionResult IsNamedAfterFields(FakeNamespace& nameSpace, const std::string& className,
                                                   std::string (*form)(const std::string& name),
                                                   const Properties& otherRows) {
  const Instances published = nameSpace.Published(className);
  if (published.size() != 1) return testing::AssertionFailure() << published.size() << " instances";
  Properties expected;
  for (const auto& property : NKVRHXA20::FindClass(className)->properties) {
    const std::string name(property.name);
    const auto other = std::ranges::find_if(otherRows, [&](const std::string& row) {
      return NKVRHXA20::EqualIgnoringCase(row.substr(0, row.find(' ')), name);
    });
    expected.push_back(other != otherRows.end() ? *other : name + " = \"" + form(name) + '"');
  }
  return SameLines(expected, published.front());
}
