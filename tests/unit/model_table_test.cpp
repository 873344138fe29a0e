#include "collect/model_table.h"

#include <gtest/gtest.h>

namespace {

constexpr ModelName kModels[] = {
    {"X1-a", "Model X1 a"},
    {"X1",   "Model X1"  },
};

TEST(ModelTable, TakesTheFirstRowWhoseSearchTextIsInTheModel) {
  EXPECT_EQ(NameOfModel("KVR X1-a SCSI", kModels), "Model X1 a");
  EXPECT_EQ(NameOfModel("KVR X1 SCSI", kModels), "Model X1");
}

TEST(ModelTable, KeepsAModelWithoutARow) {
  EXPECT_EQ(NameOfModel("KVR x1", kModels), "KVR x1");
  EXPECT_EQ(NameOfModel("", kModels), "");
}

}  // namespace
