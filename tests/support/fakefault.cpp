// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "support/fakefault.h"

#include "plugin/contract/core/baseexception.h"
#include "plugin/contract/genapi/genericexception.h"

#include <QTest>

#include <stdexcept>

namespace Tests {

void raise(Fault fault)
{
    switch (fault) {
    case Fault::None:
        return;
    case Fault::GenICam:
        throw GenICam::GenericException("fault", __FILE__, __LINE__);
    case Fault::Standard:
        throw std::runtime_error("fault");
    case Fault::Host:
        throw Core::Exception::BaseException("fault");
    case Fault::Unknown:
        throw 1;
    }
}

void addFaultRows()
{
    QTest::addColumn<Tests::Fault>("fault");
    QTest::newRow("GenICam") << Fault::GenICam;
    QTest::newRow("standard") << Fault::Standard;
    QTest::newRow("host") << Fault::Host;
    QTest::newRow("unknown") << Fault::Unknown;
}

} // namespace Tests
