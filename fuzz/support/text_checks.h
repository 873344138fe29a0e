#pragma once

#include <cstddef>
#include <string_view>

// Each ends the program unless it is so.

void RequireUtf8(std::string_view text);

// Lines of UTF-8 that a terminal shows and does not obey: no control characters but line feeds.
void RequirePlainLines(std::string_view text);

// What Prometheus reads: comments, and samples of a name, labels in quotes and a number, none of them twice.
void RequireMetrics(std::string_view text);

std::size_t CountOf(std::string_view text, std::string_view searched);
