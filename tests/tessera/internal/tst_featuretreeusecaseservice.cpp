// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

// clazy:excludeall=range-loop-detach,detaching-temporary

#include "plugin/contract/core/languagehelper.h"

#include "internal/featuretreeusecaseservice.h"
#include "support/warningguard.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTest>

using Core::Logging::ELogLevel;
using Plugin::Tessera::Internal::CFeatureTreeUseCaseService;

namespace {

const char *language = "en";
const QString basicName = QStringLiteral("Tessera - Basic");
const QString notTranslated = QStringLiteral("Couldn't find correct translation for usecase: ");

/// "name=path,path;name=;" in the order of the map.
QString asText(const QVariantMap &map)
{
    QString text;
    for (auto entry = map.cbegin(); entry != map.cend(); ++entry) {
        text += entry.key() + QLatin1Char('=') + entry.value().toStringList().join(QLatin1Char(','))
            + QLatin1Char(';');
    }
    return text;
}

/// A catalogue in which an apostrophe stands for a quotation mark and N(x) for an English name.
QByteArray catalogue(QByteArray useCases)
{
    useCases.replace("N(", "'Name':[{'LanguageCode':'en','Text':'").replace(")", "'}]");
    return QByteArray("{'UseCases':[" + useCases + "]}").replace('\'', '"');
}

} // namespace

// In place of the host's.
QString LanguageHelper::loadLanguageId()
{
    return QLatin1String(language);
}

class TestFeatureTreeUseCaseService : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_guard.begin();
        language = "en";
    }

    void cleanup()
    {
        m_guard.verify();
    }

    void shippedCatalogueIsComplete_data()
    {
        QTest::addColumn<QString>("brightness");
        QTest::newRow("en") << QStringLiteral("Controlling the brightness");
        QTest::newRow("ja") << QStringLiteral("明るさの制御");
        QTest::newRow("de") << QStringLiteral("Controlling the brightness");
    }
    void shippedCatalogueIsComplete()
    {
        QFETCH(const QString, brightness);
        language = QTest::currentDataTag();
        CFeatureTreeUseCaseService service(nullptr);
        QVERIFY(service.load());
        QMap<int, QStringList> bySize;
        const QVariantMap useCases = service.useCaseMap();
        for (const QVariant &paths : useCases) {
            bySize.insert(paths.toStringList().size(), paths.toStringList());
        }
        QCOMPARE(bySize.keys(), QList<int>({5, 9, 16, 20, 23, 39, 43, 54}));
        QCOMPARE(useCases.value(brightness).toStringList(), bySize.value(23));
        QCOMPARE(asText(service.basicUseCaseMap()).count(QLatin1String("@CameraDevice/")), 13);

        // Basic has an English name only.
        QStringList fallbacks(qstrcmp(language, "de") == 0 ? useCases.keys() : QStringList());
        fallbacks += qstrcmp(language, "en") == 0 ? QStringList() : QStringList(basicName);
        for (const QString &name : qAsConst(fallbacks)) {
            expectEntry(notTranslated + name);
        }
    }

    // Between the files a.json and C.json.
    void rulesOfACatalogue_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<QString>("useCases"); // what the file adds; "-" when it ends the reading
        QTest::addColumn<QString>("entries"); // one a line
        const auto row = [](const char *title, const QByteArray &content, const char *useCases,
                            const char *entries) {
            QTest::newRow(title) << content << QString::fromUtf8(useCases)
                                 << QString::fromUtf8(entries);
        };
        const char *noName = "Name not existent or Name content is not an array. Skipping use "
                             "case...\nNo valid Name existent. Skipping use case...";
        row("twice a language",
            catalogue("{'Name':[{'Text':'a','LanguageCode':'en'},{'Text':'b','LanguageCode':'en'},"
                      "{'Text':'c','LanguageCode':''}]}"),
            "a=;",
            "Language code already known or broken. Dropping en,b\n"
            "Language code already known or broken. Dropping ,c");
        row("language that is missing",
            catalogue("{'Name':[{'Text':'k','LanguageCode':'ko'},{'Text':'j',"
                      "'LanguageCode':'ja'}]}"),
            "j=;", "Couldn't find correct translation for usecase: j");
        row("no name", catalogue("{'Name':'a'},{'Name':[{'LanguageCode':'en'},{'Text':'a'},3]}"),
            "", noName);
        row("parameters",
            catalogue("{N(a),'Parameters':['@C/X','','@C/Y']},{N(b),'Parameters':'@C/X'}"),
            "a=@C/X,@C/Y;b=;", "Skipping empty parameter...");
        row("reserved name",
            catalogue("{N(Tessera - Basic),'Parameters':['@C/X']},{N(TESSERA - Basic)}"),
            "TESSERA - Basic=;", "");
        row("not UTF-8", catalogue("'\xff\xfe'"), "-", "invalid UTF8 string");
        row("deep", QByteArray(100000, '['), "-", "too deeply nested document");
        row("folder", QByteArray(), "-", "");
    }
    void rulesOfACatalogue()
    {
        QFETCH(const QByteArray, content);
        QFETCH(const QString, useCases);
        QFETCH(const QString, entries);
        const QTemporaryDir folder;
        write(folder.filePath(QStringLiteral("C.json")), catalogue("{N(Z)}"));
        write(folder.filePath(QStringLiteral("a.json")), catalogue("{N(A)}"));
        const QString path = folder.filePath(QStringLiteral("B.json"));
        if (content.isNull()) {
            QVERIFY(QDir().mkdir(path));
            expectEntry(path + QLatin1String(" not readable"));
        } else {
            write(path, content);
        }
        for (const QString &entry : entries.split(QLatin1Char('\n'), Qt::SkipEmptyParts)) {
            expectEntry(entry);
        }
        CFeatureTreeUseCaseService service(nullptr);
        const bool ends = useCases == QLatin1Char('-');
        QCOMPARE(service.loadFrom(folder.path()), !ends);
        const QString all = asText(service.useCaseMap());
        QCOMPARE(QString(all).remove(QStringLiteral("A=;")).remove(QStringLiteral("Z=;")),
                 ends ? QString() : useCases);
        QVERIFY(all.contains(QLatin1String("A=;")) && all.contains(QLatin1String("Z=;")) != ends);
        QCOMPARE(!service.basicUseCaseMap().isEmpty(), content.contains(basicName.toUtf8()));
    }

private:
    void expectEntry(const QString &text)
    {
        m_guard.expectLogEntry(ELogLevel::Fault,
                               QStringLiteral("vantrel.viewer.plugins.tessera.useCaseService"),
                               text);
    }
    static void write(const QString &path, const QByteArray &content)
    {
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(content) == content.size());
    }

    Tests::WarningGuard m_guard;
};

QTEST_GUILESS_MAIN(TestFeatureTreeUseCaseService)

#include "tst_featuretreeusecaseservice.moc"
