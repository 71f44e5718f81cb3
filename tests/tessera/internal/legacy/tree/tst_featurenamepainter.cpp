// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "internal/legacy/tree/featuretreedelegate.h"

#include "internal/legacy/tree/featuretreeproxymodel.h"
#include "plugin/constants/itemroles.h"

#include "support/warningguard.h"

#include <QApplication>
#include <QPainter>
#include <QStandardItemModel>
#include <QStyle>
#include <QTest>
#include <QTreeView>

#include <memory>

namespace {

const QColor window(200, 210, 220);
const QColor search(0xFF, 0xA7, 0x00);
const QColor favorite(0xFF, 0xD8, 0x93);

int count(const QImage &image, QRect part, const QColor &color)
{
    int pixels = 0;
    const QRect inside = part & image.rect();
    for (int y = inside.top(); y <= inside.bottom(); ++y) {
        for (int x = inside.left(); x <= inside.right(); ++x) {
            pixels += image.pixelColor(x, y) == color ? 1 : 0;
        }
    }
    return pixels;
}

} // namespace

class tst_FeatureNamePainter : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup()
    {
        m_guard.verify();
    }
    void fillsTheRowByItsMarks_data();
    void fillsTheRowByItsMarks();
    void marksEachHitInTheText();
    void endsAHitAtTheElision();
    void framesAHitInThePath();
    void laysTheHoverColourOver();
    void movesDeepRowsToTheLeftEdge();
    void drawsTheTextInItsColour_data();
    void drawsTheTextInItsColour();
    void drawsASelectedNameInBold();
    void framesTheFocus();
    void pointsToCategoriesWithFeatures();
    void leavesTheRestToQt();

private:
    QImage paint(QStyle::State state = QStyle::State_Enabled);
    void setRole(int role, const QVariant &value)
    {
        m_model.item(0)->setData(value, role);
    }

    QStandardItemModel m_model;
    FeatureTreeProxyModel m_proxy;
    QString m_searchText;
    QTreeView m_view;
    std::unique_ptr<FeatureTreeDelegate> m_delegate;
    QRect m_rect;
    int m_scale = 1; // 2 at 192 dpi
    Tests::WarningGuard m_guard;
};

void tst_FeatureNamePainter::init()
{
    m_guard.begin();
    m_model.clear();
    m_model.appendRow({new QStandardItem(QStringLiteral("Exposure Time")), new QStandardItem});
    m_searchText.clear();
    m_scale = m_view.logicalDpiX() / 96;
    m_rect = QRect(80, 0, 240 * m_scale, 30);
    m_delegate = std::make_unique<FeatureTreeDelegate>(&m_view, &m_proxy, &m_searchText);
    setRole(DepthRole, 1);
    setRole(RelativePathRole, QStringLiteral("ExposureTimeAbs"));
}

QImage tst_FeatureNamePainter::paint(QStyle::State state)
{
    QImage image(160 + 240 * m_scale, 30, QImage::Format_RGB32);
    image.fill(Qt::white);
    QStyleOptionViewItem option;
    option.initFrom(&m_view);
    option.widget = &m_view;
    option.state = state;
    option.rect = m_rect;
    option.palette.setColor(QPalette::Window, window);
    option.palette.setColor(QPalette::Text, Qt::black);
    option.showDecorationSelected = true;
    QPainter painter(&image);
    m_delegate->paint(&painter, option, m_model.index(0, 0));
    return image;
}

void tst_FeatureNamePainter::fillsTheRowByItsMarks_data()
{
    QTest::addColumn<bool>("isCategory");
    QTest::addColumn<bool>("isFavorite");
    QTest::addColumn<bool>("isHit");
    QTest::addColumn<QString>("searchText");
    QTest::addColumn<QColor>("color");
    const QString part = QStringLiteral("sure");
    const QString all = QStringLiteral(" exposure TIME ");
    const QString blank = QStringLiteral("  ");
    QTest::newRow("category") << true << false << false << part << window;
    QTest::newRow("category of the use case") << true << true << false << part << favorite;
    QTest::newRow("category with a hit below") << true << true << true << part << search;
    QTest::newRow("feature") << false << false << false << all << window;
    QTest::newRow("feature of the use case") << false << true << false << all << favorite;
    QTest::newRow("hit on the whole name") << false << true << true << all << search;
    QTest::newRow("hit on a part") << false << false << true << part << window;
    QTest::newRow("both marks") << false << true << true << part << favorite;
    QTest::newRow("blank search") << false << true << true << blank << favorite;
}

void tst_FeatureNamePainter::fillsTheRowByItsMarks()
{
    QFETCH(bool, isCategory);
    QFETCH(bool, isFavorite);
    QFETCH(bool, isHit);
    QFETCH(QString, searchText);
    QFETCH(QColor, color);
    setRole(IsCategoryRole, isCategory);
    setRole(IsFavoriteMatchRole, isFavorite);
    setRole(IsSearchMatchRole, isHit);
    m_searchText = searchText;
    const QImage image = paint();
    QCOMPARE(image.pixelColor(m_rect.left() + 1, 2), color);
    QCOMPARE(image.pixelColor(m_rect.right() - 1, 28), color);
    QCOMPARE(image.pixelColor(m_rect.left() - 2, 15), QColor(Qt::white));
    QCOMPARE(image.pixelColor(m_rect.right() + 2, 15), QColor(Qt::white));
}

void tst_FeatureNamePainter::marksEachHitInTheText()
{
    setRole(IsSearchMatchRole, true);
    m_searchText = QStringLiteral("E");
    const QImage image = paint();
    // "Exposure Time" holds the letter three times: count the stretches along the top edge.
    int stretches = 0;
    for (int x = m_rect.left() - 4; x <= m_rect.right(); ++x) {
        stretches += image.pixelColor(x, 0) == search && image.pixelColor(x - 1, 0) != search;
    }
    QCOMPARE(stretches, 3);
    QCOMPARE(image.pixelColor(m_rect.right() - 1, 0), window);
}

void tst_FeatureNamePainter::endsAHitAtTheElision()
{
    setRole(IsSearchMatchRole, true);
    m_searchText = QStringLiteral("xposure tim");
    const int whole = count(paint(), QRect(0, 0, 1000, 1), search);
    m_rect.setWidth(90 * m_scale);
    const int cut = count(paint(), QRect(0, 0, 1000, 1), search);
    QVERIFY(cut > 0 && cut < whole);
    m_searchText = QStringLiteral("time");
    QCOMPARE(count(paint(), QRect(0, 0, 1000, 30), search), 0);
    setRole(NoElideRole, true);
    QVERIFY(count(paint(), QRect(0, 0, 1000, 30), search) > 0);
}

void tst_FeatureNamePainter::framesAHitInThePath()
{
    setRole(IsSearchMatchRole, true);
    setRole(IsFavoriteMatchRole, true);
    m_searchText = QStringLiteral("timeabs");
    const QImage image = paint();
    QCOMPARE(image.pixelColor(m_rect.center().x(), 2), search);
    QCOMPARE(image.pixelColor(m_rect.left() + 2, 25), search);
    QCOMPARE(image.pixelColor(m_rect.right() - 20, 15), window);
    m_searchText = QStringLiteral("nothing");
    QCOMPARE(count(paint(), m_rect, search), 0);
}

void tst_FeatureNamePainter::laysTheHoverColourOver()
{
    const QColor color =
        paint(QStyle::State_Enabled | QStyle::State_MouseOver).pixelColor(m_rect.right() - 1, 2);
    const auto mixed = [](int over, int under) { return (over * 220 + under * 35) / 255; };
    QVERIFY(qAbs(color.red() - mixed(229, window.red())) <= 1);
    QVERIFY(qAbs(color.green() - mixed(243, window.green())) <= 1);
    QVERIFY(qAbs(color.blue() - mixed(255, window.blue())) <= 1);
}

void tst_FeatureNamePainter::movesDeepRowsToTheLeftEdge()
{
    const auto firstInk = [this] {
        const QImage image = paint();
        for (int x = 0; x < image.width(); ++x) {
            for (int y = 0; y < image.height(); ++y) {
                if (image.pixelColor(x, y).lightness() < 100) {
                    return x;
                }
            }
        }
        return -1;
    };
    const int top = firstInk();
    setRole(DepthRole, 2);
    const int indentation = m_view.style()->pixelMetric(QStyle::PM_TreeViewIndentation);
    QCOMPARE(firstInk(), top - indentation);
    QCOMPARE(paint().pixelColor(1, 15), window);
    m_delegate->setShowTreeView(true);
    QCOMPARE(firstInk(), top);
    QCOMPARE(paint().pixelColor(1, 15), QColor(Qt::white));
}

void tst_FeatureNamePainter::drawsTheTextInItsColour_data()
{
    QTest::addColumn<QVariant>("foreground");
    QTest::addColumn<QColor>("color");
    QTest::newRow("of the palette") << QVariant() << QColor(Qt::black);
    QTest::newRow("of the item") << QVariant(QBrush(QColor(Qt::blue))) << QColor(Qt::blue);
}

void tst_FeatureNamePainter::drawsTheTextInItsColour()
{
    QFETCH(QVariant, foreground);
    QFETCH(QColor, color);
    m_model.item(0)->setText(QString(12, QChar(0x2588)));
    setRole(Qt::ForegroundRole, foreground);
    QVERIFY(count(paint(), m_rect, color) > 100);
}

void tst_FeatureNamePainter::drawsASelectedNameInBold()
{
    const QImage plain = paint();
    const QImage bold = paint(QStyle::State_Enabled | QStyle::State_Selected);
    QVERIFY(count(plain, m_rect, window) > count(bold, m_rect, window));
    QCOMPARE(bold.pixelColor(m_rect.right() - 1, 2), window);
}

void tst_FeatureNamePainter::framesTheFocus()
{
    const QImage image = paint(QStyle::State_Enabled | QStyle::State_HasFocus);
    const QRect edge(m_rect.center().x(), 0, 50, 2);
    QVERIFY(count(image, edge, window) < count(paint(), edge, window));
}

void tst_FeatureNamePainter::pointsToCategoriesWithFeatures()
{
    setRole(IsCategoryRole, true);
    const int width = m_view.style()->pixelMetric(QStyle::PM_IndicatorWidth);
    const QRect place(m_rect.right() - width + 1, 0, width, 30);
    QCOMPARE(count(paint(), place, window), width * 30);
    setRole(HasShownFeatureRole, true);
    QVERIFY(count(paint(), place, window) < width * 30);
}

void tst_FeatureNamePainter::leavesTheRestToQt()
{
    setRole(IsFavoriteMatchRole, true);
    FeatureTreeDelegate plain(&m_view, &m_proxy, nullptr);
    QImage image(400, 30, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    QStyleOptionViewItem option;
    option.initFrom(&m_view);
    option.rect = m_rect;
    plain.paint(&painter, option, m_model.index(0, 0));
    m_delegate->paint(&painter, option, m_model.index(0, 1));
    QCOMPARE(count(image, m_rect, favorite), 0);
}

QTEST_MAIN(tst_FeatureNamePainter)
#include "tst_featurenamepainter.moc"
