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
  WriteSchemaMof(out, kClasses);
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
  WriteSchemaMof(out, PublishedClasses());
  const std::string mof = out.str();
  for (const char* const name : {"Association", "Description", "Key", "MappingStrings"}) {
    EXPECT_LT(mof.find("\nQualifier " + std::string(name) + " : "), mof.find("\nclass ")) << name;
  }
}

TEST(SchemaView, SaysWhereAPropertyComesFrom) {
  std::ostringstream out;
  WriteSchemaMof(out, PublishedClasses());
  EXPECT_NE(out.str().find(R"(
  [Description("Number under which a replacement of the controller is ordered."),
   MappingStrings {"qcmdrun: \"Controller FRU\"", "arcconf: \"Controller FRU#\""}]
  string ControllerFRU;
)"),
            std::string::npos);
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
  WriteSchemaMof(out, PublishedClasses());
  const std::string mof = out.str();
  for (const ClassDeclaration& declaration : PublishedClasses()) {
    const std::size_t declared = mof.find("class " + std::string(declaration.name) + " {");
    const std::size_t referred = mof.find("  " + std::string(declaration.name) + " REF ");
    EXPECT_NE(declared, mof.npos) << declaration.name;
    EXPECT_LT(declared, referred) << declaration.name;
  }
}

}  // namespace
