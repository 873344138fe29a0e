#include "bench/whole_query.h"

#include <string>

#include "plugin/host_interface/services.h"

using namespace NKVRHXA20;

WholeQuery::WholeQuery() : repository_(TRepository::Make(std::nullopt)) {
  for (const CatalogueEntry& entry : Catalogue()) {
    classes_.push_back(repository_->GetClass(std::string(entry.name), {}));
  }
}

std::size_t WholeQuery::Run() {
  repository_->BeginQuery(classes_);
  RunQuery(state_, TRootObject::GetCoreLogger(), *repository_, classes_);
  return repository_->Published().size();
}
