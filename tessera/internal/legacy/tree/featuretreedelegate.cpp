// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "featuretreedelegate.h"

#include "featuretreeinodeitem.h"
#include "featuretreemodelextension.h"
#include "itemeditorkind.h"

#include "plugin/contract/parametercollection/parameterdata.h"

#include <QLineEdit>
#include <QLocale>
#include <QTextDocumentFragment>

namespace {

// A group separator is refused: in many locales it is the point of another one's decimals.
QLocale numberLocale(const QWidget *editor)
{
    QLocale locale = editor->locale();
    locale.setNumberOptions(QLocale::OmitGroupSeparator | QLocale::RejectGroupSeparator);
    return locale;
}

QString editText(const FeatureTreeINodeItem &item, const QWidget *editor)
{
    QString text = item.parameterData()->valueText;
    if (isFloatKind(item.editorKind())) {
        text.replace(QLatin1Char('.'), numberLocale(editor).decimalPoint());
    }
    return text;
}

} // namespace

FeatureTreeDelegate::FeatureTreeDelegate(QObject *parent, IFeatureTreeModelExtension *model)
    : QStyledItemDelegate(parent)
    , m_model(model)
{
}

FeatureTreeDelegate::~FeatureTreeDelegate() = default;

QWidget *FeatureTreeDelegate::createEditor(QWidget *parent, const QStyleOptionViewItem &option,
                                           const QModelIndex &index) const
{
    Q_UNUSED(option)
    const FeatureTreeINodeItem *item = index.column() == 1 ? nodeItem(index) : nullptr;
    if (!item || item->accessMode() < 2 || !item->parameterData()->isWritable) {
        return nullptr;
    }
    auto *editor = new QLineEdit(parent);
    editor->setFrame(false);
    editor->setAccessibleName(item->text());
    const QString toolTip = item->data(0, Qt::ToolTipRole).toString();
    editor->setAccessibleDescription(QTextDocumentFragment::fromHtml(toolTip).toPlainText());
    return editor;
}

// What the user has begun to type is not overwritten.
void FeatureTreeDelegate::setEditorData(QWidget *editor, const QModelIndex &index) const
{
    const FeatureTreeINodeItem *item = nodeItem(index);
    auto *edit = qobject_cast<QLineEdit *>(editor);
    if (item && edit && !edit->isModified()) {
        edit->setText(editText(*item, edit));
    }
}

void FeatureTreeDelegate::setModelData(QWidget *editor, QAbstractItemModel *model,
                                       const QModelIndex &index) const
{
    const FeatureTreeINodeItem *item = nodeItem(index);
    const auto *edit = qobject_cast<QLineEdit *>(editor);
    if (!item || !edit || !edit->isModified()) {
        return;
    }
    if (!isFloatKind(item->editorKind())) {
        model->setData(index, edit->text(), Qt::EditRole);
        return;
    }
    bool isNumber = false;
    const double number = numberLocale(edit).toDouble(edit->text().trimmed(), &isNumber);
    if (isNumber) {
        model->setData(index, number, Qt::EditRole);
    }
}

// Rows whose kind has an editor widget of its own answer no display text.
void FeatureTreeDelegate::initStyleOption(QStyleOptionViewItem *option,
                                          const QModelIndex &index) const
{
    QStyledItemDelegate::initStyleOption(option, index);
    const FeatureTreeINodeItem *item = index.column() == 1 ? nodeItem(index) : nullptr;
    if (item && item->hasInlineEditor() && !index.data().isValid() && item->parameterData()) {
        option->features |= QStyleOptionViewItem::HasDisplay;
        option->text = item->parameterData()->valueText;
    }
}

FeatureTreeINodeItem *FeatureTreeDelegate::nodeItem(const QModelIndex &index) const
{
    return qobject_cast<FeatureTreeINodeItem *>(m_model->itemFromIndex(index));
}
