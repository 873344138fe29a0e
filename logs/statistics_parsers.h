#pragma once

#include <string_view>

class CollectedData;
struct ZenxBstData;
struct ZenxEventData;
struct ZenxSubStatData;

// Each fills the record from the current line alone.

// "Logical drive 2 - 15": number of the drive and of its bad stripes, both without leading zeros.
void ParseBadStripe(ZenxBstData& record, const CollectedData& text, std::string_view controllerNumber);

// One row of the device event table.
void ParseDeviceEvent(ZenxEventData& record, const CollectedData& text, std::string_view controllerNumber);

// "A:1 C:1 I:0 PARAMS:0x1f REQ-OFF:8 MAX-TXER-P:10 CUR-TXER-P:10". The controller's number is the one on the line,
// not the one given.
void ParseSubStat(ZenxSubStatData& record, const CollectedData& text, std::string_view controllerNumber);
