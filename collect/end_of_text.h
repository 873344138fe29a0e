#pragma once

#include <stdexcept>

// Reads a part of a text. A text that was cut off in the middle of it ends the part quietly: what was read stays.
template <class Read>
void UntilEndOfText(const Read& read) {
  try {
    read();
  } catch (const std::out_of_range&) {
    // The scanner has no line left; so has everything that would be read after this part.
  }
}
