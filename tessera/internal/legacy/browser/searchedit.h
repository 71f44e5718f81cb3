// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QFont>
#include <QLineEdit>

#include <optional>

class QAction;

/// The search line: a lens while it is empty, then a cross that empties it, and orange for as long
/// as a search is in force.
class SearchEdit final : public QLineEdit
{
    Q_OBJECT

public:
    explicit SearchEdit(QWidget *parent);
    ~SearchEdit() override;

    /// What stands in the line while it is empty.
    void setHelpText(const QString &helpText);

protected:
    void changeEvent(QEvent *event) override;
    void inputMethodEvent(QInputMethodEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private Q_SLOTS:
    void onTextChanged(const QString &text);

private: // NOLINT(readability-redundant-access-specifiers): ends the slots
    void updateColours();
    void paintHelpText();

    QString m_helpText;
    QAction *m_lensAction = nullptr; // by parent
    QAction *m_clearAction = nullptr; // by parent
    std::optional<QFont> m_paintedFont; // set by painting and by nobody since
    bool m_isComposing = false; // an input method shows text that is not in the line yet
    bool m_isPainting = false; // a change of font is our own
};
