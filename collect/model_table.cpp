#include "collect/model_table.h"

#include "collect/ascii_text.h"

std::string_view NameOfModel(std::string_view model, std::span<const ModelName> table) {
  for (const ModelName& row : table) {
    if (Contains(model, row.search)) return row.name;
  }
  return model;
}
