#pragma once

#include <string>
#include <string_view>

#include "collect/ascii_text.h"
#include "collect/shared_labels.h"

// Cuts that the texts of several tools have in common.

// "Logical drive number 1": the text from 21 characters after the start of the label to the carriage return, or to
// the line feed where there is none. A line too short for it gives "". The label must be in the line.
std::string_view CutLogicalDriveNumber(std::string_view line, std::string_view label);

// "Device is a Hard drive", "Device is an Enclosure services device": the type, to the carriage return, or to the
// line feed where there is none. "" when the line does not contain "Device is a".
std::string_view CutDeviceType(std::string_view line);

// "Device #1": what a line that begins a device has from "Device #" on, 12 characters at most, so that the line end
// is part of it when the number is short. The label must be in the line.
std::string_view CutDeviceName(std::string_view line);

// Appends a further part to a text: line end, blanks and tabs that close the text and blanks that open the part are
// dropped, and the separator is between the two.
void Join(std::string& text, std::string_view separator, std::string_view part);

// Whether a line goes on with a list: it begins with a decimal digit.
inline bool BeginsWithDigit(std::string_view text) { return !text.empty() && IsDigit(text.front()); }

// The number that a text begins with, as the C library's atoi reads it: 0 where there is none.
int LeadingNumber(std::string_view text);
