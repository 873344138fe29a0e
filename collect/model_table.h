#pragma once

#include <span>
#include <string_view>

// What a controller model is called. The first row whose search text is in the model text counts, so a text that
// contains another must come before it.
struct ModelName {
  std::string_view search;
  std::string_view name;
};

// The name of a model; a text that no row knows stays as it is.
std::string_view NameOfModel(std::string_view model, std::span<const ModelName> table);
