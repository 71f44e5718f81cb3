// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "plugin/contract/hostexport.h"

#include <QObject>
#include <QSharedPointer>
#include <QString>

namespace Core::AppCoreComponents {

/// The record of one parameter source. There is one record per source for the life of the
/// application; whoever keeps maps of sources orders them by its address.
class VANTREL_HOST_EXPORT IBaseInfo : public QObject
{
    Q_OBJECT

public:
    explicit IBaseInfo(QObject *parent = nullptr);
    ~IBaseInfo() override;

    /// "Device" for a camera or other device, "Workbench" for a processing block; anything else is
    /// tolerated and means neither.
    virtual QString sourceCategory() const = 0;
};

using BaseInfoPtr = QSharedPointer<IBaseInfo>;

} // namespace Core::AppCoreComponents
