// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "plugin/contract/appcore/baseinfo.h"

#include <QString>

namespace Plugin::Tessera {

/// How a parameter tree is shown and written to.
struct ParameterTree
{
    QString rootName; ///< text of its top row, the same in every language
    bool isUtf8 = false; ///< texts are written in UTF-8, else in Latin-1
};

/// The name to show for the tree attached under `path`, such as "Camera" for "@CameraDevice".
QString parameterTreeDisplayName(const QString &path);

/// Describes the tree that the source `info` has attached under `path`. Blank for a source that is
/// neither a device nor a Workbench block.
ParameterTree parameterTree(const Core::AppCoreComponents::BaseInfoPtr &info, const QString &path);

} // namespace Plugin::Tessera
