// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "support/fakecollection.h"

#include "support/fakeparameter.h"

#include <QRegularExpression>

using namespace ParameterCollection;

namespace Tests {

namespace {

const QHash<QString, ParameterType> &typeWords()
{
    static const QHash<QString, ParameterType> words {
        {QStringLiteral("Integer"), Integer}, {QStringLiteral("Float"), Float},
        {QStringLiteral("Boolean"), Boolean}, {QStringLiteral("Enum"), Enumeration},
        {QStringLiteral("String"), String},   {QStringLiteral("Command"), Command},
        {QStringLiteral("Other"), Other},
    };
    return words;
}

bool takeFlag(FakeNode &node, const QString &word)
{
    static const QStringList levels {QStringLiteral("beginner"), QStringLiteral("expert"),
                                     QStringLiteral("guru"), QStringLiteral("invisible")};
    static const QStringList accesses {QStringLiteral("ni"), QStringLiteral("na"),
                                       QStringLiteral("wo"), QStringLiteral("ro")};
    if (levels.contains(word)) {
        node.visibility = levels.indexOf(word);
        return true;
    }
    const int access = accesses.indexOf(word);
    if (access >= 0) {
        node.isImplemented = access > 0;
        node.isWritable = access == 2;
        node.isReadable = access == 3;
    }
    return access >= 0;
}

bool takeProperty(FakeNode &node, const QString &word)
{
    static const QHash<QString, QString> keys {
        {QStringLiteral("unit"), QStringLiteral("Unit")},
        {QStringLiteral("rep"), QStringLiteral("Representation")},
        {QStringLiteral("name"), QStringLiteral("DisplayName")},
        {QStringLiteral("tip"), QStringLiteral("Tooltip")},
    };
    const QString key = word.section(QLatin1Char('='), 0, 0);
    const QString value =
        word.section(QLatin1Char('='), 1).replace(QLatin1Char('_'), QLatin1Char(' '));
    if (key == QLatin1String("entries")) {
        node.entries = value.split(QLatin1Char(','));
        return true;
    }
    if (keys.contains(key)) {
        node.properties.insert(keys.value(key), value);
    }
    return keys.contains(key);
}

bool takeRange(FakeNode &node, const QString &word)
{
    static const QRegularExpression pattern(QStringLiteral(R"(^\[(.+)\.\.(.+)\]$)"));
    const QRegularExpressionMatch match = pattern.match(word);
    if (match.hasMatch()) {
        node.minimum = match.captured(1).toDouble();
        node.maximum = match.captured(2).toDouble();
    }
    return match.hasMatch();
}

template<typename Interface>
QSharedPointer<IParameter> make(const QSharedPointer<FakeNode> &node,
                                const bool &delayed) // clazy:exclude=function-args-by-value
{
    return QSharedPointer<FakeParameter<Interface>>::create(node, delayed);
}

} // namespace

FakeCollection::FakeCollection(QObject *parent)
    : IParameterCollection(parent)
{
}

FakeCollection::~FakeCollection() = default;

void FakeCollection::attach(const QString &path, const QString &text)
{
    QStringList above {addNode(path, QStringLiteral("Root"))};
    const QStringList lines = text.split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    for (const QString &line : lines) {
        const QString bare = line.trimmed();
        const int level = (line.size() - bare.size()) / 2;
        above = above.mid(0, level + 1);
        const QString child = addNode(path, bare);
        m_nodes.value(above.constLast())->children.append(child);
        above.append(child); // clazy:exclude=reserve-candidates
    }
    m_paths.append(path);
    Q_EMIT nodeMapAttached(path);
}

QString FakeCollection::addNode(const QString &path, const QString &line)
{
    const auto node = QSharedPointer<FakeNode>::create();
    QStringList words = line.split(QLatin1Char(' '), Qt::SkipEmptyParts);
    node->name = words.takeFirst();
    node->fullName = path + QLatin1Char('/') + node->name;
    if (!words.isEmpty() && typeWords().contains(words.constFirst())) {
        node->type = typeWords().value(words.takeFirst());
    }
    node->isWritable = node->type != Category;
    for (const QString &word : qAsConst(words)) {
        if (!takeFlag(*node, word) && !takeRange(*node, word) && !takeProperty(*node, word)) {
            node->number = word.toDouble();
            node->text = word.toUtf8();
        }
    }
    m_nodes.insert(node->fullName, node);
    m_parameters.insert(node->fullName, makeParameter(node));
    return node->fullName;
}

QSharedPointer<IParameter> FakeCollection::makeParameter(const QSharedPointer<FakeNode> &node)
{
    switch (node->type) {
    case Integer:
        return make<IIntegerParameter>(node, m_delayed);
    case Float:
        return make<IFloatParameter>(node, m_delayed);
    case Boolean:
        return make<IBooleanParameter>(node, m_delayed);
    case Enumeration:
        return make<IEnumParameter>(node, m_delayed);
    case Command:
        return make<ICommandParameter>(node, m_delayed);
    default:
        return make<IParameter>(node, m_delayed);
    }
}

FakeNode &FakeCollection::node(const QString &fullName)
{
    return *m_nodes[fullName];
}

void FakeCollection::setDelayed(bool delayed)
{
    m_delayed = delayed;
}

QSharedPointer<IParameter> FakeCollection::parameter(const QString &fullName)
{
    raise(onParameter.value(fullName));
    return m_parameters.value(fullName);
}

bool FakeCollection::contains(const QString &fullName) const
{
    return m_parameters.contains(fullName);
}

QStringList FakeCollection::attachedParameterPaths() const
{
    return m_paths;
}

QStringList FakeCollection::children(const QString &parentFullName, int reserved, bool flag) const
{
    Q_UNUSED(reserved)
    Q_UNUSED(flag)
    raise(onChildren.value(parentFullName));
    return m_nodes.contains(parentFullName) ? m_nodes.value(parentFullName)->children
                                            : QStringList();
}

void FakeCollection::endBatchUpdate()
{
    ++batchUpdates;
    raise(onUpdate);
}

void FakeCollection::poll(int elapsedMilliseconds)
{
    polls.append(elapsedMilliseconds);
    raise(onUpdate);
}

} // namespace Tests
