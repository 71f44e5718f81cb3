// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "featuredocumentation.h"

#include <plugin/contract/parametercollection/enumparameterdata.h>
#include <plugin/contract/parametercollection/floatparameterdata.h>
#include <plugin/contract/parametercollection/integerparameterdata.h>
#include <plugin/contract/parametercollection/parameter.h>
#include <plugin/contract/parametercollection/parameternode.h>

#include <QCoreApplication>
#include <QLocale>
#include <QStringList>

#include <algorithm>
#include <iterator>

namespace Viewer {

using namespace ParameterCollection;

namespace {

class Text
{
    Q_DECLARE_TR_FUNCTIONS(Viewer::FeatureDocumentation)
};

QString typeName(qint32 type)
{
    switch (type) {
    case ParameterType::Integer:
        return Text::tr("Integer");
    case ParameterType::Boolean:
        return Text::tr("Boolean");
    case ParameterType::Float:
        return Text::tr("Float");
    case ParameterType::Command:
        return Text::tr("Command");
    case ParameterType::String:
        return Text::tr("String");
    case ParameterType::Enumeration:
        return Text::tr("Enumeration");
    case ParameterType::Category:
        return Text::tr("Category");
    default:
        return Text::tr("Other");
    }
}

QString accessName(const ParameterData &data)
{
    if (!data.isImplemented) {
        return Text::tr("not implemented");
    }
    if (data.isReadable) {
        return data.isWritable ? Text::tr("read and write") : Text::tr("read only");
    }
    return data.isWritable ? Text::tr("write only") : Text::tr("not available at present");
}

QString visibilityName(qint32 visibility)
{
    switch (visibility) {
    case GenApi::Beginner:
        return Text::tr("Beginner");
    case GenApi::Expert:
        return Text::tr("Expert");
    case GenApi::Guru:
        return Text::tr("Guru");
    case GenApi::Invisible:
        return Text::tr("Invisible");
    default:
        return QString();
    }
}

QString integerText(qint64 value, const QString &representation)
{
    if (representation == QLatin1String("HexNumber")) {
        const quint64 magnitude = value < 0 ? quint64(0) - quint64(value) : quint64(value);
        return (value < 0 ? QStringLiteral("-0x") : QStringLiteral("0x"))
            + QString::number(magnitude, 16).toUpper();
    }
    return QString::number(value);
}

QString floatText(double value)
{
    return QString::number(value, 'g', QLocale::FloatingPointShortest);
}

QString range(const QString &minimum, const QString &maximum, const QString &step)
{
    const QString limits = Text::tr("%1 to %2").arg(minimum, maximum);
    return step.isEmpty() ? limits : Text::tr("%1, step %2").arg(limits, step);
}

QString limitsText(const ParameterData &data)
{
    if (const auto *integer = dynamic_cast<const IntegerParameterData *>(&data)) {
        // Addresses have limits only in form.
        if (integer->representation == QLatin1String("IPV4Address")
            || integer->representation == QLatin1String("MACAddress")) {
            return QString();
        }
        return range(integerText(integer->minimum, integer->representation),
                     integerText(integer->maximum, integer->representation),
                     integer->increment > 1 ? QString::number(integer->increment) : QString());
    }
    if (const auto *number = dynamic_cast<const FloatParameterData *>(&data)) {
        return range(floatText(number->minimum), floatText(number->maximum),
                     number->hasIncrement ? floatText(number->increment) : QString());
    }
    if (const auto *choice = dynamic_cast<const EnumParameterData *>(&data)) {
        QStringList names;
        names.reserve(choice->entryNames.size());
        std::copy(choice->entryNames.cbegin(), choice->entryNames.cend(),
                  std::back_inserter(names));
        return names.join(QStringLiteral(", "));
    }
    return QString();
}

QString property(const IParameter &parameter, const char *key)
{
    try {
        const auto node = parameter.node();
        return node ? node->property(QLatin1String(key)) : QString();
    } catch (...) {
        // One property that the device refuses leaves the others readable.
        return QString();
    }
}

} // namespace

DocumentationRows documentationRows(const IParameter &parameter, const ParameterData *data)
{
    DocumentationRows rows;
    const auto add = [&rows](const QString &caption, const QString &text) {
        if (!text.isEmpty()) {
            rows.append({caption, text});
        }
    };
    add(Text::tr("Path"), parameter.fullName());
    const QString description = property(parameter, "Description");
    const QString toolTip = property(parameter, "Tooltip");
    add(Text::tr("Description"), description);
    add(Text::tr("Tool tip"), toolTip == description ? QString() : toolTip);
    if (data) {
        add(Text::tr("Type"), typeName(data->type));
        add(Text::tr("Visibility"), visibilityName(data->visibility));
        if (data->type != ParameterType::Category) {
            add(Text::tr("Access"), accessName(*data));
            add(Text::tr("Limits"), data->isImplemented ? limitsText(*data) : QString());
        }
    }
    add(Text::tr("Unit"), property(parameter, "Unit"));
    add(Text::tr("More"), property(parameter, "DocuURL"));
    return rows;
}

} // namespace Viewer
