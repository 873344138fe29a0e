#pragma once

#include <string>
#include <string_view>
#include <vector>

// How the values that tell of health are cut into words that rules can name. Words are in lower case, a hyphen and a
// run of blanks are one blank. A value without anything in it has no word.
namespace hxahost {

using Words = std::vector<std::string>;

// One word in the form in which words are compared: "Hot-Spare" is "hot spare".
std::string NormalWord(std::string_view text);

// The parts of a state, its code included: "Critical (CRT)" is critical, crt; "Degraded, Rebuilding" is degraded,
// rebuilding. Whom a spare is for is left out: "Hot Spare for Logical drive 1" is hot spare.
Words StateWords(std::string_view text);

// "Yes (0,8)" is yes.
Words FirstWord(std::string_view text);

// What is in parentheses: "46 C/ 114 F (Normal)" is normal. Figures alone say nothing.
Words BracketedWords(std::string_view text);

// "0" is none, any other number is some. What is no number stays what it is.
Words CountWords(std::string_view text);

// "3/1/0" are logical drives, those offline, those critical: offline, critical, or none. What has another form stays
// what it is.
Words DriveCountWords(std::string_view text);

// One word of it all.
Words WholeText(std::string_view text);

// What a log entry begins with, up to a colon or the end of the sentence: "Collection aborted: ..." is collection
// aborted.
Words LogHead(std::string_view text);

}  // namespace hxahost
