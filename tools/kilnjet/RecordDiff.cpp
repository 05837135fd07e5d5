// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include "RecordDiff.h"

#include "JsonScanner.h"
#include "Paint.h"
#include "RecordSchema.h"
#include "Text.h"

#include <QtCore/QHash>
#include <QtCore/QJsonDocument>
#include <QtCore/QLocale>
#include <QtCore/QSet>
#include <QtCore/QStringList>
#include <QtCore/QUuid>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace Norvane::Kilnjet::Tool {

namespace {

using Change = Difference::Change;

/// Compares two records and what is below them.
class Comparison
{
public:
    void compareRecords(const QJsonObject &a, const QJsonObject &b, const QString &pointer);

    Differences differences;

private:
    void compareValues(const QJsonValue &a, const QJsonValue &b, const QString &pointer);
    void compareObjects(const QJsonObject &a, const QJsonObject &b, const QString &pointer);
    void compareArrays(const QJsonArray &a, const QJsonArray &b, const QString &pointer);
    void compareConfigs(QJsonObject a, QJsonObject b, const QString &pointer);
    void compareChildren(const QJsonArray &a, const QJsonArray &b, const QString &pointer);
};

QString step(qsizetype index)
{
    return u"/%1"_s.arg(index);
}

constexpr qsizetype kNone = -1;

/// For every child of A the index of its partner in B, or kNone.
QList<qsizetype> partnersOf(const QJsonArray &a, const QJsonArray &b)
{
    using KeyOf = QString (*)(const QJsonValue &child);
    constexpr KeyOf kKindAndDevice = [](const QJsonValue &child) {
        return child["id"_L1].toString() + child["deviceId"_L1].toString();
    };
    constexpr KeyOf kKind = [](const QJsonValue &child) { return child["id"_L1].toString(); };

    QList<qsizetype> partners(a.size(), kNone);
    for (const KeyOf keyOf : {kKindAndDevice, kKind}) {
        const QSet<qsizetype> taken(partners.begin(), partners.end());
        QHash<QString, QList<qsizetype>> free;
        for (qsizetype j = 0; j < b.size(); ++j) {
            if (!taken.contains(j))
                free[keyOf(b.at(j))].append(j);
        }
        for (qsizetype i = 0; i < a.size(); ++i) {
            QList<qsizetype> &fitting = free[keyOf(a.at(i))];
            if (partners.at(i) == kNone && !fitting.isEmpty())
                partners[i] = fitting.takeFirst();
        }
    }
    return partners;
}

void Comparison::compareRecords(const QJsonObject &a, const QJsonObject &b, const QString &pointer)
{
    QJsonObject restOfA = a;
    QJsonObject restOfB = b;
    for (const auto &key : {u"config"_s, u"children"_s, u"metadata"_s}) {
        restOfA.remove(key);
        restOfB.remove(key);
    }
    compareObjects(restOfA, restOfB, pointer);
    // A record of an unknown kind may hold anything there.
    const QJsonValue configOfA = a.value("config"_L1);
    const QJsonValue configOfB = b.value("config"_L1);
    if (configOfA.isObject() && configOfB.isObject())
        compareConfigs(configOfA.toObject(), configOfB.toObject(), pointer + u"/config"_s);
    else
        compareValues(configOfA, configOfB, pointer + u"/config"_s);
    compareChildren(a.value("children"_L1).toArray(), b.value("children"_L1).toArray(),
                    pointer + u"/children"_s);
}

/// A record's own fields. Images and drawings are nothing to read, so they are not shown.
void Comparison::compareConfigs(QJsonObject a, QJsonObject b, const QString &pointer)
{
    bool differ = false;
    for (const auto &key : {u"icon"_s, u"svgIcon"_s}) {
        const QJsonValue iconOfA = a.take(key);
        differ |= iconOfA != b.take(key);
    }
    compareObjects(a, b, pointer);
    if (differ)
        differences.append({Change::Icon, pointer + u"/icon"_s});
}

void Comparison::compareValues(const QJsonValue &a, const QJsonValue &b, const QString &pointer)
{
    if (a.isUndefined())
        differences.append({Change::OnlyInB, pointer, a, b});
    else if (b.isUndefined())
        differences.append({Change::OnlyInA, pointer, a, b});
    else if (a.isObject() && b.isObject())
        compareObjects(a.toObject(), b.toObject(), pointer);
    else if (a.isArray() && b.isArray())
        compareArrays(a.toArray(), b.toArray(), pointer);
    else if (a != b)
        differences.append({Change::Changed, pointer, a, b});
}

void Comparison::compareObjects(const QJsonObject &a, const QJsonObject &b, const QString &pointer)
{
    QStringList keys = a.keys() + b.keys();
    keys.sort();
    keys.removeDuplicates();
    for (const QString &key : keys)
        compareValues(a.value(key), b.value(key), pointer + pointerStep(key));
}

void Comparison::compareArrays(const QJsonArray &a, const QJsonArray &b, const QString &pointer)
{
    const auto element = [](const QJsonArray &array, qsizetype i) {
        return i < array.size() ? array.at(i) : QJsonValue(QJsonValue::Undefined);
    };
    for (qsizetype i = 0; i < std::max(a.size(), b.size()); ++i)
        compareValues(element(a, i), element(b, i), pointer + step(i));
}

void Comparison::compareChildren(const QJsonArray &a, const QJsonArray &b, const QString &pointer)
{
    const QList<qsizetype> partners = partnersOf(a, b);
    QList<qsizetype> found = partners;
    found.removeAll(kNone);
    if (!std::is_sorted(found.begin(), found.end()))
        differences.append({Change::Order, pointer});
    for (qsizetype i = 0; i < a.size(); ++i) {
        const QJsonValue other =
            partners.at(i) == kNone ? QJsonValue::Undefined : b.at(partners.at(i));
        if (a.at(i).isObject() && other.isObject())
            compareRecords(a.at(i).toObject(), other.toObject(), pointer + step(i));
        else
            compareValues(a.at(i), other, pointer + step(i));
    }
    const QSet<qsizetype> taken(found.begin(), found.end());
    for (qsizetype j = 0; j < b.size(); ++j) {
        if (!taken.contains(j))
            compareValues(QJsonValue::Undefined, b.at(j), pointer + step(j));
    }
}

/// A value on one line; a whole record by its kind and name.
QString valueText(const QJsonValue &value)
{
    switch (value.type()) {
    case QJsonValue::String:
        return quoted(value.toString());
    case QJsonValue::Object:
        if (value["config"_L1].isObject()) {
            return u"%1 %2"_s.arg(kindName(QUuid(value["id"_L1].toString())),
                                  quoted(value["name"_L1].toString()));
        }
        return QString::fromUtf8(QJsonDocument(value.toObject()).toJson(QJsonDocument::Compact));
    case QJsonValue::Array:
        return QString::fromUtf8(QJsonDocument(value.toArray()).toJson(QJsonDocument::Compact));
    case QJsonValue::Double:
        return QString::number(value.toDouble(), 'g', QLocale::FloatingPointShortest);
    case QJsonValue::Bool:
        return value.toBool() ? u"true"_s : u"false"_s;
    default:
        return value.isNull() ? u"null"_s : u"nothing"_s;
    }
}

QString nameOf(Change change)
{
    switch (change) {
    case Change::OnlyInA:
        return u"onlyInA"_s;
    case Change::OnlyInB:
        return u"onlyInB"_s;
    case Change::Icon:
        return u"icon"_s;
    case Change::Order:
        return u"order"_s;
    default:
        return u"changed"_s;
    }
}

} // namespace

QString Difference::toString(const Paint &paint) const
{
    const QString place = printable(pointer) + u": "_s;
    if (change == Change::Icon)
        return place + u"icon differs"_s;
    if (change == Change::Order)
        return place + u"order differs"_s;
    return place + paint.before(printable(valueText(a))) + u" -> "_s
        + paint.after(printable(valueText(b)));
}

QJsonObject Difference::toJsonObject() const
{
    QJsonObject object{{u"pointer"_s, pointer}, {u"change"_s, nameOf(change)}};
    if (!a.isUndefined())
        object.insert("a"_L1, a);
    if (!b.isUndefined())
        object.insert("b"_L1, b);
    return object;
}

Differences compareRecords(const QJsonObject &a, const QJsonObject &b)
{
    Comparison comparison;
    comparison.compareRecords(a, b, QString());
    return comparison.differences;
}

QJsonArray toJsonArray(const Differences &differences)
{
    QJsonArray array;
    for (const Difference &difference : differences)
        array.append(difference.toJsonObject());
    return array;
}

} // namespace Norvane::Kilnjet::Tool
