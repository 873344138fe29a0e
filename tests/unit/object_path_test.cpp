#include "host/hxahost/result/object_path.h"

#include <gtest/gtest.h>

namespace {

using namespace hxahost;
using namespace NKVRHXA20;

TCIMReference To(const std::string& className, const TPropertyMap& keys) {
  return TCIMReferenceFactory::Make(nullptr, className, keys);
}

TEST(ObjectPath, IsThatOfTheReferenceIfAllTextsAreUtf8) {
  const TPropertyMap keys = {
      {"Name",  "K\xc3\xa4se \"x\""                      },
      {"State", static_cast<unsigned short>(3)           },
      {"Time",  TCIMDateTime("20260305123015.250000-060")}
  };
  EXPECT_EQ(ObjectPathText(To("X", keys)), TCIMReferenceFactory::ObjectPath(To("X", keys)));
  EXPECT_EQ(ObjectPathText(TCIMReference()), "");
}

TEST(ObjectPath, ReadsEachKeyByItself) {
  const TCIMReference mixed = To("X", {
                                          {"A", "K\xc3\xa4se"},
                                          {"B", "K\xe4se"    }
  });
  EXPECT_EQ(ObjectPathText(mixed), "X.A=\"K\xc3\xa4se\",B=\"K\xc3\xa4se\"");
  const TCIMReference link = To("Y", {
                                         {"Dependent", mixed}
  });
  EXPECT_EQ(ObjectPathText(link), "Y.Dependent=\"X.A=\\\"K\xc3\xa4se\\\",B=\\\"K\xc3\xa4se\\\"\"");
}

}  // namespace
