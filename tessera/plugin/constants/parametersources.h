// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

/// Words by which the host describes parameter sources and their trees. All are compared exactly.
namespace Plugin::Tessera::ParameterSources {

// Source categories.
inline constexpr const char *Device = "Device";
inline constexpr const char *Workbench = "Workbench";

// Device class of cameras whose texts are UTF-8.
inline constexpr const char *GigEVision = "GEV";

// Attached paths that get a root name of their own.
inline constexpr const char *CameraDevice = "@CameraDevice";
inline constexpr const char *CameraInstance = "@CameraInstance";
inline constexpr const char *DeviceTransportLayer = "@DeviceTransportLayer";
inline constexpr const char *EventGrabber = "@EventGrabber";
inline constexpr const char *ImageFormatConverter = "@ImageFormatConverter";
inline constexpr const char *Interface = "@Interface";
inline constexpr const char *StreamGrabber = "@StreamGrabber0";

} // namespace Plugin::Tessera::ParameterSources
