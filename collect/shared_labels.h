#pragma once

#include <string_view>

// Labels that several tools print.

// Begins the line that begins a logical drive.
constexpr std::string_view kLogicalDriveHead = "Logical drive number";

// Begins the line that begins a device, and the line after it.
constexpr std::string_view kDeviceNumberLabel = "Device #";
constexpr std::string_view kDeviceTypeLabel = "Device is a";

// Begins a line with a stripe order, and the line with the list itself.
constexpr std::string_view kStripeOrderLine = "Stripe order";
constexpr std::string_view kStripeOrderLabel = "Stripe order (Channel,Device)";
