// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "internal/legacy/tree/featuretreetooltip.h"
#include "plugin/services/pluginresources.h"

#include <host/framework/languagechoice.h>
#include <host/simulation/simulatedcollection.h>
#include <host/simulation/simulatedsource.h>
#include <host/simulation/sourcecatalogue.h>
#include <host/viewer/viewertranslation.h>

#include <QDir>
#include <QDomDocument>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTranslator>
#include <QtTest>

#include <algorithm>

namespace {

const QString sources = QStringLiteral(SOURCE_FOLDER "/");
const QString ofPlugin = sources + QStringLiteral("tessera/resources/translations/");
const QString ofViewer = sources + QStringLiteral("host/viewer/translations/");

struct Message
{
    QString context;
    QString source;
    QString translation;
    bool isFinished = false;
};

QByteArray content(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QVector<Message> messages(const QString &path)
{
    QDomDocument document;
    if (!document.setContent(content(path))) {
        return {};
    }
    QVector<Message> result;
    const QDomNodeList nodes = document.elementsByTagName(QStringLiteral("message"));
    for (int i = 0; i < nodes.size(); ++i) {
        const QDomElement message = nodes.at(i).toElement();
        const QDomElement translation = message.firstChildElement(QStringLiteral("translation"));
        result.append({message.parentNode().firstChildElement(QStringLiteral("name")).text(),
                       message.firstChildElement(QStringLiteral("source")).text(),
                       translation.text(), !translation.hasAttribute(QStringLiteral("type"))});
    }
    return result;
}

QVector<Message> messages(const QString &set, const QString &code)
{
    return messages(ofPlugin + set + QLatin1Char('_') + code + QLatin1String(".ts"));
}

/// What of a text must be the same in every language: place holders, tags, whether there is a
/// mnemonic, blanks at both ends.
QString frame(const QString &text)
{
    static const QRegularExpression part(QStringLiteral("%\\d|%n|<(/?[a-z]\\d?)>|\\\\n"));
    QStringList parts;
    for (auto match = part.globalMatch(text); match.hasNext();) {
        parts.append(match.next().captured());
    }
    std::sort(parts.begin(), parts.end());
    static const QRegularExpression mnemonic(QStringLiteral("&\\w"));
    const QString trimmed = text.trimmed();
    const int leading = trimmed.isEmpty() ? 0 : text.indexOf(trimmed);
    return QStringLiteral("%1 &%2 %3+%4")
        .arg(parts.join(QLatin1Char(' ')))
        .arg(text.count(mnemonic))
        .arg(leading)
        .arg(text.size() - trimmed.size() - leading);
}

QJsonArray useCases()
{
    QJsonArray result;
    const QDir folder(sources + QStringLiteral("tessera/resources/usecases"));
    const QStringList files = folder.entryList({QStringLiteral("*.json")});
    for (const QString &file : files) {
        const QJsonObject root = QJsonDocument::fromJson(content(folder.filePath(file))).object();
        const QJsonArray entries = root.value(QLatin1String("UseCases")).toArray();
        for (const QJsonValue &entry : entries) {
            result.append(entry);
        }
    }
    return result;
}

QString nameOf(const QJsonValue &useCase, const QString &code)
{
    const QJsonArray names = useCase[QLatin1String("Name")].toArray();
    for (const QJsonValue &name : names) {
        if (name[QLatin1String("LanguageCode")].toString() == code) {
            return name[QLatin1String("Text")].toString();
        }
    }
    return QString();
}

QString toolTipKey(const QString &fullName)
{
    return toolTipContext(fullName) + QLatin1Char('/') + fullName.section(QLatin1Char('/'), -1)
        + QLatin1String("_Tooltip");
}

void addLanguages()
{
    QTest::addColumn<QString>("code");
    const auto languages = Host::LanguageChoice::languages();
    for (const Host::Language &language : languages) {
        QTest::newRow(qPrintable(language.code)) << language.code;
    }
}

} // namespace

/// The translation files against the sources, the catalogue and the cameras, and what is built from
/// them against itself.
class TranslationsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void filesHoldTheTextsOfTheSourcesAndNoOther()
    {
        const QTemporaryDir copies;
        QProcess update;
        update.setProcessChannelMode(QProcess::MergedChannels);
        update.start(sources + QStringLiteral("scripts/translations"),
                     {QStringLiteral("--into"), copies.path()});
        QVERIFY(update.waitForFinished(120000));
        QVERIFY2(update.exitCode() == 0, update.readAll().constData());
        const auto files = QDir(copies.path()).entryInfoList({QStringLiteral("*.ts")});
        QCOMPARE(files.size(), 2 * Host::LanguageChoice::languages().size());
        for (const QFileInfo &file : files) {
            const QString name = file.fileName();
            const QString original =
                (name.startsWith(QLatin1String("viewer")) ? ofViewer : ofPlugin) + name;
            QVERIFY2(content(file.filePath()) == content(original),
                     qPrintable(name + QStringLiteral(": run scripts/translations")));
        }
    }

    void everyTextIsTranslated_data()
    {
        QTest::addColumn<QString>("path");
        for (const QString &folder : {ofPlugin, ofViewer}) {
            const auto files = QDir(folder).entryInfoList({QStringLiteral("*.ts")});
            for (const QFileInfo &file : files) {
                QTest::newRow(qPrintable(file.completeBaseName())) << file.filePath();
            }
        }
    }

    void everyTextIsTranslated()
    {
        QFETCH(QString, path);
        const QVector<Message> all = messages(path);
        QVERIFY(!all.isEmpty());
        const bool hasComputedKeys = path.contains(QLatin1String("features_"));
        for (const Message &message : all) {
            QVERIFY2(message.isFinished && !message.translation.trimmed().isEmpty(),
                     qPrintable(message.source));
            if (!hasComputedKeys) {
                QCOMPARE(frame(message.translation), frame(message.source));
            }
        }
    }

    void useCaseNamesAreThoseOfTheCatalogue_data()
    {
        addLanguages();
    }

    void useCaseNamesAreThoseOfTheCatalogue()
    {
        QFETCH(QString, code);
        QMap<QString, QString> translated;
        const auto all = messages(QStringLiteral("usecases"), code);
        for (const Message &message : all) {
            QCOMPARE(message.context, QStringLiteral("FeatureTreeWidget"));
            translated.insert(message.source, message.translation);
        }
        const QJsonArray catalogue = useCases();
        QCOMPARE(translated.size(), catalogue.size());
        for (const QJsonValue &useCase : catalogue) {
            const QString english = nameOf(useCase, QStringLiteral("en"));
            QVERIFY2(translated.contains(english), qPrintable(english));
            const QString name = nameOf(useCase, code);
            if (!name.isEmpty()) { // the catalogue has the basic list in English only
                QCOMPARE(translated.value(english), name);
            }
        }
    }

    void toolTipsBelongToFeatures_data()
    {
        addLanguages();
    }

    void toolTipsBelongToFeatures()
    {
        QFETCH(QString, code);
        QSet<QString> keys;
        const auto all = messages(QStringLiteral("features"), code);
        for (const Message &message : all) {
            const QString key = message.context + QLatin1Char('/') + message.source;
            QVERIFY2(!keys.contains(key), qPrintable(key));
            keys.insert(key);
        }
        static const QSet<QString> known = knownKeys();
        const QStringList strangers = (keys - known).values();
        QVERIFY2(strangers.isEmpty(), qPrintable(strangers.join(QLatin1Char(' '))));
        QVERIFY(keys.size() >= 150);
        QCOMPARE(keys.size(), messages(QStringLiteral("features"), QStringLiteral("en")).size());
    }

    void releasesAnswer_data()
    {
        QTest::addColumn<QString>("code");
        QTest::addColumn<QString>("button");
        QTest::addColumn<QString>("useCase");
        QTest::addColumn<QString>("menu");
        QTest::newRow("en") << "en" << QStringLiteral("Edit Feature Tabs")
                            << QStringLiteral("Controlling the brightness")
                            << QStringLiteral("&Camera");
        QTest::newRow("ja") << "ja" << QStringLiteral("機能タブの編集")
                            << QStringLiteral("明るさの制御") << QStringLiteral("カメラ(&C)");
        QTest::newRow("zh") << "zh" << QStringLiteral("编辑功能选项卡")
                            << QStringLiteral("控制亮度") << QStringLiteral("相机(&C)");
        QTest::newRow("ko") << "ko" << QStringLiteral("기능 탭 편집") << QStringLiteral("밝기 제어")
                            << QStringLiteral("카메라(&C)");
    }

    void releasesAnswer()
    {
        QFETCH(QString, code);
        QFETCH(QString, useCase);
        Plugin::Tessera::initResources();
        QTranslator plugin;
        QVERIFY(plugin.load(QStringLiteral(":/translation/Tessera_%1.qm").arg(code)));
        QVERIFY(QCoreApplication::installTranslator(&plugin));
        const Viewer::ViewerTranslation viewer(code);
        const auto text = [](const char *context, const char *key) {
            return QCoreApplication::translate(context, key);
        };
        QTEST(text("FeatureTreeWidgetClass", "Edit Feature Tabs"), "button");
        QTEST(text("Viewer::MainWindow", "&Camera"), "menu");
        QCOMPARE(text("FeatureTreeWidget", "Controlling the brightness"), useCase);
        // The catalogue's own choice of the language passes through.
        QCOMPARE(text("FeatureTreeWidget", useCase.toUtf8().constData()), useCase);
        const auto tips = messages(QStringLiteral("features"), code);
        QVERIFY(std::all_of(tips.begin(), tips.end(), [&](const Message &tip) {
            return text(tip.context.toLatin1().constData(), tip.source.toLatin1().constData())
                == tip.translation;
        }));
        QCOMPARE(QKeySequence(text("FeatureTreeWidget", "Ctrl+Up")),
                 QKeySequence(QStringLiteral("Ctrl+Up")));
        if (code != QLatin1String("en")) {
            QVERIFY(text("QPlatformTheme", "Cancel") != QLatin1String("Cancel"));
        }
    }

private:
    static QSet<QString> knownKeys()
    {
        QSet<QString> keys;
        const QJsonArray catalogue = useCases();
        for (const QJsonValue &useCase : catalogue) {
            const QJsonArray paths = useCase[QLatin1String("Parameters")].toArray();
            for (const QJsonValue &path : paths) {
                keys.insert(toolTipKey(path.toString()));
            }
        }
        Simulation::SourceCatalogue cameras;
        const QStringList ids = cameras.ids();
        for (const QString &id : ids) {
            const auto camera = cameras.makeSource(id);
            const Simulation::DeviceDescription &features = camera->collection()->description();
            for (int feature = 0; feature < features.size(); ++feature) {
                keys.insert(toolTipKey(features.fullName(feature)));
            }
        }
        return keys;
    }
};

QTEST_MAIN(TranslationsTest)
#include "tst_translations.moc"
