// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtGlobal>

#include <atomic>

class QString;

/// The log of one editor class. The category is resolved with the first entry.
class EditorLog final
{
public:
    /// `category` is one of `Plugin::Tessera::LogCategories`.
    constexpr explicit EditorLog(const char *category)
        : m_category(category)
    {
    }

    /// Writes an entry of level Fault.
    void fault(const QString &text);

private:
    const char *m_category; // borrowed: a constant
    std::atomic<quint64> m_categoryId {0};
};
