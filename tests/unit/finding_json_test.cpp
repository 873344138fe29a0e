#include "host/hxahost/views/monitoring/finding_json.h"

#include <gtest/gtest.h>

namespace {

using namespace hxahost;

TEST(FindingJson, HasItsKeysInTheOrderThatProgramsSee) {
  const Finding finding{Severity::kWarning, "class", "identifier\xf6", "name", "property", "text", {"meaning"}, 7};
  EXPECT_EQ(FindingJson(finding).dump(),
            R"({"severity":"warning","class":"class","identifier":"identifierö","name":"name",)"
            R"("property":"property","text":"text","meaning":"meaning"})");
}

}  // namespace
