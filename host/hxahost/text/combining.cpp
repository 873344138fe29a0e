#include "host/hxahost/text/combining.h"

#include "host/hxahost/text/code_range.h"

namespace hxahost {

namespace {

// Marks of scripts whose letters change shape are left out.
constexpr CodeRange kCombining[] = {
    {0x300,   0x36f  },
    {0x483,   0x489  },
    {0x591,   0x5bd  },
    {0x610,   0x61a  },
    {0x64b,   0x65f  },
    {0xe31,   0xe31  }, // Thai, and below Lao
    {0xe34,   0xe3a  },
    {0xe47,   0xe4e  },
    {0xeb1,   0xeb1  },
    {0xeb4,   0xebc  },
    {0xec8,   0xecd  },
    {0x135d,  0x135f },
    {0x1ab0,  0x1aff },
    {0x1dc0,  0x1dff },
    {0x20d0,  0x20ff },
    {0x302a,  0x302d },
    {0x3099,  0x309a },
    {0xa66f,  0xa672 },
    {0xa674,  0xa67d },
    {0xfe00,  0xfe0f },
    {0xfe20,  0xfe2f },
    {0xe0100, 0xe01ef},
};

}  // namespace

bool IsCombining(char32_t code) { return IsIn(code, kCombining); }

}  // namespace hxahost
