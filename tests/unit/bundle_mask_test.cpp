#include "host/hxahost/bundle/bundle_mask.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cctype>
#include <random>
#include <string>
#include <utility>

#include "host/hxahost/bundle/folded_text.h"
#include "host/hxahost/bundle/write_bundle.h"
#include "tests/support/sample_bundle.h"

namespace {

using namespace hxahost;
using testing::HasSubstr;
using testing::Not;

RandomSource Seeded() {
  return [engine = std::mt19937(5)]() mutable { return static_cast<std::uint32_t>(engine()); };
}

Bundle Secretive() {
  Bundle bundle = SampleBundle();
  bundle.runs[0].result.output =
      "   Logical drive name : Size\n   Size : 5 MB\n   Serial number : AB12CD34\n   State : Online\n";
  bundle.runs[1].result.output =
      "<x serialNumber=\"AB12CD34\" text=\"Size of dbserver, Sizes\" />\nSize, and AB12CD34X in a line\n";
  bundle.runs[2].failure->message = "C:\\tools is not there, says DBSERVER";
  bundle.raidLog->bytes = "June 1\tINF\tDBSERVER\tAB12CD34 lost: Size\r\n";
  return bundle;
}

TEST(BundleMask, HidesSecretsEverywhereAndKeepsEveryLength) {
  const Bundle original = Secretive();
  const Bundle masked = MaskBundle(original, Seeded());
  const std::string text = WriteBundle(masked);
  for (const char* const secret : {"AB12CD34", "DBSERVER", "dbserver", "tools", "ZXM"}) {
    EXPECT_THAT(text, Not(HasSubstr(secret)));
  }
  EXPECT_TRUE(masked.isMasked);
  for (std::size_t run = 0; run < 2; ++run) {
    EXPECT_EQ(masked.runs[run].result.output.size(), original.runs[run].result.output.size());
  }
  EXPECT_EQ(masked.raidLog->bytes.size(), original.raidLog->bytes.size());
}

TEST(BundleMask, LeavesTheWordsThatTheTextsAreReadBy) {
  const Bundle masked = MaskBundle(Secretive(), Seeded());
  EXPECT_THAT(masked.runs[0].result.output, HasSubstr("   Size : 5 MB\n"));
  EXPECT_THAT(masked.runs[0].result.output, HasSubstr("   State : Online\n"));
  EXPECT_THAT(masked.runs[0].result.output, Not(HasSubstr("name : Size")));
  // Outside of names it is an ordinary word, and its parts are not words.
  EXPECT_THAT(masked.runs[1].result.output, HasSubstr(", Sizes\" />\nSize, and "));
  EXPECT_THAT(masked.raidLog->bytes, testing::StartsWith("June 1\tINF\t"));
}

TEST(BundleMask, UsesTheSameMaskForATextInAllPlaces) {
  const Bundle masked = MaskBundle(Secretive(), Seeded());
  const std::string& first = masked.runs[0].result.output;
  const std::string serial = first.substr(first.find("Serial number : ") + 16, 8);
  EXPECT_THAT(masked.runs[1].result.output, HasSubstr("serialNumber=\"" + serial + "\""));
  EXPECT_THAT(masked.runs[1].result.output, HasSubstr("and " + serial + "X in"));
  EXPECT_THAT(masked.raidLog->bytes, HasSubstr("\t" + masked.machine + "\t" + serial + " lost: "));
  EXPECT_EQ(masked.raidLog->path, *masked.raidLogDir + "RaidEvtA.log");
  EXPECT_THAT(masked.runs[2].failure->message, HasSubstr(masked.directory + " is not there, says " + masked.machine));
}

TEST(BundleMask, MasksTheFolderOfALogWhoseSlashesAreThoseOfAnotherSystem) {
  Bundle bundle = SampleBundle();
  bundle.raidLogDir = "raid\\log\\";
  bundle.raidLog->path = "raid/log/RaidEvtA.log";
  const Bundle masked = MaskBundle(bundle, Seeded());
  EXPECT_THAT(masked.raidLog->path, testing::EndsWith("/RaidEvtA.log"));
  EXPECT_EQ(masked.raidLog->path.substr(0, 4), masked.raidLogDir->substr(0, 4));
  EXPECT_EQ(masked.raidLog->path[4], '/');
}

// Words in the places where a machine's texts contain names, numbers and addresses, and quoted in other texts.
Bundle Planted() {
  Bundle bundle = SampleBundle();
  bundle.machine = "GRIMHOLT.vexmoor.example";
  bundle.directory = "C:\\quibbledir\\Jo Zandrik";
  bundle.raidLogDir = "D:\\Wexlogs\\";
  bundle.runs[0].result.output =
      "   Controller Serial Number : 81730946\n   VPD Assigned# : PLIMSOL\n   Controller name : Orfelius\n"
      "   Logical drive name : Trundlewick\n                        Vault\n                        of: Ombersley\n"
      "   RAID level : 5\n   Array name : Snorbitz\n   Enclosure ID : 5000F0A1\n"
      "   Device is a Hard disk\n   Serial number : QZ73X9\n   World-wide name : 50:00:C5:00:1A:2B:3C:4D\n"
      "   Device ID : TALVERA T36LW10 S96H8B01234\n"
      "   Logical drive name : Kn\xc3\xa4"
      "ckebrot\n   Logical drive name : \u041f\u043b\u0443\u0433\u043e\u0432\u0438\u043a\n"
      "   Logical drive name : Cellar 10.1.2.3 Grumbold\n   Logical drive name : Smyrnov & Zonk\n"
      "   Logical drive name : Schlo\u00dfgarten\n   Transfer Speed : Serial ATA 3.0 Gb/s\n"
      "   Unit Serial number : QUIBSER77A\n * Controller Serial Number : WOMBAT9921\n < Serial number : ANGLED77\n"
      "   CHASSIS SERIAL NUMBER : CAPITAL77\n   rack serial number = equally77\n"
      "   Vendor : NORDVIK  Serial number : DOUBLET77  World-wide name : TWOFOLD88\n"
      "   Device is a Hard drive\n   Device ID : TALVERA T36LW10 S96H8D55667\n"
      "   Device is a Tape\n   Device ID : TALVERA T36LW10 S96H8D55668\n   Device ID : ORBITEK DAT72LP         A119\n";
  bundle.runs[1].result.output =
      "<deadDrive serialNumber='KRUMPET1' /><deadDrive serialNumber = \"brindlesop\" />\n"
      "<event text=\"GRIMHOLT asks Trundlewick, 81730946 and 5000c5001a2b3c4e\" />\n"
      "[00001] 0000:00:00:00 Boot of grimholt, drive ORFELIUS, S/N81730946, qz73x9 lost, call zed.ax@vexmoor.example\n"
      "| 06/14/2005 | 09:12:05 | 1 | 4 | 0x07 | Removed by snorbitz on Grimholt: 81730946, vault of xTRUNDLEWICKx\n"
      "[00002] SERIALNUMBER='mizzlethwaite' at 192.168.7.9, Serial of 0X5000C5001A2B3C50\n"
      "<event text='from 2001:DB8:0:0:0:8A2E:370:7334' SerialNumber=\"Nurdleby\" />\n"
      "phy 00:1b:21:AA:BB:CC and 00-1b-21-aa-bb-cd, 0x5000C5001A2B3C4F, 001B.21aa.bbce\n"
      "naa.600508B1001C79A1600508B1001C79A2\n"
      "[00005] Kn\xc3\x84"
      "CKEBROT at 40 \xb0"
      "C, kn\xe4"
      "ckebrot, \xabKN\xc4"
      "CKEBROT\xbb\n"
      "[00006] \u041f\u041b\u0423\u0413\u041e\u0412\u0418\u041a, CELLAR 10.1.2.3 GRUMBOLD, SCHLOSSGARTEN\n"
      "<event text=\"Smyrnov &amp; Zonk, SMYRNOV &#38; ZONK: //vexmoor.example/x, GRIMHOLT@fen_brook\" />\n"
      "[00007] j\u00fcrgen@ex\u00e4mple.de, 5000-C500-1A2B-3C4D, MAC 001B21AABBCD, MAC address=001b21aabbce\n"
      "[00008] eui.00253858910A1B2C, naa.3000C5001A2B3C4D, ::21b:21ff:feaa:bbcd, unit of quibser77a\n"
      "[00010] ::ffff:10.73.64.55, [64:ff9b::10.73.64.55]:443, 2001:db8:1:2:3:4:10.73.64.56\n"
      "[00009] 0005:17:54:33 dump 001B21AABBC7 ::12, 1000-2000-3000-4000: 12345678ABCDEF01\n"
      "   Firmware : 4.2.10.1\n   Device driver version : 4.2.10.2\n[00003] BIOS 4.2.10.3/4.2.10.4, not 1.4.2.10.5\n";
  bundle.runs[2].failure->message =
      "\"D:/Wexlogs/x\": c:\\QUIBBLEDIR\\jo zandrik is gone, wrote GRIMHOLT to krumpet1 (172.16.5.4)";
  bundle.raidLog->path = "d:\\wexlogs\\RaidEvtA.log";
  bundle.raidLog->bytes =
      "day\tINF\tMUMBLEBY\tBrindlesop of PLIMSOL, s96h8b01234 without 8b01234\r\n"
      "2007/03/06 08:00:01 PST INF GRIMHOLT the agent of mumbleby: 5000f0a1 by ombersley@grimholt\r\n"
      "day\tERR\tMUMBLEBY\tDrive 2 is lost, serial Number: LOGGED77\r\n"
      "day\tINF\tMUMBLEBY\tVersion 5.2.0.15611 asked 10.20.30.40, fe80::21b:21FF:feaa:bbcf: no answer\r\n";
  bundle.raidLog->failure =
      RecordedFailure{FailureKind::kHost, "\"D:\\WEXLOGS\\RaidEvtA.log\" is in use by jo zandrik"};
  return bundle;
}

TEST(BundleMask, LeavesNoNameNumberOrAddressOfAnyFieldAnywhere) {
  const Bundle original = Planted();
  const std::string before = FoldCase(WriteBundle(original));
  const std::string after = FoldCase(WriteBundle(MaskBundle(original, Seeded())));
  const char* const words[] = {
      "grimholt",
      "vexmoor",
      "quibbledir",
      "zandrik",
      "wexlogs",
      "81730946",
      "plimsol",
      "orfelius",
      "trundlewick",
      "vault",
      "ombersley",
      "snorbitz",
      "5000f0a1",
      "qz73x9",
      "50:00:c5:00:1a:2b:3c:4d",
      "8b01234",
      "mizzlethwaite",
      "nurdleby",
      "5000c5001a2b3c50",
      "001b.21aa.bbce",
      "600508b1001c79a1600508b1001c79a2",
      "10.20.30.40",
      "172.16.5.4",
      "192.168.7.9",
      "fe80::21b:21ff:feaa:bbcf",
      "2001:db8:0:0:0:8a2e:370:7334",
      "krumpet1",
      "brindlesop",
      "5000c5001a2b3c4e",
      "zed.ax",
      "00:1b:21:aa:bb:cc",
      "00-1b-21-aa-bb-cd",
      "5000c5001a2b3c4f",
      "mumbleby",
      "1a:2b:3c",
      "1b:21:aa",
      "1b-21-aa",
      "example",
      "jo z",
      "of: omb",
      "ckebrot",
      "\u043f\u043b\u0443\u0433\u043e\u0432\u0438\u043a",
      "cellar",
      "grumbold",
      "smyrnov",
      "zonk",
      "schlossgarten",
      "schlo\u00dfgarten",
      "quibser77a",
      "wombat9921",
      "angled77",
      "capital77",
      "equally77",
      "logged77",
      "doublet77",
      "twofold88",
      "8d55667",
      "8d55668",
      "brook",
      "rgen@",
      "mple.de",
      "5000-c500-1a2b-3c4d",
      "001b21aabbcd",
      "001b21aabbce",
      "00253858910a1b2c",
      "3000c5001a2b3c4d",
      "::21b:21ff:feaa:bbcd",
      "73.64.5",
      "::ffff:",
      "64:ff9b::",
      "2001:db8:1",
  };
  for (const char* const word : words) {
    EXPECT_THAT(before, HasSubstr(word));
    EXPECT_THAT(after, Not(HasSubstr(word)));
  }
  EXPECT_EQ(after.size(), before.size() + 1) << "\"yes\" is longer than \"no\"";
}

// The words again, in capital and in small letters, in each of the texts.
TEST(BundleMask, LeavesNoNameInEitherCaseInAnyText) {
  constexpr const char* kWords[] = {"GRIMHOLT",    "quibbledir", "WEXLOGS",  "81730946", "Plimsol",       "ORFELIUS",
                                    "trundlewick", "Vault",      "snorbitz", "5000F0A1", "Qz73x9",        "KRUMPET1",
                                    "Brindlesop",  "Jo ZANDRIK", "mumbleby", "8B01234",  "of: Ombersley", "nurdleby"};
  std::string everyCase;
  for (const std::string word : kWords) everyCase += " " + word + ", " + FoldCase(word);
  std::string capital = everyCase;
  for (char& character : capital) character = static_cast<char>(std::toupper(static_cast<unsigned char>(character)));
  everyCase += capital;
  Bundle bundle = Planted();
  for (RecordedRun& run : bundle.runs) {
    if (run.failure) run.failure->message += everyCase;
    run.result.output += "[00009]" + everyCase + "\n";
  }
  bundle.raidLog->bytes += "day\tINF\tMUMBLEBY\t" + everyCase + "\r\n";
  bundle.raidLog->failure->message += everyCase;
  const std::string after = FoldCase(WriteBundle(MaskBundle(std::move(bundle), Seeded())));
  for (const std::string word : kWords) EXPECT_THAT(after, Not(HasSubstr(FoldCase(word))));
}

TEST(BundleMask, LeavesModelsStatesAndFixedLines) {
  const std::string text = WriteBundle(MaskBundle(Planted(), Seeded()));
  for (const char* const kept :
       {"Device ID : TALVERA T36LW10 S96H", "   RAID level : 5\n", "<deadDrive serialNumber='", "| 0x07 | Removed by ",
        "[00001] 0000:00:00:00 Boot of ", "zenx//arcconf.exe", "RaidEvtA.log", "Firmware : 4.2.10.1\n",
        "version : 4.2.10.2\n", "BIOS 4.2.10.3/4.2.10.4, not 1.4.2.10.5\n", "Version 5.2.0.15611 asked ",
        "2007/03/06 08:00:01 PST INF ", "Speed : Serial ATA 3.0 Gb/s\n", "DAT72LP         A119\n",
        "[00009] 0005:17:54:33 dump 001B21AABBC7 ::12, 1000-2000-3000-4000: 12345678ABCDEF01\n",
        "   Vendor : NORDVIK  Serial number : ", "   rack serial number = ", "Drive 2 is lost, serial Number: "}) {
    EXPECT_THAT(text, HasSubstr(kept));
  }
}

// A name may be a word of the tools: replacing it everywhere would make the texts unreadable.
TEST(BundleMask, KeepsTextsReadableForAnyMachineName) {
  for (const char* const name : {"Controller", "CONTROL", "status", "Serial", "Zentraxis", "Online", "Found", "zenx"}) {
    Bundle bundle = SampleBundle();
    bundle.machine = name;
    const std::string output = "Found 2 KVR Zentraxis controller(s)\n   Controller Status : Online\n";
    bundle.runs[0].result.output = output + "   Serial number : AB12CD34\n";
    const Bundle masked = MaskBundle(bundle, Seeded());
    EXPECT_THAT(masked.runs[0].result.output, testing::StartsWith(output)) << name;
    EXPECT_EQ(masked.runs[0].path, bundle.runs[0].path);
    EXPECT_NE(masked.machine, name);
  }
}

TEST(BundleMask, FindsNamesWithUmlautsInEitherCase) {
  Bundle bundle = SampleBundle();
  bundle.runs[0].result.output = "   Logical drive name : B\xc3\xa4renh\xc3\xb6hle\n";
  bundle.runs[1].result.output = "[1] lost: B\xc3\x84RENH\xc3\x96HLE\n";
  EXPECT_THAT(MaskBundle(bundle, Seeded()).runs[1].result.output, Not(HasSubstr("RENH")));
}

// The machine's domain is also found without it, but numbers of an address are not names.
TEST(BundleMask, MasksADomainButNoPartsOfAnAddress) {
  Bundle bundle = SampleBundle();
  bundle.machine = "grim_holt.vexmoor";
  bundle.runs[1].result.output = "[1] zed@GRIM_HOLT of VEXMOOR\n";
  EXPECT_THAT(MaskBundle(bundle, Seeded()).runs[1].result.output,
              testing::AllOf(Not(HasSubstr("GRIM")), Not(HasSubstr("HOLT")), Not(HasSubstr("VEXMOOR"))));
  bundle.machine = "10.20.1.3";
  bundle.runs[1].result.output = "Firmware : 20.1.3\n";
  EXPECT_EQ(MaskBundle(bundle, Seeded()).runs[1].result.output, bundle.runs[1].result.output);
}

TEST(BundleMask, UsesOneMaskForANameInEitherEncoding) {
  Bundle bundle = SampleBundle();
  bundle.runs[0].result.output = "   Logical drive name : Kn\u00e4ckebrot\n";
  bundle.runs[1].result.output =
      "   Logical drive name : Kn\xe4"
      "ckebrot\n";
  const Bundle masked = MaskBundle(bundle, Seeded());
  EXPECT_EQ(masked.runs[0].result.output, AsUtf8(masked.runs[1].result.output));
}

TEST(BundleMask, LeavesAnEmptyBundleUnchanged) {
  Bundle empty;
  Bundle masked = MaskBundle(empty, Seeded());
  masked.isMasked = false;
  EXPECT_EQ(WriteBundle(masked), WriteBundle(empty));
}

}  // namespace
