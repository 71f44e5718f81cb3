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
#include <QQuickItem>
#include <QStyle>
#include <QStyleOptionDockWidget>

namespace Tests {

namespace {

struct Need
{
    QString text;
    QSizeF size;
    QSizeF room;
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

Needs ofHeader(const QHeaderView &header)
{
    Needs needs;
    needs.reserve(header.count());
    for (int i = 0; header.orientation() == Qt::Horizontal && i < header.count(); ++i) {
        needs.append({header.model()->headerData(i, Qt::Horizontal).toString(),
                      QSize(header.sectionSizeHint(i), header.sizeHint().height()),
                      QSize(header.sectionSize(i), header.height())});
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
    return {{option.title, size, QSize(room.width(), size.height())}};
}

Needs ofButton(const QAbstractButton &button)
{
    const QWidget *view = button.parentWidget();
    while (view && !qobject_cast<const QAbstractItemView *>(view)) {
        view = view->parentWidget();
    }
    QSize size = button.sizeHint();
    if (view) { // which gives its cells their height
        size.setHeight(sizeOf(button, button.text()).height());
    }
    return button.text().isEmpty() ? Needs() : Needs {{button.text(), size, button.size()}};
}

Needs ofSearchLine(const QWidget &line)
{
    constexpr int margins = 40; // for the lens and the edges
    const QString help = QCoreApplication::translate("FeatureTreeWidget", "Search for parameters");
    return {{help, sizeOf(line, help), line.size() - QSize(margins, 0)}};
}

Needs needsOf(const QWidget &widget)
{
    if (const auto *label = qobject_cast<const QLabel *>(&widget)) {
        return ofLabel(*label);
    }
    if (const auto *button = qobject_cast<const QAbstractButton *>(&widget)) {
        return ofButton(*button);
    }
    if (const auto *header = qobject_cast<const QHeaderView *>(&widget)) {
        return ofHeader(*header);
    }
    if (const auto *dock = qobject_cast<const QDockWidget *>(&widget)) {
        return ofDock(*dock);
    }
    return widget.inherits("SearchEdit") ? ofSearchLine(widget) : Needs();
}

Needs needsOf(const QQuickItem &item)
{
    const QFontMetricsF metrics(item.property("font").value<QFont>());
    if (item.inherits("QQuickText")) {
        // One that shrinks its text to fit shall not have to do so by more than a tenth.
        const double shrunk = item.property("fontSizeMode").toInt() == 0 ? 1.0 : 0.9;
        const QString text = item.property("text").toString();
        const QSizeF size(shrunk * metrics.horizontalAdvance(text) - 0.5,
                          item.property("contentHeight").toReal() - 0.5);
        return {{text, size, item.size()}};
    }
    if (item.inherits("QQuickTextField")) {
        const QString help = item.property("placeholderText").toString();
        const double padding =
            item.property("leftPadding").toReal() + item.property("rightPadding").toReal();
        return {{help,
                 {metrics.horizontalAdvance(help) + padding, item.implicitHeight()},
                 item.size()}};
    }
    return {};
}

template<typename Owner> QStringList cutTextsOf(const Owner &owner)
{
    QStringList result;
    const Needs needs = needsOf(owner);
    for (const Need &need : needs) {
        if (need.size.width() > need.room.width() || need.size.height() > need.room.height()) {
            result.append(QStringLiteral("%1 %2 \"%3\"")
                              .arg(QLatin1String(owner.metaObject()->className()),
                                   owner.objectName(), need.text));
        }
    }
    return result;
}

} // namespace

QStringList cutTexts(const QWidget &window)
{
    QStringList result = cutTextsOf(window);
    const auto children = window.findChildren<QWidget *>();
    for (const QWidget *widget : children) {
        if (widget->isVisible()) {
            result += cutTextsOf(*widget);
        }
    }
    return result;
}

QStringList cutTexts(const QQuickItem &scene)
{
    QStringList result;
    const auto children = scene.childItems();
    for (const QQuickItem *item : children) {
        if (item->isVisible()) {
            result += cutTextsOf(*item) + cutTexts(*item);
        }
    }
    return result;
}

} // namespace Tests
