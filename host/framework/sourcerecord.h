// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "plugin/contract/appcore/baseinfo.h"

namespace Host {

/// The record of a source that is no camera, such as a block of the Workbench.
class VANTREL_HOST_EXPORT SourceRecord final : public Core::AppCoreComponents::IBaseInfo
{
    Q_OBJECT

public:
    /// `category` as in `sourceCategory`: "Device", "Workbench" or something else.
    explicit SourceRecord(const QString &category, QObject *parent = nullptr);
    ~SourceRecord() override;

    QString sourceCategory() const override;

private:
    QString m_category;
};

} // namespace Host
