// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "support/modeltester.h"

namespace Tests {

namespace {

QIdentityProxyModel *attached(QIdentityProxyModel *proxy, QAbstractItemModel *model)
{
    proxy->setSourceModel(model);
    return proxy;
}

} // namespace

ModelTester::ModelTester(QAbstractItemModel *model)
    : m_tester(attached(this, model), QAbstractItemModelTester::FailureReportingMode::QtTest)
{
}

Qt::ItemFlags ModelTester::flags(const QModelIndex &index) const
{
    return index.isValid() ? QIdentityProxyModel::flags(index) : Qt::NoItemFlags;
}

} // namespace Tests
