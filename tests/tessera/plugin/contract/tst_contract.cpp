// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "plugin/contract/core/baseexception.h"
#include "plugin/contract/core/id.h"
#include "plugin/contract/genapi/invalidargumentexception.h"
#include "plugin/contract/parametercollection/booleanparameter.h"
#include "plugin/contract/parametercollection/booleanparameterdata.h"
#include "plugin/contract/parametercollection/commandparameter.h"
#include "plugin/contract/parametercollection/commandparameterdata.h"
#include "plugin/contract/parametercollection/enumparameter.h"
#include "plugin/contract/parametercollection/enumparameterdata.h"
#include "plugin/contract/parametercollection/floatparameter.h"
#include "plugin/contract/parametercollection/floatparameterdata.h"
#include "plugin/contract/parametercollection/integerparameter.h"
#include "plugin/contract/parametercollection/integerparameterdata.h"
#include "plugin/contract/parametercollection/parametercollection.h"
#include "plugin/contract/parametercollection/parametername.h"
#include "plugin/contract/parametercollection/stringparameterdata.h"

#include <QLibrary>
#include <QSet>
#include <QTest>

using namespace ParameterCollection;
using SnapshotPtr = QSharedPointer<const ParameterData>;

class TestContract : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void freshSnapshotsHoldTheirDefaults_data()
    {
        QTest::addColumn<SnapshotPtr>("snapshot");
        QTest::addColumn<int>("type");
        QTest::newRow("plain") << SnapshotPtr(new ParameterData) << 0;
        QTest::newRow("integer") << SnapshotPtr(new IntegerParameterData) << 1;
        QTest::newRow("boolean") << SnapshotPtr(new BooleanParameterData) << 2;
        QTest::newRow("float") << SnapshotPtr(new FloatParameterData) << 3;
        QTest::newRow("command") << SnapshotPtr(new CommandParameterData) << 4;
        QTest::newRow("string") << SnapshotPtr(new StringParameterData) << 5;
        QTest::newRow("enumeration") << SnapshotPtr(new EnumParameterData) << 6;
    }

    void freshSnapshotsHoldTheirDefaults()
    {
        QFETCH(SnapshotPtr, snapshot);
        QTEST(int(snapshot->type), "type");
        QCOMPARE(snapshot->visibility, int(GenApi::UndefinedVisibility));
        QVERIFY(!snapshot->isReadable && !snapshot->isWritable && !snapshot->isImplemented);
        QVERIFY(snapshot->isValid && snapshot->valueText.isEmpty());
        const IntegerParameterData integer;
        QVERIFY(integer.value == 0 && integer.minimum == 0 && integer.maximum == 0);
        QVERIFY(integer.increment == 0 && !CommandParameterData().isDone);
        const FloatParameterData number;
        QVERIFY(number.value == 0.0 && number.minimum == 0.0 && number.maximum == 0.0);
        QVERIFY(!number.hasIncrement && number.increment == 0.0 && number.displayPrecision == 0);
    }

    void typesOfSignalsAreRegistered()
    {
        for (const char *name :
             {"Core::AppCoreComponents::BaseInfoPtr", "GenApi::EVisibility",
              "ParameterCollection::ParameterName", "QList<ParameterCollection::ParameterName>",
              "QSharedPointer<const ParameterCollection::ParameterData>",
              "QSharedPointer<ParameterCollection::IParameter>"}) {
            QVERIFY2(QMetaType::type(name) != QMetaType::UnknownType, name);
        }
    }

    void kindsAreToldApartAcrossModules()
    {
        using MakeCollection = IParameterCollection *(*)();
        const auto make = reinterpret_cast<MakeCollection>(m_module.resolve("makeCollection"));
        QVERIFY2(make, qPrintable(m_module.errorString()));
        const QSharedPointer<IParameterCollection> collection(make());
        for (const char kind : {'1', '2', '3', '4', '5', '6'}) {
            const auto one =
                collection->parameter(QLatin1String("@CameraDevice/") + QLatin1Char(kind));
            QCOMPARE(!one.objectCast<IIntegerParameter>().isNull(), kind == '1');
            QCOMPARE(!one.objectCast<IBooleanParameter>().isNull(), kind == '2');
            QCOMPARE(!one.objectCast<IFloatParameter>().isNull(), kind == '3');
            QCOMPARE(!one.objectCast<ICommandParameter>().isNull(), kind == '4');
            QCOMPARE(!one.objectCast<IEnumParameter>().isNull(), kind == '6');
        }
    }

    void exceptionsAreCaughtByKindAcrossModules()
    {
        const auto raise = reinterpret_cast<void (*)(int)>(m_module.resolve("throwException"));
        QVERIFY2(raise, qPrintable(m_module.errorString()));
        QByteArray caught;
        for (const int kind : {0, 1, 2, 3, 4}) {
            try {
                raise(kind);
            } catch (const GenICam::InvalidArgumentException &e) {
                QVERIFY(QByteArray(e.sourceFile()).endsWith("contractmodule.cpp"));
                QVERIFY(e.sourceLine() > 0);
                caught += QByteArray("; argument ") + e.what();
            } catch (const GenICam::GenericException &e) {
                caught += QByteArray("GenICam ") + e.what();
            } catch (const std::exception &e) {
                caught += QByteArray("; standard ") + e.what();
            } catch (const Core::Exception::BaseException &e) {
                caught += QByteArray("; base ") + e.what();
            } catch (...) {
                caught += "; unknown";
            }
        }
        QCOMPARE(caught,
                 QByteArray("GenICam from afar; argument from afar; standard from afar; "
                            "base from afar; unknown"));
    }

    void namesAndIdsAreValuesComparedByText()
    {
        const ParameterName width(QStringLiteral("@CameraDevice/Width"));
        const ParameterName same(QStringLiteral("@CameraDevice/Width"));
        const ParameterName other(QStringLiteral("@CameraDevice/width"));
        QVERIFY(width == same && !(width != same) && width != other);
        QVERIFY(width < other && !(other < width) && !(width < same));
        QCOMPARE(QSet<ParameterName>({width, same, other}).size(), 2);
        const Core::CId id("Tessera.Widget.User0");
        QVERIFY(id.withSuffix("menuItem") == Core::CId("Tessera.Widget.User0.menuItem"));
        QVERIFY(id.withSuffix("menuItem") != id);
    }

private:
    QLibrary m_module {QStringLiteral(CONTRACT_MODULE)};
};

QTEST_GUILESS_MAIN(TestContract)
#include "tst_contract.moc"
