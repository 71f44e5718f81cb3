// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "host/simulation/parameters/snapshots.h"

#include <QSharedPointer>
#include <QString>

namespace Simulation {

class ParameterLibrary;
struct FeatureDescription;

/// What parameters of all kinds have in common: the number of their feature, what is known of it,
/// and the ways into the library. The kinds add their interface.
class ParameterCore
{
public:
    ParameterCore(QSharedPointer<ParameterLibrary> library, int id);
    virtual ~ParameterCore();
    Q_DISABLE_COPY_MOVE(ParameterCore)

    int id() const;
    const FeatureDescription &feature() const;
    ParameterLibrary &library() const;

    /// What is known, read from the device where nothing is. Throws as a read does.
    Snapshot snapshot() const;
    /// The snapshot made last, however old; null where there was none.
    Snapshot last() const;
    /// The snapshot that receivers were given last; before that, the first one that was made.
    Snapshot published() const;
    /// The last snapshot, which receivers are given now.
    Snapshot takeForPublication();
    /// Reads from the device. Throws as a read does.
    Snapshot reread() const;
    /// The next access reads from the device.
    void drop();
    /// The same, and whatever that access brings counts as changed.
    void forget();

    /// Writes a value, or what `text` names. Throws as a write does.
    void write(const Value &value, bool verify);
    void writeText(const QString &text);

    virtual bool hasReceivers() const = 0;
    virtual void emitSnapshot(const Snapshot &snapshot) = 0;

private:
    QSharedPointer<ParameterLibrary> m_library;
    int m_id;
    mutable Snapshot m_last;
    mutable Snapshot m_published;
    mutable bool m_isCurrent = false;
};

} // namespace Simulation
