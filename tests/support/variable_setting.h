#pragma once

#include <optional>
#include <string>

#include "host/hxahost/system/environment.h"

// A variable of the environment with another value while it lives, and none afterwards.
class VariableSetting {
 public:
  VariableSetting(const char* name, const std::optional<std::string>& value) : name_(name) {
    hxahost::PutVariable(name_, value);
  }
  ~VariableSetting() { hxahost::PutVariable(name_, std::nullopt); }
  VariableSetting(const VariableSetting&) = delete;
  VariableSetting& operator=(const VariableSetting&) = delete;

 private:
  const char* name_;
};
