// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "featuretreeinodeitem.h"

#include "displaynamecache.h"
#include "featuretreemodelextension.h"
#include "featuretreetooltip.h"
#include "initialsnapshot.h"
#include "itemeditorkind.h"
#include "parameterproperties.h"
#include "rangerepair.h"
#include "snapshotcomparison.h"

#include "plugin/constants/itemroles.h"
#include "plugin/constants/logcategories.h"
#include "plugin/contract/core/logging.h"
#include "plugin/contract/parametercollection/booleanparameterdata.h"
#include "plugin/contract/parametercollection/commandparameter.h"
#include "plugin/contract/parametercollection/enumparameterdata.h"
#include "plugin/contract/parametercollection/floatparameter.h"
#include "plugin/contract/parametercollection/parametercollection.h"
#include "plugin/contract/parametercollection/parameternode.h"
#include "plugin/services/exceptionbarrier.h"

#include <QPointer>
#include <QTextDocument>
#include <QTextDocumentFragment>
#include <QUuid>

#include <utility>

using namespace ParameterCollection;
using Plugin::Tessera::runGuarded;

namespace {

void logFault(const QString &text)
{
    static const quint64 category =
        Core::Logging::getCatId(Plugin::Tessera::LogCategories::NodeItem);
    Core::Logging::createLogEntry(Core::Logging::ELogLevel::Fault, category, text);
}

const QString &shared(const QString &text, const QString &known)
{
    return text == known ? known : text;
}

} // namespace

FeatureTreeINodeItem::FeatureTreeINodeItem(QSharedPointer<IParameterCollection> collection,
                                           QSharedPointer<IParameter> parameter,
                                           const QString &text, IFeatureTreeModelExtension *model,
                                           const QString &fullName, FeatureTreeItem *parentItem,
                                           bool isUtf8, int depth)
    : FeatureTreeItem(text, model, fullName, parentItem, depth)
    , m_collection(std::move(collection))
    , m_parameter(std::move(parameter))
    , m_isUtf8(isUtf8)
{
    loadValues();
}

FeatureTreeINodeItem::FeatureTreeINodeItem(QSharedPointer<IParameterCollection> collection,
                                           QSharedPointer<IParameter> parameter,
                                           IFeatureTreeModelExtension *model,
                                           const QString &fullName, FeatureTreeItem *parentItem,
                                           bool isUtf8, int depth)
    : FeatureTreeINodeItem(std::move(collection), std::move(parameter), QString(), model, fullName,
                           parentItem, isUtf8, depth)
{
    if (columnCount() == 1) { // a category, also where its first snapshot could not be had
        subscribe();
    }
    setText(m_displayName);
}

FeatureTreeINodeItem::~FeatureTreeINodeItem() = default;

void FeatureTreeINodeItem::loadValues()
{
    setChildrenLoaded(true);
    m_parameterData = QSharedPointer<ParameterData>::create();
    setEditorKind(ItemEditorKind::NoParameter);
    if (!isUsable()) {
        m_displayName = QStringLiteral("Unknown");
        m_shortName = m_displayName;
        return;
    }
    runGuarded([this] { readProperties(); });
    m_parameterData = initialSnapshot(*m_parameter);
    setEditorKind(editorKindFor(*m_parameter));
    runGuarded([this] { setIsCategory(m_parameter->type() == Category); });
    setChildrenLoaded(FeatureTreeItem::columnCount() != 1);
}

// What was read before an exception stays.
void FeatureTreeINodeItem::readProperties()
{
    using namespace ParameterProperties;
    const QSharedPointer<IParameterNode> node = m_parameter->node();
    if (!node) {
        return;
    }
    m_unit = node->property(QLatin1String(Unit));
    m_description = node->property(QLatin1String(Description));
    m_toolTipText = node->property(QLatin1String(Tooltip));
    m_docuUrl = node->property(QLatin1String(DocuUrl));
    m_displayName = node->property(QLatin1String(DisplayName), m_parameter->name());
    m_shortName = m_parameter->name();
    // One text in memory for all that are alike: there are thousands of items.
    cacheDisplayName(shared(m_parameter->fullName(), fullName()),
                     shared(node->property(QLatin1String(DisplayName)), m_displayName));
    m_shortName = shared(m_shortName, m_displayName);
}

bool FeatureTreeINodeItem::isUsable() const
{
    return m_parameter && !m_parameter->isNull();
}

bool FeatureTreeINodeItem::isCategory() const
{
    return m_parameterData && m_parameterData->type == Category;
}

QSharedPointer<IParameterCollection> FeatureTreeINodeItem::collection() const
{
    return m_collection;
}

QSharedPointer<IParameter> FeatureTreeINodeItem::parameter() const
{
    return m_parameter;
}

QSharedPointer<const ParameterData> FeatureTreeINodeItem::parameterData() const
{
    return m_parameterData;
}

bool FeatureTreeINodeItem::isUtf8() const
{
    return m_isUtf8;
}

void FeatureTreeINodeItem::setSearchText(const QString *searchText)
{
    m_searchText = searchText;
}

bool FeatureTreeINodeItem::isRepeating() const
{
    return m_isRepeating;
}

bool FeatureTreeINodeItem::hasInlineEditor() const
{
    return ::hasInlineEditor(editorKind());
}

void FeatureTreeINodeItem::subscribe()
{
    ++m_subscriptionCount;
    if (m_subscriptionCount == 1 && isUsable()) {
        connect(m_parameter.data(), &IParameter::parameterDataChangedDecoupled, this,
                &FeatureTreeINodeItem::onParameterDataChanged);
    }
}

void FeatureTreeINodeItem::unsubscribe()
{
    if (m_subscriptionCount == 0) {
        return;
    }
    --m_subscriptionCount;
    if (m_subscriptionCount == 0 && m_parameter) {
        disconnect(m_parameter.data(), &IParameter::parameterDataChangedDecoupled, this,
                   &FeatureTreeINodeItem::onParameterDataChanged);
    }
}

void FeatureTreeINodeItem::requestRefresh()
{
    if (m_subscriptionCount == 0 || !isUsable()) {
        return;
    }
    const QSharedPointer<IParameter> parameter = m_parameter;
    const QString name = fullName();
    runGuarded([&] { parameter->refresh(true); },
               [&](const Plugin::Tessera::CaughtException &e) {
                   logFault(QStringLiteral("Failed to refresh %1: %2").arg(name, e.message));
               });
}

int FeatureTreeINodeItem::childCount()
{
    if (!childrenLoaded() && m_parameter && model()) {
        setChildrenLoaded(true);
        model()->loadChildren(this, m_parameter);
    }
    return FeatureTreeItem::childCount();
}

QVariant FeatureTreeINodeItem::data(int column, int role) const
{
    if (!m_parameterData || !m_parameter) {
        return {};
    }
    switch (column) {
    case 0:
        return nameData(role);
    case 1:
        return valueData(role);
    default:
        return FeatureTreeItem::data(column, role);
    }
}

QVariant FeatureTreeINodeItem::nameData(int role) const
{
    switch (role) {
    case Qt::DisplayRole:
        return m_unit.isEmpty() ? text() : QStringLiteral("%1 [%2]").arg(text(), m_unit);
    case Qt::ToolTipRole:
        return richToolTip();
    case ShortNameRole:
        return m_shortName;
    case TooltipTextRole:
        return m_toolTipText;
    case DescriptionRole:
        return m_description;
    case DocuUrlRole:
        return m_docuUrl;
    case IsCategoryRole:
    case SpanColumnsRole:
        return isCategory();
    case VisibilityRole:
        return visibility();
    case UniqueKeyRole:
        // A new key for each read is meant: rows must never compare equal.
        return QUuid::createUuid().toString();
    default:
        return FeatureTreeItem::data(0, role);
    }
}

QVariant FeatureTreeINodeItem::valueData(int role) const
{
    switch (role) {
    case Qt::DisplayRole:
        return valueText();
    case Qt::EditRole:
        if (isCategory() || m_parameterData->type == Boolean || !m_parameterData->isReadable) {
            return {};
        }
        return m_parameterData->valueText;
    case Qt::AccessibleTextRole: {
        const QString value = spokenValue();
        return value.isEmpty() ? text() : QStringLiteral("%1: %2").arg(text(), value);
    }
    default:
        return FeatureTreeItem::data(1, role);
    }
}

QVariant FeatureTreeINodeItem::valueText() const
{
    if (!m_parameterData->isImplemented) {
        return tr("<not implemented>");
    }
    if (!m_parameterData->isReadable) {
        if (!m_parameterData->isWritable) {
            return tr("<not available>");
        }
        if (m_parameterData->type != Command) {
            return tr("<not readable>");
        }
    }
    return hasInlineEditor() ? QVariant() : m_parameterData->valueText;
}

// Also of a value that an editor shows: a row is read out before anybody enters its editor, and a
// switch or a button has the keyboard in the row only.
QString FeatureTreeINodeItem::spokenValue() const
{
    const QVariant drawn = valueText();
    if (drawn.isValid()) {
        return drawn.toString();
    }
    if (const auto boolean = m_parameterData.dynamicCast<const BooleanParameterData>()) {
        return boolean->value ? tr("on") : tr("off");
    }
    if (const auto choice = m_parameterData.dynamicCast<const EnumParameterData>()) {
        const QString &entry = choice->valueText;
        return choice->entryDisplayNames.value(choice->entryNames.indexOf(entry), entry);
    }
    return m_parameterData->type == Command ? QString() : m_parameterData->valueText;
}

QString FeatureTreeINodeItem::richToolTip() const
{
    const QString searchText = m_searchText ? *m_searchText : QString();
    const QString title = highlighted(text(), searchText);
    const QString detail = toolTipDetail(toolTipContext(fullName()), m_shortName, m_toolTipText);
    const bool isRoot = m_shortName.contains(QLatin1String("Root"), Qt::CaseInsensitive);
    QString toolTip = isRoot || isCategory()
        ? QStringLiteral("<nobr><b>%1</b></nobr>").arg(title)
        : QStringLiteral("<nobr><b>%1 (%2)</b></nobr>")
              .arg(title, highlighted(m_shortName, searchText));
    if (!detail.isEmpty()) {
        toolTip += QStringLiteral("<br><nobr>%1</nobr>").arg(detail);
    }
    return toolTip;
}

QString FeatureTreeINodeItem::plainDescription() const
{
    const QString detail = toolTipDetail(toolTipContext(fullName()), m_shortName, m_toolTipText);
    // Reading HTML takes longer than making an editor, and hardly any text is.
    const bool isRich = Qt::mightBeRichText(detail);
    return QStringLiteral("%1\n%2").arg(
        m_shortName, isRich ? QTextDocumentFragment::fromHtml(detail).toPlainText() : detail);
}

void FeatureTreeINodeItem::setData(int column, const QVariant &value, int role)
{
    if (column != 1 || role != Qt::EditRole || !isUsable() || !m_parameter->isWritable()) {
        return;
    }
    if (editorKind() == ItemEditorKind::CommandButton) {
        // A copy: running the command may take the item away.
        if (const auto command = m_parameter.objectCast<ICommandParameter>()) {
            command->execute(true);
            command->refresh(true);
        }
    } else if (isFloatKind(editorKind())) {
        writeNumber(value);
    } else {
        writeText(value.toString());
    }
}

void FeatureTreeINodeItem::writeNumber(const QVariant &value)
{
    if (value.userType() != QMetaType::Double) {
        logFault(QStringLiteral("FeatureTreeItem::setData() float editor, but no double in "
                                "variant()  (node name = %1 )")
                     .arg(text()));
    }
    if (const auto number = m_parameter.objectCast<IFloatParameter>()) {
        number->setValue(value.toDouble());
        return;
    }
    logFault(QStringLiteral("Floateditor for node %1, but no GenApi float node??").arg(text()));
    writeText(value.toString());
}

// The library takes one character for each byte of the device's text, whatever its encoding.
void FeatureTreeINodeItem::writeText(const QString &text)
{
    const QByteArray bytes = m_isUtf8 ? text.toUtf8() : text.toLatin1();
    const QSharedPointer<IParameter> parameter = m_parameter;
    parameter->setFromString(QString::fromLatin1(bytes.constData()));
}

bool FeatureTreeINodeItem::hasChildren() const
{
    return isCategory();
}

bool FeatureTreeINodeItem::isVisibleAt(int level) const
{
    if (level == 3) {
        return true;
    }
    if (!m_parameterData || (!m_parameterData->isImplemented && !m_wasImplemented)) {
        return false;
    }
    return visibility() <= level;
}

int FeatureTreeINodeItem::accessMode() const
{
    if (!m_parameterData || !m_parameterData->isImplemented) {
        return 0;
    }
    return 1 + (m_parameterData->isWritable ? 1 : 0) + (m_parameterData->isReadable ? 2 : 0);
}

int FeatureTreeINodeItem::visibility() const
{
    return m_parameterData ? m_parameterData->visibility : FeatureTreeItem::visibility();
}

Qt::ItemFlags FeatureTreeINodeItem::flags(int column) const
{
    if (!m_parameterData) {
        return Qt::NoItemFlags;
    }
    Qt::ItemFlags flags = FeatureTreeItem::flags(column);
    if (m_parameterData->isWritable && column == 1) {
        flags = Qt::ItemIsEnabled | Qt::ItemIsEditable;
    }
    if ((m_parameterData->isWritable || isCategory()) && column == 0
        && m_parameterData->isReadable) {
        flags.setFlag(Qt::ItemIsDragEnabled, !isCategory());
    }
    return flags;
}

QVariant FeatureTreeINodeItem::foreground() const
{
    const bool isLocked = m_parameterData && !m_parameterData->isWritable;
    const bool hasNothing =
        editorKind() == ItemEditorKind::NoEditor || editorKind() == ItemEditorKind::NoParameter;
    return !isCategory() && (isLocked || hasNothing) ? disabledForeground() : QVariant();
}

// A snapshot of another type than the parameter's is a fault of the library and dropped.
void FeatureTreeINodeItem::onParameterDataChanged(
    QSharedPointer<const ParameterData> ptrParameterData)
{
    const bool isForThisRow = ptrParameterData
        && (m_parameterData->type == None || m_parameterData->type == ptrParameterData->type);
    if (!isForThisRow || !model() || !model()->acceptUpdates()) {
        return;
    }
    m_wasImplemented = m_wasImplemented || ptrParameterData->isImplemented;
    if (repairRange(ptrParameterData)) {
        return;
    }
    const bool isSame = m_hasSnapshot && tellTheSame(*m_parameterData, *ptrParameterData);
    m_hasSnapshot = true;
    m_parameterData = ptrParameterData;
    const QPointer<FeatureTreeINodeItem> self(this);
    m_isRepeating = isSame;
    Q_EMIT nodeUpdated(row(), this);
    if (self) {
        m_isRepeating = false;
    }
}

// A feature whose limits moved under its value is pulled in, which is meant; the write makes the
// library publish a snapshot that is stored in place of this one. A device that answers with the
// same snapshot again is left alone. True when a write was attempted.
bool FeatureTreeINodeItem::repairRange(const QSharedPointer<const ParameterData> &snapshot)
{
    if (!isOutOfRange(*snapshot)) {
        m_repaired.reset();
        return false;
    }
    if (m_isRepairing || (m_repaired && haveSameRange(*m_repaired, *snapshot))) {
        return false;
    }
    const QPointer<FeatureTreeINodeItem> self(this); // the write may take this item away
    m_isRepairing = true;
    m_repaired = snapshot;
    const bool attempted = pullIntoRange(m_parameter, *snapshot);
    if (self) {
        m_isRepairing = false;
    }
    return attempted;
}
