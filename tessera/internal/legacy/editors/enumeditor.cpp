// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "enumeditor.h"

#include "editorlog.h"
#include "snapshots.h"
#include "wheelfocus.h"

#include "plugin/constants/logcategories.h"
#include "plugin/contract/parametercollection/enumparameterdata.h"
#include "plugin/services/exceptionbarrier.h"

#include <QAbstractItemView>
#include <QWheelEvent>

using namespace ParameterCollection;

namespace {

EditorLog editorLog(Plugin::Tessera::LogCategories::EnumEditor);

// A device may know fewer display texts than entries.
QString entryText(const EnumParameterData &snapshot, int entry)
{
    return entry < snapshot.entryDisplayNames.size() ? snapshot.entryDisplayNames.at(entry)
                                                     : snapshot.entryNames.at(entry);
}

} // namespace

EnumEditor::EnumEditor(QWidget *parent)
    : QComboBox(parent)
{
    setEditable(false);
    setStyleSheet(QStringLiteral("margin-left:1px; margin-right:1px; margin-top:1px; "
                                 "margin-bottom:1px; padding-left: 4px;"));
    setFocusPolicy(Qt::StrongFocus);
}

EnumEditor::~EnumEditor()
{
    if (m_popup) {
        m_popup->removeEventFilter(this);
    }
}

void EnumEditor::updateEditor(ParameterAndData pair)
{
    if (m_popup) {
        return;
    }
    Plugin::Tessera::runGuarded([&] {
        const auto snapshot = snapshotOf<EnumParameterData>(pair, Enumeration);
        if (!snapshot) {
            clear();
            editorLog.fault(
                QStringLiteral("%1 is called with non-enumeration node????").arg(nameOf(pair)));
            return;
        }
        if (!showsEntriesOf(*snapshot)) {
            showEntriesOf(*snapshot);
        }
        selectEntryOf(*snapshot, pair);
        if (isEnabled() != snapshot->isWritable) {
            setEnabled(snapshot->isWritable);
        }
    });
}

QVariant EnumEditor::editorValue() const
{
    return currentData(Qt::UserRole);
}

void EnumEditor::showPopup()
{
    view()->setAccessibleName(accessibleName());
    QComboBox::showPopup();
    QWidget *popup = view()->window();
    if (popup->isVisible()) {
        m_popup = popup;
        m_popup->installEventFilter(this);
    }
}

bool EnumEditor::eventFilter(QObject *watched, QEvent *event)
{
    if (m_popup && watched == m_popup && event->type() == QEvent::Hide) {
        m_popup->removeEventFilter(this);
        m_popup = nullptr;
        return true;
    }
    return QComboBox::eventFilter(watched, event);
}

void EnumEditor::wheelEvent(QWheelEvent *event)
{
    if (takesWheel(*this)) {
        QComboBox::wheelEvent(event);
    } else {
        event->ignore();
    }
}

bool EnumEditor::showsEntriesOf(const EnumParameterData &snapshot) const
{
    if (count() != snapshot.entryNames.size()) {
        return false;
    }
    for (int entry = 0; entry < count(); ++entry) {
        if (itemData(entry).toString() != snapshot.entryNames.at(entry)
            || itemText(entry) != entryText(snapshot, entry)) {
            return false;
        }
    }
    return true;
}

void EnumEditor::showEntriesOf(const EnumParameterData &snapshot)
{
    clear();
    for (int entry = 0; entry < snapshot.entryNames.size(); ++entry) {
        insertItem(count(), QIcon(), entryText(snapshot, entry), snapshot.entryNames.at(entry));
    }
}

void EnumEditor::selectEntryOf(const EnumParameterData &snapshot, const ParameterAndData &pair)
{
    int entry = -1;
    if (snapshot.isReadable) {
        entry = findData(snapshot.valueText, Qt::UserRole, Qt::MatchCaseSensitive);
        if (entry == -1) {
            editorLog.fault(
                QStringLiteral(": %1. No entry in the combo box matches the current value %2")
                    .arg(nameOf(pair), snapshot.valueText));
        }
    }
    setCurrentIndex(entry);
}
