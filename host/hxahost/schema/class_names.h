#pragma once

#include <string_view>

namespace hxahost {

// The classes that the program reads, by their published names.
inline constexpr std::string_view kControllerClass = "KVRSG_zxSCSIProtocolController";
inline constexpr std::string_view kLogicalDiskClass = "KVRSG_zxLogicalDisk";
inline constexpr std::string_view kDiskGroupClass = "KVRSG_zxDiskGroup";
inline constexpr std::string_view kDiskDriveClass = "KVRSG_zxDiskDrive";
inline constexpr std::string_view kRawDataClass = "KVRSG_zxRawData";
inline constexpr std::string_view kBadStripesClass = "KVRSG_BadStripeData";
inline constexpr std::string_view kDeviceErrorsClass = "KVRSG_zxSCSIDeviceData";
inline constexpr std::string_view kTransferClass = "KVRSG_zxSCSISubStatData";
inline constexpr std::string_view kEventClass = "KVRSG_LogRecord_RAIDMgrEvent";
inline constexpr std::string_view kFirmwareClass = "KVRSG_zxFirmwareVersion";
inline constexpr std::string_view kDiskVersionClass = "KVRSG_zxDiskDriveVersion";
inline constexpr std::string_view kManagerRawDataClass = "KVRSG_zxManagerRawData";

}  // namespace hxahost
