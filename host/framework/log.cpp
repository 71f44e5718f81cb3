// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "log.h"

#include <QCoreApplication>
#include <QMutexLocker>
#include <QThread>

#include <cstdio>

namespace Host {

Log::Log()
{
    qRegisterMetaType<Host::LogEntry>("Host::LogEntry");
}

Log &Log::instance()
{
    // Never deleted: what is taken down at the very end of the process may still log.
    static auto *const log = new Log;
    return *log;
}

quint64 Log::categoryId(const QByteArray &name)
{
    const QMutexLocker locker(&m_mutex);
    if (const quint64 known = m_categoryIds.value(name)) {
        return known;
    }
    m_categoryNames.append(QString::fromUtf8(name));
    const auto id = static_cast<quint64>(m_categoryNames.size());
    m_categoryIds.insert(name, id);
    return id;
}

void Log::write(Core::Logging::ELogLevel level, quint64 categoryId, const QString &text)
{
    LogEntry entry {QDateTime::currentDateTime(), level, QString(), text};
    {
        const QMutexLocker locker(&m_mutex);
        const bool known =
            categoryId > 0 && categoryId <= static_cast<quint64>(m_categoryNames.size());
        entry.category = known ? m_categoryNames.at(static_cast<int>(categoryId) - 1)
                               : QStringLiteral("unknown category %1").arg(categoryId);
        store(entry);
    }
    announce(entry);
}

void Log::store(const LogEntry &entry)
{
    m_entries.push_back(entry);
    if (m_entries.size() > static_cast<size_t>(capacity)) {
        m_entries.pop_front();
    }
    if (!m_echoed && !m_file.isOpen()) {
        return;
    }
    QByteArray line = toLine(entry).toUtf8();
    line.append('\n');
    if (m_echoed) {
        std::fwrite(line.constData(), 1, static_cast<size_t>(line.size()), stderr);
    }
    if (m_file.isOpen()) {
        m_file.write(line);
        m_file.flush();
    }
}

void Log::announce(const LogEntry &entry)
{
    QCoreApplication *application = QCoreApplication::instance();
    if (application == nullptr) {
        return;
    }
    if (QThread::currentThread() == application->thread()) {
        Q_EMIT entryAdded(entry);
        return;
    }
    QMetaObject::invokeMethod(
        application, [this, entry] { Q_EMIT entryAdded(entry); }, Qt::QueuedConnection);
}

QVector<LogEntry> Log::entries() const
{
    const QMutexLocker locker(&m_mutex);
    return {m_entries.begin(), m_entries.end()};
}

void Log::clear()
{
    const QMutexLocker locker(&m_mutex);
    m_entries.clear();
}

void Log::setEchoed(bool echoed)
{
    const QMutexLocker locker(&m_mutex);
    m_echoed = echoed;
}

bool Log::setFile(const QString &path)
{
    QString error;
    {
        const QMutexLocker locker(&m_mutex);
        m_file.close();
        if (path.isEmpty()) {
            return true;
        }
        m_file.setFileName(path);
        if (m_file.open(QIODevice::WriteOnly | QIODevice::Append | QIODevice::Text)) {
            return true;
        }
        error = m_file.errorString();
    }
    write(Core::Logging::ELogLevel::Fault, categoryId("vantrel.host.log"),
          QStringLiteral("Cannot open the log file \"%1\": %2").arg(path, error));
    return false;
}

} // namespace Host
