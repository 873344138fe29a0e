#pragma once

#include <cstddef>
#include <string_view>

// Each ends the program unless the text has the property.

void RequireUtf8(std::string_view text);

// Lines of UTF-8 that do not act on a terminal: no control characters except line feeds.
void RequirePlainLines(std::string_view text);

// The format of Prometheus: comments, and samples of a name, labels in quotes and a number, none of them twice.
void RequireMetrics(std::string_view text);

std::size_t CountOf(std::string_view text, std::string_view searched);
