#include "collect/label_ahead.h"

#include <algorithm>

#include "collect/text_search.h"

void LabelAhead::LookAhead(const char* from) {
  const std::string_view ahead(from, end_);
  at_ = from + std::min(FindInReport(ahead, label_), ahead.size());
}
