// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "featuretreeitem.h"

#include <QSharedPointer>

namespace ParameterCollection {
class IParameter;
class IParameterCollection;
struct ParameterData;
} // namespace ParameterCollection

/// Binds one parameter to a row: keeps what its node says and its latest snapshot, answers every
/// role from these without touching the device, and turns an edit into the right write.
class FeatureTreeINodeItem final : public FeatureTreeItem
{
    Q_OBJECT

public:
    /// The top item of a collection: `text` is shown in place of a display name.
    FeatureTreeINodeItem(QSharedPointer<ParameterCollection::IParameterCollection> collection,
                         QSharedPointer<ParameterCollection::IParameter> parameter,
                         const QString &text, IFeatureTreeModelExtension *model,
                         const QString &fullName, FeatureTreeItem *parentItem, bool isUtf8,
                         int depth);
    /// An item below; it is shown under the parameter's display name. A category is subscribed
    /// from the start. `isUtf8` tells how texts are encoded that are written.
    FeatureTreeINodeItem(QSharedPointer<ParameterCollection::IParameterCollection> collection,
                         QSharedPointer<ParameterCollection::IParameter> parameter,
                         IFeatureTreeModelExtension *model, const QString &fullName,
                         FeatureTreeItem *parentItem, bool isUtf8, int depth);
    ~FeatureTreeINodeItem() override;

    QSharedPointer<ParameterCollection::IParameterCollection> collection() const;
    /// Null for a row without a parameter.
    QSharedPointer<ParameterCollection::IParameter> parameter() const;
    /// The last snapshot.
    QSharedPointer<const ParameterCollection::ParameterData> parameterData() const;
    /// True while `nodeUpdated` tells of a snapshot that says the same as the one before. An editor
    /// may show something else, but nothing has to be painted.
    bool isRepeating() const;
    /// Texts are written in UTF-8, else in Latin-1.
    bool isUtf8() const;
    /// What the tool tip says below its title, without marks and markup, for screen readers.
    QString plainDescription() const;
    /// The text to highlight in tool tips; it must outlive the item. May be null.
    void setSearchText(const QString *searchText);
    /// True when an editor widget shows the value, false when the row draws it.
    bool hasInlineEditor() const;

    /// Listens to the parameter as long as the calls outnumber those of `unsubscribe`.
    void subscribe();
    void unsubscribe();
    /// Asks for a snapshot when subscribed.
    void requestRefresh();

    int childCount() override;
    QVariant data(int column, int role) const override;
    /// Writes to the parameter. Whatever the device throws comes out.
    void setData(int column, const QVariant &value, int role) override;
    bool hasChildren() const override;
    bool isVisibleAt(int level) const override;
    int accessMode() const override;
    int visibility() const override;
    Qt::ItemFlags flags(int column) const override;
    QVariant foreground() const override;

Q_SIGNALS:
    /// The item has a new snapshot.
    void nodeUpdated(int row, FeatureTreeINodeItem *item);

private Q_SLOTS:
    void onParameterDataChanged(
        QSharedPointer<const ParameterCollection::ParameterData> ptrParameterData);

private: // NOLINT(readability-redundant-access-specifiers): ends the slots
    void loadValues();
    void readProperties();
    bool isUsable() const;
    bool isCategory() const;
    QVariant nameData(int role) const;
    QVariant valueData(int role) const;
    QVariant valueText() const;
    QString spokenValue() const;
    QString richToolTip() const;
    void writeNumber(const QVariant &value);
    void writeText(const QString &text);
    bool repairRange(const QSharedPointer<const ParameterCollection::ParameterData> &snapshot);

    QSharedPointer<ParameterCollection::IParameterCollection> m_collection;
    QSharedPointer<ParameterCollection::IParameter> m_parameter;
    QSharedPointer<const ParameterCollection::ParameterData> m_parameterData;
    const QString *m_searchText = nullptr; // borrowed
    QString m_unit;
    QString m_description;
    QString m_toolTipText;
    QString m_docuUrl;
    QString m_displayName;
    QString m_shortName;
    QSharedPointer<const ParameterCollection::ParameterData> m_repaired; // last one pulled in
    qint32 m_subscriptionCount = 0;
    bool m_isUtf8 = false;
    bool m_wasImplemented = false;
    bool m_isRepairing = false;
    bool m_hasSnapshot = false; // of the camera's, not the first one
    bool m_isRepeating = false;
};
