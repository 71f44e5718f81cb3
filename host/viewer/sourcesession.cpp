// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "sourcesession.h"

#include <host/framework/camerarecord.h>
#include <host/framework/findservice.h>
#include <host/framework/parameterpool.h>
#include <host/framework/serviceregistry.h>
#include <host/framework/sourcerecord.h>
#include <host/simulation/simulatedcollection.h>
#include <host/simulation/simulatedsource.h>
#include <plugin/contract/core/baseexception.h>
#include <plugin/contract/core/logging.h>
#include <plugin/contract/genapi/genericexception.h>
#include <plugin/contract/viewer/exceptiondialogs.h>
#include <plugin/contract/viewer/featuretreecontrolservice.h>

#include <algorithm>
#include <exception>

namespace Viewer {

using Core::AppCoreComponents::BaseInfoPtr;
using Plugin::FeatureTree::IFeatureTreeControlService;

struct SourceSession::Entry
{
    QSharedPointer<Simulation::SimulatedSource> source;
    BaseInfoPtr record;
    bool isOpen = false; ///< for the user; a device that was unplugged stays so until it is closed
};

namespace {

BaseInfoPtr makeRecord(const Simulation::DeviceInfo &info)
{
    if (info.category == QLatin1String("Device")) {
        return QSharedPointer<Host::CameraRecord>::create(info.displayName, info.model,
                                                          info.deviceClass);
    }
    return QSharedPointer<Host::SourceRecord>::create(info.category);
}

// A description with a mistake still gives a source, without the entry that has it.
void logProblem(const QString &problem)
{
    static const quint64 category = Core::Logging::getCatId("vantrel.viewer.sources");
    Core::Logging::createLogEntry(Core::Logging::ELogLevel::Fault, category, problem);
}

// False, and the user was told, when the source did not open.
bool openSource(Simulation::SimulatedSource &source, const QString &complaint)
{
    const auto where = QStringLiteral("Viewer::SourceSession::open");
    try {
        source.open();
        return true;
    } catch (const GenICam::GenericException &e) {
        showException(where, e, complaint, nullptr);
    } catch (const std::exception &e) {
        showException(where, e, complaint, nullptr);
    } catch (const Core::Exception::BaseException &e) {
        showException(where, e, complaint, nullptr);
    } catch (...) {
        showUnexpectedException(where, complaint, nullptr);
    }
    return false;
}

} // namespace

void SourceSession::addAll()
{
    const QStringList ids = m_catalogue.ids();
    std::for_each(ids.cbegin(), ids.cend(), [this](const QString &id) { add(id); });
}

SourceSession::SourceSession(QSharedPointer<Host::ServiceRegistry> registry,
                             QSharedPointer<Host::ParameterPool> pool, QObject *parent)
    : QObject(parent)
    , m_registry(std::move(registry))
    , m_pool(std::move(pool))
{
}

SourceSession::~SourceSession() = default;

void SourceSession::add(const QString &id)
{
    if (indexOf(id) >= 0) {
        return;
    }
    const auto source = m_catalogue.makeSource(id);
    const QStringList problems = m_catalogue.problems();
    std::for_each(problems.cbegin() + m_problemsLogged, problems.cend(), &logProblem);
    m_problemsLogged = problems.size();
    const BaseInfoPtr record = makeRecord(source->info());
    m_pool->insert(record, source->collection());
    m_entries.push_back({source, record, false});
    Q_EMIT changed(-1);
}

int SourceSession::count() const
{
    return static_cast<int>(m_entries.size());
}

int SourceSession::indexOf(const QString &id) const
{
    const auto found = std::find_if(m_entries.cbegin(), m_entries.cend(),
                                    [&id](const Entry &entry) { return entry.source->id() == id; });
    return found == m_entries.cend() ? -1 : static_cast<int>(found - m_entries.cbegin());
}

QString SourceSession::id(int index) const
{
    const Entry *found = entry(index);
    return found ? found->source->id() : QString();
}

QString SourceSession::displayName(int index) const
{
    const Entry *found = entry(index);
    return found ? found->source->info().displayName : QString();
}

QString SourceSession::kind(int index) const
{
    const Entry *found = entry(index);
    if (!found) {
        return QString();
    }
    const QString deviceClass = found->source->info().deviceClass;
    if (deviceClass == QLatin1String("GEV")) {
        return tr("GigE Vision");
    }
    if (deviceClass == QLatin1String("U3V")) {
        return tr("USB3 Vision");
    }
    return found->source->info().category;
}

bool SourceSession::isOpen(int index) const
{
    const Entry *found = entry(index);
    return found && found->isOpen;
}

int SourceSession::activeIndex() const
{
    return m_active;
}

BaseInfoPtr SourceSession::record(int index) const
{
    const Entry *found = entry(index);
    return found ? found->record : nullptr;
}

QSharedPointer<Simulation::SimulatedSource> SourceSession::source(int index) const
{
    const Entry *found = entry(index);
    return found ? found->source : nullptr;
}

void SourceSession::open(int index)
{
    Entry *opening = entry(index);
    if (!opening) {
        return;
    }
    if (opening->isOpen) {
        setActive(index);
        return;
    }
    if (!openSource(*opening->source, tr("%1 could not be opened.").arg(displayName(index)))) {
        return;
    }
    opening->isOpen = true;
    if (const auto service = panes()) {
        service->registerParameterSource(opening->record);
    }
    announceActive(index);
    Q_EMIT opened(index);
}

void SourceSession::close(int index)
{
    Entry *closing = entry(index);
    if (!closing || !closing->isOpen) {
        return;
    }
    // The panes let go of the source before it falls silent; then the next one is named, because
    // they show their hint after any source has gone.
    if (const auto service = panes()) {
        service->unregisterParameterSource(closing->record);
    }
    closing->source->close();
    closing->isOpen = false;
    Q_EMIT changed(index);
    Q_EMIT closed(index);
    announceActive(m_active == index ? openNeighbour(index) : m_active);
}

void SourceSession::setActive(int index)
{
    if (index == m_active || !isOpen(index)) {
        return;
    }
    announceActive(index);
}

void SourceSession::closeAll()
{
    for (int index = count() - 1; index >= 0; --index) {
        close(index);
    }
}

void SourceSession::requestOpen(int index)
{
    QMetaObject::invokeMethod(
        this, [this, index] { open(index); }, Qt::QueuedConnection);
}

void SourceSession::requestClose(int index)
{
    QMetaObject::invokeMethod(
        this, [this, index] { close(index); }, Qt::QueuedConnection);
}

void SourceSession::requestActive(int index)
{
    QMetaObject::invokeMethod(
        this, [this, index] { setActive(index); }, Qt::QueuedConnection);
}

void SourceSession::requestRefresh()
{
    if (const auto service = panes()) {
        service->requestFeatureTreeRefresh();
    }
}

SourceSession::Entry *SourceSession::entry(int index)
{
    return index >= 0 && index < count() ? &m_entries[static_cast<size_t>(index)] : nullptr;
}

const SourceSession::Entry *SourceSession::entry(int index) const
{
    return index >= 0 && index < count() ? &m_entries[static_cast<size_t>(index)] : nullptr;
}

int SourceSession::openNeighbour(int index) const
{
    for (int distance = 1; distance < count(); ++distance) {
        for (const int candidate : {index + distance, index - distance}) {
            if (isOpen(candidate)) {
                return candidate;
            }
        }
    }
    return -1;
}

void SourceSession::announceActive(int index)
{
    const int former = m_active;
    m_active = index;
    if (const auto service = panes()) {
        service->setActiveParameterSource(record(index));
    }
    for (const int place : {former, index}) {
        if (place >= 0) {
            Q_EMIT changed(place);
        }
    }
}

QSharedPointer<IFeatureTreeControlService> SourceSession::panes() const
{
    return Host::findService<IFeatureTreeControlService>(m_registry);
}

} // namespace Viewer
