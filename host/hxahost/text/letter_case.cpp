#include "host/hxahost/text/letter_case.h"

#include <algorithm>
#include <cstdint>
#include <iterator>

namespace hxahost {

namespace {

// Every letter, or every second one, from the first to the last, and how far its small letter is away.
struct CapitalLetters {
  char32_t first;
  char32_t last;
  char32_t step;
  std::int32_t distance;
};

// Those beyond ASCII, in the order of their codes. Both letters "i" of Turkish, with a dot and without, are "i":
// whether a capital one has a dot depends on the language.
constexpr CapitalLetters kCapitals[] = {
    {0xb5,   0xb5,   1, 775  },
    {0xc0,   0xd6,   1, 32   },
    {0xd8,   0xde,   1, 32   },
    {0x100,  0x12e,  2, 1    },
    {0x130,  0x130,  1, -199 },
    {0x131,  0x131,  1, -200 },
    {0x132,  0x136,  2, 1    },
    {0x139,  0x147,  2, 1    },
    {0x14a,  0x176,  2, 1    },
    {0x178,  0x178,  1, -121 },
    {0x179,  0x17d,  2, 1    },
    {0x17f,  0x17f,  1, -268 },
    {0x181,  0x181,  1, 210  },
    {0x182,  0x184,  2, 1    },
    {0x186,  0x186,  1, 206  },
    {0x187,  0x187,  1, 1    },
    {0x189,  0x18a,  1, 205  },
    {0x18b,  0x18b,  1, 1    },
    {0x18e,  0x18e,  1, 79   },
    {0x18f,  0x18f,  1, 202  },
    {0x190,  0x190,  1, 203  },
    {0x191,  0x191,  1, 1    },
    {0x193,  0x193,  1, 205  },
    {0x194,  0x194,  1, 207  },
    {0x196,  0x196,  1, 211  },
    {0x197,  0x197,  1, 209  },
    {0x198,  0x198,  1, 1    },
    {0x19c,  0x19c,  1, 211  },
    {0x19d,  0x19d,  1, 213  },
    {0x19f,  0x19f,  1, 214  },
    {0x1a0,  0x1a4,  2, 1    },
    {0x1a6,  0x1a6,  1, 218  },
    {0x1a7,  0x1a7,  1, 1    },
    {0x1a9,  0x1a9,  1, 218  },
    {0x1ac,  0x1ac,  1, 1    },
    {0x1ae,  0x1ae,  1, 218  },
    {0x1af,  0x1af,  1, 1    },
    {0x1b1,  0x1b2,  1, 217  },
    {0x1b3,  0x1b5,  2, 1    },
    {0x1b7,  0x1b7,  1, 219  },
    {0x1b8,  0x1b8,  1, 1    },
    {0x1bc,  0x1bc,  1, 1    },
    {0x1c4,  0x1c4,  1, 2    },
    {0x1c5,  0x1c5,  1, 1    },
    {0x1c7,  0x1c7,  1, 2    },
    {0x1c8,  0x1c8,  1, 1    },
    {0x1ca,  0x1ca,  1, 2    },
    {0x1cb,  0x1db,  2, 1    },
    {0x1de,  0x1ee,  2, 1    },
    {0x1f1,  0x1f1,  1, 2    },
    {0x1f2,  0x1f4,  2, 1    },
    {0x1f6,  0x1f6,  1, -97  },
    {0x1f7,  0x1f7,  1, -56  },
    {0x1f8,  0x21e,  2, 1    },
    {0x220,  0x220,  1, -130 },
    {0x222,  0x232,  2, 1    },
    {0x23a,  0x23a,  1, 10795},
    {0x23b,  0x23b,  1, 1    },
    {0x23d,  0x23d,  1, -163 },
    {0x23e,  0x23e,  1, 10792},
    {0x241,  0x241,  1, 1    },
    {0x243,  0x243,  1, -195 },
    {0x244,  0x244,  1, 69   },
    {0x245,  0x245,  1, 71   },
    {0x246,  0x24e,  2, 1    },
    {0x370,  0x372,  2, 1    },
    {0x376,  0x376,  1, 1    },
    {0x37f,  0x37f,  1, 116  },
    {0x386,  0x386,  1, 38   },
    {0x388,  0x38a,  1, 37   },
    {0x38c,  0x38c,  1, 64   },
    {0x38e,  0x38f,  1, 63   },
    {0x391,  0x3a1,  1, 32   },
    {0x3a3,  0x3ab,  1, 32   },
    {0x3c2,  0x3c2,  1, 1    },
    {0x3cf,  0x3cf,  1, 8    },
    {0x3d0,  0x3d0,  1, -30  },
    {0x3d1,  0x3d1,  1, -25  },
    {0x3d5,  0x3d5,  1, -15  },
    {0x3d6,  0x3d6,  1, -22  },
    {0x3d8,  0x3ee,  2, 1    },
    {0x3f0,  0x3f0,  1, -54  },
    {0x3f1,  0x3f1,  1, -48  },
    {0x3f4,  0x3f4,  1, -60  },
    {0x3f5,  0x3f5,  1, -64  },
    {0x3f7,  0x3f7,  1, 1    },
    {0x3f9,  0x3f9,  1, -7   },
    {0x3fa,  0x3fa,  1, 1    },
    {0x3fd,  0x3ff,  1, -130 },
    {0x400,  0x40f,  1, 80   },
    {0x410,  0x42f,  1, 32   },
    {0x460,  0x480,  2, 1    },
    {0x48a,  0x4be,  2, 1    },
    {0x4c0,  0x4c0,  1, 15   },
    {0x4c1,  0x4cd,  2, 1    },
    {0x4d0,  0x52e,  2, 1    },
    {0x531,  0x556,  1, 48   },
    {0x1e00, 0x1e94, 2, 1    },
    {0x1e9b, 0x1e9b, 1, -58  },
    {0x1e9e, 0x1e9e, 1, -7615},
    {0x1ea0, 0x1efe, 2, 1    },
    {0x1f08, 0x1f0f, 1, -8   },
    {0x1f18, 0x1f1d, 1, -8   },
    {0x1f28, 0x1f2f, 1, -8   },
    {0x1f38, 0x1f3f, 1, -8   },
    {0x1f48, 0x1f4d, 1, -8   },
    {0x1f59, 0x1f5f, 2, -8   },
    {0x1f68, 0x1f6f, 1, -8   },
    {0x1f88, 0x1f8f, 1, -8   },
    {0x1f98, 0x1f9f, 1, -8   },
    {0x1fa8, 0x1faf, 1, -8   },
    {0x1fb8, 0x1fb9, 1, -8   },
    {0x1fba, 0x1fbb, 1, -74  },
    {0x1fbc, 0x1fbc, 1, -9   },
    {0x1fbe, 0x1fbe, 1, -7173},
    {0x1fc8, 0x1fcb, 1, -86  },
    {0x1fcc, 0x1fcc, 1, -9   },
    {0x1fd8, 0x1fd9, 1, -8   },
    {0x1fda, 0x1fdb, 1, -100 },
    {0x1fe8, 0x1fe9, 1, -8   },
    {0x1fea, 0x1feb, 1, -112 },
    {0x1fec, 0x1fec, 1, -7   },
    {0x1ff8, 0x1ff9, 1, -128 },
    {0x1ffa, 0x1ffb, 1, -126 },
    {0x1ffc, 0x1ffc, 1, -9   },
    {0x212a, 0x212a, 1, -8383},
    {0x212b, 0x212b, 1, -8262},
    {0xff21, 0xff3a, 1, 32   },
};

}  // namespace

char32_t FoldCase(char32_t code) {
  if (code < 0x80) return code >= 'A' && code <= 'Z' ? code - 'A' + 'a' : code;
  const auto* const after = std::ranges::upper_bound(kCapitals, code, {}, &CapitalLetters::first);
  if (after == std::begin(kCapitals)) return code;
  const CapitalLetters& letters = *std::prev(after);
  if (code > letters.last || (code - letters.first) % letters.step != 0) return code;
  return static_cast<char32_t>(static_cast<std::int32_t>(code) + letters.distance);
}

}  // namespace hxahost
