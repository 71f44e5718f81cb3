// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "documentationview.h"

#include "currentfeature.h"
#include "featuredocumentation.h"

#include <plugin/contract/parametercollection/parameternode.h>

namespace Viewer {

namespace {

QString title(const ParameterCollection::IParameter &parameter)
{
    try {
        const auto node = parameter.node();
        return node ? node->property(QStringLiteral("DisplayName"), parameter.name())
                    : parameter.name();
    } catch (...) {
        return parameter.name();
    }
}

QString page(const QString &title, const DocumentationRows &rows)
{
    QString html = QStringLiteral("<h3>%1</h3><table cellspacing='0' cellpadding='2'>")
                       .arg(title.toHtmlEscaped());
    for (const auto &row : rows) {
        html += QStringLiteral("<tr><td><b>%1</b>&nbsp;</td><td>%2</td></tr>")
                    .arg(row.first.toHtmlEscaped(), row.second.toHtmlEscaped());
    }
    html += QLatin1String("</table>");
    return html;
}

} // namespace

DocumentationView::DocumentationView(CurrentFeature *feature, QWidget *parent)
    : QTextBrowser(parent)
    , m_feature(feature)
{
    setObjectName(QStringLiteral("documentationView"));
    setAccessibleName(tr("Documentation of the current feature"));
    setOpenLinks(false);
    setPlaceholderText(tr("Select a feature to read about it here."));
    connect(feature, &CurrentFeature::changed, this, &DocumentationView::showFeature);
    connect(feature, &CurrentFeature::snapshotChanged, this, &DocumentationView::showFeature);
    showFeature();
}

QSize DocumentationView::sizeHint() const
{
    return {QTextBrowser::sizeHint().width(), fontMetrics().lineSpacing() * 10};
}

void DocumentationView::showFeature()
{
    const auto parameter = m_feature->parameter();
    const QString html = parameter && !parameter->isNull()
        ? page(title(*parameter), documentationRows(*parameter, m_feature->snapshot().data()))
        : QString();
    if (html != m_shown) {
        m_shown = html;
        setHtml(html);
    }
}

} // namespace Viewer
