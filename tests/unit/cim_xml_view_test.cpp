#include "host/hxahost/views/cim/cim_xml_view.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <sstream>
#include <string>

#include "host/hxacore/value_reader.h"
#include "host/hxahost/result/unique_paths.h"
#include "tests/support/filled_repository.h"

namespace {

using namespace hxahost;
using namespace NKVRHXA20;
using namespace std::string_literals;
using testing::AllOf;
using testing::HasSubstr;
using testing::Not;

std::string Document(const std::vector<QueryResult>& results) {
  QueryHeader header;
  header.queryCount = static_cast<unsigned>(results.size());
  std::ostringstream out;
  BeginCimXml(out, header);
  for (const QueryResult& result : results) WriteQueryCimXml(out, header, result);
  EndCimXml(out, header);
  return out.str();
}

std::string Document(const FilledRepository& repository) {
  return Document({
      QueryResult{1, repository.Instances(), {}}
  });
}

TCIMValue TwoCodes() {
  return {
      kCIMUInt32, 0, {4294967295U, 7U}
  };
}
TCIMValue NothingEmptyAndBlank() {
  return {
      kCIMString, 0, {TCIMValue(), "", " "}
  };
}

// A document with one value, as a property and as a key.
std::string RawDataWith(const std::string& value) {
  FilledRepository repository;
  repository.Publish("KVRSG_zxRawData", "Command", value, "RawResults", Texts({value}));
  return Document(repository);
}

TEST(CimXmlView, IsADeclarationWithAPathForEachInstance) {
  FilledRepository repository;
  repository.Publish("KVRSG_LogRecord_SoftEvent", "RecordID", "1", "MessageTimestamp",
                     TCIMDateTime("20260305123015.250000-060"), "HexSoftEvent", TwoCodes());
  repository.Publish("KVRSG_zxFirmwareVersion", "Name", "Zentraxis1 Firmware", "SoftwareElementState",
                     static_cast<unsigned short>(3));
  EXPECT_EQ(Document(repository), R"(<?xml version="1.0" encoding="utf-8"?>
<CIM CIMVERSION="2.8" DTDVERSION="2.4">
<DECLARATION>
<DECLGROUP.WITHPATH>
<VALUE.OBJECTWITHLOCALPATH>
 <LOCALINSTANCEPATH>
  <LOCALNAMESPACEPATH>
   <NAMESPACE NAME="root"/>
   <NAMESPACE NAME="cimv2"/>
  </LOCALNAMESPACEPATH>
  <INSTANCENAME CLASSNAME="KVRSG_LogRecord_SoftEvent">
   <KEYBINDING NAME="MessageTimestamp">
    <KEYVALUE VALUETYPE="string" TYPE="datetime">20260305123015.250000-060</KEYVALUE>
   </KEYBINDING>
   <KEYBINDING NAME="RecordID">
    <KEYVALUE VALUETYPE="string" TYPE="string">1</KEYVALUE>
   </KEYBINDING>
   <KEYBINDING NAME="SystemCreationClassName">
    <KEYVALUE VALUETYPE="string" TYPE="string">KVRSG_ComputerSystem</KEYVALUE>
   </KEYBINDING>
   <KEYBINDING NAME="SystemName">
    <KEYVALUE VALUETYPE="string" TYPE="string">M</KEYVALUE>
   </KEYBINDING>
  </INSTANCENAME>
 </LOCALINSTANCEPATH>
 <INSTANCE CLASSNAME="KVRSG_LogRecord_SoftEvent">
  <PROPERTY NAME="SystemCreationClassName" TYPE="string">
   <VALUE>KVRSG_ComputerSystem</VALUE>
  </PROPERTY>
  <PROPERTY NAME="SystemName" TYPE="string">
   <VALUE>M</VALUE>
  </PROPERTY>
  <PROPERTY NAME="RecordID" TYPE="string">
   <VALUE>1</VALUE>
  </PROPERTY>
  <PROPERTY NAME="MessageTimestamp" TYPE="datetime">
   <VALUE>20260305123015.250000-060</VALUE>
  </PROPERTY>
  <PROPERTY.ARRAY NAME="HexSoftEvent" TYPE="uint32">
   <VALUE.ARRAY>
    <VALUE>4294967295</VALUE>
    <VALUE>7</VALUE>
   </VALUE.ARRAY>
  </PROPERTY.ARRAY>
 </INSTANCE>
</VALUE.OBJECTWITHLOCALPATH>
<VALUE.OBJECTWITHLOCALPATH>
 <LOCALINSTANCEPATH>
  <LOCALNAMESPACEPATH>
   <NAMESPACE NAME="root"/>
   <NAMESPACE NAME="cimv2"/>
  </LOCALNAMESPACEPATH>
  <INSTANCENAME CLASSNAME="KVRSG_zxFirmwareVersion">
   <KEYBINDING NAME="Name">
    <KEYVALUE VALUETYPE="string" TYPE="string">Zentraxis1 Firmware</KEYVALUE>
   </KEYBINDING>
   <KEYBINDING NAME="SoftwareElementState">
    <KEYVALUE VALUETYPE="numeric" TYPE="uint16">3</KEYVALUE>
   </KEYBINDING>
   <KEYBINDING NAME="SystemCreationClassName">
    <KEYVALUE VALUETYPE="string" TYPE="string">KVRSG_ComputerSystem</KEYVALUE>
   </KEYBINDING>
   <KEYBINDING NAME="SystemName">
    <KEYVALUE VALUETYPE="string" TYPE="string">M</KEYVALUE>
   </KEYBINDING>
  </INSTANCENAME>
 </LOCALINSTANCEPATH>
 <INSTANCE CLASSNAME="KVRSG_zxFirmwareVersion">
  <PROPERTY NAME="SystemCreationClassName" TYPE="string">
   <VALUE>KVRSG_ComputerSystem</VALUE>
  </PROPERTY>
  <PROPERTY NAME="SystemName" TYPE="string">
   <VALUE>M</VALUE>
  </PROPERTY>
  <PROPERTY NAME="Name" TYPE="string">
   <VALUE>Zentraxis1 Firmware</VALUE>
  </PROPERTY>
  <PROPERTY NAME="SoftwareElementState" TYPE="uint16">
   <VALUE>3</VALUE>
  </PROPERTY>
 </INSTANCE>
</VALUE.OBJECTWITHLOCALPATH>
</DECLGROUP.WITHPATH>
</DECLARATION>
</CIM>
)");
}

TEST(CimXmlView, NestsThePathsOfAnAssociation) {
  FilledRepository repository;
  const TCIMReference group = repository.Publish("KVRSG_zxDiskGroup", "CollectionID", "a\"b\\c");
  repository.Publish("KVRSG_zxStripeOrderForController", "Dependent", group);
  const std::string document = Document(repository);
  EXPECT_THAT(document, HasSubstr(R"(
  <INSTANCENAME CLASSNAME="KVRSG_zxStripeOrderForController">
   <KEYBINDING NAME="Dependent">
    <VALUE.REFERENCE>
     <LOCALINSTANCEPATH>
      <LOCALNAMESPACEPATH>
       <NAMESPACE NAME="root"/>
       <NAMESPACE NAME="cimv2"/>
      </LOCALNAMESPACEPATH>
      <INSTANCENAME CLASSNAME="KVRSG_zxDiskGroup">
       <KEYBINDING NAME="CollectionID">
        <KEYVALUE VALUETYPE="string" TYPE="string">a&quot;b\c</KEYVALUE>
)"));
  EXPECT_THAT(document, HasSubstr(R"(
  <PROPERTY.REFERENCE NAME="Dependent" REFERENCECLASS="KVRSG_zxDiskGroup">
   <VALUE.REFERENCE>
    <LOCALINSTANCEPATH>
)"));
}

TEST(CimXmlView, UsesTheDeclaredClassForAReferenceWithoutOne) {
  FilledRepository repository;
  repository.Publish("KVRSG_zxStripeOrderForController", "Dependent", TCIMReference());
  EXPECT_THAT(Document(repository),
              AllOf(HasSubstr("<INSTANCENAME CLASSNAME=\"KVRSG_zxDiskGroup\"/>"), Not(HasSubstr("CLASSNAME=\"\""))));
}

TEST(CimXmlView, DistinguishesNoValueFromAnEmptyOne) {
  FilledRepository repository;
  repository.Publish("KVRSG_zxDiskGroup", "CollectionID", "", "Array", TCIMValue());
  repository.Publish("KVRSG_zxRawData", "RawResults", Texts({}));
  repository.Publish("KVRSG_zxRawData", "RawResults", NothingEmptyAndBlank());
  repository.Publish("KVRSG_zxRawData", "RawResults", TCIMValue());
  repository.Publish("KVRSG_zxStripeOrderForController", "Dependent", TCIMValue());
  const std::string document = Document(repository);
  EXPECT_THAT(document, HasSubstr("<PROPERTY NAME=\"CollectionID\" TYPE=\"string\">\n   <VALUE/>\n"));
  EXPECT_THAT(document, HasSubstr("<KEYVALUE VALUETYPE=\"string\" TYPE=\"string\"/>\n"));
  EXPECT_THAT(document, HasSubstr("<PROPERTY NAME=\"Array\" TYPE=\"string\"/>\n"));
  EXPECT_THAT(document, HasSubstr("<PROPERTY.ARRAY NAME=\"RawResults\" TYPE=\"string\">\n   <VALUE.ARRAY/>\n"));
  EXPECT_THAT(document, HasSubstr("<VALUE.NULL/>\n    <VALUE/>\n    <VALUE>&#32;</VALUE>\n"));
  EXPECT_THAT(document, HasSubstr("<PROPERTY.ARRAY NAME=\"RawResults\" TYPE=\"string\"/>\n"));
  EXPECT_THAT(document, HasSubstr("<PROPERTY.REFERENCE NAME=\"Dependent\" REFERENCECLASS=\"KVRSG_zxDiskGroup\"/>\n"));
}

TEST(CimXmlView, HasNoValueForATimeThatThereIsNoneOf) {
  FilledRepository repository;
  const TCIMDateTime times[] = {
      {2007,  0, 5,  11, 2, 3, 0, 0   },
      {2007,  2, 30, 11, 2, 3, 0, -300},
      {12345, 3, 5,  1,  2, 3, 0, 0   }
  };
  for (const TCIMDateTime& time : times) {
    repository.Publish("KVRSG_LogRecord_RAIDMgrEvent", "RecordID", time.ToString(), "MessageTimestamp", time);
    EXPECT_THAT(Document(repository), HasSubstr("<PROPERTY NAME=\"MessageTimestamp\" TYPE=\"datetime\">\n   "
                                                "<!-- published: " +
                                                time.ToString() + " -->\n  </PROPERTY>\n"));
  }
}

TEST(CimXmlView, NamesOmittedInstancesInCommentsThatNoPathEnds) {
  FilledRepository repository;
  repository.Publish("KVRSG_zxDiskGroup", "CollectionID", "a--->b");
  QueryResult result;
  result.leftOut = {LeftOutText(*repository.Instances().front())};
  const std::string document = Document({result});
  EXPECT_THAT(document, HasSubstr("<DECLGROUP.WITHPATH>\n<!-- Left out, as another instance has its path: "
                                  "KVRSG_zxDiskGroup.CollectionID=\"a- - ->b\","));
}

TEST(CimXmlView, KeepsNamesAsTheyWereSet) {
  FilledRepository repository;
  repository.Publish("KVRSG_zxDiskDrive", "CreationClassname", "KVRSG_zxDiskDrive");
  EXPECT_THAT(Document(repository), AllOf(HasSubstr("<PROPERTY NAME=\"CreationClassname\""),
                                          HasSubstr("<KEYBINDING NAME=\"CreationClassName\"")));
}

TEST(CimXmlView, HasAGroupForEachQuery) {
  FilledRepository repository;
  repository.Publish("KVRSG_zxDiskGroup", "CollectionID", "x");
  const std::string document = Document({
      QueryResult{1, repository.Instances(), {}},
      QueryResult{2, {},                     {}},
      QueryResult{3, repository.Instances(), {}}
  });
  EXPECT_THAT(document, HasSubstr("</DECLGROUP.WITHPATH>\n<DECLGROUP.WITHPATH>\n</DECLGROUP.WITHPATH>\n"
                                  "<DECLGROUP.WITHPATH>\n<VALUE.OBJECTWITHLOCALPATH>"));
  EXPECT_THAT(document, testing::EndsWith("</DECLGROUP.WITHPATH>\n</DECLARATION>\n</CIM>\n"));
}

// The other kinds of values are among the hostile texts.
TEST(CimXmlView, MakesNoMarkupOfAValueAndKeepsAllCharactersThatXmlPermits) {
  struct Case {
    const char* name;
    std::string value;
    std::string expected;
  };
  const Case cases[] = {
      {"quotes",                "\"a\" 'b'",                    "&quot;a&quot; &apos;b&apos;" },
      {"end of character data", "]]>",                          "]]&gt;"                      },
      {"references",            "&amp;&#13;&x;",                "&amp;amp;&amp;#13;&amp;x;"   },
      {"line ends",             "a\r\nb\rc\nd\te",              "a&#13;\nb&#13;c\nd\te"       },
      {"blanks at the ends",    "  a  ",                        "  a  "                       },
      {"blanks alone",          "   ",                          "&#32;  "                     },
      {"UTF-8",                 "K\xc3\xa4se \xf0\x9f\x92\xbe", "K\xc3\xa4se \xf0\x9f\x92\xbe"},
      {"ISO 8859-1",            "K\xe4se\xff",                  "K\xc3\xa4se\xc3\xbf"         },
      {"control",               "\x1b[2J\x07",                  "\xe2\x90\x9b[2J\xe2\x90\x87" },
      {"NUL",                   "a\0b"s,                        "a\xe2\x90\x80" + "b"s        },
      {"DEL and C1",            "\x7f \xc2\x9b",                "&#127; &#155;"               },
      {"turns the text around", "a\xe2\x80\xae.",               "a&#8238;."                   },
      {"no characters",         "\xef\xbf\xbe \xef\xbf\xbf",    "\xef\xbf\xbd \xef\xbf\xbd"   },
      {"surrogate",             "\xed\xa0\x80",                 "\xc3\xad\xc2\xa0&#128;"      },
  };
  for (const Case& each : cases) {
    const std::string document = RawDataWith(each.value);
    EXPECT_THAT(document, HasSubstr("TYPE=\"string\">" + each.expected + "</KEYVALUE>\n")) << each.name;
    EXPECT_THAT(document, HasSubstr("\n   <VALUE>" + each.expected + "</VALUE>\n")) << each.name;
    EXPECT_THAT(document, HasSubstr("\n    <VALUE>" + each.expected + "</VALUE>\n")) << each.name;
  }
}

TEST(CimXmlView, HasAValueOfAMebibyteWhole) {
  const std::string text(1U << 20U, '<');
  const std::string document = RawDataWith(text);
  std::size_t found = 0;
  for (std::size_t at = document.find("&lt;"); at != document.npos; at = document.find("&lt;", at + 1)) ++found;
  EXPECT_EQ(found, 3 * text.size());
}

}  // namespace
