#include "host/hxahost/schema/schema_view.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <sstream>

namespace {

using namespace hxahost;
using namespace NKVRHXA20;

constexpr PropertyDeclaration kPlain[] = {
    {"Name",   kCIMString,   false, true,  "", "Says \"who\"."},
    {"Lines",  kCIMString,   true,  false, "", "C:\\ \n"      },
    {"Small",  kCIMUInt16,   false, false, "", "s"            },
    {"Codes",  kCIMUInt32,   true,  false, "", "c"            },
    {"Moment", kCIMDateTime, false, false, "", "m"            },
};

constexpr PropertyDeclaration kEnds[] = {
    {"Dependent", kCIMReference, false, true, "X_Plain", "d"},
};

constexpr ClassDeclaration kClasses[] = {
    {"X_Plain", "A plain class.", false, kPlain},
    {"X_Link",  "A link.",        true,  kEnds },
};

TEST(SchemaView, WritesMofWithKeysTypesArraysReferencesAndEscapes) {
  std::ostringstream out;
  WriteSchemaMof(out, kClasses, false);
  const std::string mof = out.str();
  EXPECT_EQ(mof.substr(mof.find("\n[")), R"(
[Description("A plain class.")]
class X_Plain {
  [Key, Description("Says \"who\".")]
  string Name;
  [Description("C:\\ \n")]
  string Lines[];
  [Description("s")]
  uint16 Small;
  [Description("c")]
  uint32 Codes[];
  [Description("m")]
  datetime Moment;
};

[Association, Description("A link.")]
class X_Link {
  [Key, Description("d")]
  X_Plain REF Dependent;
};
)");
}

TEST(SchemaView, DeclaresEachQualifierBeforeTheClassesHaveIt) {
  std::ostringstream out;
  WriteSchemaMof(out, ExportedClasses(), false);
  const std::string mof = out.str();
  for (const char* const name : {"Association", "Description", "Key", "MappingStrings"}) {
    EXPECT_LT(mof.find("\nQualifier " + std::string(name) + " : "), mof.find("\nclass ")) << name;
  }
}

TEST(SchemaView, ShowsTheOriginOfAProperty) {
  std::ostringstream out;
  WriteSchemaMof(out, ExportedClasses(), false);
  EXPECT_NE(out.str().find(R"(
  [Description("Number under which a replacement of the controller is ordered."),
   MappingStrings {"Label.KVRSG|qcmdrun|Controller FRU",
                   "Label.KVRSG|arcconf|Controller FRU#"}]
  string ControllerFRU;
)"),
            std::string::npos);
}

TEST(SchemaView, NamesTheNamespaceFirst) {
  for (const bool withSuperclasses : {false, true}) {
    std::ostringstream out;
    WriteSchemaMof(out, kClasses, withSuperclasses);
    EXPECT_EQ(out.str().find("#pragma namespace(\"root/cimv2\")\n"), 0U);
  }
}

TEST(SchemaView, DerivesTheClassesOnRequestWithoutTheQualifiersOfTheSuperclasses) {
  std::ostringstream out;
  WriteSchemaMof(out, ExportedClasses(), true);
  const std::string mof = out.str();
  EXPECT_EQ(mof.find("\nQualifier "), mof.npos);
  EXPECT_NE(mof.find("\nclass KVRSG_zxDiskGroup : CIM_CollectionOfMSEs {\n"), mof.npos);
  EXPECT_NE(mof.find("\nclass KVRSG_ElementBadStripeData {\n"), mof.npos);  // it has no superclass
  EXPECT_NE(mof.find("  [Key, Override(\"CollectionID\"), Description("), mof.npos);
  EXPECT_EQ(mof.find("Override(\"StripeOrder\")"), mof.npos);
}

TEST(SchemaView, ListsTheClassesWithTheirDescriptionsUnderEachOther) {
  std::ostringstream out;
  WriteClassList(out, kClasses);
  EXPECT_EQ(out.str(),
            "X_Plain  A plain class.\n"
            "X_Link   A link.\n");
}

TEST(SchemaView, DeclaresAClassBeforeAnotherRefersToIt) {
  std::ostringstream out;
  WriteSchemaMof(out, ExportedClasses(), false);
  const std::string mof = out.str();
  for (const ClassDeclaration& declaration : ExportedClasses()) {
    const std::size_t declared = mof.find("class " + std::string(declaration.name) + " {");
    const std::size_t referred = mof.find("  " + std::string(declaration.name) + " REF ");
    EXPECT_NE(declared, mof.npos) << declaration.name;
    EXPECT_LT(declared, referred) << declaration.name;
  }
}

}  // namespace
