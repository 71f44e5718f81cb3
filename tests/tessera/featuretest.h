// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "support/fakecollection.h"
#include "support/warningguard.h"

#include <QAbstractItemModel>
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
    /// Announces a fault in a log category of the plug-in: its text, or a pattern for it.
    template<typename Text> void expectFault(const char *category, const Text &text)
    {
        m_guard.expectLogEntry(
            Core::Logging::ELogLevel::Fault,
            QLatin1String("vantrel.viewer.plugins.tessera.") + QLatin1String(category), text);
    }
    /// The names of the rows for which `role` is not false, each with a blank.
    static QString names(const QAbstractItemModel &model, int role = Qt::DisplayRole)
    {
        QString text;
        for (int row = 0; row < model.rowCount(); ++row) {
            const QModelIndex name = model.index(row, 0);
            text +=
                name.data(role) == false ? QString() : name.data().toString() + QLatin1Char(' ');
        }
        return text;
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
