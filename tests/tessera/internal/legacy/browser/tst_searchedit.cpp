// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "internal/legacy/browser/searchedit.h"

#include "support/warningguard.h"

#include <QAction>
#include <QApplication>
#include <QInputMethodEvent>
#include <QSignalSpy>
#include <QTest>
#include <QToolButton>

#include <memory>

namespace {

/// Counts how often a widget is painted.
class PaintCounter final : public QObject
{
    Q_OBJECT

public:
    int paints = 0;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        paints += event->type() == QEvent::Paint ? 1 : 0;
        return QObject::eventFilter(watched, event);
    }
};

} // namespace

class TestSearchEdit : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_guard.begin();
        m_window = std::make_unique<QWidget>();
        m_window->resize(400, 60);
        m_edit = new SearchEdit(m_window.get());
        m_edit->setHelpText(QStringLiteral("Search for parameters"));
        m_edit->setGeometry(10, 10, 380, 30);
        m_window->show();
        QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
    }

    void cleanup()
    {
        m_window.reset();
        m_guard.verify();
    }

    void keysSwitchBetweenLensAndCross()
    {
        const QList<QAction *> icons = m_edit->actions();
        QCOMPARE(icons.size(), 2);
        QVERIFY(!icons.at(0)->isEnabled() && !icons.at(0)->icon().isNull());
        const auto shown = [&icons] {
            return qMakePair(icons[0]->isVisible(), icons[1]->isVisible());
        };
        const QColor plain = QApplication::palette().color(QPalette::Button);
        QCOMPARE(shown(), qMakePair(true, false));
        QCOMPARE(background(), plain);

        QTest::keyClicks(m_edit, QStringLiteral("ga"));
        QCOMPARE(shown(), qMakePair(false, true));
        QCOMPARE(background(), QColor(255, 167, 0));

        QTest::keyClick(m_edit, Qt::Key_Backspace);
        QTest::keyClick(m_edit, Qt::Key_Backspace);
        QCOMPARE(shown(), qMakePair(true, false));
        QCOMPARE(background(), plain);
    }

    void crossEmptiesTheLine()
    {
        QTest::keyClicks(m_edit, QStringLiteral("gain"));
        const QSignalSpy changes(m_edit, &QLineEdit::textChanged);
        const QList<QToolButton *> buttons = m_edit->findChildren<QToolButton *>();
        for (QToolButton *button : buttons) {
            if (button->isVisible()) {
                QTest::mouseClick(button, Qt::LeftButton);
            }
        }
        QCOMPARE(changes.size(), 1);
        QVERIFY(m_edit->text().isEmpty());
    }

    void helpStandsInTheEmptyLineOnly()
    {
        const QImage withHelp = picture();
        m_edit->clearFocus();
        QVERIFY(picture() != pictureWithoutHelp());
        m_edit->setFocus();
        QCOMPARE(picture(), withHelp);

        QInputMethodEvent composing(QStringLiteral("ゲ"), {});
        QVERIFY(QCoreApplication::sendEvent(m_edit, &composing));
        QCOMPARE(picture(), pictureWithoutHelp());
        QInputMethodEvent ending;
        QVERIFY(QCoreApplication::sendEvent(m_edit, &ending));
        QVERIFY(picture() != pictureWithoutHelp());
        QTest::keyClicks(m_edit, QStringLiteral("g"));
        QCOMPARE(picture(), pictureWithoutHelp());
    }

    void paintsInTheApplicationsFontAndThenRests_data()
    {
        QTest::addColumn<QFont>("applications");
        QTest::addColumn<QFont>("parents");
        QTest::addColumn<QFont>("own");
        QFont large;
        large.setPixelSize(26);
        large.setItalic(true);
        QTest::newRow("default") << QFont() << QFont() << QFont();
        QTest::newRow("application") << large << QFont() << QFont();
        QTest::newRow("parent") << QFont() << large << QFont();
        QTest::newRow("own") << QFont() << QFont() << large;
    }
    void paintsInTheApplicationsFontAndThenRests()
    {
        QFETCH(const QFont, applications);
        QFETCH(const QFont, parents);
        QFETCH(const QFont, own);
        const QFont before = QApplication::font("QLineEdit");
        PaintCounter counter;
        m_edit->installEventFilter(&counter);
        QApplication::setFont(applications, "QLineEdit");
        m_window->setFont(parents);
        m_edit->setFont(own);
        m_edit->update();
        QTRY_COMPARE(m_edit->font(), QApplication::font("QLineEdit"));
        for (int round = 0; round < 50; ++round) {
            QCoreApplication::processEvents();
        }
        const bool rests = counter.paints > 0 && counter.paints < 10;
        const QFont painted = m_edit->font();
        const QFont expected = QApplication::font("QLineEdit");
        QApplication::setFont(before, "QLineEdit");
        QVERIFY2(rests, qPrintable(QString::number(counter.paints)));
        QCOMPARE(painted, expected);
    }

    void colourOfTheGround_data()
    {
        QTest::addColumn<QColor>("button"); // of the application
        QTest::addColumn<bool>("follows");
        QTest::newRow("light system") << QColor(0xd0, 0xff, 0xd0) << true;
        QTest::newRow("dark system") << QColor(0x35, 0x35, 0x35) << false;
    }
    void colourOfTheGround()
    {
        QFETCH(const QColor, button);
        QFETCH(const bool, follows);
        const QPalette before = QApplication::palette();
        QApplication::setPalette(QPalette(button));
        const QColor ground = background();
        const QColor textColour = m_edit->palette().color(QPalette::Text);
        QApplication::setPalette(before);
        QCOMPARE(ground == button, follows);
        QVERIFY(ground.lightness() > 200 && textColour.lightness() < 50);
        QCOMPARE(background(), before.color(QPalette::Button));
    }

private:
    QImage picture()
    {
        // Without the blinking cursor.
        QImage image(m_edit->size(), QImage::Format_RGB32);
        m_edit->setReadOnly(true);
        m_edit->render(&image);
        m_edit->setReadOnly(false);
        return image;
    }
    QImage pictureWithoutHelp()
    {
        m_edit->setHelpText(QString());
        const QImage image = picture();
        m_edit->setHelpText(QStringLiteral("Search for parameters"));
        return image;
    }
    QColor background()
    {
        return picture().pixelColor(m_edit->width() / 2, 3);
    }

    Tests::WarningGuard m_guard;
    std::unique_ptr<QWidget> m_window;
    SearchEdit *m_edit = nullptr; // by parent
};

QTEST_MAIN(TestSearchEdit)

#include "tst_searchedit.moc"
