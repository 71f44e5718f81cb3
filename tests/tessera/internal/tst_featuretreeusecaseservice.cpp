// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "plugin/contract/core/languagehelper.h"

#include "internal/featuretreeusecaseservice.h"
#include "support/warningguard.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <algorithm>

using Core::Logging::ELogLevel;
using Plugin::Tessera::Internal::CFeatureTreeUseCaseService;

namespace {

const QString useCaseLog = QStringLiteral("vantrel.viewer.plugins.tessera.useCaseService");
const QString basicName = QStringLiteral("Tessera - Basic");
const QString notTranslated = QStringLiteral("Couldn't find correct translation for usecase: %1");

QString &language()
{
    static QString code;
    return code;
}

/// "name=path,path;name=" in the order of the map.
QString asText(const QVariantMap &map)
{
    QStringList entries;
    for (auto entry = map.cbegin(); entry != map.cend(); ++entry) {
        entries +=
            entry.key() + QLatin1Char('=') + entry.value().toStringList().join(QLatin1Char(','));
    }
    return entries.join(QLatin1Char(';'));
}

/// A catalogue with these use cases, in which a quotation mark is written as an apostrophe.
QByteArray catalogue(const char *useCases)
{
    QByteArray text = QByteArray("{'UseCases':[") + useCases + "]}";
    return text.replace('\'', '"');
}

void write(const QTemporaryDir &folder, const char *name, const QByteArray &content)
{
    QFile file(folder.filePath(QLatin1String(name)));
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write(content) == content.size());
}

} // namespace

// The test stands in for the host here.
QString LanguageHelper::loadLanguageId()
{
    return language();
}

class TestFeatureTreeUseCaseService : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_guard.begin();
        language() = QStringLiteral("en");
    }

    void cleanup()
    {
        m_guard.verify();
    }

    void shippedCatalogueIsComplete_data()
    {
        QTest::addColumn<QString>("brightness");
        QTest::addColumn<QString>("quality");
        const auto row = [](const char *code, const char *brightness, const char *quality) {
            QTest::newRow(code) << QString::fromUtf8(brightness) << QString::fromUtf8(quality);
        };
        row("en", "Controlling the brightness", "Optimizing the image quality");
        row("ja", "明るさの制御", "画像品質の最適化");
        row("zh", "控制亮度", "优化图像质量");
        row("ko", "밝기 제어", "이미지 품질 최적화");
        row("de", "Controlling the brightness", "Optimizing the image quality");
    }
    void shippedCatalogueIsComplete()
    {
        QFETCH(const QString, brightness);
        QFETCH(const QString, quality);
        language() = QLatin1String(QTest::currentDataTag());
        CFeatureTreeUseCaseService service(nullptr);
        QVERIFY(service.load());

        QVector<int> sizes;
        for (const QVariant &list : service.useCaseMap()) {
            const QStringList paths = list.toStringList();
            sizes.append(paths.size());
            for (const QString &path : paths) {
                QCOMPARE(paths.count(path), 1);
                QVERIFY2(path.startsWith(QLatin1String("@CameraDevice/"))
                             || path.startsWith(QLatin1String("@StreamGrabber0/")),
                         qPrintable(path));
            }
        }
        std::sort(sizes.begin(), sizes.end());
        QCOMPARE(sizes, QVector<int>({5, 9, 16, 20, 23, 39, 43, 54}));
        const QStringList first = service.useCaseMap().value(brightness).toStringList();
        QCOMPARE(first.size(), 23);
        QCOMPARE(first.first(), QStringLiteral("@CameraDevice/Gain"));
        QCOMPARE(first.last(), QStringLiteral("@CameraDevice/CvnSensorBitDepth"));
        QCOMPARE(service.useCaseMap().value(quality).toStringList().size(), 54);
        QCOMPARE(service.basicUseCaseMap().keys(), QStringList(basicName));
        QCOMPARE(service.basicUseCaseMap().first().toStringList().size(), 13);

        const QStringList fallbacks = language() == QLatin1String("en") ? QStringList()
            : language() == QLatin1String("de")
            ? service.useCaseMap().keys() + QStringList(basicName)
            : QStringList(basicName);
        for (const QString &name : fallbacks) {
            m_guard.expectLogEntry(ELogLevel::Fault, useCaseLog, notTranslated.arg(name));
        }
    }

    void shippedListsNameTheirSources()
    {
        CFeatureTreeUseCaseService service(nullptr);
        QVERIFY(service.load());
        const auto sources = [&service](const char *name) {
            const QStringList paths =
                service.useCaseMap().value(QLatin1String(name)).toStringList();
            QString kinds;
            for (const QString &path : paths) {
                kinds += path.at(1); // C or S
            }
            return kinds;
        };
        QCOMPARE(sources("Controlling the frame rate"),
                 QString(36, QLatin1Char('C')) + QString(3, QLatin1Char('S')));
        QCOMPARE(sources("Checking whether the camera is losing image data"),
                 QString(11, QLatin1Char('S')) + QString(5, QLatin1Char('C')));
    }

    void rulesOfACatalogue_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<QString>("useCases");
        QTest::addColumn<QStringList>("entries");
        const QString named = QStringLiteral("No valid Name existent. Skipping use case...");
        const QString list = QStringLiteral(
            "Name not existent or Name content is not an array. Skipping use case...");
        const QString code =
            QStringLiteral("Language code already known or broken. Dropping %1,%2");
        const auto row = [](const char *title, const char *content, const char *useCases,
                            const QStringList &entries) {
            QTest::newRow(title) << catalogue(content) << QString::fromUtf8(useCases) << entries;
        };
        row("first text of a language stands",
            "{'Name':[{'Text':'A','LanguageCode':'en'},{'Text':'B','LanguageCode':'en'}]}",
            "A=", {code.arg(QStringLiteral("en"), QStringLiteral("B"))});
        row("broken codes",
            "{'Name':[{'Text':'A','LanguageCode':''},{'Text':'B','LanguageCode':7}]}", "",
            {code.arg(QString(), QStringLiteral("A")), code.arg(QString(), QStringLiteral("B")),
             named});
        row("smallest code for a language that is missing",
            "{'Name':[{'Text':'K','LanguageCode':'ko'},{'Text':'J','LanguageCode':'ja'}]}",
            "J=", {notTranslated.arg(QLatin1Char('J'))});
        row("no text",
            "{'Name':[{'LanguageCode':'en'},{'Text':5,'LanguageCode':'ja'},{'Text':'A'},3]}", "",
            {named});
        row("name of the wrong kind", "{'Name':'A'},{'Name':[]},{},7", "",
            {list, list, list, list});
        row("the later one of equal names",
            "{'Name':[{'Text':'A','LanguageCode':'en'}],'Parameters':['@C/X']},"
            "{'Name':[{'Text':'A','LanguageCode':'en'}],'Parameters':['@C/Y']}",
            "A=@C/Y", {});
        row("empty and foreign parameters",
            "{'Name':[{'Text':'A','LanguageCode':'en'}],'Parameters':['@C/X','',4,'@C/Y']},"
            "{'Name':[{'Text':'B','LanguageCode':'en'}],'Parameters':'@C/X'}",
            "A=@C/X,@C/Y;B=",
            {QStringLiteral("Skipping empty parameter..."),
             QStringLiteral("Skipping empty parameter...")});
        row("reserved name in its very letters",
            "{'Name':[{'Text':'Tessera - Basic','LanguageCode':'en'}],'Parameters':['@C/X']},"
            "{'Name':[{'Text':'tessera - basic','LanguageCode':'en'}]}",
            "tessera - basic=", {});
    }
    void rulesOfACatalogue()
    {
        QFETCH(const QByteArray, content);
        QFETCH(const QString, useCases);
        QFETCH(const QStringList, entries);
        const QTemporaryDir folder;
        write(folder, "one.json", content);
        for (const QString &entry : entries) {
            m_guard.expectLogEntry(ELogLevel::Fault, useCaseLog, entry);
        }
        CFeatureTreeUseCaseService service(nullptr);
        QVERIFY(service.loadFrom(folder.path()));
        QCOMPARE(asText(service.useCaseMap()), useCases);
        QCOMPARE(asText(service.basicUseCaseMap()),
                 content.contains("Basic") ? basicName + QStringLiteral("=@C/X") : QString());
    }

    void badFileEndsTheReading_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<bool>("loads");
        QTest::addColumn<QString>("entry");
        const auto row = [](const char *title, const QByteArray &content, bool loads,
                            const char *entry) {
            QTest::newRow(title) << content << loads << QString::fromLatin1(entry);
        };
        row("empty", "", false, "illegal value");
        row("truncated", catalogue("{'Name':[{'Text':'A'").chopped(2), false,
            "unterminated string");
        row("not UTF-8", catalogue("'\xff\xfe'"), false, "invalid UTF8 string");
        row("nested too deeply", QByteArray(100000, '['), false, "too deeply nested document");
        row("array", "[]", true, "UseCases has no valid content");
        row("without use cases", "{}", true, "UseCases has no valid content");
        row("use cases of the wrong kind", "{\"UseCases\":{}}", true,
            "UseCases has no valid content");
        row("folder", QByteArray(), false, ""); // null: no file at all
    }
    void badFileEndsTheReading()
    {
        QFETCH(const QByteArray, content);
        QFETCH(const bool, loads);
        QFETCH(QString, entry);
        const QTemporaryDir folder;
        write(folder, "C.json", catalogue("{'Name':[{'Text':'after','LanguageCode':'en'}]}"));
        write(folder, "a.json", catalogue("{'Name':[{'Text':'before','LanguageCode':'en'}]}"));
        const QString bad = folder.filePath(QStringLiteral("B.json"));
        if (content.isNull()) {
            QVERIFY(QDir().mkdir(bad));
            entry = bad + QLatin1String(" not readable");
        } else {
            write(folder, "B.json", content);
        }
        m_guard.expectLogEntry(ELogLevel::Fault, useCaseLog, entry);
        CFeatureTreeUseCaseService service(nullptr);
        QCOMPARE(service.loadFrom(folder.path()), loads);
        QCOMPARE(asText(service.useCaseMap()), QStringLiteral("before="));
    }

private:
    Tests::WarningGuard m_guard;
};

QTEST_GUILESS_MAIN(TestFeatureTreeUseCaseService)

#include "tst_featuretreeusecaseservice.moc"
