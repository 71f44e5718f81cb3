// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "cuttexts.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QComboBox>
#include <QCoreApplication>
#include <QDockWidget>
#include <QFontMetricsF>
#include <QHeaderView>
#include <QLabel>
#include <QMenuBar>
#include <QQuickItem>
#include <QStyle>
#include <QStyleOptionComboBox>
#include <QStyleOptionDockWidget>
#include <QTabBar>

#include <algorithm>

namespace Tests {

namespace {

struct Need
{
    QString text;
    QSize size;
    QSize room;
};

using Needs = QVector<Need>;

// As high as its ink: a line of another script may be higher than the widget's font has it.
QSize sizeOf(const QWidget &widget, const QString &text)
{
    const QFontMetrics metrics = widget.fontMetrics();
    return {metrics.size(Qt::TextShowMnemonic | Qt::TextSingleLine, text).width(),
            metrics.tightBoundingRect(text).height()};
}

Needs ofLabel(const QLabel &label)
{
    const QSize size = label.hasHeightForWidth()
        ? QSize(label.minimumSizeHint().width(), label.heightForWidth(label.width()))
        : label.sizeHint();
    return {{label.text(), size, label.size()}};
}

Needs ofList(const QComboBox &list)
{
    QStyleOptionComboBox option;
    option.initFrom(&list);
    const QSize room =
        list.style()
            ->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, &list)
            .size();
    Needs needs {{list.currentText(), sizeOf(list, list.currentText()), room}};
    const QWidget *popup = list.view();
    const int width = qMax(popup->minimumWidth(), list.width());
    needs.reserve(list.count() + 1);
    for (int i = 0; i < list.count(); ++i) {
        const QSize size = sizeOf(*popup, list.itemText(i));
        needs.append({list.itemText(i), size, {width, size.height()}});
    }
    return needs;
}

Needs ofHeader(const QHeaderView &header)
{
    Needs needs;
    needs.reserve(header.count());
    for (int i = 0; header.orientation() == Qt::Horizontal && i < header.count(); ++i) {
        needs.append({header.model()->headerData(i, Qt::Horizontal).toString(),
                      {header.sectionSizeHint(i), header.sizeHint().height()},
                      {header.sectionSize(i), header.height()}});
    }
    return needs;
}

Needs ofDock(const QDockWidget &dock)
{
    QStyleOptionDockWidget option;
    option.initFrom(&dock);
    option.title = dock.windowTitle();
    option.closable = dock.features().testFlag(QDockWidget::DockWidgetClosable);
    option.floatable = dock.features().testFlag(QDockWidget::DockWidgetFloatable);
    const QSize room =
        dock.style()->subElementRect(QStyle::SE_DockWidgetTitleBarText, &option, &dock).size();
    const QSize size = sizeOf(dock, option.title);
    return {{option.title, size, {room.width(), size.height()}}};
}

Needs ofTabs(const QTabBar &tabs)
{
    Needs needs;
    needs.reserve(tabs.count());
    for (int i = 0; i < tabs.count(); ++i) {
        needs.append({tabs.tabText(i), sizeOf(tabs, tabs.tabText(i)), tabs.tabRect(i).size()});
    }
    return needs;
}

Needs ofMenuBar(const QMenuBar &bar)
{
    Needs needs;
    const auto actions = bar.actions();
    needs.reserve(actions.size());
    for (const QAction *action : actions) {
        needs.append(
            {action->text(), sizeOf(bar, action->text()),
             bar.actionGeometry(const_cast<QAction *>(action)).intersected(bar.rect()).size()});
    }
    return needs;
}

Needs ofSearchLine(const QWidget &line)
{
    constexpr int margins = 40; // for the lens and the edges
    const QString help = QCoreApplication::translate("FeatureTreeWidget", "Search for parameters");
    return {{help, sizeOf(line, help), line.size() - QSize(margins, 0)}};
}

bool isInCell(const QWidget &widget)
{
    const QWidget *view = widget.parentWidget();
    while (view && !qobject_cast<const QAbstractItemView *>(view)) {
        view = view->parentWidget();
    }
    return view;
}

Needs needsOf(const QWidget &widget)
{
    if (const auto *label = qobject_cast<const QLabel *>(&widget)) {
        return ofLabel(*label);
    }
    if (const auto *button = qobject_cast<const QAbstractButton *>(&widget)) {
        const QSize size = isInCell(widget)
            ? QSize(button->sizeHint().width(), sizeOf(widget, button->text()).height())
            : button->sizeHint();
        return button->text().isEmpty() ? Needs() : Needs {{button->text(), size, button->size()}};
    }
    if (const auto *header = qobject_cast<const QHeaderView *>(&widget)) {
        return ofHeader(*header);
    }
    if (const auto *dock = qobject_cast<const QDockWidget *>(&widget)) {
        return ofDock(*dock);
    }
    if (const auto *tabs = qobject_cast<const QTabBar *>(&widget)) {
        return ofTabs(*tabs);
    }
    if (const auto *bar = qobject_cast<const QMenuBar *>(&widget)) {
        return ofMenuBar(*bar);
    }
    const auto *list = qobject_cast<const QComboBox *>(&widget);
    if (list && !isInCell(widget)) {
        return ofList(*list);
    }
    return widget.inherits("SearchEdit") ? ofSearchLine(widget) : Needs();
}

QString line(const QObject &owner, const QString &text, QSizeF size, QSizeF room)
{
    return QStringLiteral("%1 %2 \"%3\" needs %4x%5, has %6x%7")
        .arg(QLatin1String(owner.metaObject()->className()), owner.objectName(), text)
        .arg(size.width())
        .arg(size.height())
        .arg(room.width())
        .arg(room.height());
}

QSizeF neededBy(const QQuickItem &item)
{
    if (item.inherits("QQuickText")) {
        // One that shrinks its text to fit shall not have to do so by more than a tenth.
        const double shrunk = item.property("fontSizeMode").toInt() == 0 ? 1.0 : 0.9;
        const QFontMetricsF metrics(item.property("font").value<QFont>());
        return {shrunk * metrics.horizontalAdvance(item.property("text").toString()),
                item.property("contentHeight").toReal()};
    }
    const QString help = item.property("placeholderText").toString();
    return {QFontMetricsF(item.property("font").value<QFont>()).horizontalAdvance(help)
                + item.property("leftPadding").toReal() + item.property("rightPadding").toReal(),
            item.implicitHeight()};
}

} // namespace

QStringList cutTexts(const QWidget &window)
{
    QStringList result;
    QList<const QWidget *> widgets {&window};
    const auto children = window.findChildren<QWidget *>();
    std::copy(children.begin(), children.end(), std::back_inserter(widgets));
    for (const QWidget *widget : qAsConst(widgets)) {
        if (!widget->isVisible()) {
            continue;
        }
        const Needs needs = needsOf(*widget);
        for (const Need &need : needs) {
            if (need.size.width() > need.room.width() || need.size.height() > need.room.height()) {
                result.append(line(*widget, need.text, need.size, need.room));
            }
        }
    }
    return result;
}

QStringList cutTexts(const QQuickItem &scene)
{
    QStringList result;
    const auto children = scene.childItems();
    for (const QQuickItem *item : children) {
        if (!item->isVisible()) {
            continue;
        }
        const bool isText = item->inherits("QQuickText") || item->inherits("QQuickTextField");
        const QSizeF need = isText ? neededBy(*item) : QSizeF();
        if (isText
            && (need.width() > item->width() + 0.5 || need.height() > item->height() + 0.5)) {
            result.append(line(*item, item->property("text").toString(), need, item->size()));
        }
        result += cutTexts(*item);
    }
    return result;
}

} // namespace Tests
