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
  const auto texts = [](std::vector<TCIMValue> elements) { return TCIMValue(kCIMString, 0, std::move(elements)); };
  const auto numbers = [](std::vector<TCIMValue> elements) { return TCIMValue(kCIMUInt32, 0, std::move(elements)); };
  const TCIMValue oneText = texts({"x"});
  const TCIMValue noTexts = texts({});
  const TCIMValue numberAmongTexts = texts({"x", 1U});
  const TCIMValue twoCodes = numbers({1U, 2U});
  const TypeCase cases[] = {
      {"text",                               kText,   "x",                                    true },
      {"nothing",                            kText,   TCIMValue(),                            true },
      {"number for a text",                  kText,   3U,                                     false},
      {"texts for a text",                   kText,   oneText,                                false},
      {"uint16",                             kNumber, static_cast<unsigned short>(3),         true },
      {"uint32 for a uint16",                kNumber, 3U,                                     false},
      {"text for a number",                  kNumber, "3",                                    false},
      {"texts",                              kTexts,  oneText,                                true },
      {"no texts",                           kTexts,  noTexts,                                true },
      {"nothing for texts",                  kTexts,  TCIMValue(),                            true },
      {"a text for texts",                   kTexts,  "x",                                    false},
      {"numbers for texts",                  kTexts,  twoCodes,                               false},
      {"numbers that call themselves texts", kTexts,  numberAmongTexts,                       false},
      {"codes",                              kCodes,  twoCodes,                               true },
      {"no codes, of the wrong type",        kCodes,  noTexts,                                false},
      {"time",                               kTime,   TCIMDateTime(),                         true },
      {"text for a time",                    kTime,   "20260305123015.250000+060",            false},
      {"reference",                          kLink,   ReferenceTo("kvrsg_badstripedata"),     true },
      {"reference that names no class",      kLink,   TCIMReference(),                        true },
      {"reference to another class",         kLink,   ReferenceTo("KVRSG_zxLogicalDisk"),     false},
      {"path for a reference",               kLink,   "KVRSG_BadStripeData.InstanceID=\"x\"", false},
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
  EXPECT_EQ(TypeName(kCIMReference), "reference");
}

}  // namespace
