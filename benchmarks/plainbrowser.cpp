// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "plainbrowser.h"

#include <QCheckBox>
#include <QColor>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLineEdit>
#include <QSlider>
#include <QSpinBox>
#include <QTableView>
#include <QToolButton>
#include <QTreeView>

#include <algorithm>
#include <utility>

namespace {

constexpr int perCategory = 50;

QStringList numbered(const QString &word, int first, int count)
{
    QStringList names;
    names.reserve(count);
    for (int i = 0; i < count; ++i) {
        names.append(word + QString::number(first + i));
    }
    return names;
}

} // namespace

int PlainModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : m_names.size();
}

int PlainModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : 2;
}

QVariant PlainModel::data(const QModelIndex &index, int role) const
{
    if (role == Qt::DisplayRole) {
        return index.column() == 0 ? m_names.at(index.row()) : m_values.at(index.row());
    }
    if (role == Qt::BackgroundRole && m_marks.at(index.row())) {
        return QColor(255, 167, 0);
    }
    return {};
}

void PlainModel::setNames(const QStringList &names)
{
    if (!m_names.isEmpty()) {
        beginRemoveRows(QModelIndex(), 0, m_names.size() - 1);
        m_names.clear();
        endRemoveRows();
    }
    beginInsertRows(QModelIndex(), 0, names.size() - 1);
    m_names = names;
    m_values = names;
    m_marks.fill(false, names.size());
    endInsertRows();
}

void PlainModel::setValue(int row, const QString &value)
{
    m_values[row] = value;
    for (const int column : {0, 1}) {
        const QModelIndex cell = index(row, column);
        Q_EMIT dataChanged(cell, cell);
    }
}

void PlainModel::mark(const QString &text)
{
    for (int row = 0; row < m_names.size(); ++row) {
        m_marks[row] = m_names.at(row).contains(text, Qt::CaseInsensitive);
    }
    Q_EMIT dataChanged(index(0, 0), index(m_names.size() - 1, 0));
}

PlainDelegate::PlainDelegate(QVector<QByteArray> editors, QObject *parent)
    : QStyledItemDelegate(parent)
    , m_editors(std::move(editors))
{
}

QWidget *PlainDelegate::createEditor(QWidget *parent, const QStyleOptionViewItem &option,
                                     const QModelIndex &index) const
{
    Q_UNUSED(option)
    const QByteArray editor = m_editors.value(index.row());
    if (editor == "CheckBoxEditor") {
        return new QCheckBox(parent);
    }
    if (editor == "EnumEditor") {
        auto *box = new QComboBox(parent);
        box->addItems({QStringLiteral("Off"), QStringLiteral("On")});
        return box;
    }
    if (editor == "ToolButtonEditor") {
        return new QToolButton(parent);
    }
    if (editor != "FloatEditor" && !editor.contains("Slider")) {
        return new QLineEdit(parent);
    }
    auto *pair = new QWidget(parent);
    auto *layout = new QHBoxLayout(pair);
    layout->setContentsMargins(0, 1, 0, 1);
    if (editor.startsWith("Float")) {
        layout->addWidget(new QDoubleSpinBox(pair));
    } else {
        layout->addWidget(new QSpinBox(pair));
    }
    if (editor.contains("Slider")) {
        layout->addWidget(new QSlider(Qt::Horizontal, pair));
    }
    return pair;
}

void PlainDelegate::setEditorData(QWidget *editor, const QModelIndex &index) const
{
    const int number = index.data().toInt();
    const auto show = [number](QWidget *part) {
        if (auto *box = qobject_cast<QSpinBox *>(part)) {
            box->setValue(number);
        } else if (auto *slider = qobject_cast<QSlider *>(part)) {
            slider->setValue(number);
        } else if (auto *real = qobject_cast<QDoubleSpinBox *>(part)) {
            real->setValue(number);
        } else if (auto *choice = qobject_cast<QComboBox *>(part)) {
            choice->setCurrentIndex(number % 2);
        } else if (auto *button = qobject_cast<QCheckBox *>(part)) {
            button->setChecked(number % 2 == 1);
        } else if (auto *line = qobject_cast<QLineEdit *>(part)) {
            line->setText(QString::number(number));
        }
    };
    show(editor);
    if (const QLayout *layout = editor->layout()) {
        for (int part = 0; part < layout->count(); ++part) {
            show(layout->itemAt(part)->widget());
        }
    }
}

PlainBrowser::PlainBrowser(int features, QVector<QByteArray> editors)
    : m_editors(std::move(editors))
    , m_tree(new QTreeView)
    , m_table(new QTableView)
{
    auto *layout = new QHBoxLayout(this);
    setStyleSheet(QStringLiteral("QFrame { background-color: white; }"));
    layout->addWidget(m_tree, 1);
    layout->addWidget(m_table, 2);
    m_tree->setUniformRowHeights(true);
    m_tree->setModel(&m_categories);
    m_table->setModel(&m_rows);
    m_table->setItemDelegate(new PlainDelegate(m_editors, m_table));
    m_table->verticalHeader()->hide();
    m_table->horizontalHeader()->setStretchLastSection(true);
    m_categories.setNames(numbered(QStringLiteral("Category"), 1, features / perCategory));
    for (int first = 1; first <= features; first += perCategory) {
        m_all.append(new PlainModel(this));
        m_all.constLast()->setNames(numbered(QStringLiteral("Feature"), first, perCategory));
    }
}

void PlainBrowser::select(int category)
{
    m_rows.setNames(numbered(QStringLiteral("Feature"), category * perCategory + 1, perCategory));
    for (int row = 0; row < perCategory; ++row) {
        if (!m_editors.value(row).isEmpty()) {
            m_table->openPersistentEditor(m_rows.index(row, 1));
        }
    }
}

void PlainBrowser::mark(const QString &text)
{
    std::for_each(m_all.cbegin(), m_all.cend(), [&text](PlainModel *model) { model->mark(text); });
    m_categories.mark(text);
    m_rows.mark(text);
}

void PlainBrowser::setValue(int row, const QString &value)
{
    m_rows.setValue(row, value);
}
