// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "plugin/contract/core/baseexception.h"
#include "plugin/contract/genapi/invalidargumentexception.h"
#include "plugin/contract/parametercollection/booleanparameter.h"
#include "plugin/contract/parametercollection/commandparameter.h"
#include "plugin/contract/parametercollection/enumparameter.h"
#include "plugin/contract/parametercollection/floatparameter.h"
#include "plugin/contract/parametercollection/integerparameter.h"
#include "plugin/contract/parametercollection/parametercollection.h"

#include <QLibrary>
#include <QTest>

#include <stdexcept>

using namespace ParameterCollection;

class TestContract : public QObject
{
    Q_OBJECT

private Q_SLOTS:
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
        QVERIFY_EXCEPTION_THROWN(raise(0), GenICam::GenericException);
        QVERIFY_EXCEPTION_THROWN(raise(2), std::invalid_argument);
        QVERIFY_EXCEPTION_THROWN(raise(3), Core::Exception::BaseException);
        try {
            raise(1);
            QFAIL("nothing was thrown");
        } catch (const GenICam::InvalidArgumentException &e) {
            QCOMPARE(e.what(), "from afar");
            QVERIFY(QByteArray(e.sourceFile()).endsWith("contractmodule.cpp"));
        }
    }

private:
    QLibrary m_module {QStringLiteral(CONTRACT_MODULE)};
};

QTEST_GUILESS_MAIN(TestContract)
#include "tst_contract.moc"
