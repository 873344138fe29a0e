#include "host/hxacore/value_type.h"

#include <gtest/gtest.h>

#include "host/hxacore/value_reader.h"

namespace {

using namespace NKVRHXA20;

const PropertyDeclaration& Declared(const char* className, const char* property) {
  return *FindProperty(*FindClass(className), property);
}

TCIMReference ReferenceTo(const std::string& className) { return TCIMReferenceFactory::Make(nullptr, className, {}); }

struct TypeCase {
  const char* name;
  const PropertyDeclaration& declared;
  TCIMValue value;
  bool fits;
};

const PropertyDeclaration& kText = Declared("KVRSG_zxLogicalDisk", "Size");
const PropertyDeclaration& kTexts = Declared("KVRSG_zxRawData", "RawResults");
const PropertyDeclaration& kNumber = Declared("KVRSG_zxBiosVersion", "SoftwareElementState");
const PropertyDeclaration& kCodes = Declared("KVRSG_LogRecord_SoftEvent", "HexSoftEvent");
const PropertyDeclaration& kTime = Declared("KVRSG_zxSCSIDeviceData", "StatisticTime");
const PropertyDeclaration& kLink = Declared("KVRSG_ElementBadStripeData", "Stats");

TEST(ValueType, FitsADeclarationOnlyIfItIsTheDeclaredOne) {
  const TCIMValue::TCIMType text(kCIMString);
  const TCIMValue::TCIMType number(kCIMUInt32);
  const TypeCase cases[] = {
      {"text",              kText,                                  "x",                                                      true                                                                                                                        },
      {"nothing",           kText,                                  {},                                                       true                                                                                                                        },
      {"number for a text", kText,                                  3U,                                                       false                                                                                                                       },
      {"texts for a text",  kText,                                  TCIMValue(text,                                           0,                                                                                                                            {"x"}), false},
      {"uint16",              kNumber,                                                    static_cast<unsigned short>(3),                                                                                                     true                                                                                                                                                                                                            },
      {"uint32 for a uint16",               kNumber,                                                     3U,false},
      {"text for a number",              kNumber,                                                    "3",                                                                                                      false                                                                                                                                                                                                                                                                                                                              },
      {"texts",              kTexts,                                                    TCIMValue(text, 0,{"x", "y"}), true},
      {"no texts",                  kTexts,                                             TCIMValue(text,                                                                                                 0,                                                                                                                                                                                                                                                                                                                                                                                                                                                  {}), true},
      {"nothing for texts",kTexts,{},true},
      {"a text for texts",                   kTexts,                                       "x",                                                                                              false                                                                                                                                                                                                                                                },
      {"numbers for texts",                   kTexts,                                        TCIMValue(number,                                                                        0,                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                     {1U}), false},
      {"numbers that call themselves texts",                   kTexts,                                       TCIMValue(text,                                                                       0,{"x", 1U}), false},
      {"codes",              kCodes,                                               TCIMValue(number,                                                                                                       0,{1U, 2U}), true},
      {"no codes, of the wrong type",     kCodes,    TCIMValue(text,0,                                                                                                                                                                                                        {}), false},
      {"time",             kTime,                                TCIMDateTime(),                          true                                              },
      {"text for a time",               kTime,                                                     "20260305123015.250000+060",                                                                                 false                                                                                                                                                                                                  },
      {"reference",                  kLink,                                                     ReferenceTo("kvrsg_badstripedata"),                                                                                                                             true                                                 },
      {"reference that names no class",  kLink,TCIMReference(),                      true                                                                                                   },
      {"reference to another class",kLink,ReferenceTo("KVRSG_zxLogicalDisk"),false},
      {"path for a reference",kLink,"KVRSG_BadStripeData.InstanceID=\"x\"",false},
  };
  for (const TypeCase& one : cases) EXPECT_EQ(HasDeclaredType(one.value, one.declared), one.fits) << one.name;
}

TEST(ValueType, IsShownInWords) {
  EXPECT_EQ(TypeText(kText), "string");
  EXPECT_EQ(TypeText(kTexts), "string[]");
  EXPECT_EQ(TypeText(kNumber), "uint16");
  EXPECT_EQ(TypeText(kCodes), "uint32[]");
  EXPECT_EQ(TypeText(kTime), "datetime");
  EXPECT_EQ(TypeText(kLink), "reference to KVRSG_BadStripeData");
}

TEST(ValueType, HasItsNameInCim) {
  EXPECT_EQ(TypeName(kCIMString), "string");
  EXPECT_EQ(TypeName(kCIMUInt16), "uint16");
  EXPECT_EQ(TypeName(kCIMUInt32), "uint32");
  EXPECT_EQ(TypeName(kCIMDateTime), "datetime");
  EXPECT_EQ(TypeName(kCIMReference), "reference");
}

}  // namespace
