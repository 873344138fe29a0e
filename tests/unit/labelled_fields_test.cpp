#include "collect/labelled_fields.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>
#include <vector>

namespace {

struct Disk {
  std::string Name;
  std::string Size;
  std::string State;

  friend bool operator==(const Disk&, const Disk&) = default;
};

constexpr LabelledField<Disk> kDisk[] = {
    {"Name",  &Disk::Name },
    {"Size",  &Disk::Size },
    {"State", &Disk::State},
};

constexpr LabelledField<Disk> kStrictDisk[] = {
    {"Name",  &Disk::Name,  Miss::kTakesLine   },
    {"Size",  &Disk::Size,  Miss::kTakesLine   },
    {"State", &Disk::State, Miss::kCostsNothing},
};

Disk InOrder(std::string_view lines, LabelTable<Disk> table = kDisk) {
  CollectedData text(nullptr, std::string(lines));
  Disk disk;
  ReadInOrder(text, disk, table);
  return disk;
}

TEST(LabelledFields, ReadsTheLinesAfterTheCurrentOneInTheOrderOfTheTable) {
  EXPECT_EQ(InOrder("head\nName : a\nSize : 1\nState : ok\n"), (Disk{" a\n", " 1\n", " ok\n"}));
}

TEST(LabelledFields, EmptiesTheFieldOfAMissAndReplacesOtherValues) {
  CollectedData text(nullptr, "head\nSize : 2\nend of the lines\n");
  Disk disk{"name", "size", "state"};
  ReadInOrder(text, disk, kDisk);
  EXPECT_EQ(disk, (Disk{"", " 2\n", ""}));
}

TEST(LabelledFields, DoesNotReadTheCurrentLine) {
  EXPECT_EQ(InOrder("Name : a\nName : b\nSize : 1\nState : ok\n").Name, " b\n");
}

TEST(LabelledFields, OffersTheLineOfAMissToTheNextLabel) {
  EXPECT_EQ(InOrder("head\nSize : 1\nState : ok\n"), (Disk{"", " 1\n", " ok\n"}));
}

TEST(LabelledFields, UsesUpTheLineOfAMissThatTakesIt) {
  EXPECT_EQ(InOrder("head\nSize : 1\nState : ok\nend\n", kStrictDisk), (Disk{"", "", ""}));
  EXPECT_EQ(InOrder("head\nelse\nSize : 1\nState : ok\n", kStrictDisk), (Disk{"", " 1\n", " ok\n"}));
}

TEST(LabelledFields, CountsALabelWithoutAColonAsAMiss) {
  EXPECT_EQ(InOrder("head\nName\nName : b\nend\n"), (Disk{"", "", ""}));
}

TEST(LabelledFields, EndsOnTheLastLineRead) {
  CollectedData text(nullptr, "head\nName : a\nend\n");
  Disk disk;
  ReadInOrder(text, disk, kDisk);
  EXPECT_EQ(text.CurrentLine(), "Name : a\n");
}

TEST(LabelledFields, FailsAtTheEndOfTheTextAndKeepsTheValuesSoFar) {
  CollectedData text(nullptr, "head\nName : a\n");
  Disk disk;
  EXPECT_THROW(ReadInOrder(text, disk, kDisk), std::out_of_range);
  EXPECT_EQ(disk.Name, " a\n");
}

TEST(LabelledFields, ReadsTheFirstLineOfEachLabelAnywhere) {
  CollectedData text(nullptr, "State : ok\nName : a\nSize : 1\nName : b\n");
  Disk disk;
  ReadAnywhere<Disk>(text, disk, kDisk);
  EXPECT_EQ(disk, (Disk{" a\n", " 1\n", " ok\n"}));
}

TEST(LabelledFields, LeavesAFieldEmptyWithoutItsLabel) {
  CollectedData text(nullptr, "Size : 1\n");
  Disk disk;
  ReadAnywhere<Disk>(text, disk, kDisk);
  EXPECT_EQ(disk, (Disk{"", " 1\n", ""}));
}

TEST(LabelledFields, CutsASectionValueBetweenBlankAndCarriageReturn) {
  struct Case {
    std::string name;
    std::string text;
    std::string expected;
  };
  const std::vector<Case> cases = {
      {"as printed",                           "Size : 10 MB\r\n",        "10 MB"},
      {"one character",                        "Size : 1\r\n",            "1"    },
      {"second blank stays",                   "Size :  10\r\n",          " 10"  },
      {"no blank loses a character",           "Size :10\r\n",            "0"    },
      {"no carriage return loses a character", "Size : 10\n",             "1"    },
      {"value with a colon",                   "Size : 10:30\r\n",        "10:30"},
      {"colon on a later line",                "Size\r\nName : a\r\n",    "a"    },
      {"line end directly after the colon",    "Size :\r\nName : a\r\n",  ""     },
      {"line feed directly after the colon",   "Size :\nName : a\r\n",    ""     },
      {"blank alone after the colon",          "Size : \r\nName : a\r\n", ""     },
      {"one character and a line feed",        "Size :x\nName : a\r\n",   ""     },
      {"no label",                             "Name : a\r\n",            ""     },
      {"no colon",                             "Size\r\n",                ""     },
      {"no line feed",                         "Size : 10\r",             ""     },
      {"no text",                              "",                        ""     },
  };
  for (const Case& textCase : cases) {
    EXPECT_EQ(GetSectionValue("Size", textCase.text), textCase.expected) << textCase.name;
  }
}

TEST(LabelledFields, LooksForASectionValueOnlyWhereTheSectionAllows) {
  const std::string text = "Size : 1\r\n[one]\r\nSize : 2\r\n[two]\r\nSize : 3\r\n";
  struct Case {
    std::string name;
    Section section;
    std::string expected;
  };
  const std::vector<Case> cases = {
      {"anywhere",                          {"", ""},           "1"},
      {"from the start mark",               {"[one]", ""},      "2"},
      {"start mark missing",                {"[nine]", ""},     "" },
      {"end mark after the label",          {"[one]", "[two]"}, "2"},
      {"end mark before the label",         {"[two]", "[one]"}, "" },
      {"end mark missing",                  {"", "[nine]"},     "" },
      {"end mark need not end the section", {"", "[two]"},      "1"},
  };
  for (const Case& sectionCase : cases) {
    EXPECT_EQ(GetSectionValue("Size", text, sectionCase.section), sectionCase.expected) << sectionCase.name;
  }
}

}  // namespace
