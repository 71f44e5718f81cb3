// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "plugin/contract/hostexport.h"

#include <QObject>

namespace Core::Service {

/// Base of everything that plug-ins and host offer each other through the registry. A service is
/// found by its dynamic type, never by a name.
class VANTREL_HOST_EXPORT IService : public QObject
{
    Q_OBJECT

public:
    explicit IService(QObject *parent);
    ~IService() override;
};

} // namespace Core::Service
