// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "plugin/contract/genapi/visibility.h"

#include "host/simulation/description/accessmode.h"

#include <QHash>
#include <QString>

#include <optional>

namespace Simulation {

/// What was set over the properties of a node: texts under their keys, and what the two texts
/// "Visibility" and "AccessMode" mean.
class NodeOverrides final
{
public:
    /// Takes an override. Throws `GenICam::InvalidArgumentException` for a visibility or an access
    /// mode of an unknown name.
    void set(const QString &key, const QString &value);

    std::optional<QString> text(const QString &key) const;
    GenApi::EVisibility visibility(GenApi::EVisibility ofDevice) const;
    AccessMode access(AccessMode ofDevice) const;

private:
    QHash<QString, QString> m_texts;
    std::optional<GenApi::EVisibility> m_visibility;
    AccessMode m_access = AccessMode::ReadWrite;
};

} // namespace Simulation
