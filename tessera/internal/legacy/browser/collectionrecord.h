// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QSharedPointer>
#include <QString>

namespace ParameterCollection {
class IParameterCollection;
}

/// One parameter tree that a browser was given.
struct CollectionRecord
{
    QString rootName; ///< shown in place of the path
    QString roleName; ///< the path under which the tree is attached, such as "@CameraDevice"
    QSharedPointer<ParameterCollection::IParameterCollection> collection;
    bool isUtf8 = false; ///< texts are written in UTF-8, else in Latin-1
};
