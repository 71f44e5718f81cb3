// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "nodeoverrides.h"

#include "plugin/contract/genapi/invalidargumentexception.h"

namespace Simulation {

namespace {

template<typename T>
T meaning(const QHash<QString, T> &words, const QString &key, const QString &word)
{
    const auto found = words.constFind(word);
    if (found == words.cend()) {
        const QString line = QStringLiteral("%1: \"%2\" is unknown").arg(key, word);
        throw GenICam::InvalidArgumentException(line.toStdString(), __FILE__, __LINE__);
    }
    return *found;
}

GenApi::EVisibility visibilityNamed(const QString &word)
{
    static const QHash<QString, GenApi::EVisibility> words {
        {QStringLiteral("Beginner"), GenApi::Beginner},
        {QStringLiteral("Expert"), GenApi::Expert},
        {QStringLiteral("Guru"), GenApi::Guru},
        {QStringLiteral("Invisible"), GenApi::Invisible},
    };
    return meaning(words, QStringLiteral("Visibility"), word);
}

AccessMode accessNamed(const QString &word)
{
    static const QHash<QString, AccessMode> words {
        {QStringLiteral("RW"), AccessMode::ReadWrite},
        {QStringLiteral("RO"), AccessMode::ReadOnly},
        {QStringLiteral("WO"), AccessMode::WriteOnly},
        {QStringLiteral("NA"), AccessMode::NotAvailable},
        {QStringLiteral("NI"), AccessMode::NotImplemented},
    };
    return meaning(words, QStringLiteral("AccessMode"), word);
}

} // namespace

void NodeOverrides::set(const QString &key, const QString &value)
{
    if (key == QLatin1String("Visibility"))
        m_visibility = visibilityNamed(value);
    else if (key == QLatin1String("AccessMode"))
        m_access = accessNamed(value);
    m_texts.insert(key, value);
}

std::optional<QString> NodeOverrides::text(const QString &key) const
{
    const auto found = m_texts.constFind(key);
    return found == m_texts.cend() ? std::nullopt : std::optional<QString>(*found);
}

GenApi::EVisibility NodeOverrides::visibility(GenApi::EVisibility ofDevice) const
{
    return m_visibility.value_or(ofDevice);
}

AccessMode NodeOverrides::access(AccessMode ofDevice) const
{
    return narrowed(ofDevice, m_access);
}

} // namespace Simulation
