// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QAbstractItemModelTester>
#include <QIdentityProxyModel>

namespace Tests {

/// Watches a model for breaches of Qt's rules for item models. The one rule that the feature models
/// break by intent is left out: their invalid index is enabled.
class ModelTester final : public QIdentityProxyModel
{
    Q_OBJECT

public:
    explicit ModelTester(QAbstractItemModel *model);

    Qt::ItemFlags flags(const QModelIndex &index) const override;

private:
    QAbstractItemModelTester m_tester;
};

} // namespace Tests
