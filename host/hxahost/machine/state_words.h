#pragma once

#include <string>
#include <string_view>
#include <vector>

// Cuts the values that health is read from into words that rules can name. Words are in lower case; a hyphen or a
// run of blanks becomes one blank. An empty value has no words.
namespace hxahost {

using Words = std::vector<std::string>;

// One word in the form that rules compare: "Hot-Spare" is "hot spare".
std::string NormalWord(std::string_view text);

// The parts of a state, its code included: "Critical (CRT)" is critical, crt; "Degraded, Rebuilding" is degraded,
// rebuilding. The purpose of a spare is left out: "Hot Spare for Logical drive 1" is hot spare.
Words StateWords(std::string_view text);

// "Yes (0,8)" is yes.
Words FirstWord(std::string_view text);

// The text in parentheses: "46 C/ 114 F (Normal)" is normal. A value of figures only has no word.
Words BracketedWords(std::string_view text);

// "0" is none, any other number is some. Other texts are returned unchanged.
Words CountWords(std::string_view text);

// "3/1/0" are the numbers of logical drives, offline ones and critical ones: offline, critical, or none. Other forms
// are returned unchanged.
Words DriveCountWords(std::string_view text);

// The whole text as one word.
Words WholeText(std::string_view text);

// The beginning of a log entry, up to a colon or the end of the sentence: "Collection aborted: ..." is collection
// aborted.
Words LogHead(std::string_view text);

}  // namespace hxahost
