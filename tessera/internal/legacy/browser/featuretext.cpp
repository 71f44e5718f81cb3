// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "featuretext.h"

#include "plugin/constants/logcategories.h"
#include "plugin/contract/core/logging.h"
#include "plugin/contract/parametercollection/parameter.h"
#include "plugin/contract/parametercollection/parametercollection.h"
#include "plugin/contract/parametercollection/parameternode.h"
#include "plugin/services/exceptionbarrier.h"

#include <QCoreApplication>
#include <QStringList>

using namespace ParameterCollection;
using Plugin::Tessera::runGuarded;

namespace {

constexpr int labelWidth = 40; // of an indented label, so that all values stand below each other
constexpr int indentWidth = 2;

void logFault(int line, const QString &path)
{
    static const quint64 category =
        Core::Logging::getCatId(Plugin::Tessera::LogCategories::Browser);
    Core::Logging::createLogEntry(
        Core::Logging::ELogLevel::Fault, category,
        QStringLiteral("featuretreewidget %1 could not retrieve \"%2\" from parameter collection")
            .arg(line)
            .arg(path));
}

QString label(const IParameter &parameter)
{
    const QSharedPointer<IParameterNode> node = parameter.node();
    QString text = node ? node->property(QStringLiteral("DisplayName")) : QString();
    if (text.isEmpty()) {
        text = parameter.name();
    }
    const QString unit = node ? node->property(QStringLiteral("Unit")) : QString();
    return unit.isEmpty() ? text : QStringLiteral("%1 [%2]").arg(text, unit);
}

QString value(const ParameterData &data)
{
    if (!data.isImplemented) {
        return QCoreApplication::translate("FeatureTreeWidget", "<not implemented>");
    }
    if (data.isReadable) {
        return data.valueText;
    }
    return data.isWritable ? QCoreApplication::translate("FeatureTreeWidget", "<not readable>")
                           : QCoreApplication::translate("FeatureTreeWidget", "<not available>");
}

/// Writes one tree; keeps the categories above the present line, as one may hold itself.
class TreeWriter
{
public:
    TreeWriter(IParameterCollection &collection, QString &text)
        : m_collection(collection)
        , m_text(text)
    {
    }

    void writeChildren(const QString &path, int level)
    {
        if (m_above.contains(path)) {
            return;
        }
        m_above.append(path);
        QStringList children;
        runGuarded([&] { children = m_collection.children(path, 0, true); },
                   [&](const Plugin::Tessera::CaughtException &) { logFault(__LINE__, path); });
        for (const QString &child : qAsConst(children)) {
            runGuarded(
                [&] { writeChild(child, level); },
                [&](const Plugin::Tessera::CaughtException &) { logFault(__LINE__, child); });
        }
        m_above.removeLast();
    }

private:
    void writeChild(const QString &path, int level)
    {
        const QSharedPointer<IParameter> parameter = m_collection.parameter(path);
        if (!parameter || parameter->isNull() || parameter->visibility() == GenApi::Invisible) {
            return;
        }
        const QSharedPointer<const ParameterData> data = parameter->parameterData();
        if (!data) {
            return;
        }
        const int indent = indentWidth * level;
        const QString name = label(*parameter).leftJustified(qMax(0, labelWidth - indent));
        m_text += QString(indent, QLatin1Char(' ')) + name;
        if (data->type != Category) {
            m_text += QLatin1Char('\t') + value(*data);
        }
        m_text += QLatin1Char('\n');
        writeChildren(parameter->fullName(), level + 1);
    }

    IParameterCollection &m_collection;
    QString &m_text;
    QStringList m_above;
};

} // namespace

QString featureText(const QVector<CollectionRecord> &records)
{
    QString text;
    for (const CollectionRecord &record : records) {
        text += record.rootName + QLatin1Char('\n');
        TreeWriter(*record.collection, text)
            .writeChildren(record.roleName + QLatin1String("/Root"), 1);
    }
    return text;
}
