#include "bench/whole_query.h"

#include <algorithm>
#include <iterator>
#include <string>

#include "plugin/host_interface/services.h"

using namespace NKVRHXA20;

WholeQuery::WholeQuery() : repository_(TRepository::Make(std::nullopt)) {
  for (const CatalogueEntry& entry : Catalogue()) {
    classes_.push_back(repository_->GetClass(std::string(entry.name), {}));
  }
}

std::size_t WholeQuery::Run() {
  return Run([](std::string_view) { return true; });
}

std::size_t WholeQuery::Run(const std::function<bool(std::string_view name)>& picks) {
  std::vector<boost::shared_ptr<ICIMClass>> classes;
  std::ranges::copy_if(classes_, std::back_inserter(classes), [&](const auto& one) { return picks(one->GetName({})); });
  repository_->BeginQuery(classes);
  RunQuery(state_, TRootObject::GetCoreLogger(), *repository_, classes);
  return repository_->Published().size();
}
