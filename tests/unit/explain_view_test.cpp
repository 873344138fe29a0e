#include "host/hxahost/views/tables/explain_view.h"

#include <gtest/gtest.h>

#include <sstream>

#include "host/hxahost/schema/class_names.h"
#include "tests/support/filled_repository.h"

namespace {

using namespace hxahost;

TEST(ExplainView, ShowsTheDifferentValueOfALine) {
  FilledRepository repository;
  repository.Publish("KVRSG_zxDiskDrive", "DeviceID", "C1", "State", "Online\r", "PFA", "No", "SystemName", "HOST");
  repository.Publish("KVRSG_zxRawData", "Command", "tool", "RawResults", Texts({"   State   : Failed", "PFA : No"}));
  Object object;
  object.name = "disk 1";
  std::ostringstream out;
  WriteExplanation(
      out,
      {
          60
  },
      repository.Instances(), {kDiskDriveClass, &object, "C1 slot 1"},
      {{"DeviceID", Evidence::kNoLine},
       {"State", Evidence::kDiffers, 1, {0}},
       {"PFA", Evidence::kLine, 1, {1}},
       {"SystemName", Evidence::kMade, 0, {}, "a text that is longer than what one line of the width holds"}});
  EXPECT_EQ(out.str(),
            "C1 slot 1: disk 1\n"
            "\n"
            "tool\n"
            "  Property  Value   Line  but it says\n"
            "  State     Online  1     State : Failed\n"
            "  PFA       No      2\n"
            "\n"
            "In no line of the object: the tool answered differently when asked again\n"
            "  DeviceID: C1\n"
            "\n"
            "Composed, counted or fixed\n"
            "  SystemName: HOST\n"
            "      a text that is longer than what one line of the width\n"
            "      holds\n");
}

}  // namespace
