// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "plainvaluedelegate.h"

#include "internal/legacy/tree/featuretreeinodeitem.h"
#include "internal/legacy/tree/itemeditorkind.h"
#include "plugin/contract/parametercollection/parameterdata.h"

#include <QLineEdit>
#include <QLocale>

namespace {

bool isEditedAsLine(int editorKind)
{
    return isFloatKind(editorKind) || editorKind == ItemEditorKind::IntegerEdit
        || editorKind == ItemEditorKind::IntegerSlider || editorKind == ItemEditorKind::StringEdit;
}

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

PlainValueDelegate::PlainValueDelegate(QObject *parent, IFeatureTreeModelExtension *model)
    : FeatureTreeDelegate(parent, model, nullptr)
{
}

PlainValueDelegate::~PlainValueDelegate() = default;

QWidget *PlainValueDelegate::createEditor(QWidget *parent, const QStyleOptionViewItem &option,
                                          const QModelIndex &index) const
{
    const FeatureTreeINodeItem *item = index.column() == 1 ? nodeItem(index) : nullptr;
    if (!item || !item->parameterData()->isWritable) {
        return nullptr;
    }
    if (!isEditedAsLine(item->editorKind())) {
        return FeatureTreeDelegate::createEditor(parent, option, index);
    }
    if (item->accessMode() < 2) {
        return nullptr;
    }
    auto *editor = new QLineEdit(parent);
    editor->setFrame(false);
    describe(editor, *item);
    return editor;
}

// What the user has begun to type is not overwritten.
void PlainValueDelegate::setEditorData(QWidget *editor, const QModelIndex &index) const
{
    const FeatureTreeINodeItem *item = nodeItem(index);
    auto *edit = qobject_cast<QLineEdit *>(editor);
    if (!edit) {
        FeatureTreeDelegate::setEditorData(editor, index);
    } else if (item && !edit->isModified()) {
        edit->setText(editText(*item, edit));
    }
}

void PlainValueDelegate::writeValue(QWidget *editor, QAbstractItemModel *model,
                                    const QModelIndex &index) const
{
    const FeatureTreeINodeItem *item = nodeItem(index);
    const auto *edit = qobject_cast<QLineEdit *>(editor);
    if (!edit || !item) {
        FeatureTreeDelegate::writeValue(editor, model, index);
        return;
    }
    if (!edit->isModified()) {
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
void PlainValueDelegate::initStyleOption(QStyleOptionViewItem *option,
                                         const QModelIndex &index) const
{
    FeatureTreeDelegate::initStyleOption(option, index);
    const FeatureTreeINodeItem *item = index.column() == 1 ? nodeItem(index) : nullptr;
    if (item && item->hasInlineEditor() && !index.data().isValid() && item->parameterData()) {
        option->features |= QStyleOptionViewItem::HasDisplay;
        option->text = item->parameterData()->valueText;
    }
}
