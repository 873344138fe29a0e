#include "host/hxahost/bundle/mask_places.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

using namespace hxahost;
using testing::ElementsAre;
using testing::IsEmpty;

std::vector<std::string> Texts(const std::string& text, const std::vector<Span>& spans) {
  std::vector<std::string> texts;
  for (const Span& span : spans) texts.push_back(text.substr(span.begin, span.length));
  return texts;
}

std::vector<std::string> Secrets(const std::string& text) {
  return Texts(text, FindInToolText(text, MaskScope::kNames).secrets);
}

TEST(MaskPlaces, AreTheValuesOfTheLabelsThatAreSecret) {
  struct Case {
    const char* name;
    std::string text;
    std::vector<std::string> secrets;
  };
  const Case cases[] = {
      {"serial number",         "   Serial number      : NV3LB07Q2H\r\n",                                {"NV3LB07Q2H"}         },
      {"of a controller",       "Controller Serial Number : 3E41A077 \n",                                {"3E41A077"}           },
      {"without a line end",    "World-wide name : 5000F0",                                              {"5000F0"}             },
      {"a name with blanks",    "   Logical drive name : My Data\r\n",                                   {"My Data"}            },
      {"no value",              "   Logical drive name :  \r\n",                                         {}                     },
      {"nothing to hide",       "   Battery FRU# : None\r\n",                                            {}                     },
      {"a name with a colon",   "   Logical drive name : a:b\n",                                         {"a:b"}                },
      {"capital letters",       "SERIAL NUMBER : NV3\nSERIAL : NV4\n",                                   {"NV3", "NV4"}         },
      {"small letters",         "Chassis serial number : NV3\nlogical drive name : My Data\n",           {"NV3", "My Data"}     },
      {"an equals sign",        "Serial number = NV3\n Array name=a:b\n Serial = A = B\n",               {"NV3", "a:b", "A = B"}},
      {"a quoted value",        "Serial number = \"NV3\"\n",                                             {"\"NV3\""}            },
      {"an equals sign before", "Unit (slot=3) Serial : NV3\n",                                          {"NV3"}                },
      {"a part of any value",   "   Speed = Serial ATA\n Speed : SERIAL ATA\n",                          {}                     },
      {"an angle and equals",   "< Serial number = NV3\n",                                               {"NV3"}                },
      {"no attribute's label",  "[2] serialNumber='NV3' at=\"10:20\"\nSerialNumber = 'NV4' x=\"a:b\"\n", {"NV3", "NV4"}         },
      {"another label",         "   Vendor : NORDVIK\n   State : Online\n",                              {}                     },
      {"text before the label", " * Unit Serial number : NV3\n",                                         {"NV3"}                },
      {"two labels",            "Vendor : N Serial number : A1 World-wide name : B2\n",                  {"A1", "B2"}           },
      {"a part of a value",     "   Speed : Serial ATA\n[1] 05:17 Serial ATA: up\n",                     {}                     },
      {"angle",                 "< Serial number : NV3\n",                                               {"NV3"}                },
      {"an element's text",     "<event text=\"Serial number : NV3\" />\n",                              {}                     },
      {"no type",               "   Device ID : TALVERA T36LW10 S96H8B01234\n",                          {"8B01234"}            },
      {"tape with a number",    "Device is a Tape\n Device ID : TALVERA T36LW10 S96H8B01234\n",          {"8B01234"}            },
      {"a label in a value",    "   Vendor : FRU\n",                                                     {}                     },
      {"no colon",              "   Serial number\n",                                                    {}                     },
      {"place of an enclosure", "   Enclosure ID : 0\n",                                                 {}                     },
      {"name of an enclosure",  "   Enclosure ID : 5000F0A1\n",                                          {"5000F0A1"}           },
      {"hard disk",             "Device is a Hard disk\n Device ID : TALVERA T36LW10 S96H8B01234\n",     {"8B01234"}            },
      {"tape",                  "Device is a Tape\n Device ID : ORBITEK DAT72LP         A119\n",         {}                     },
      {"short identifier",      "Device is a Hard disk\n Device ID : TALVERA\n",                         {}                     },
      {"attribute",             "<x deviceID=\"8\" serialNumber=\"NV3\" />\n",                           {"NV3"}                },
      {"open attribute",        "<x serialNumber=\"NV3",                                                 {}                     },
  };
  for (const Case& each : cases) EXPECT_EQ(Secrets(each.text), each.secrets) << each.name;
}

TEST(MaskPlaces, IncludeThePartNumbersOfFrusOnRequest) {
  for (const std::string label : {"FRU and part number", "Controller FRU#", "Battery FRU#"}) {
    const std::string line = "   " + label + " : 61K4431\r\n";
    EXPECT_THAT(Secrets(line), IsEmpty());
    EXPECT_THAT(Texts(line, FindInToolText(line, MaskScope::kAll).secrets), ElementsAre("61K4431"));
  }
}

TEST(MaskPlaces, InALogAreItsThirdColumnAndItsMessagesAreProse) {
  const std::string text = "day\tINF\tDBSERVER\tDisk lost\ton DBSERVER\r\n--- restarted ---\nday\tERR\t\tx";
  const SecretPlaces places = FindInRaidLog(text, MaskScope::kNames);
  EXPECT_THAT(Texts(text, places.secrets), ElementsAre("DBSERVER"));
  EXPECT_THAT(Texts(text, places.prose), ElementsAre("\tDisk lost\ton DBSERVER\r", "\tx"));
  EXPECT_THAT(FindInRaidLog("", MaskScope::kNames).secrets, IsEmpty());
}

// "Serial" is a label only before the first colon of the line, which is in the time.
TEST(MaskPlaces, InALogAreAlsoTheValuesOfLabels) {
  const std::string text =
      "08:00:01\tINF\tDBSERVER\tDisk 2 lost, Serial number: WW11EE22\r\n"
      "08:00:02\tINF\tDBSERVER\tSerial ATA port: reset, FRU: 61K4431\n"
      "SERIAL NUMBER = WW33EE44\n";
  EXPECT_THAT(Texts(text, FindInRaidLog(text, MaskScope::kNames).secrets),
              ElementsAre("DBSERVER", "WW11EE22", "DBSERVER", "WW33EE44"));
}

TEST(MaskPlaces, InALogOfAMachineNamedAsALabelAreEachOnce) {
  const std::string text = "day\tINF\tArray name\tlost: Orfelius\n";
  EXPECT_THAT(Texts(text, FindInRaidLog(text, MaskScope::kNames).secrets), ElementsAre("Array name", "Orfelius"));
}

TEST(MaskPlaces, InTheToolsLogsAreQuotedTextsProse) {
  const std::string text = "<event id=\"0x1\" text=\"Archive degraded\" />";
  EXPECT_THAT(Texts(text, FindInToolText(text, MaskScope::kNames).prose), ElementsAre("0x1", "Archive degraded"));
}

}  // namespace
