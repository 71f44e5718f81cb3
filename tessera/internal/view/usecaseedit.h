// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QLineEdit>

class QAction;

namespace Plugin::Tessera::Internal::View {

/// Shows the use case in force, with a cross to leave it; Delete, Enter and Space leave it too.
/// Stands in for the box that it was chosen from.
class CUseCaseEdit final : public QLineEdit
{
    Q_OBJECT

public:
    explicit CUseCaseEdit(QWidget *parent);
    ~CUseCaseEdit() override;

Q_SIGNALS:
    void onCrossActionTriggered();

public Q_SLOTS:
    /// Shows as much of `text` as there is room for, now and after a change of size.
    void setText(const QString &text);

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void changeEvent(QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void updateColours();
    void showText();

    QAction *m_crossAction = nullptr; // by parent
    QString m_fullText;
};

} // namespace Plugin::Tessera::Internal::View
