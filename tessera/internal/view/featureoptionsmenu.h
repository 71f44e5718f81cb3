// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "plugin/contract/parametercollection/parametername.h"

#include <QList>
#include <QQuickItem>
#include <QSharedPointer>
#include <QString>
#include <QStringList>
#include <QVariantList>

#include <array>

namespace ParameterCollection {
class IParameterCollection;
}

namespace Plugin::Tessera::Internal::View {

/// The root of the window Edit Feature Tabs: the names and features of the four user tabs as the
/// user edits them, beside the state to which a cancel goes back. The QML scene adds the controls,
/// the panes hand in what is stored and take over what was confirmed.
///
/// A number of a user tab outside 0 to 3 is ignored everywhere.
class CFeatureOptionsMenu : public QQuickItem
{
    Q_OBJECT
    /// For each user tab a list of maps with "name", the text to show, and "fullName", the path.
    /// Empty without a collection.
    Q_PROPERTY(QVariantList featureLists READ featureLists NOTIFY featureListsChanged)
    Q_PROPERTY(int supportedUserTabCount READ supportedUserTabCount CONSTANT)
    Q_PROPERTY(QStringList userTabNames READ userTabNames NOTIFY userTabNamesChanged)
    /// The tab that is edited; -1 for none.
    Q_PROPERTY(int userTabIndex READ userTabIndex WRITE setUserTabIndex NOTIFY userTabIndexChanged)
    Q_PROPERTY(QString deleteIconDisabledUrl READ deleteIconDisabledUrl NOTIFY
                   deleteIconDisabledUrlChanged)
    Q_PROPERTY(QString deleteIconUrl READ deleteIconUrl NOTIFY deleteIconUrlChanged)
    Q_PROPERTY(QString dragHandIconDisabledUrl READ dragHandIconDisabledUrl NOTIFY
                   dragHandIconDisabledUrlChanged)
    Q_PROPERTY(QString dragHandIconUrl READ dragHandIconUrl NOTIFY dragHandIconUrlChanged)
    /// Pixels at 96 dots per inch.
    Q_PROPERTY(int defaultWindowHeight READ defaultWindowHeight CONSTANT)

public:
    using NameList = QList<ParameterCollection::ParameterName>;

    explicit CFeatureOptionsMenu(QQuickItem *parent = nullptr);
    ~CFeatureOptionsMenu() override;

    QVariantList featureLists() const;
    int supportedUserTabCount() const;
    QStringList userTabNames() const;
    int userTabIndex() const;
    void setUserTabIndex(int userTabIndex);
    QString deleteIconDisabledUrl() const;
    QString deleteIconUrl() const;
    QString dragHandIconDisabledUrl() const;
    QString dragHandIconUrl() const;
    int defaultWindowHeight() const;

    /// Shows `list`. A cancel goes back to what was shown before; to `list` itself the first time.
    void setFeatureNameList(int userTabIndex, const NameList &list);
    /// Shows `name`. A cancel goes back to the name before; to `name` itself the first time.
    void setUserTabName(int userTabIndex, const QString &name);
    /// The features of the tab as edited.
    NameList featureNameList(int userTabIndex) const;
    /// Goes back to the saved names and lists.
    void revertChanges();
    /// Selects the first tab that has a name, else the first tab.
    void selectFirstNamedTab();
    /// The source whose features are edited; null for none, which leaves the lists as they are and
    /// refuses changes.
    void setParameterCollection(
        const QSharedPointer<ParameterCollection::IParameterCollection> &collection);

public Q_SLOTS:
    /// Appends the feature unless the tab has it.
    void onAddFeature(int userTabIndex, const QString &featureFullName);
    void onRemoveFeature(int userTabIndex, const QString &featureFullName);
    /// Clears the name and the features of the tab.
    void onRemove(int userTabIndex);
    void onNameChanged(int userTabIndex, const QString &userTabName);

Q_SIGNALS:
    void featureListsChanged(int userTabIndex);
    void userTabNamesChanged();
    void userTabIndexChanged();
    void deleteIconDisabledUrlChanged();
    void deleteIconUrlChanged();
    void dragHandIconDisabledUrlChanged();
    void dragHandIconUrlChanged();

private:
    static constexpr int tabCount = 4;

    // A value as the user edits it, and what a cancel goes back to.
    template<typename Value> struct Edited
    {
        Value working;
        Value saved;
        bool isInitialised = false;

        void take(const Value &value);
    };

    static bool isTab(int userTabIndex);
    void announceAllFeatureLists();

    QSharedPointer<ParameterCollection::IParameterCollection> m_parameterCollection;
    std::array<Edited<NameList>, tabCount> m_featureLists;
    std::array<Edited<QString>, tabCount> m_userTabNames;
    int m_userTabIndex = -1;
};

} // namespace Plugin::Tessera::Internal::View
