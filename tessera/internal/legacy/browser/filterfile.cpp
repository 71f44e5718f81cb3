// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "filterfile.h"

#include "plugin/constants/logcategories.h"
#include "plugin/contract/core/logging.h"
#include "plugin/contract/parametercollection/parameter.h"
#include "plugin/contract/parametercollection/parametercollection.h"
#include "plugin/contract/parametercollection/parameternode.h"
#include "plugin/services/exceptionbarrier.h"

#include <QCoreApplication>
#include <QDomDocument>
#include <QRegularExpression>
#include <QXmlStreamReader>

#include <utility>

using ParameterCollection::IParameterCollection;
using Plugin::Tessera::CaughtException;
using Plugin::Tessera::runGuarded;
using NodePtr = QSharedPointer<ParameterCollection::IParameterNode>;

namespace {

constexpr int maximumDepth = 256; // a rule needs three or four

void logFault(const QString &text)
{
    static const quint64 category =
        Core::Logging::getCatId(Plugin::Tessera::LogCategories::Browser);
    Core::Logging::createLogEntry(Core::Logging::ELogLevel::Fault, category, text);
}

void logRule(int line, const QString &text)
{
    logFault(QStringLiteral("featuretreewidget %1 %2").arg(line).arg(text));
}

QString roleOf(const QString &roleName)
{
    QString role = roleName;
    role.remove(QRegularExpression(QStringLiteral("^@+")));
    role.remove(QRegularExpression(QStringLiteral("[0-9]+$")));
    return role.isEmpty() ? role : role + QLatin1Char('_');
}

// The first element of that name below `rule`, at any depth.
QDomElement firstElement(const QDomElement &rule, const char *name)
{
    return rule.elementsByTagName(QLatin1String(name)).at(0).toElement();
}

struct ParseProblem
{
    QString text;
    int line = 0;
    int column = 0;
};

// The document reads, walks and deletes its elements by recursion, to the end of the stack.
bool isNestedTooDeeply(const QByteArray &xml, ParseProblem &problem)
{
    QXmlStreamReader reader(xml);
    reader.setNamespaceProcessing(false);
    for (int depth = 0; !reader.atEnd() && depth <= maximumDepth;) {
        const QXmlStreamReader::TokenType token = reader.readNext();
        depth += token == QXmlStreamReader::StartElement ? 1 : 0;
        depth -= token == QXmlStreamReader::EndElement ? 1 : 0;
        if (depth > maximumDepth) {
            problem = {QStringLiteral("elements nested too deeply"),
                       static_cast<int>(reader.lineNumber()),
                       static_cast<int>(reader.columnNumber())};
            return true;
        }
    }
    return false;
}

// By the same reader, so that no file is taken that was not measured to its end.
bool parse(const QByteArray &xml, QDomDocument &document, ParseProblem &problem)
{
    QXmlStreamReader reader(xml);
    return !isNestedTooDeeply(xml, problem)
        && document.setContent(&reader, false, &problem.text, &problem.line, &problem.column);
}

// Null without an entry where the device lacks it, which is no mistake of the file.
NodePtr nodeToOverride(const QString &name, IParameterCollection &collection)
{
    NodePtr node;
    runGuarded(
        [&] {
            const auto parameter = collection.parameter(name);
            if (parameter && (!parameter->isNull() || parameter->hasFilterTarget())) {
                node = parameter->node();
            }
        },
        [&](const CaughtException &) {
            logRule(
                __LINE__,
                QStringLiteral("could not retrieve \"%1\" from parameter collection").arg(name));
        });
    return node;
}

void overrideProperty(ParameterCollection::IParameterNode &node, const QDomElement &rule,
                      const char *property, int line, const QString &problem)
{
    const QDomElement value = firstElement(rule, property);
    if (!value.isNull()) {
        runGuarded([&] { node.setProperty(QLatin1String(property), value.text()); },
                   [&](const CaughtException &) { logRule(line, problem); });
    }
}

void applyRule(const QDomElement &rule, IParameterCollection &collection)
{
    const QDomElement nameElement = firstElement(rule, "Name");
    if (nameElement.isNull()) {
        logRule(__LINE__, QStringLiteral("failed to get the name of a filter item"));
        return;
    }
    const QString name = nameElement.text();
    if (name.isEmpty()) {
        logRule(__LINE__, QStringLiteral("empty name found"));
        return;
    }
    if (const NodePtr node = nodeToOverride(name, collection)) {
        overrideProperty(*node, rule, "Visibility", __LINE__,
                         QStringLiteral("failed to set visibility on node %1").arg(name));
        overrideProperty(*node, rule, "AccessMode", __LINE__,
                         QStringLiteral("failed to set access mode on node %1").arg(name));
    }
}

} // namespace

FilterFile::FilterFile(QString deviceText, const QString &roleName)
    : m_deviceText(std::move(deviceText))
    , m_role(roleOf(roleName))
{
}

QStringList FilterFile::names() const
{
    const QString end = QStringLiteral("Filter.xml");
    QStringList names {m_deviceText + QLatin1Char('_') + m_role + end};
    if (!m_role.isEmpty()) {
        names.append(m_role + end);
    }
    names.append(QStringLiteral("Default_Filter.xml"));
    return names;
}

bool FilterFile::open(QFile &file) const
{
    const QString application = QCoreApplication::applicationDirPath();
    QStringList places {application + QLatin1Char('\\')};
#ifndef Q_OS_WIN
    places.append(application + QLatin1Char('/'));
#endif
    places.append(QStringLiteral(":/vantrelviewercomponents/Resources/"));
    const QStringList candidates = names();
    for (const QString &name : candidates) {
        for (const QString &place : qAsConst(places)) {
            file.setFileName(place + name);
            if (file.open(QIODevice::ReadOnly)) {
                return true;
            }
        }
    }
    return false;
}

bool FilterFile::apply(IParameterCollection &collection) const
{
    QFile file;
    if (!open(file)) {
        logFault(QStringLiteral("Failed to open any of the filter files."));
        return false;
    }
    QDomDocument document;
    ParseProblem problem;
    if (!parse(file.readAll(), document, problem)) {
        logFault(QStringLiteral("Failed to parse file %1: %2 (%3, %4)")
                     .arg(file.fileName(), problem.text, QString::number(problem.line),
                          QString::number(problem.column)));
        return false;
    }
    for (QDomElement rule = document.documentElement().firstChildElement(); !rule.isNull();
         rule = rule.nextSiblingElement()) {
        applyRule(rule, collection);
    }
    return true;
}
