#include "publish/property_table.h"

#include <gtest/gtest.h>

#include "tests/support/fake_namespace.h"

namespace {

using NKVRHXA20::TCIMDateTime;
using NKVRHXA20::TCIMValue;

struct Owner {
  std::string Name;
};

struct Part {
  std::string Name;
  TCIMDateTime Time;
};

std::string Both(const Owner& owner, const Part& part) { return owner.Name + "+" + part.Name; }
TCIMValue Length(const Owner&, const Part& part) { return static_cast<unsigned>(part.Name.size()); }
std::string Machine() { return " machine "; }
constexpr unsigned short kNumber = 7;

// One row for each kind of source.
constexpr Property<Owner, Part> kRows[] = {
    {"Fixed",   " fixed "   },
    {"Number",  kNumber     },
    {"OfOwner", &Owner::Name},
    {"OfPart",  &Part::Name },
    {"Time",    &Part::Time },
    {"Both",    Both        },
    {"Length",  Length      },
    {"Machine", Machine     },
};

const Owner kOwner{" owner\r\n"};
const Part kPart{"\tpart ", TCIMDateTime(2005, 3, 15, 14, 2, 33, 0, 0)};

using Instances = std::vector<std::vector<std::string>>;

TEST(PropertyTable, PublishesEachKindOfSourceInRowOrderAndTrimsOnlyFields) {
  FakeNamespace nameSpace;
  PublishTrimmed(*nameSpace.GetClass("Class", {}), kRows, kOwner, kPart);
  EXPECT_EQ(nameSpace.Published("Class"),
            (Instances{
                {"Fixed = \" fixed \"", "Number = uint16 7", "OfOwner = \"owner\"", "OfPart = \"part\"",
                 "Time = datetime 20050315140233.000000+000", "Both = \" owner\r\n+\tpart \"", "Length = uint32 6",
                 "Machine = \" machine \""}
  }));
}

TEST(PropertyTable, PublishesUntrimmedFieldsOnRequest) {
  FakeNamespace nameSpace;
  PublishAsHeld(*nameSpace.GetClass("Class", {}), kRows, kOwner, kPart);
  EXPECT_EQ(nameSpace.Published("Class").at(0).at(2), "OfOwner = \" owner\r\n\"");
  EXPECT_EQ(nameSpace.Published("Class").at(0).at(3), "OfPart = \"\tpart \"");
}

}  // namespace
