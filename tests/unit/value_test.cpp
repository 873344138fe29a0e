#include "plugin/host_interface/value.h"

#include <gtest/gtest.h>

#include "host/hxacore/value_reader.h"

namespace {

using namespace NKVRHXA20;

TCIMReference DiskOne() {
  return TCIMReferenceFactory::Make(nullptr, "KVRSG_zxLogicalDisk",
                                    {
                                        {"DeviceID", "Zentraxis1LD1"}
  });
}

TCIMValue Codes() {
  return {
      TCIMValue::TCIMType(kCIMUInt32), 0, {1U, 255U}
  };
}

constexpr const char* kDiskOnePath = "KVRSG_zxLogicalDisk.DeviceID=\"Zentraxis1LD1\"";

struct TextCase {
  const char* name;
  TCIMValue value;
  ValueKind kind;
  const char* text;
};

TEST(Value, HasAKindAndAText) {
  const TCIMDateTime time("20260305010203.000004+000");
  const TextCase cases[] = {
      {"nothing",       TCIMValue(),                        ValueKind::kNone,      ""                         },
      {"string",        std::string("a\n"),                 ValueKind::kString,    "a\n"                      },
      {"literal",       "text",                             ValueKind::kString,    "text"                     },
      {"empty string",  "",                                 ValueKind::kString,    ""                         },
      {"uint16",        static_cast<unsigned short>(65535), ValueKind::kUInt16,    "65535"                    },
      {"uint32",        4294967295U,                        ValueKind::kUInt32,    "4294967295"               },
      {"date and time", time,                               ValueKind::kDateTime,  "20260305010203.000004+000"},
      {"reference",     DiskOne(),                          ValueKind::kReference, kDiskOnePath               },
      {"array",         Codes(),                            ValueKind::kArray,     ""                         },
  };
  for (const TextCase& one : cases) {
    EXPECT_EQ(TCIMValueReader::Kind(one.value), one.kind) << one.name;
    EXPECT_EQ(std::string(one.value), one.text) << one.name;
  }
}

struct NumberCase {
  const char* name;
  TCIMValue value;
  unsigned short number;
};

TEST(Value, ConvertsToANumberThatFitsOrZero) {
  const NumberCase cases[] = {
      {"uint16",                     static_cast<unsigned short>(82), 82   },
      {"uint32",                     82U,                             82   },
      {"uint32 that does not fit",   65536U,                          0    },
      {"largest",                    65535U,                          65535},
      {"text",                       "82",                            82   },
      {"text with more after",       "82 and more",                   82   },
      {"text that does not fit",     "65536",                         0    },
      {"text far too large",         "99999999999999999999999",       0    },
      {"text with a blank in front", " 82",                           0    },
      {"negative text",              "-1",                            0    },
      {"word",                       "eighty-two",                    0    },
      {"empty text",                 "",                              0    },
      {"nothing",                    {},                              0    },
      {"array",                      Codes(),                         0    },
      {"reference",                  DiskOne(),                       0    },
  };
  for (const NumberCase& one : cases) {
    EXPECT_EQ(static_cast<unsigned short>(one.value), one.number) << one.name;
  }
}

TEST(Value, AnArrayContainsItsElementsWithAnyCount) {
  TCIMValue value = "before";
  value.Set(TCIMValue::TCIMType(kCIMString), 0, {"a", "b", "c"});
  ASSERT_EQ(TCIMValueReader::Kind(value), ValueKind::kArray);
  EXPECT_EQ(TCIMValueReader::ElementType(value), kCIMString);
  ASSERT_EQ(TCIMValueReader::Elements(value).size(), 3U);
  EXPECT_EQ(TCIMValueReader::Text(TCIMValueReader::Elements(value)[2]), "c");
}

TEST(Value, ACopyDoesNotChangeWithTheOriginal) {
  TCIMValue value = Codes();
  const TCIMValue copy = value;
  value = "other";
  EXPECT_EQ(TCIMValueReader::Number(TCIMValueReader::Elements(copy)[1]), 255U);
  EXPECT_EQ(std::string(value), "other");
}

struct PathCase {
  const char* name;
  TPropertyMap keys;
  const char* path;
};

TEST(ObjectPath, NamesKeysInTheirOrderWithQuotesAndBackslashesEscaped) {
  const TCIMReference quote = TCIMReferenceFactory::Make(nullptr, "D",
                                                         {
                                                             {"k", "\""}
  });
  const PathCase cases[] = {
      {"no key",           {},                                                 "C"                                 },
      {"order of names",   {{"b", "2"}, {"a", "1"}},                           R"(C.a="1",b="2")"                  },
      {"number",           {{"n", static_cast<unsigned short>(3)}, {"u", 7U}}, "C.n=3,u=7"                         },
      {"text of digits",   {{"n", "3"}},                                       R"(C.n="3")"                        },
      {"quote",            {{"k", "a\"b"}},                                    R"(C.k="a\"b")"                     },
      {"backslash",        {{"k", "a\\"}},                                     R"(C.k="a\\")"                      },
      {"time",             {{"t", TCIMDateTime()}},                            R"(C.t="00000000000000.000000+000")"},
      {"comma and equals", {{"k", "a,b=c"}},                                   R"(C.k="a,b=c")"                    },
      {"reference",        {{"r", quote}},                                     R"(C.r="D.k=\"\\\"\"")"             },
  };
  for (const PathCase& one : cases) {
    EXPECT_EQ(TCIMReferenceFactory::ObjectPath(TCIMReferenceFactory::Make(nullptr, "C", one.keys)), one.path)
        << one.name;
  }
}

TEST(ObjectPath, OfAReferenceWithOnlyKeysHasNoClass) {
  const TCIMReference reference(nullptr, {
                                             {"k", "v"}
  });
  EXPECT_EQ(TCIMReferenceFactory::ClassName(reference), "");
  EXPECT_EQ(TCIMReferenceFactory::ObjectPath(reference), ".k=\"v\"");
  EXPECT_EQ(TCIMReferenceFactory::ObjectPath(TCIMReference()), "");
}

}  // namespace
