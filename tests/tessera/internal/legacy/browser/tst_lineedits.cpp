// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "internal/legacy/browser/searchedit.h"
#include "internal/view/lightframe.h"
#include "internal/view/screenratio.h"
#include "internal/view/usecaseedit.h"
#include "support/warningguard.h"

#include <QAction>
#include <QApplication>
#include <QFrame>
#include <QInputMethodEvent>
#include <QSignalSpy>
#include <QSpinBox>
#include <QTest>
#include <QToolButton>

#include <memory>

using Plugin::Tessera::Internal::View::CUseCaseEdit;

class TestLineEdits : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_guard.begin();
        m_window = std::make_unique<QWidget>();
        m_search = new SearchEdit(m_window.get());
        m_search->setHelpText(QStringLiteral("Search"));
        m_useCase = new CUseCaseEdit(m_window.get());
        m_useCase->move(0, 40);
        m_window->show();
        QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
    }

    void cleanup()
    {
        m_window.reset();
        m_guard.verify();
    }

    void searchInForceIsOrangeUntilTheCrossOrTheLastKey()
    {
        const QImage empty = picture(m_search);
        QVERIFY(!m_search->actions().at(0)->icon().isNull());
        QTest::keyClicks(m_search, QStringLiteral("g"));
        QCOMPARE(background(m_search), QColor(255, 167, 0));
        QVERIFY(!m_search->actions().at(0)->isVisible() && m_search->actions().at(1)->isVisible());
        QTest::keyClick(m_search, Qt::Key_Backspace);
        QCOMPARE(picture(m_search), empty);
        QTest::keyClicks(m_search, QStringLiteral("ga"));
        clickCross(m_search);
        QVERIFY(m_search->text().isEmpty());
        QCOMPARE(picture(m_search), empty);
    }

    void framesStayReadableWhenTheSystemTurnsDark()
    {
        const QPalette light = QApplication::palette();
        const QPalette dark(QColor(0x31, 0x36, 0x3b));
        QApplication::setPalette(light);
        QFrame frame;
        frame.setStyleSheet(QStringLiteral("QFrame { background-color: \"white\"; }"));
        QSpinBox early(&frame);
        new LightFrame(&frame);
        QApplication::setPalette(dark);
        frame.show();
        auto *late = new QSpinBox(&frame);
        late->show();
        for (const QWidget *box : {&early, late}) {
            const auto *line = box->findChild<QWidget *>(QStringLiteral("qt_spinbox_lineedit"));
            QVERIFY(line->palette().color(QPalette::Text).lightness() < 128);
            QVERIFY(line->palette().color(QPalette::Base).lightness() > 128);
        }
        QApplication::setPalette(light);
        QCOMPARE(late->palette().color(QPalette::Button), light.color(QPalette::Button));
    }

    void helpStandsInTheEmptyLineOnly()
    {
        const auto showsHelp = [this] {
            const QImage present = picture(m_search);
            m_search->setHelpText(QString());
            const bool differs = picture(m_search) != present;
            m_search->setHelpText(QStringLiteral("Search"));
            return differs;
        };
        QVERIFY(showsHelp());
        QInputMethodEvent composing(QStringLiteral("ゲ"), {});
        QCoreApplication::sendEvent(m_search, &composing);
        QVERIFY(!showsHelp());
    }

    void useCaseKeepsTheNameThatDoesNotFit()
    {
        const QString name = QStringLiteral("光の状態が変化しても画像品質を一定に保つ");
        const int width = m_useCase->fontMetrics().horizontalAdvance(name) + 2; // fractions
        const int reserved = static_cast<int>(screenRatio() * 40.0);
        m_useCase->setText(name);
        m_useCase->resize(width / 2 + reserved, 30);
        const QString half = m_useCase->text();
        QVERIFY(half.size() > 2 && half.endsWith(QChar(0x2026))
                && name.startsWith(half.chopped(1)));
        QCOMPARE(m_useCase->toolTip(), name);
        m_useCase->resize(width + reserved, 30);
        QCOMPARE(m_useCase->text(), name);

        const QSignalSpy crosses(m_useCase, &CUseCaseEdit::onCrossActionTriggered);
        QTest::keyClicks(m_useCase, QStringLiteral("x"));
        QTest::mouseClick(m_useCase, Qt::LeftButton);
        QCOMPARE(crosses.size(), 0);
        clickCross(m_useCase);
        QTest::keyClick(m_useCase, Qt::Key_Backspace);
        QCOMPARE(crosses.size(), 2);
        QCOMPARE(m_useCase->text(), name);
    }

private:
    static QImage picture(QLineEdit *edit)
    {
        const bool wasReadOnly = edit->isReadOnly();
        edit->setReadOnly(true); // no blinking cursor
        QImage image = edit->grab().toImage();
        edit->setReadOnly(wasReadOnly);
        return image;
    }
    static QColor background(QLineEdit *edit)
    {
        return picture(edit).pixelColor(edit->width() / 2, 3);
    }
    static void clickCross(QLineEdit *edit)
    {
        const QList<QToolButton *> buttons = edit->findChildren<QToolButton *>();
        for (QToolButton *button : buttons) {
            if (button->isVisible()) {
                QTest::mouseClick(button, Qt::LeftButton);
            }
        }
    }

    Tests::WarningGuard m_guard;
    std::unique_ptr<QWidget> m_window;
    SearchEdit *m_search = nullptr; // by parent
    CUseCaseEdit *m_useCase = nullptr; // by parent
};

QTEST_MAIN(TestLineEdits)

#include "tst_lineedits.moc"
