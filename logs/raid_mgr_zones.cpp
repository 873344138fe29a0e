#include "logs/raid_mgr_zones.h"

#include <algorithm>
#include <iterator>

namespace {

struct Zone {
  std::string_view name;
  int hours;
};

// Searched from the top. ADT, CDT and BST come twice: their lower rows never match, so that a time keeps the offset
// under which it has always been published.
constexpr Zone kZones[] = {
    {"ADT",  -3 },
    {"EDT",  -4 },
    {"AST",  -4 },
    {"EST",  -5 },
    {"CDT",  -5 },
    {"CST",  -6 },
    {"MDT",  -6 },
    {"MST",  -7 },
    {"PDT",  -7 },
    {"PST",  -8 },
    {"ADT",  -8 },
    {"AKDT", -8 },
    {"ALA",  -9 },
    {"AKST", -9 },
    {"HAW",  -10},
    {"A",    1  },
    {"BST",  1  },
    {"CET",  1  },
    {"FWT",  1  },
    {"MET",  1  },
    {"MEWT", 1  },
    {"SWT",  1  },
    {"EET",  2  },
    {"B",    2  },
    {"BST",  3  },
    {"C",    3  },
    {"ZP4",  4  },
    {"ZP5",  5  },
    {"ZP6",  6  },
    {"WAST", 7  },
    {"CCT",  8  },
    {"AWST", 8  },
    {"ACDT", 9  },
    {"JST",  9  },
    {"ACST", 10 },
    {"EAST", 10 },
    {"AEST", 10 },
    {"CDT",  10 },
    {"AEDT", 11 },
    {"IDLE", 12 },
    {"NZST", 12 },
    {"NZT",  12 },
};

}  // namespace

int HoursFromUtc(std::string_view zone) {
  const auto* const found = std::ranges::find(kZones, zone, &Zone::name);
  return found == std::end(kZones) ? 0 : found->hours;
}
