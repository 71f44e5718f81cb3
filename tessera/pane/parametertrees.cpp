// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "parametertrees.h"

#include "plugin/constants/parametersources.h"
#include "plugin/contract/viewer/camerainfo.h"

#include <algorithm>
#include <array>

namespace Plugin::Tessera {

namespace {

namespace Sources = ParameterSources;

struct NamedPath
{
    const char *path;
    const char *displayName;
};

constexpr std::array<NamedPath, 6> namedPaths {{
    {Sources::DeviceTransportLayer, "Device Transport Layer"},
    {Sources::StreamGrabber, "Stream Parameters"},
    {Sources::EventGrabber, "Event Grabber Parameters"},
    {Sources::ImageFormatConverter, "Image Format Conversion"},
    {Sources::CameraDevice, "Camera"},
    {Sources::CameraInstance, "Camera Instance"},
}};

constexpr std::array<const char *, 5> cameraPaths {
    Sources::CameraDevice, Sources::DeviceTransportLayer, Sources::StreamGrabber,
    Sources::EventGrabber, Sources::CameraInstance,
};

QString withoutAt(QString path)
{
    return path.remove(QLatin1Char('@'));
}

bool isPath(const QString &path, const char *known)
{
    return path == QLatin1String(known);
}

// What a block has of its own, whatever the path, stands below one name.
ParameterTree workbenchTree(const QString &path)
{
    const bool isOfCamera = std::any_of(cameraPaths.begin(), cameraPaths.end(),
                                        [&](const char *known) { return isPath(path, known); });
    if (isOfCamera) {
        return {parameterTreeDisplayName(path), false};
    }
    return {QStringLiteral("qStep"), true};
}

ParameterTree deviceTree(const Core::AppCoreComponents::BaseInfoPtr &info, const QString &path)
{
    const auto camera = info.objectCast<Core::CameraPoolComponents::ICameraInfo>();
    ParameterTree tree {parameterTreeDisplayName(path), false};
    if (camera) {
        tree.isUtf8 = camera->deviceClass() == QLatin1String(Sources::GigEVision);
        if (isPath(path, Sources::CameraDevice) || isPath(path, Sources::Interface)) {
            tree.rootName = camera->displayName();
        }
    }
    return tree;
}

} // namespace

QString parameterTreeDisplayName(const QString &path)
{
    const QString bare = withoutAt(path);
    const auto *known =
        std::find_if(namedPaths.begin(), namedPaths.end(), [&](NamedPath candidate) {
            return bare == QLatin1String(candidate.path + 1); // without its own "@"
        });
    return known == namedPaths.end() ? bare : QString::fromLatin1(known->displayName);
}

ParameterTree parameterTree(const Core::AppCoreComponents::BaseInfoPtr &info, const QString &path)
{
    const QString category = info->sourceCategory();
    if (category == QLatin1String(Sources::Workbench)) {
        return workbenchTree(path);
    }
    return category == QLatin1String(Sources::Device) ? deviceTree(info, path) : ParameterTree();
}

} // namespace Plugin::Tessera
