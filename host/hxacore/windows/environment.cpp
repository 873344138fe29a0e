#include "host/hxacore/windows/environment.h"

#include <algorithm>
#include <memory>
#include <string_view>
#include <vector>

#include <windows.h>

namespace NKVRHXA20 {

namespace {

struct FreeStrings {
  void operator()(wchar_t* strings) const { FreeEnvironmentStringsW(strings); }
};

// Names of variables are compared without regard to case.
bool StartsWith(std::wstring_view variable, std::wstring_view name) {
  return variable.size() >= name.size() &&
         CompareStringOrdinal(variable.data(), static_cast<int>(name.size()), name.data(),
                              static_cast<int>(name.size()), TRUE) == CSTR_EQUAL;
}

bool ChoosesLocale(std::wstring_view variable) {
  return StartsWith(variable, L"LC_") || StartsWith(variable, L"LANG=") || StartsWith(variable, L"LANGUAGE=");
}

// Windows requires the variables in this order.
bool ComesBefore(const std::wstring& one, const std::wstring& other) {
  return CompareStringOrdinal(one.data(), static_cast<int>(one.size()), other.data(), static_cast<int>(other.size()),
                              TRUE) == CSTR_LESS_THAN;
}

}  // namespace

std::wstring ChildEnvironment() {
  const std::unique_ptr<wchar_t, FreeStrings> strings(GetEnvironmentStringsW());
  std::vector<std::wstring> variables{L"LC_ALL=C"};
  for (const wchar_t* next = strings.get(); next && *next; next += std::wstring_view(next).size() + 1) {
    if (!ChoosesLocale(next)) variables.emplace_back(next);
  }
  std::ranges::stable_sort(variables, ComesBefore);
  std::wstring block;
  for (const std::wstring& variable : variables) block.append(variable).push_back(L'\0');
  return block += L'\0';
}

}  // namespace NKVRHXA20
