// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "featuretreeloader.h"

#include "featuretreeinodeitem.h"

#include "plugin/constants/logcategories.h"
#include "plugin/contract/core/logging.h"
#include "plugin/contract/parametercollection/parameter.h"
#include "plugin/contract/parametercollection/parametercollection.h"
#include "plugin/services/exceptionbarrier.h"

using namespace ParameterCollection;
using Plugin::Tessera::runGuarded;

void logTreeFault(int line, const QString &text)
{
    static const quint64 category =
        Core::Logging::getCatId(Plugin::Tessera::LogCategories::TreeModel);
    Core::Logging::createLogEntry(Core::Logging::ELogLevel::Fault, category,
                                  QStringLiteral("featuretreemodel %1 %2").arg(line).arg(text));
}

QSharedPointer<IParameter> rootParameter(const QSharedPointer<IParameterCollection> &collection,
                                         const QString &roleName)
{
    QSharedPointer<IParameter> parameter;
    runGuarded([&] {
        if (collection) {
            parameter = collection->parameter(roleName + QLatin1String("/Root"));
        }
    });
    if (!parameter || parameter->isNull()) {
        logTreeFault(
            __LINE__,
            QStringLiteral("could not retrieve %1 /Root from camera node map").arg(roleName));
        return {};
    }
    return parameter;
}

FeatureTreeLoader::FeatureTreeLoader(IFeatureTreeModelExtension *model, bool showTreeView)
    : m_model(model)
    , m_showTreeView(showTreeView)
{
}

QVector<FeatureTreeINodeItem *> FeatureTreeLoader::itemsFor(
    FeatureTreeINodeItem *parent, const QSharedPointer<IParameter> &category)
{
    runGuarded([&] { load(parent, category->fullName()); });
    return m_items;
}

// The features of categories below come before a category's own, which is meant.
void FeatureTreeLoader::load(FeatureTreeINodeItem *parent, const QString &categoryName)
{
    m_loading.append(categoryName);
    QStringList names;
    runGuarded([&] { names = parent->collection()->children(categoryName, 0, true); },
               [&](const Plugin::Tessera::CaughtException &) {
                   logTreeFault(
                       __LINE__,
                       QStringLiteral("could not retrieve the children of %1").arg(categoryName));
               });
    QVector<FeatureTreeINodeItem *> items;
    for (const QString &name : qAsConst(names)) {
        runGuarded(
            [&] {
                if (FeatureTreeINodeItem *item = loadChild(parent, name)) {
                    items.append(item);
                }
            },
            [&](const Plugin::Tessera::CaughtException &) {
                logTreeFault(__LINE__, QStringLiteral("could not retrieve %1").arg(name));
            });
    }
    m_items += items;
    m_loading.removeLast();
}

// Null for what gets no row of its own.
FeatureTreeINodeItem *FeatureTreeLoader::loadChild(FeatureTreeINodeItem *parent,
                                                   const QString &name)
{
    const QSharedPointer<IParameter> parameter = parent->collection()->parameter(name);
    if (!parameter || parameter->isNull()) {
        return nullptr;
    }
    const bool isCategory = parameter->type() == Category;
    if (isCategory
        && (parameter->visibility() >= GenApi::Invisible || isAbove(parent, parameter))) {
        return nullptr;
    }
    const bool isFlat = parent->depth() >= 2 && !m_showTreeView;
    if (isFlat && parent->depth() == 2 && isCategory) {
        load(parent, name);
    }
    if (isFlat && (isCategory || parent->depth() > 2)) {
        return nullptr;
    }
    return new FeatureTreeINodeItem(parent->collection(), parameter, m_model, name, nullptr,
                                    parent->isUtf8(), parent->depth() + 1);
}

// A category that holds itself, at whatever distance, would be loaded for ever.
bool FeatureTreeLoader::isAbove(FeatureTreeINodeItem *parent,
                                const QSharedPointer<IParameter> &category) const
{
    if (m_loading.contains(category->fullName())) {
        return true;
    }
    for (FeatureTreeItem *item = parent; item; item = item->parent()) {
        const auto *nodeItem = qobject_cast<FeatureTreeINodeItem *>(item);
        if (nodeItem && nodeItem->parameter() == category) {
            return true;
        }
    }
    return false;
}
