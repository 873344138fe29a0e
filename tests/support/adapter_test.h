#pragma once

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "tests/support/controller_summary.h"
#include "tests/support/scripted_services.h"
#include "tests/support/tool_text.h"

// A machine on which a utility reports none of nine controllers; a test adds some.
class AdapterTest : public testing::Test {
 protected:
  AdapterTest(std::string tool, const std::string& noControllers) : tool_(std::move(tool)) {
    for (unsigned number = 1; number <= 9; ++number) services_.answers[GetConfig(number)] = noControllers;
  }

  std::string GetConfig(unsigned number) const { return tool_ + " getconfig " + std::to_string(number) + " al"; }

  template <class Adapter>
  void CollectBy(Adapter adapter, unsigned firstControllerNumber) {
    adapter.Collect(firstControllerNumber);
    controllers_ = adapter.GetControllers();
    rawData_ = adapter.GetRawData();
  }

  // The objects in a configuration of controller 1.
  virtual std::string CollectOne(const std::string& config) = 0;

  // LD is replaced by the beginning of a drive's heading.
  void ExpectDrives(const char* name, const std::string& section, const std::string& found) {
    EXPECT_EQ(CollectOne(CrLf("Controller information\nLogical drive information\n----\n" +
                              Replaced(section, "LD", "Logical drive"))),
              "1 \n" + found)
        << name;
  }

  ScriptedServices services_;
  ControllerList controllers_;
  RawDataList rawData_;

 private:
  std::string tool_;
};
