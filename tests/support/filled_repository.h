#pragma once

#include <algorithm>
#include <iterator>
#include <string>
#include <utility>
#include <vector>

#include "host/hxacore/repository.h"
#include "host/hxahost/result/query_result.h"

// A repository of the machine "M" that a test fills as a plug-in does.
class FilledRepository {
 public:
  FilledRepository() : repository_(NKVRHXA20::TRepository::Make(std::nullopt, "M")) {}

  using Properties = std::vector<std::pair<std::string, NKVRHXA20::TCIMValue>>;

  // Sets the properties in their order, commits, and returns a reference to the instance.
  NKVRHXA20::TCIMReference Publish(const std::string& className, const Properties& properties) {
    const auto instance = repository_->GetClass(className, {})->CreateInstance({});
    for (const auto& [name, value] : properties) instance->SetProperty(name, value, {});
    instance->Commit({});
    return instance->GetReference({});
  }

  // The same with alternating names and values.
  template <class... NamesAndValues>
  NKVRHXA20::TCIMReference Publish(const std::string& className, const std::string& name,
                                   const NamesAndValues&... namesAndValues) {
    return Publish(className, InTurn(name, namesAndValues...));
  }

  template <class... More>
  static Properties InTurn(const std::string& name, const NKVRHXA20::TCIMValue& value, const More&... more) {
    Properties properties = {
        {name, value}
    };
    if constexpr (sizeof...(more) > 0) std::ranges::move(InTurn(more...), std::back_inserter(properties));
    return properties;
  }

  hxahost::InstanceList Instances() const { return repository_->Published(); }

  boost::shared_ptr<const NKVRHXA20::TPublishedInstance> System() const { return repository_->System(); }

 private:
  boost::shared_ptr<NKVRHXA20::TRepository> repository_;
};

// An array of strings.
inline NKVRHXA20::TCIMValue Texts(const std::vector<std::string>& texts) {
  return {NKVRHXA20::kCIMString, 0, std::vector<NKVRHXA20::TCIMValue>(texts.begin(), texts.end())};
}
