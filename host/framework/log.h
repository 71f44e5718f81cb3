// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "host/framework/logentry.h"

#include <QFile>
#include <QHash>
#include <QMutex>
#include <QObject>
#include <QVector>

#include <deque>

namespace Host {

/// The one log of the process, behind `Core::Logging`. Keeps the newest entries in memory and, when
/// asked to, writes each to standard error and to a file. Every function may be called from every
/// thread.
class VANTREL_HOST_EXPORT Log final : public QObject
{
    Q_OBJECT

public:
    /// How many entries are kept in memory; the oldest go first.
    static constexpr int capacity = 10000;

    /// The log; it lives until the process ends.
    static Log &instance();

    /// The number of a category: the same for each call with this name, never 0.
    quint64 categoryId(const QByteArray &name);
    /// Writes an entry. An id that `categoryId` never gave is named as such in the entry.
    void write(Core::Logging::ELogLevel level, quint64 categoryId, const QString &text);

    /// The entries in memory, oldest first.
    QVector<LogEntry> entries() const;
    /// Forgets the entries in memory.
    void clear();

    /// Whether each entry is written to standard error too. Off at the start.
    void setEchoed(bool echoed);
    /// From now on each entry is appended to the file `path`; an empty path ends that. When the
    /// file cannot be opened this is logged once, the log goes on without it, and false is
    /// returned.
    bool setFile(const QString &path);

Q_SIGNALS:
    /// An entry was written. Emitted on the GUI thread; for entries of other threads a little
    /// later, and never without an application object.
    void entryAdded(const Host::LogEntry &entry);

private:
    Log();
    ~Log() override = default;

    void store(const LogEntry &entry);
    void announce(const LogEntry &entry);

    mutable QMutex m_mutex; // guards all below
    QHash<QByteArray, quint64> m_categoryIds;
    QVector<QString> m_categoryNames; // the name of id n stands at place n - 1
    std::deque<LogEntry> m_entries;
    bool m_echoed = false;
    QFile m_file; // closed while no file is wanted
};

} // namespace Host
