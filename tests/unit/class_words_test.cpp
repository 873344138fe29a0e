#include "host/hxahost/schema/class_words.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "host/hxacore/schema.h"
#include "host/hxahost/system/exit_status.h"

namespace {

using namespace hxahost;

TEST(ClassWords, MeanClasses) {
  struct Case {
    const char* word;
    std::vector<std::string> expected;
  };
  const Case cases[] = {
      {"KVRSG_zxLogicalDisk", {"KVRSG_zxLogicalDisk"}  },
      {"kvrsg_zxlogicaldisk", {"KVRSG_zxLogicalDisk"}  },
      {"zxLogicalDisk",       {"KVRSG_zxLogicalDisk"}  },
      {"LogicalDisk",         {"KVRSG_zxLogicalDisk"}  },
      {"logrecord_ddd",       {"KVRSG_LogRecord_zxDDD"}},
      {"diskgroup",           {"KVRSG_zxDiskGroup"}    },
      {"KVRSG_DiskGroup",     {"KVRSG_DiskGroup"}      },
      {"BADSTRIPEDATA",       {"KVRSG_BadStripeData"}  },
      {"Disks",               {"KVRSG_zxDiskDrive"}    },
      {"events",
       {"KVRSG_LogRecord_SoftEvent", "KVRSG_LogRecord_zxDDD", "KVRSG_LogRecord_HardEvent",
        "KVRSG_LogRecord_RAIDMgrEvent"}                },
  };
  for (const Case& each : cases) EXPECT_EQ(ClassesCalled(each.word), each.expected) << each.word;
  for (const std::string& word : ClassWords()) {
    for (const std::string& name : ClassesCalled(word)) EXPECT_NE(NKVRHXA20::FindClass(name), nullptr) << name;
  }
}

TEST(ClassWords, AreCorrectedToTheNearestKnownWord) {
  const std::pair<const char*, const char*> cases[] = {
      {"disk",       "--class disk is not known: did you mean disks? \"hxahost classes\" lists what there is."},
      {"logicldisk", "did you mean logicaldisk?"                                                              },
      {"nothing",    "--class nothing is not known: \"hxahost classes\" lists what there is."                 },
      {"",           "is not known"                                                                           },
  };
  for (const auto& [word, says] : cases) {
    try {
      ClassesCalled(word);
      ADD_FAILURE() << word << " was taken";
    } catch (const ProgramError& error) {
      EXPECT_EQ(error.Status(), ExitStatus::kWrongArguments);
      EXPECT_THAT(error.what(), testing::HasSubstr(says));
    }
  }
}

}  // namespace
