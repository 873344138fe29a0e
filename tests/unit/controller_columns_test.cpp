#include "host/hxahost/views/controller_columns.h"

#include <gtest/gtest.h>

#include "host/hxacore/schema.h"

namespace {

using namespace hxahost;
using NKVRHXA20::FindClass;
using NKVRHXA20::FindProperty;

TEST(ControllerColumns, NameDeclaredPropertiesOnly) {
  for (const DeviceKind& kind : DeviceKinds()) {
    const auto* const declaration = FindClass(kind.className);
    ASSERT_NE(declaration, nullptr) << kind.className;
    EXPECT_NE(FindProperty(*declaration, "ControllerNum"), nullptr) << kind.className;
    for (const InstanceColumn& column : kind.columns) {
      if (column.property.empty()) continue;
      EXPECT_NE(FindProperty(*declaration, column.property), nullptr) << kind.className << "." << column.property;
    }
  }
  const auto* const controller = FindClass(DeviceKinds().front().className);
  for (const auto facts : {IdentityFacts(), StateFacts()}) {
    for (const Fact& fact : facts) EXPECT_NE(FindProperty(*controller, fact.property), nullptr) << fact.property;
  }
}

}  // namespace
