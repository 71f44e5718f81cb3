// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "internal/view/usecaseedit.h"

#include "internal/view/screenratio.h"
#include "internal/view/trailingicon.h"
#include "plugin/contract/viewer/stylehelper.h"
#include "support/warningguard.h"

#include <QAction>
#include <QApplication>
#include <QSignalSpy>
#include <QTest>
#include <QToolButton>

#include <memory>

using Plugin::Tessera::Internal::View::CUseCaseEdit;

class TestUseCaseEdit : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_guard.begin();
        m_edit = std::make_unique<CUseCaseEdit>(nullptr);
        m_edit->resize(400, 30);
        m_edit->show();
        QVERIFY(QTest::qWaitForWindowActive(m_edit.get()));
    }

    void cleanup()
    {
        m_edit.reset();
        m_guard.verify();
    }

    void shortensWhatDoesNotFitAndKeepsIt_data()
    {
        QTest::addColumn<QString>("name");
        QTest::newRow("English") << QStringLiteral(
            "Keeping the image quality consistent under changing light conditions");
        QTest::newRow("Japanese") << QStringLiteral(
            "カメラが画像データを消失しているかどうかの確認");
    }
    void shortensWhatDoesNotFitAndKeepsIt()
    {
        QFETCH(const QString, name);
        const int width = m_edit->fontMetrics().horizontalAdvance(name) + 2; // fractions
        const int reserved = static_cast<int>(screenRatio() * 40.0);
        m_edit->setText(name);
        m_edit->resize(width + reserved, 30);
        QCOMPARE(m_edit->text(), name);
        QVERIFY(m_edit->toolTip().isEmpty());
        m_edit->resize(width / 2 + reserved, 30);
        const QString half = m_edit->text();
        QVERIFY(half.endsWith(QChar(0x2026)) && name.startsWith(half.chopped(1)));
        QVERIFY(half.size() > 2);
        QCOMPARE(m_edit->toolTip(), name);
        m_edit->resize(10, 30);
        QVERIFY(m_edit->text().size() < half.size());
        m_edit->resize(width + reserved, 30);
        QCOMPARE(m_edit->text(), name);
        m_edit->setText(QString());
        QVERIFY(m_edit->text().isEmpty());
    }

    void onlyTheCrossActs()
    {
        m_edit->setText(QStringLiteral("Name"));
        const QSignalSpy crosses(m_edit.get(), &CUseCaseEdit::onCrossActionTriggered);
        QTest::keyClicks(m_edit.get(), QStringLiteral("x"));
        QTest::keyClick(m_edit.get(), Qt::Key_Backspace);
        QTest::mouseClick(m_edit.get(), Qt::LeftButton);
        QCOMPARE(m_edit->text(), QStringLiteral("Name"));
        QCOMPARE(crosses.size(), 0);
        auto *cross = m_edit->findChild<QToolButton *>();
        QVERIFY(cross && cross->isVisible());
        QTest::mouseClick(cross, Qt::LeftButton);
        QCOMPARE(crosses.size(), 1);
        QCOMPARE(m_edit->text(), QStringLiteral("Name"));
    }

    void keepsItsSizeOfFontAndItsColour()
    {
        const QString name = QStringLiteral("Controlling the brightness of a camera");
        const int pixels = CStyleHelper::computePixelFontSize(12);
        QCOMPARE(m_edit->font().pixelSize(), pixels);
        m_edit->setText(name);
        m_edit->resize(m_edit->fontMetrics().horizontalAdvance(name)
                           + static_cast<int>(screenRatio() * 42.0),
                       30);
        QCOMPARE(m_edit->text(), name);
        QFont wide = m_edit->font();
        wide.setPointSize(70);
        wide.setLetterSpacing(QFont::AbsoluteSpacing, 5);
        m_edit->setFont(wide);
        QCOMPARE(m_edit->font().pixelSize(), pixels);
        QVERIFY(m_edit->text().endsWith(QChar(0x2026)));

        const QPalette before = QApplication::palette();
        QApplication::setPalette(QPalette(Qt::darkBlue));
        const QColor other = m_edit->grab().toImage().pixelColor(3, 3);
        const QColor textColour = m_edit->palette().color(QPalette::Text);
        QApplication::setPalette(before);
        QVERIFY(textColour.lightness() < 50);
        QCOMPARE(other, QColor(255, 216, 147));
    }

    void iconStandsInTheMiddleOfItsCanvas_data()
    {
        QTest::addColumn<int>("height");
        QTest::addColumn<int>("sevenths");
        QTest::addColumn<int>("canvas");
        QTest::newRow("lens") << 30 << 10 << 40;
        QTest::newRow("cross") << 30 << 12 << 48;
        QTest::newRow("rounded down") << 14 << 10 << 17;
        QTest::newRow("rounded up") << 13 << 10 << 16; // 110 / 7 = 15.7
        QTest::newRow("none") << 2 << 10 << 0;
    }
    void iconStandsInTheMiddleOfItsCanvas()
    {
        QFETCH(const int, height);
        QFETCH(const int, sevenths);
        QFETCH(const int, canvas);
        QPixmap red(64, 64);
        red.fill(Qt::red);
        QLineEdit edit;
        edit.resize(100, height);
        const QAction *action = addTrailingIcon(&edit, QIcon(red), sevenths);
        if (canvas == 0) {
            QVERIFY(action->icon().isNull());
            return;
        }
        const QImage image = action->icon().pixmap(100).toImage();
        QCOMPARE(image.size(), QSize(canvas, canvas));
        QRect filled;
        for (int i = 0; i < canvas; ++i) {
            if (image.pixelColor(i, canvas / 2).alpha() > 0) {
                filled |= QRect(i, i, 1, 1);
            }
        }
        QCOMPARE(filled.width(), height - 2);
        QVERIFY(qAbs(filled.left() + filled.right() - (canvas - 1)) <= 1);
    }

private:
    Tests::WarningGuard m_guard;
    std::unique_ptr<CUseCaseEdit> m_edit;
};

QTEST_MAIN(TestUseCaseEdit)

#include "tst_usecaseedit.moc"
