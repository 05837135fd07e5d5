// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include "ValueCheck.h"

#include "Nearest.h"
#include "Text.h"

#include <vcore/VEnumRegistry.h>
#include <vcore/VVersion.h>

#include <QtCore/QDateTime>
#include <QtCore/QRegularExpression>
#include <QtCore/QXmlStreamReader>
#include <QtGui/QImage>

#include <cmath>
#include <limits>

using namespace Qt::StringLiterals;

namespace Norvane::Kilnjet::Tool {

namespace {

/// More of a text does not help to recognise it.
constexpr qsizetype kLongestQuote = 40;

Complaint mustBe(const QJsonValue &value, const QString &kind)
{
    return {u"%1 stands where %2 belongs"_s.arg(describe(value), kind)};
}

std::optional<Complaint> checkId(const QString &text)
{
    static const QRegularExpression form(
        u"\\A(\\{)?[0-9a-fA-F]{8}-([0-9a-fA-F]{4}-){3}[0-9a-fA-F]{12}(?(1)\\})\\z"_s);
    if (form.match(text).hasMatch())
        return {};
    return Complaint{u"%1 is no id"_s.arg(describe(text)),
                     u"an id looks like {06b1a6eb-628e-45e5-8d80-eb92a4f22e4e}"_s};
}

std::optional<Complaint> checkVersion(const QString &text)
{
    bool ok = false;
    VVersion::fromString(text, &ok);
    if (ok)
        return {};
    return Complaint{u"%1 is no version"_s.arg(describe(text)), u"a version looks like 1.2.1"_s};
}

std::optional<Complaint> checkDateTime(const QString &text)
{
    const QDateTime dateTime = QDateTime::fromString(text, Qt::ISODateWithMs);
    const QString hint = u"write it like 2026-11-21T09:30:00.000Z"_s;
    if (!dateTime.isValid())
        return Complaint{u"%1 is no date and time"_s.arg(describe(text)), hint};
    // It would be taken for UTC, which its writer may not have meant.
    if (dateTime.timeSpec() == Qt::LocalTime)
        return Complaint{u"%1 has no time zone"_s.arg(describe(text)), hint};
    return {};
}

std::optional<Complaint> checkInt32(const QJsonValue &value)
{
    constexpr double kLeast = std::numeric_limits<qint32>::min();
    constexpr double kMost = std::numeric_limits<qint32>::max();
    const double number = value.toDouble();
    if (!value.isDouble())
        return mustBe(value, u"a number"_s);
    if (number != std::floor(number) || number < kLeast || number > kMost)
        return Complaint{u"%1 is no whole number of 32 bits"_s.arg(describe(value))};
    return {};
}

std::optional<Complaint> checkDigits(const QJsonValue &value, ValueType type)
{
    if (value.isDouble())
        return Complaint{
            u"%1 is a JSON number, which loses digits of 64 bits"_s.arg(describe(value)),
            u"write it in quotes"_s};
    if (!value.isString())
        return mustBe(value, u"a text of digits"_s);
    static const QRegularExpression form(u"\\A-?[0-9]+\\z"_s);
    const QString text = value.toString();
    bool ok = false;
    if (type == ValueType::Int64Text)
        text.toLongLong(&ok);
    else
        text.toULongLong(&ok);
    if (ok && form.match(text).hasMatch())
        return {};
    return Complaint{u"%1 is no whole number of 64 bits"_s.arg(describe(value))};
}

/// The bytes behind a Base64 text; nothing when it is none.
std::optional<QByteArray> decoded(const QString &text)
{
    const auto result = QByteArray::fromBase64Encoding(
        text.toLatin1(), QByteArray::Base64Encoding | QByteArray::AbortOnBase64DecodingErrors);
    if (!result)
        return {};
    return *result;
}

std::optional<Complaint> checkBase64(const QString &text)
{
    const auto bytes = decoded(text);
    if (!bytes)
        return Complaint{u"the text is no Base64"_s};
    if (bytes->isEmpty())
        return Complaint{u"there are no bytes"_s};
    return {};
}

std::optional<Complaint> checkSvg(const QString &text)
{
    if (text.isEmpty())
        return {};
    if (const auto complaint = checkBase64(text))
        return complaint;
    const QByteArray svg = qUncompress(*decoded(text));
    if (svg.isEmpty())
        return Complaint{u"the bytes do not decompress"_s,
                         u"they are the length in four bytes, then a zlib stream"_s};
    QXmlStreamReader xml(svg);
    xml.readNextStartElement();
    const bool isSvg = xml.name() == "svg"_L1;
    while (!xml.atEnd())
        xml.readNext();
    if (!isSvg || xml.hasError())
        return Complaint{u"the document is no SVG"_s,
                         xml.hasError()
                             ? u"line %1: %2"_s.arg(xml.lineNumber()).arg(xml.errorString())
                             : QString()};
    return {};
}

std::optional<Complaint> checkText(const QString &text, ValueType type)
{
    switch (type) {
    case ValueType::Id:
        return checkId(text);
    case ValueType::Version:
        return checkVersion(text);
    case ValueType::DateTime:
        return checkDateTime(text);
    case ValueType::Base64:
        return checkBase64(text);
    case ValueType::Svg:
        return checkSvg(text);
    default:
        return {};
    }
}

QStringList allNames(const VEnumNames &names)
{
    QStringList all;
    for (const qint64 number : names.numbers())
        all += names.names(number);
    return all;
}

} // namespace

QString describe(const QJsonValue &value)
{
    switch (value.type()) {
    case QJsonValue::String: {
        const QString text = value.toString();
        return quoted(text.size() > kLongestQuote ? text.first(kLongestQuote) + u"..."_s : text);
    }
    case QJsonValue::Double:
        return QString::number(value.toDouble(), 'g', QLocale::FloatingPointShortest);
    case QJsonValue::Bool:
        return value.toBool() ? u"true"_s : u"false"_s;
    case QJsonValue::Array:
        return u"an array"_s;
    case QJsonValue::Object:
        return u"an object"_s;
    default:
        return u"null"_s;
    }
}

std::optional<Complaint> checkValue(const QJsonValue &value, const KeyRule &rule)
{
    switch (rule.type) {
    case ValueType::Flag:
        return value.isBool() ? std::nullopt : std::optional(mustBe(value, u"true or false"_s));
    case ValueType::Number:
        return value.isDouble() ? std::nullopt : std::optional(mustBe(value, u"a number"_s));
    case ValueType::Int32:
        return checkInt32(value);
    case ValueType::Int64Text:
    case ValueType::UInt64Text:
        return checkDigits(value, rule.type);
    case ValueType::EnumName:
        return checkEnumName(value, rule.enumeration);
    case ValueType::Text:
    case ValueType::Id:
    case ValueType::Version:
    case ValueType::DateTime:
    case ValueType::Base64:
    case ValueType::Svg:
        return value.isString() ? checkText(value.toString(), rule.type)
                                : std::optional(mustBe(value, u"a text"_s));
    default:
        return {};
    }
}

std::optional<Complaint> checkEnumName(const QJsonValue &value, const QString &enumeration)
{
    if (!value.isString())
        return mustBe(value, u"the name of a value of %1"_s.arg(enumeration));
    const IVEnum *values = VEnumRegistry::find(enumeration);
    if (values == nullptr)
        return Complaint{u"the enumeration %1 is not known here"_s.arg(enumeration)};
    const QString text = value.toString();
    for (const QString &part : values->isFlags() ? text.split(u',') : QStringList{text}) {
        const QString name = part.trimmed();
        if (!values->names().find(name, Qt::CaseSensitive)) {
            return Complaint{u"%1 is no value of %2"_s.arg(describe(name), enumeration),
                             suggestion(name, allNames(values->names()))};
        }
    }
    return {};
}

std::optional<Complaint> checkImage(const QJsonObject &image)
{
    const QString format = image.value("format"_L1).toString();
    if (format.isEmpty())
        return Complaint{u"the format is empty"_s};
    const auto bytes = decoded(image.value("data"_L1).toString());
    if (!bytes || QImage::fromData(*bytes, format.toLatin1().constData()).isNull())
        return Complaint{u"the image does not decode as %1"_s.arg(describe(format))};
    return {};
}

std::optional<Complaint> checkContainer(const QJsonValue &value, ValueType type)
{
    switch (type) {
    case ValueType::Config:
        return value.isObject() ? std::nullopt : std::optional(mustBe(value, u"an object"_s));
    case ValueType::EnumNames:
    case ValueType::Numbers:
    case ValueType::Resolutions:
    case ValueType::Images:
    case ValueType::Children:
    case ValueType::Metadata:
        return value.isArray() ? std::nullopt : std::optional(mustBe(value, u"an array"_s));
    default:
        return {};
    }
}

} // namespace Norvane::Kilnjet::Tool
