// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "plugin/contract/core/baseexception.h"
#include "plugin/contract/genapi/invalidargumentexception.h"
#include "support/fakecollection.h"

#include <stdexcept>

/// Makes a collection with one parameter of each kind, named after the number of its type.
extern "C" Q_DECL_EXPORT ParameterCollection::IParameterCollection *makeCollection()
{
    auto *collection = new Tests::FakeCollection;
    collection->attach(
        QStringLiteral("@CameraDevice"),
        QStringLiteral("1 Integer\n2 Boolean\n3 Float\n4 Command\n5 String\n6 Enum"));
    return collection;
}

/// Throws an exception of one of four kinds with the text "from afar".
extern "C" Q_DECL_EXPORT void throwException(int kind)
{
    constexpr char text[] = "from afar";
    switch (kind) {
    case 0:
        throw GenICam::GenericException(text, __FILE__, __LINE__);
    case 1:
        throw GenICam::InvalidArgumentException(text, __FILE__, __LINE__);
    case 2:
        throw std::invalid_argument(text);
    default:
        throw Core::Exception::BaseException(text);
    }
}
