// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "plugin/contract/viewer/featuretreeusecaseservice.h"

class QJsonObject;

namespace Plugin::Tessera::Internal {

/// The use cases that the plug-in ships, with their names in the user's language.
class CFeatureTreeUseCaseService final : public IFeatureTreeUseCaseService
{
    Q_OBJECT

public:
    explicit CFeatureTreeUseCaseService(QObject *parent);
    ~CFeatureTreeUseCaseService() override;

    bool load() override;
    QVariantMap useCaseMap() override;
    QVariantMap basicUseCaseMap() override;

    /// The same for the catalogues of another folder.
    bool loadFrom(const QString &folder);

private:
    enum class Outcome { Read, WithoutUseCases, Unreadable };

    Outcome readFile(const QString &path);
    void readUseCase(const QJsonObject &useCase);

    QVariantMap m_useCaseMap;
    QVariantMap m_basicUseCaseMap;
};

} // namespace Plugin::Tessera::Internal
