#include "collect/field_text.h"

#include <memory>
#include <utility>

FieldText& FieldText::AssignLong(std::string_view text) {
  if (IsLong()) {
    Long()->assign(text);
  } else {
    BecomeLong(std::string(text));
  }
  return *this;
}

FieldText& FieldText::AppendLong(std::string_view text) {
  if (IsLong()) {
    Long()->append(text);
  } else {
    std::string whole(*this);
    BecomeLong(whole.append(text));
  }
  return *this;
}

// A text that was long once stays so: its memory serves the next one.
void FieldText::BecomeLong(std::string text) {
  const std::string* const held = std::make_unique<std::string>(std::move(text)).release();
  std::memcpy(bytes_.data(), &held, kPlace);
  SetState(kLong);
}

void FieldText::Release() noexcept { const std::unique_ptr<std::string> held(Long()); }
