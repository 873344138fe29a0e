#include "host/hxahost/system/windows/access_list.h"

#include <gtest/gtest.h>

#include <sddl.h>

#include "host/hxahost/system/file_rights.h"
#include "tests/support/temporary_folder.h"
#include "tests/support/test_system.h"

namespace {

using hxahost::LetsOthersExchange;
using hxahost::LetsOthersWrite;
using hxahost::OthersMayWrite;

struct Case {
  const char* name;
  const wchar_t* list;  // in the system's notation
  bool isWritable;
  bool isExchangeable;  // the entries of the folder
};

// WD everyone, AU authenticated users, BU users, BG guests, IU users at the machine, BA administrators, SY the
// system; A allows, D denies; GR, GW, GX, GA and FR, FW, FX, FA read, write, execute and all.
constexpr Case kCases[] = {
    {"as in the folder of programs",          L"D:(A;OICI;FA;;;SY)(A;OICI;FA;;;BA)(A;OICI;0x1200a9;;;BU)", false, false},
    {"nobody",                                L"D:",                                                       false, false},
    {"everyone, all",                         L"D:(A;;FA;;;WD)",                                           true,  true },
    {"everyone, to read",                     L"D:(A;;FR;;;WD)",                                           false, false},
    {"users, to write",                       L"D:(A;;FW;;;BU)",                                           true,  false},
    {"users, to write, in generic rights",    L"D:(A;;GW;;;BU)",                                           true,  false},
    {"guests, all, in generic rights",        L"D:(A;;GA;;;BG)",                                           true,  true },
    {"authenticated users, to change",        L"D:(A;OICI;0x1301bf;;;AU)",                                 true,  true },
    {"who sits there, to delete",             L"D:(A;;SD;;;IU)",                                           true,  true },
    {"users, to delete in a folder",          L"D:(A;;0x40;;;BU)",                                         true,  true },
    {"users, to change the list",             L"D:(A;;WD;;;BU)",                                           true,  true },
    {"users, to become the owner",            L"D:(A;;WO;;;BU)",                                           true,  true },
    {"users, to make files",                  L"D:(A;;0x2;;;BU)",                                          true,  false},
    {"users, to make folders",                L"D:(A;;0x4;;;BU)",                                          false, false},
    {"only for what lies in it",              L"D:(A;OICIIO;FA;;;AU)",                                     false, false},
    {"administrators, all",                   L"D:(A;;FA;;;BA)(A;;FA;;;SY)",                               false, false},
    {"denied before",                         L"D:(D;;FW;;;BU)(A;;FW;;;BU)",                               false, false},
    {"denied in part before",                 L"D:(D;;0x2;;;BU)(A;;FA;;;BU)",                              true,  true },
    {"denied all before",                     L"D:(D;;FA;;;BU)(A;;FA;;;BU)",                               false, false},
    {"denied to everyone before",             L"D:(D;;FA;;;WD)(A;;FA;;;BU)",                               false, false},
    {"denied after",                          L"D:(A;;FW;;;BU)(D;;FA;;;BU)",                               true,  false},
    {"denied to guests, allowed to everyone", L"D:(D;;FA;;;BG)(A;;FA;;;WD)",                               true,  true },
};

class SecurityDescriptor {
 public:
  explicit SecurityDescriptor(const wchar_t* text) {
    EXPECT_TRUE(ConvertStringSecurityDescriptorToSecurityDescriptorW(text, SDDL_REVISION_1, &descriptor_, nullptr));
  }
  ~SecurityDescriptor() { LocalFree(descriptor_); }
  SecurityDescriptor(const SecurityDescriptor&) = delete;
  SecurityDescriptor& operator=(const SecurityDescriptor&) = delete;

  ACL* List() const {
    BOOL isThere = FALSE;
    BOOL isDefault = FALSE;
    ACL* list = nullptr;
    GetSecurityDescriptorDacl(descriptor_, &isThere, &list, &isDefault);
    return list;
  }

 private:
  PSECURITY_DESCRIPTOR descriptor_ = nullptr;
};

TEST(AccessList, LetsOthersWriteWhereAGroupOfEverybodyMay) {
  for (const Case& each : kCases) {
    const SecurityDescriptor descriptor(each.list);
    ASSERT_NE(descriptor.List(), nullptr) << each.name;
    EXPECT_EQ(LetsOthersWrite(descriptor.List()), each.isWritable) << each.name;
    EXPECT_EQ(LetsOthersExchange(descriptor.List()), each.isExchangeable) << each.name;
  }
}

TEST(AccessList, ThatIsMissingLetsEverybodyDoEverything) { EXPECT_TRUE(LetsOthersWrite(nullptr)); }

TEST(AccessList, IsReadFromTheFile) {
  const TemporaryFolder folder;
  const auto file = folder.Write("tool.exe", "");
  EXPECT_FALSE(OthersMayWrite(file));
  LetOthersWrite(file);
  EXPECT_TRUE(OthersMayWrite(file));
  EXPECT_FALSE(OthersMayWrite(folder.Path() / "nothing"));
}

}  // namespace
