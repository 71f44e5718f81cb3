// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "support/fakecollection.h"
#include "support/warningguard.h"

#include <QTest>

/// A test over the features of a fake camera, fresh for each function and watched for warnings.
class FeatureTest : public QObject
{
    Q_OBJECT

protected:
    FeatureTest() = default;

    /// Before and after each function.
    virtual void prepare()
    {
    }
    virtual void release()
    {
    }

    /// Adds features to the camera.
    void attach(const QString &text) const
    {
        m_collection->attach(m_path, text);
    }
    Tests::FakeNode &node(const char *name = "F") const
    {
        return m_collection->node(pathOf(name));
    }
    QString pathOf(const char *name) const
    {
        return m_path + QLatin1Char('/') + QLatin1String(name);
    }

    const QString m_path = QStringLiteral("@CameraDevice");
    QSharedPointer<Tests::FakeCollection> m_collection;
    Tests::WarningGuard m_guard;

private Q_SLOTS:
    void init()
    {
        m_guard.begin();
        m_collection = QSharedPointer<Tests::FakeCollection>::create();
        prepare();
    }
    void cleanup()
    {
        release();
        m_guard.verify();
    }
};
