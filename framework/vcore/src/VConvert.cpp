// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include <vcore/VConvert.h>

#include <vcore/VVariantConvert.h>

using namespace Qt::StringLiterals;

namespace Norvane {

namespace {

struct NumberFormat
{
    char letter = 'g';
    int precision = QLocale::FloatingPointShortest;
};

NumberFormat numberFormatFromText(const QString &text)
{
    if (text.size() < 2 || text.size() > 3 || !u"eEfFgG"_s.contains(text.front()))
        return {};
    int precision = 0;
    for (const QChar digit : QStringView(text).sliced(1)) {
        if (digit < u'0' || digit > u'9')
            return {};
        precision = precision * 10 + (digit.unicode() - u'0');
    }
    return {text.front().toLatin1(), precision};
}

} // namespace

QString VConvert::toString(int value, const QLocale &locale)
{
    return locale.toString(value);
}

QString VConvert::toString(qint64 value, const QLocale &locale)
{
    return locale.toString(value);
}

QString VConvert::toString(const double &value, const QString &format, const QLocale &locale)
{
    const NumberFormat number = numberFormatFromText(format);
    return locale.toString(value, number.letter, number.precision);
}

QString VConvert::toString(const QVariant &value, const QLocale &locale)
{
    if (value.isNull())
        return {};
    if (const auto converter = VVariantConvert::converter(value.metaType().id()))
        return converter(value, QString(), locale);
    switch (value.typeId()) {
    case QMetaType::QString:
        return value.toString();
    case QMetaType::Double:
        return toString(value.toDouble(), QString(), locale);
    case QMetaType::Short:
    case QMetaType::Int:
    case QMetaType::Long:
    case QMetaType::LongLong:
        return toString(value.toLongLong(), locale);
    case QMetaType::UShort:
    case QMetaType::UInt:
    case QMetaType::ULong:
    case QMetaType::ULongLong:
        return locale.toString(value.toULongLong());
    default:
        return value.toString();
    }
}

qint64 VConvert::toInt64(const QString &text, const QLocale &locale, int base)
{
    if (base < 2 || base > 36)
        return 0; // Qt would complain on the standard error stream.
    bool ok = false;
    const qint64 value = base == 10 ? locale.toLongLong(text, &ok) : text.toLongLong(&ok, base);
    return ok ? value : 0;
}

} // namespace Norvane
