// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <host/simulation/sourcecatalogue.h>
#include <plugin/contract/appcore/baseinfo.h>

#include <QObject>
#include <QSharedPointer>
#include <QString>
#include <QStringList>

#include <vector>

namespace Host {
class ParameterPool;
class ServiceRegistry;
} // namespace Host
namespace Simulation {
class SimulatedSource;
}
namespace Plugin::FeatureTree {
class IFeatureTreeControlService;
}

namespace Viewer {

/// The sources of the viewer: which there are, which are open, which one is active; and the calls
/// to pool and panes that follow from a change.
///
/// A source keeps its record, its collection and its place for the life of the session. Changes
/// asked for by the user are carried out from the event loop, never inside the call: a click may
/// come while an editor is still writing to the camera.
class SourceSession final : public QObject
{
    Q_OBJECT

public:
    SourceSession(QSharedPointer<Host::ServiceRegistry> registry,
                  QSharedPointer<Host::ParameterPool> pool, QObject *parent = nullptr);
    ~SourceSession() override;

    /// Adds the source with this id, closed. Adding it again changes nothing.
    /// Mistakes in its description are logged.
    /// \throws Core::Exception::BaseException with one clear line for an id that names no source,
    /// or a description that cannot be read.
    void add(const QString &id);

    /// Adds every source there is.
    void addAll();

    int count() const;
    int indexOf(const QString &id) const;
    QString id(int index) const;
    QString displayName(int index) const;
    /// "GigE Vision", "USB3 Vision" or what else the source is.
    QString kind(int index) const;
    bool isOpen(int index) const;
    /// The place of the active source, or -1.
    int activeIndex() const;
    /// Null for no place.
    Core::AppCoreComponents::BaseInfoPtr record(int index) const;
    QSharedPointer<Simulation::SimulatedSource> source(int index) const;

    /// Opens a source now and makes it the active one; what was open stays open.
    /// A source that cannot be opened raises a dialog and stays closed.
    void open(int index);
    /// Closes a source now; if it was active, the open source nearest to it takes its place.
    void close(int index);
    void setActive(int index);
    void closeAll();

public Q_SLOTS:
    /// The same, from the event loop.
    void requestOpen(int index);
    void requestClose(int index);
    void requestActive(int index);
    /// Asks the panes to read their values again.
    void requestRefresh();

Q_SIGNALS:
    /// Something of the source at this place changed, or of all with -1.
    void changed(int index);
    /// The panes have made their browsers for this source.
    void opened(int index);
    void closed(int index);

private:
    struct Entry;

    Entry *entry(int index);
    const Entry *entry(int index) const;
    int openNeighbour(int index) const;
    void announceActive(int index);
    QSharedPointer<Plugin::FeatureTree::IFeatureTreeControlService> panes() const;

    QSharedPointer<Host::ServiceRegistry> m_registry;
    QSharedPointer<Host::ParameterPool> m_pool;
    Simulation::SourceCatalogue m_catalogue;
    int m_problemsLogged = 0;
    std::vector<Entry> m_entries;
    int m_active = -1;
};

} // namespace Viewer
