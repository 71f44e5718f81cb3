// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

/// Words by which the host describes parameter sources and their trees. All are compared exactly.
namespace Plugin::Tessera::ParameterSources {

// Source categories.
inline constexpr const char *Device = "Device";
inline constexpr const char *Workbench = "Workbench";

// Device classes. Cameras of the first one have UTF-8 texts; nothing compares the others.
inline constexpr const char *GigEVision = "GEV";
inline constexpr const char *CameraLink = "CL";
inline constexpr const char *CoaXPress = "CXP";
inline constexpr const char *CameraEmulator = "Mockrig";
inline constexpr const char *Custom = "Custom";
inline constexpr const char *IpCamera = "IPCam";
inline constexpr const char *Usb3Vision = "U3V";

// Attached paths that get a root name of their own.
inline constexpr const char *CameraDevice = "@CameraDevice";
inline constexpr const char *CameraInstance = "@CameraInstance";
inline constexpr const char *DeviceTransportLayer = "@DeviceTransportLayer";
inline constexpr const char *EventGrabber = "@EventGrabber";
inline constexpr const char *ImageFormatConverter = "@ImageFormatConverter";
inline constexpr const char *Interface = "@Interface";
inline constexpr const char *StreamGrabber = "@StreamGrabber0";

// The host's other trees, which are named after their path.
inline constexpr const char *ChunkData = "@ChunkData";
inline constexpr const char *Converter = "@Converter";
inline constexpr const char *Neurolens = "@Neurolens";
inline constexpr const char *ExtensionPlugin = "@ExtensionPlugin";
inline constexpr const char *Invalid = "@Invalid";
inline constexpr const char *PixelDataConverter = "@PixelDataConverter";
inline constexpr const char *Gridloop = "@Gridloop";
inline constexpr const char *VideoWriter = "@VideoWriter";
inline constexpr const char *QStep = "@qStep";

} // namespace Plugin::Tessera::ParameterSources
