// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include <QtCore/QJsonArray>
#include <QtCore/QJsonObject>
#include <QtCore/QJsonValue>
#include <QtCore/QList>
#include <QtCore/QString>

namespace Norvane::Kilnjet::Tool {

class Paint;

/// One difference between two records, A and B.
struct Difference
{
    enum class Change
    {
        Changed,
        OnlyInA,
        OnlyInB,
        Icon, ///< The icons differ; what they hold is not shown.
        Order, ///< The same children stand in another order.
    };

    Change change = Change::Changed;
    /// The JSON pointer, in A, or in B for what is only there.
    QString pointer;
    QJsonValue a = QJsonValue::Undefined;
    QJsonValue b = QJsonValue::Undefined;

    /// "/config/maximumFaces: 32 -> 64", safe for a terminal.
    QString toString(const Paint &paint) const;
    QJsonObject toJsonObject() const;
};

using Differences = QList<Difference>;

/// What differs between two records, field by field.
///
/// Children are matched by kind and device id, those left over by kind and position. Metadata is
/// annotation and left out.
Differences compareRecords(const QJsonObject &a, const QJsonObject &b);

QJsonArray toJsonArray(const Differences &differences);

} // namespace Norvane::Kilnjet::Tool
