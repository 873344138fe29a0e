#pragma once

#include <string>
#include <utility>
#include <vector>

#include "host/hxacore/repository.h"
#include "host/hxahost/result/query_result.h"

// A repository that a test fills as a plug-in does.
class FilledRepository {
 public:
  FilledRepository() : repository_(NKVRHXA20::TRepository::Make(std::nullopt)) {}

  using Properties = std::vector<std::pair<std::string, NKVRHXA20::TCIMValue>>;

  // Sets the properties in their order, commits, and gives a reference to the instance.
  NKVRHXA20::TCIMReference Publish(const std::string& className, const Properties& properties) {
    const auto instance = repository_->GetClass(className, {})->CreateInstance({});
    for (const auto& [name, value] : properties) instance->SetProperty(name, value, {});
    instance->Commit({});
    return instance->GetReference({});
  }

  // The same with names and values in turn.
  template <class... More>
  NKVRHXA20::TCIMReference Publish(const std::string& className, const std::string& name,
                                   const NKVRHXA20::TCIMValue& value, const More&... more) {
    Properties properties;
    Append(properties, name, value, more...);
    return Publish(className, properties);
  }

  hxahost::InstanceList Instances() const { return repository_->Published(); }

 private:
  static void Append(Properties&) {}
  template <class... More>
  static void Append(Properties& properties, const std::string& name, const NKVRHXA20::TCIMValue& value,
                     const More&... more) {
    properties.emplace_back(name, value);
    Append(properties, more...);
  }

  boost::shared_ptr<NKVRHXA20::TRepository> repository_;
};

// An array of strings.
inline NKVRHXA20::TCIMValue Texts(const std::vector<std::string>& texts) {
  return {NKVRHXA20::kCIMString, 0, std::vector<NKVRHXA20::TCIMValue>(texts.begin(), texts.end())};
}
