#include "tools/qcmdrun/physical_device_parser.h"

#include <algorithm>
#include <string_view>

#include "collect/ascii_text.h"
#include "collect/labelled_fields.h"
#include "collect/records.h"
#include "tools/qcmdrun/labels.h"

namespace qcmdrun {

namespace {

// Where a piece is in the identifier of a hard disk. Offset 0 is the blank after the colon.
struct Piece {
  std::size_t offset;
  std::size_t length;
  std::string Device::*field;
};

constexpr Piece kModel = {0, 16, &Device::Model};

// " TALVERA T36LW10 S96H8B01234": firmware and serial number share a character.
constexpr Piece kHardDiskPieces[] = {
    {9,  8, &Device::DeviceCode     },
    {17, 4, &Device::Firmware       },
    {20, 8, &Device::DeviceSerialNum},
};

// An identifier shorter than this, blank and line end counted, ends before the serial number does.
constexpr std::size_t kFullIdentifier = 28;

// Takes the piece out of the identifier; where that ends in it, what there is of it.
void Cut(Device& device, const Piece& piece) {
  const std::string_view identifier = device.DeviceIdSuffix;
  device.*piece.field = identifier.substr(piece.offset, piece.length);
}

void CutHardDisk(Device& device) {
  Cut(device, kModel);
  if (device.DeviceIdSuffix.size() < kFullIdentifier) {
    device.Firmware.clear();  // a tape's step may have set it
    device.DeviceSerialNum.clear();
    return;
  }
  for (const Piece& piece : kHardDiskPieces) Cut(device, piece);
}

// The last four characters of a tape's identifier, before the line end, are its firmware version.
void CutTape(Device& device) {
  constexpr std::size_t kLineEnd = 2;
  constexpr std::size_t kFirmware = 4;
  const std::string_view identifier = device.DeviceIdSuffix;
  const std::size_t end = identifier.size() - std::min(identifier.size(), kLineEnd);
  const std::size_t begin = end - std::min(end, kFirmware);
  device.Model = identifier;
  device.Firmware = identifier.substr(begin, end - begin);
  Log(device.Host, kLogRoutine, "We get one tape drive, and it's firmware version is:" + device.Firmware);
}

// "     Device is a Hard disk": what follows the label, line end included.
std::string_view CutType(std::string_view line) {
  const std::size_t label = line.find(kDeviceTypeLabel);
  return label == line.npos ? std::string_view() : line.substr(label + kDeviceTypeLabel.size());
}

}  // namespace

void ParsePhysicalDevice(Device& device, CollectedData& text, std::string_view controllerNumber,
                         std::string_view channel) {
  device.ControllerNum = controllerNumber;
  device.Channel = channel;
  device.DeviceType = CutType(text.NextLine());
  ReadInOrder(text, device, kDevice);
  if (Contains(device.DeviceType, "Tape")) CutTape(device);
  if (Contains(device.DeviceType, "Hard disk")) CutHardDisk(device);
  ReadInOrder(text, device, kReplacementPart);
}

}  // namespace qcmdrun
