#pragma once

#include <string>

#include "host/hxahost/machine/finding.h"

// Findings as lines for people, printable.
namespace hxahost {

// "logical drive 3 (Archive) of controller 4 [Zentraxis4LD3]"
std::string SubjectText(const Finding& finding);

// The value as the tool printed it, in quotes, a long one cut: "\"Degraded\"".
std::string QuotedText(const Finding& finding);

// "critical: logical drive 3 (Archive) of controller 4 [Zentraxis4LD3]: LogicalDriveStatus \"Degraded\": replace ..."
std::string FindingText(const Finding& finding);

}  // namespace hxahost
