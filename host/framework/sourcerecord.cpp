// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "sourcerecord.h"

namespace Host {

SourceRecord::SourceRecord(const QString &category, QObject *parent)
    : IBaseInfo(parent)
    , m_category(category)
{
}

SourceRecord::~SourceRecord() = default;

QString SourceRecord::sourceCategory() const
{
    return m_category;
}

} // namespace Host
