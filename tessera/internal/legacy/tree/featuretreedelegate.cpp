// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "featuretreedelegate.h"

#include "featuretreeinodeitem.h"
#include "featuretreemodelextension.h"
#include "itemeditortable.h"

#include "internal/legacy/editors/abstractitemeditor.h"
#include "internal/legacy/editors/inteditor.h"
#include "internal/view/featuretableview.h"
#include "plugin/constants/logcategories.h"
#include "plugin/contract/core/logging.h"
#include "plugin/contract/viewer/stylehelper.h"
#include "plugin/services/exceptionbarrier.h"

#include <QComboBox>
#include <QFontMetrics>
#include <QGuiApplication>
#include <QLineEdit>
#include <QScopeGuard>
#include <QScreen>

namespace {

void logFault(const QString &text)
{
    static const quint64 category =
        Core::Logging::getCatId(Plugin::Tessera::LogCategories::NodeItem);
    Core::Logging::createLogEntry(Core::Logging::ELogLevel::Fault, category, text);
}

bool isHighResolution()
{
    const QScreen *screen = QGuiApplication::primaryScreen();
    return screen && screen->logicalDotsPerInch() / 96.0 > 1.0;
}

} // namespace

FeatureTreeDelegate::FeatureTreeDelegate(QObject *parent, IFeatureTreeModelExtension *model,
                                         const QString *searchText)
    : QStyledItemDelegate(parent)
    , m_model(model)
    , m_searchText(searchText)
{
}

FeatureTreeDelegate::~FeatureTreeDelegate() = default;

void FeatureTreeDelegate::setShowTreeView(bool showTreeView)
{
    m_showTreeView = showTreeView;
}

FeatureTreeINodeItem *FeatureTreeDelegate::nodeItem(const QModelIndex &index) const
{
    return qobject_cast<FeatureTreeINodeItem *>(m_model->itemFromIndex(index));
}

void FeatureTreeDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                                const QModelIndex &index) const
{
    if (index.column() != 0 || !m_searchText) {
        QStyledItemDelegate::paint(painter, option, index);
        return;
    }
    QStyleOptionViewItem complete(option);
    initStyleOption(&complete, index);
    FeatureNamePainter(complete, index, m_searchText->trimmed(), placeIn(option.widget))
        .paint(*painter);
}

FeatureNamePainter::Place FeatureTreeDelegate::placeIn(const QWidget *view) const
{
    using Plugin::Tessera::Internal::View::CFeatureTableView;
    using Place = FeatureNamePainter::Place;
    if (const auto *table = qobject_cast<const CFeatureTableView *>(view)) {
        return table->isConnectedToTreeView() ? Place::TableBesideTree : Place::TableOfItsOwn;
    }
    return m_showTreeView ? Place::WholeTree : Place::FlatTree;
}

QSize FeatureTreeDelegate::sizeHint(const QStyleOptionViewItem &option,
                                    const QModelIndex &index) const
{
    QSize size = QStyledItemDelegate::sizeHint(option, index);
    if (isHighResolution()) {
        QFont font = option.font;
        font.setFamily(QStringLiteral("Segoe UI"));
        font.setPixelSize(CStyleHelper::computePixelFontSize(12));
        size.setHeight(QFontMetrics(font).height() + 4);
    }
    return size;
}

QWidget *FeatureTreeDelegate::createEditor(QWidget *parent, const QStyleOptionViewItem &option,
                                           const QModelIndex &index) const
{
    const FeatureTreeINodeItem *item = nodeItem(index);
    if (!item || item->accessMode() < 2) {
        return nullptr;
    }
    QWidget *editor = nullptr;
    Plugin::Tessera::runGuarded([&] { editor = createValueEditor(*item, parent, option, index); },
                                [&](const Plugin::Tessera::CaughtException &e) {
                                    logFault(QStringLiteral("Failed to create an editor for %1: %2")
                                                 .arg(item->fullName(), e.message));
                                });
    if (editor) {
        describe(editor, *item);
    }
    return editor;
}

void FeatureTreeDelegate::describe(QWidget *editor, const FeatureTreeINodeItem &item)
{
    const QString name = item.text();
    QString description = item.plainDescription();
    if (qobject_cast<QComboBox *>(editor)) {
        description.prepend(name + QLatin1Char('\n')); // on some systems its name is the entry
    }
    // Of an editor of several parts, the one that has the keyboard is the one that is read out.
    QList<QWidget *> parts = editor->findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly);
    parts.append(editor);
    for (QWidget *part : qAsConst(parts)) {
        part->setAccessibleName(name);
        part->setAccessibleDescription(description);
    }
}

QWidget *FeatureTreeDelegate::createValueEditor(const FeatureTreeINodeItem &item, QWidget *parent,
                                                const QStyleOptionViewItem &option,
                                                const QModelIndex &index) const
{
    const ItemEditorRow *row = itemEditorRowFor(item);
    QWidget *editor = row ? row->create(item, *this, parent) : nullptr;
    if (!editor && (!row || row->fallsBackToText)) {
        editor = QStyledItemDelegate::createEditor(parent, option, index);
    }
    return editor;
}

// A snapshot or a dialog may close an editor in the middle of its commit, while the view still
// uses it.
void FeatureTreeDelegate::destroyEditor(QWidget *editor, const QModelIndex &index) const
{
    Q_UNUSED(index)
    if (m_commits > 0) {
        m_closedEditors.append(editor);
    } else {
        editor->deleteLater();
    }
}

void FeatureTreeDelegate::setEditorData(QWidget *editor, const QModelIndex &index) const
{
    if (index.column() != 1) {
        QStyledItemDelegate::setEditorData(editor, index);
        return;
    }
    const bool isInUse = editor->hasFocus();
    const FeatureTreeItem *item = m_model->itemFromIndex(index);
    const FeatureTreeINodeItem *feature = nodeItem(index);
    auto *itemEditor = dynamic_cast<AbstractItemEditor *>(editor);
    if (itemEditor && feature) {
        itemEditor->updateEditor({feature->parameter(), feature->parameterData()});
    } else if (item && !isInUse) {
        QStyledItemDelegate::setEditorData(editor, index);
    }
}

void FeatureTreeDelegate::setModelData(QWidget *editor, QAbstractItemModel *model,
                                       const QModelIndex &index) const
{
    ++m_commits;
    const auto end = qScopeGuard([this] { endCommit(); });
    writeValue(editor, model, index);
}

void FeatureTreeDelegate::writeValue(QWidget *editor, QAbstractItemModel *model,
                                     const QModelIndex &index) const
{
    const auto *integerEditor = qobject_cast<IntEditor *>(editor);
    if (integerEditor && integerEditor->showsNotReadable()) {
        return; // a text in place of the value is none
    }
    const auto *line = qobject_cast<QLineEdit *>(editor);
    const FeatureTreeINodeItem *feature = nodeItem(index);
    if (line && !line->isModified() && feature && feature->accessMode() == 2) {
        return; // what can only be written opens empty
    }
    const auto *itemEditor = dynamic_cast<AbstractItemEditor *>(editor);
    if (index.column() == 1 && itemEditor) {
        model->setData(index, itemEditor->editorValue(), Qt::EditRole);
    } else {
        QStyledItemDelegate::setModelData(editor, model, index);
    }
}

void FeatureTreeDelegate::endCommit() const
{
    --m_commits;
    if (m_commits > 0) {
        return;
    }
    for (const QPointer<QWidget> &editor : qAsConst(m_closedEditors)) {
        if (editor) {
            editor->deleteLater();
        }
    }
    m_closedEditors.clear();
}

void FeatureTreeDelegate::emitCommitData()
{
    Q_EMIT commitData(qobject_cast<QWidget *>(sender()));
}
