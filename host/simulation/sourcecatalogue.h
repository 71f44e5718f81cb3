// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QSharedPointer>
#include <QString>
#include <QStringList>

namespace Simulation {

class SimulatedSource;

/// The simulated devices that come with the viewer.
class SourceCatalogue final
{
public:
    /// "simulated:gige", "simulated:usb" and "simulated:workbench".
    QStringList ids() const;
    /// A closed source of its own for each call. Throws `Core::Exception::BaseException` with one
    /// clear line for an unknown id or a description that cannot be read.
    QSharedPointer<SimulatedSource> makeSource(const QString &id);
    /// What was wrong in the descriptions read so far, one line each.
    QStringList problems() const;

private:
    QStringList m_problems;
};

} // namespace Simulation
