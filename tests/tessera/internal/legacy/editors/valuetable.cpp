// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "valuetable.h"

#include "plugin/contract/parametercollection/booleanparameter.h"
#include "plugin/contract/parametercollection/commandparameter.h"
#include "plugin/contract/parametercollection/enumparameter.h"
#include "plugin/contract/parametercollection/floatparameter.h"
#include "plugin/contract/parametercollection/integerparameter.h"
#include "plugin/contract/parametercollection/parametercollection.h"
#include "plugin/contract/parametercollection/parameternode.h"
#include "plugin/services/exceptionbarrier.h"

#include "internal/legacy/editors/checkboxeditor.h"
#include "internal/legacy/editors/enumeditor.h"
#include "internal/legacy/editors/floateditor.h"
#include "internal/legacy/editors/floatslidereditor.h"
#include "internal/legacy/editors/inteditor.h"
#include "internal/legacy/editors/intslidereditor.h"
#include "internal/legacy/editors/toolbuttoneditor.h"

#include <QApplication>
#include <QHeaderView>
#include <QTest>

using namespace ParameterCollection;

namespace {

QString representation(const ParameterAndData &pair)
{
    return pair.parameter->node()->property(QStringLiteral("Representation"));
}

bool wantsSlider(const ParameterAndData &pair)
{
    const QString word = representation(pair);
    return word == QLatin1String("Linear") || word == QLatin1String("Logarithmic");
}

} // namespace

ValueModel::ValueModel(const QSharedPointer<IParameterCollection> &collection,
                       const QStringList &names)
{
    for (const QString &name : names) {
        const int row = m_pairs.size();
        const auto parameter = collection->parameter(name);
        m_pairs.append({parameter, parameter->parameterData()}); // clazy:exclude=reserve-candidates
        connect(parameter.data(), &IParameter::parameterDataChangedDecoupled, this,
                [this, row](const QSharedPointer<const ParameterData> &data) {
                    m_pairs[row].data = data;
                    Q_EMIT dataChanged(index(row, 1), index(row, 1));
                });
    }
}

const ParameterAndData &ValueModel::pair(int row) const
{
    return m_pairs.at(row);
}

int ValueModel::writes() const
{
    return m_writes;
}

int ValueModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : m_pairs.size();
}

int ValueModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : 2;
}

QVariant ValueModel::data(const QModelIndex &index, int role) const
{
    const ParameterAndData &pair = m_pairs.at(index.row());
    if (index.column() == 0) {
        return role == Qt::DisplayRole ? QVariant(pair.parameter->name()) : QVariant();
    }
    const bool hasText = pair.parameter->type() != Boolean && pair.data->isReadable;
    return role == Qt::EditRole && hasText ? QVariant(pair.data->valueText) : QVariant();
}

bool ValueModel::setData(const QModelIndex &index, const QVariant &value, int role)
{
    const auto parameter = m_pairs.at(index.row()).parameter;
    return value.isValid() && !(value == data(index, role))
        && Plugin::Tessera::runGuarded([&] { write(parameter, value); });
}

Qt::ItemFlags ValueModel::flags(const QModelIndex &index) const
{
    return QAbstractTableModel::flags(index)
        | (index.column() == 1 ? Qt::ItemIsEditable : Qt::NoItemFlags);
}

void ValueModel::write(const QSharedPointer<IParameter> &parameter, const QVariant &value)
{
    if (parameter->isNull() || !parameter->isWritable()) {
        return;
    }
    ++m_writes;
    if (const auto command = parameter.objectCast<ICommandParameter>()) {
        command->execute(true);
        command->refresh(true);
    } else if (const auto number = parameter.objectCast<IFloatParameter>()) {
        number->setValue(value.toDouble(), true);
    } else {
        parameter->setFromString(value.toString());
    }
}

ValueDelegate::ValueDelegate(QSharedPointer<IParameterCollection> collection, QObject *parent)
    : QStyledItemDelegate(parent)
    , m_collection(std::move(collection))
{
}

QWidget *ValueDelegate::createEditor(QWidget *parent, const QStyleOptionViewItem &option,
                                     const QModelIndex &index) const
{
    Q_UNUSED(option)
    const ParameterAndData &pair =
        static_cast<const ValueModel *>(index.model())->pair(index.row());
    switch (pair.parameter->type()) {
    case Boolean: {
        auto *editor = new CheckBoxEditor(parent);
        connect(editor, &QAbstractButton::clicked, this, &ValueDelegate::emitCommitData);
        return editor;
    }
    case Enumeration: {
        auto *editor = new EnumEditor(parent);
        connect(editor, QOverload<int>::of(&QComboBox::activated), this,
                &ValueDelegate::emitCommitData);
        return editor;
    }
    case Command: {
        auto *editor = new ToolButtonEditor(parent);
        connect(editor, &QAbstractButton::clicked, this, &ValueDelegate::emitCommitData);
        return editor;
    }
    case Integer: {
        if (!wantsSlider(pair)) {
            return new IntEditor(parent);
        }
        auto *editor = new IntSliderEditor(parent);
        connect(editor, &ComboSlider::valueChanged, this, &ValueDelegate::emitCommitData);
        return editor;
    }
    case Float:
        return makeFloatEditor(parent, pair);
    default:
        return nullptr;
    }
}

QWidget *ValueDelegate::makeFloatEditor(QWidget *parent, const ParameterAndData &pair) const
{
    if (wantsSlider(pair)
        && m_collection->contains(pair.parameter->fullName() + QStringLiteral("/Alias"))) {
        auto *editor = new FloatSliderEditor(m_collection, parent);
        connect(editor, &FloatSliderEditor::boxValueChanged, this, &ValueDelegate::emitCommitData);
        return editor;
    }
    auto *editor = new FloatEditor(parent, representation(pair));
    connect(editor, &FloatEditor::boxValueChanged, this, &ValueDelegate::emitCommitData);
    return editor;
}

void ValueDelegate::setEditorData(QWidget *editor, const QModelIndex &index) const
{
    const auto *model = static_cast<const ValueModel *>(index.model());
    dynamic_cast<AbstractItemEditor *>(editor)->updateEditor(model->pair(index.row()));
}

void ValueDelegate::setModelData(QWidget *editor, QAbstractItemModel *model,
                                 const QModelIndex &index) const
{
    model->setData(index, dynamic_cast<AbstractItemEditor *>(editor)->editorValue(), Qt::EditRole);
}

void ValueDelegate::emitCommitData()
{
    Q_EMIT commitData(qobject_cast<QWidget *>(sender()));
}

ValueTable::ValueTable(const QSharedPointer<IParameterCollection> &collection,
                       const QStringList &names)
    : m_model(collection, names)
{
    setModel(&m_model);
    setItemDelegate(new ValueDelegate(collection, this));
    horizontalHeader()->setSectionResizeMode(1, QHeaderView::Stretch);
    for (int row = 0; row < m_model.rowCount(); ++row) {
        openPersistentEditor(m_model.index(row, 1));
    }
    resize(500, 400);
}

ValueModel &ValueTable::values()
{
    return m_model;
}

QWidget *ValueTable::editor(int row) const
{
    return indexWidget(m_model.index(row, 1));
}

bool ValueTable::open()
{
    show();
    QApplication::setActiveWindow(this);
    setFocus();
    return QTest::qWaitForWindowActive(this);
}
