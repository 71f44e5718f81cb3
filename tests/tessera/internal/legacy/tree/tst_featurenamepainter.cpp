// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "internal/legacy/tree/featuretreedelegate.h"

#include "internal/legacy/tree/featuretreeproxymodel.h"
#include "plugin/constants/itemroles.h"
#include "tessera/featuretest.h"

#include <QPainter>
#include <QStandardItemModel>
#include <QStyle>
#include <QTreeView>

#include <memory>

namespace {

const QColor window(200, 210, 220);
const QColor search(0xFF, 0xA7, 0x00);
const QColor favorite(0xFF, 0xD8, 0x93);

} // namespace

class tst_FeatureNamePainter : public FeatureTest
{
    Q_OBJECT

private Q_SLOTS:
    void fillsTheRowByItsMarks_data()
    {
        QTest::addColumn<bool>("isCategory");
        QTest::addColumn<bool>("isFavorite");
        QTest::addColumn<bool>("isHit");
        QTest::addColumn<QString>("searchText");
        QTest::addColumn<QColor>("color");
        const QString part = QStringLiteral("sure");
        const QString all = QStringLiteral(" exposure TIME ");
        QTest::newRow("category with a hit below") << true << true << true << part << search;
        QTest::newRow("feature of the use case") << false << true << false << all << favorite;
        QTest::newRow("hit on the whole name") << false << true << true << all << search;
        QTest::newRow("hit on a part") << false << false << true << part << window;
    }

    void fillsTheRowByItsMarks()
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
    }

    void marksEachHitInTheText()
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

    void movesDeepRowsToTheLeftEdge()
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

private:
    void prepare() override
    {
        m_model.clear();
        m_model.appendRow({new QStandardItem(QStringLiteral("Exposure Time")), new QStandardItem});
        m_searchText.clear();
        m_scale = m_view.logicalDpiX() / 96;
        m_rect = QRect(80, 0, 240 * m_scale, 30);
        m_delegate = std::make_unique<FeatureTreeDelegate>(&m_view, &m_proxy, &m_searchText);
        setRole(DepthRole, 1);
        setRole(RelativePathRole, QStringLiteral("ExposureTimeAbs"));
    }
    QImage paint()
    {
        QImage image(160 + 240 * m_scale, 30, QImage::Format_RGB32);
        image.fill(Qt::white);
        QStyleOptionViewItem option;
        option.initFrom(&m_view);
        option.widget = &m_view;
        option.state = QStyle::State_Enabled;
        option.rect = m_rect;
        option.palette.setColor(QPalette::Window, window);
        option.palette.setColor(QPalette::Text, Qt::black);
        option.showDecorationSelected = true;
        QPainter painter(&image);
        m_delegate->paint(&painter, option, m_model.index(0, 0));
        return image;
    }

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
};

QTEST_MAIN(tst_FeatureNamePainter)
#include "tst_featurenamepainter.moc"
